#include <cstddef>

#include <qdacore/host/posix/Wildcard.h>

namespace NZRVQDA20 {
namespace host {

bool MatchesWildcard(const std::string& pattern, const char* name) {
  const std::size_t kNone = std::string::npos;
  std::size_t at = 0;
  // Where to take up again after a mismatch: behind the last "*", one character further on.
  std::size_t afterStar = kNone;
  const char* retry = nullptr;
  while (*name) {
    if (at < pattern.size() && pattern[at] == '*') {
      if (++at == pattern.size()) {
        return true;
      }
      afterStar = at;
      retry = name;
    } else if (at < pattern.size() && (pattern[at] == '?' || pattern[at] == *name)) {
      ++at;
      ++name;
    } else if (afterStar != kNone) {
      at = afterStar;
      name = ++retry;
    } else {
      return false;
    }
  }
  while (at < pattern.size() && pattern[at] == '*') {
    ++at;
  }
  return at == pattern.size();
}

}  // namespace host
}  // namespace NZRVQDA20

#include <qdacore/host/Paths.h>

namespace NZRVQDA20 {
namespace host {

char PathSeparator() { return '/'; }

std::string FromCaller(const std::string& path) {
  std::string result = path;
  for (char& character : result) {
    if (character == '\\') {
      character = '/';
    }
  }
  return result;
}

}  // namespace host
}  // namespace NZRVQDA20

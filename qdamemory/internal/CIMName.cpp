#include <qdamemory/internal/CIMName.h>

#include <cstddef>
#include <cstring>

#include <qdamemory/internal/Fail.h>
#include <qdamemory/internal/Mix.h>

namespace NZRVQDA20 {

namespace {

// Setting this bit makes ASCII letters lower case. It also joins a few pairs of other
// characters, which for a hash is no harm.
const std::uint64_t kCaseBits = 0x2020202020202020u;

char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; }

bool IsNameStart(unsigned char c) {
  const unsigned char lower = static_cast<unsigned char>(c | 0x20);
  return (lower >= 'a' && lower <= 'z') || c == '_' || c >= 0x80;
}

}  // namespace

std::uint32_t HashCIMName(const std::string& name) {
  const char* text = name.data();
  const std::size_t size = name.size();
  std::uint64_t hash = size;
  if (size < 8) {
    return static_cast<std::uint32_t>(Mix(hash, LoadShort(text, size) | kCaseBits) >> 32);
  }
  for (std::size_t at = 0; at + 8 < size; at += 8) {
    hash = Mix(hash, LoadWord(text + at) | kCaseBits);
  }
  // The last eight bytes, some of them for the second time: no byte loop is needed.
  return static_cast<std::uint32_t>(Mix(hash, LoadWord(text + size - 8) | kCaseBits) >> 32);
}

bool EqualCIMNames(const std::string& left, const std::string& right) {
  const std::size_t size = left.size();
  if (size != right.size()) {
    return false;
  }
  // Nearly always the case is the same too.
  if (std::memcmp(left.data(), right.data(), size) == 0) {
    return true;
  }
  for (std::size_t at = 0; at < size; ++at) {
    if (Lower(left[at]) != Lower(right[at])) {
      return false;
    }
  }
  return true;
}

bool IsCIMName(const std::string& name) {
  if (name.empty() || !IsNameStart(static_cast<unsigned char>(name[0]))) {
    return false;
  }
  for (std::size_t at = 1; at < name.size(); ++at) {
    const unsigned char c = static_cast<unsigned char>(name[at]);
    if (!IsNameStart(c) && !(c >= '0' && c <= '9')) {
      return false;
    }
  }
  return true;
}

void RequireCIMName(const std::string& name) {
  if (!IsCIMName(name)) {
    Fail(TQDAStatusCode::kQDAStatusInvalidCIMName);
  }
}

std::string FoldCIMName(const std::string& name) {
  std::string folded(name);
  for (std::size_t at = 0; at < folded.size(); ++at) {
    folded[at] = Lower(folded[at]);
  }
  return folded;
}

}  // namespace NZRVQDA20

#include <qdamemory/internal/CIMName.h>

#include <cstddef>

#include <qdamemory/internal/Fail.h>
#include <qdamemory/internal/Mix.h>

namespace NZRVQDA20 {

namespace {

// Setting this bit makes ASCII letters lower case. It also joins a few pairs of other
// characters, which for a hash is no harm.
const std::uint64_t kCaseBits = 0x2020202020202020u;

const std::uint64_t kHighBits = 0x8080808080808080u;
const std::uint64_t kOnes = 0x0101010101010101u;

char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; }

// The high bit of each byte of the result tells whether that byte of `low`, all of which are
// below 128, lies between the two characters.
std::uint64_t Between(std::uint64_t low, char first, char last) {
  return (low + kOnes * static_cast<unsigned char>(128 - first)) &
         ~(low + kOnes * static_cast<unsigned char>(127 - last));
}

// True when each of the eight characters may stand in a name, not at its beginning.
bool AreNameCharacters(std::uint64_t word) {
  const std::uint64_t low = word & ~kHighBits;
  const std::uint64_t fits =
      word | Between(low, '0', '9') | Between(low, '_', '_') | Between(low | kCaseBits, 'a', 'z');
  return (fits & kHighBits) == kHighBits;
}

// Without a call, because names are short.
bool EqualBytes(const char* left, const char* right, std::size_t size) {
  if (size < 8) {
    return LoadShort(left, size) == LoadShort(right, size);
  }
  for (std::size_t at = 0; at + 8 < size; at += 8) {
    if (LoadWord(left + at) != LoadWord(right + at)) {
      return false;
    }
  }
  return LoadWord(left + size - 8) == LoadWord(right + size - 8);
}

bool IsNameCharacter(unsigned char c) {
  return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_' ||
         c >= 0x80;
}

}  // namespace

std::uint32_t HashCIMName(const std::string& name) {
  const char* text = name.data();
  const std::size_t size = name.size();
  std::uint64_t hash = size;
  if (size < 8) {
    hash = Mix(hash, LoadShort(text, size) | kCaseBits);
  } else {
    for (std::size_t at = 0; at + 8 < size; at += 8) {
      hash = Mix(hash, LoadWord(text + at) | kCaseBits);
    }
    // The last eight bytes, some of them for the second time: no byte loop is needed.
    hash = Mix(hash, LoadWord(text + size - 8) | kCaseBits);
  }
  return static_cast<std::uint32_t>(Finish(hash));
}

bool IsSameText(const std::string& left, const std::string& right) {
  return left.size() == right.size() && EqualBytes(left.data(), right.data(), left.size());
}

bool EqualCIMNames(const std::string& left, const std::string& right) {
  const std::size_t size = left.size();
  if (size != right.size()) {
    return false;
  }
  // Nearly always the case is the same too.
  if (EqualBytes(left.data(), right.data(), size)) {
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
  const char* text = name.data();
  const std::size_t size = name.size();
  if (size == 0 || (text[0] >= '0' && text[0] <= '9')) {
    return false;
  }
  if (size < 8) {
    for (std::size_t at = 0; at < size; ++at) {
      if (!IsNameCharacter(static_cast<unsigned char>(text[at]))) {
        return false;
      }
    }
    return true;
  }
  for (std::size_t at = 0; at + 8 < size; at += 8) {
    if (!AreNameCharacters(LoadWord(text + at))) {
      return false;
    }
  }
  return AreNameCharacters(LoadWord(text + size - 8));
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

#include <qdamemory/internal/CIMName.h>

#include <emmintrin.h>

#include <qdamemory/internal/Fail.h>

namespace NZRVQDA20 {

namespace {

// Setting this bit makes ASCII letters lower case. It also joins a few pairs of other
// characters, which for a hash is no harm.
const std::uint64_t kCaseBits = 0x2020202020202020u;

char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; }

// What fills up a short name: ordinary characters.
const std::uint64_t kFilling = 0x6161616161616161u;

__m128i AllOf(char c) { return _mm_set1_epi8(c); }

// All ones in each byte that is one of the `count` characters from `first` on.
__m128i IsOneOf(__m128i characters, char first, char count) {
  const __m128i place = _mm_sub_epi8(characters, AllOf(first));
  return _mm_cmpeq_epi8(_mm_min_epu8(place, AllOf(static_cast<char>(count - 1))), place);
}

// True when each of the sixteen characters may stand in a name, not at its beginning.
bool AreNameCharacters(std::uint64_t first, std::uint64_t second) {
  const __m128i all = _mm_set_epi64x(static_cast<long long>(second), static_cast<long long>(first));
  const __m128i letters = IsOneOf(_mm_or_si128(all, AllOf(0x20)), 'a', 26);
  const __m128i digits = IsOneOf(all, '0', 10);
  const __m128i underscores = _mm_cmpeq_epi8(all, AllOf('_'));
  // The highest bit of a byte is what counts, and in `all` it is a character beyond ASCII.
  const __m128i fits = _mm_or_si128(_mm_or_si128(letters, digits), _mm_or_si128(underscores, all));
  return _mm_movemask_epi8(fits) == 0xFFFF;
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

bool IsCIMName(const std::string& name) {
  const char* text = name.data();
  const std::size_t size = name.size();
  if (size == 0 || (text[0] >= '0' && text[0] <= '9')) {
    return false;
  }
  if (size < 8) {
    // Four bytes and more make a whole word; fewer leave room.
    return AreNameCharacters(LoadShort(text, size) | (size < 4 ? kFilling << 24 : 0), kFilling);
  }
  for (std::size_t at = 8; at + 8 < size; at += 8) {
    if (!AreNameCharacters(LoadWord(text + at), kFilling)) {
      return false;
    }
  }
  return AreNameCharacters(LoadWord(text), LoadWord(text + size - 8));
}

bool EqualCIMNames(const std::string& left, const std::string& right) {
  // Nearly always the case is the same too.
  if (IsSameText(left, right)) {
    return true;
  }
  const std::size_t size = left.size();
  if (size != right.size()) {
    return false;
  }
  for (std::size_t at = 0; at < size; ++at) {
    if (Lower(left[at]) != Lower(right[at])) {
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

std::uint32_t HashNewCIMName(const std::string& name) {
  RequireCIMName(name);
  return HashCIMName(name);
}

std::string FoldCIMName(const std::string& name) {
  std::string folded(name);
  for (std::size_t at = 0; at < folded.size(); ++at) {
    folded[at] = Lower(folded[at]);
  }
  return folded;
}

}  // namespace NZRVQDA20

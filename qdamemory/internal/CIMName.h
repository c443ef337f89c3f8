// CIM identifiers (DSP0004, "CIM identifiers"): hashed and compared without case, where case
// is that of ASCII letters only. None of this allocates.

#ifndef QDAMEMORY_INTERNAL_CIMNAME_H
#define QDAMEMORY_INTERNAL_CIMNAME_H

#include <cstddef>
#include <cstdint>
#include <string>

#include <qdamemory/internal/Mix.h>

namespace NZRVQDA20 {

// Equal for names that are equal without case.
std::uint32_t HashCIMName(const std::string& name);

// Equal with case: the short way to the answer for a name that was just used. Without a call,
// because names are short.
inline bool IsSameText(const std::string& left, const std::string& right) {
  const std::size_t size = left.size();
  if (size != right.size()) {
    return false;
  }
  if (size < 8) {
    return LoadShort(left.data(), size) == LoadShort(right.data(), size);
  }
  for (std::size_t at = 0; at + 8 < size; at += 8) {
    if (LoadWord(left.data() + at) != LoadWord(right.data() + at)) {
      return false;
    }
  }
  return LoadWord(left.data() + size - 8) == LoadWord(right.data() + size - 8);
}

bool EqualCIMNames(const std::string& left, const std::string& right);

// A letter, an underscore or a byte of a character beyond ASCII, then those and digits.
bool IsCIMName(const std::string& name);

// Throws kQDAStatusInvalidCIMName unless IsCIMName.
void RequireCIMName(const std::string& name);

// Both for a name that is given to something: HashCIMName, or the throw of RequireCIMName.
std::uint32_t HashNewCIMName(const std::string& name);

// The name with its ASCII letters in lower case.
std::string FoldCIMName(const std::string& name);

}  // namespace NZRVQDA20

#endif

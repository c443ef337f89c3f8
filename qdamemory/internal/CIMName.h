// CIM identifiers (DSP0004, "CIM identifiers"): hashed and compared without case, where case
// is that of ASCII letters only. None of this allocates.

#ifndef QDAMEMORY_INTERNAL_CIMNAME_H
#define QDAMEMORY_INTERNAL_CIMNAME_H

#include <cstdint>
#include <string>

namespace NZRVQDA20 {

// Equal for names that are equal without case.
std::uint32_t HashCIMName(const std::string& name);

// Equal with case: the short way to the answer for a name that was just used.
bool IsSameText(const std::string& left, const std::string& right);

bool EqualCIMNames(const std::string& left, const std::string& right);

// A letter, an underscore or a byte of a character beyond ASCII, then those and digits.
bool IsCIMName(const std::string& name);

// Throws kQDAStatusInvalidCIMName unless IsCIMName.
void RequireCIMName(const std::string& name);

// The name with its ASCII letters in lower case.
std::string FoldCIMName(const std::string& name);

}  // namespace NZRVQDA20

#endif

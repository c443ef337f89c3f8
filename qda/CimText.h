// CIM values and types as text and JSON.

#ifndef QDA_CIMTEXT_H
#define QDA_CIMTEXT_H

#include <string>

#include <nlohmann/json.hpp>

#include <qdacore/cim/value/TCIMValue.h>

namespace qda {

// "uint16", "uint16[]", "string[8]" with a declared maximum. A word that names no type reads as
// its number.
std::string TypeText(NZRVQDA20::TCIMValue::TCIMType type, unsigned int maxArraySize = 0);

// The value as MOF (DSP0004) writes it: strings in double quotes, which have a backslash in front
// inside, as backslashes have; references, which are paths, as they are; NULL; arrays in braces, of
// which more than 32 elements are only counted. Control characters are left to Printable. Reals
// have as many digits as tell them apart from all others.
// Throws TQDAException when the value cannot be read.
std::string ValueText(const NZRVQDA20::TCIMValue& value);

// The value as JSON: true and false, numbers (64-bit ones too), strings, null, arrays, whole
// whatever their size. Char16 is the number of its code unit; date-times and references are text;
// reals that are no finite numbers are text too ("nan", "inf"), for JSON has none.
// Throws TQDAException when the value cannot be read.
nlohmann::ordered_json ValueJson(const NZRVQDA20::TCIMValue& value);

}  // namespace qda

#endif

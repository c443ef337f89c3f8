// Values as a MOF text writes them (DSP0004, annex A).

#ifndef QDAMEMORY_MOF_VALUETEXT_H
#define QDAMEMORY_MOF_VALUETEXT_H

#include <string>

#include <qdacore/cim/value/TCIMValue.h>

namespace NZRVQDA20 {
namespace mof {

// In quotes; control characters as escapes, all other bytes as they are.
std::string StringText(const std::string& text);

// One element, null or not.
std::string ScalarText(const TCIMValue& value);

// Any value: one element, or an array in braces. Throws kQDAStatusNotSupported where an element is
// not of the array's type, which no text can say.
std::string ValueText(const TCIMValue& value);

}  // namespace mof
}  // namespace NZRVQDA20

#endif

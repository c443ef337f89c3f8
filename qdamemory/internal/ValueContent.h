// The content of values that compare exactly: booleans, integers, strings and arrays of them.
// Nothing here copies a string.

#ifndef QDAMEMORY_INTERNAL_VALUECONTENT_H
#define QDAMEMORY_INTERNAL_VALUECONTENT_H

#include <cstdint>

#include <qdacore/cim/value/TCIMValue.h>

namespace NZRVQDA20 {

// False for types whose comparison is not exact, and for references.
bool HasExactContent(const TCIMValue& value);

// Both are for values that have exact content: equal in type, array size and every element.
bool IsSameContent(const TCIMValue& left, const TCIMValue& right);
std::uint64_t HashContent(const TCIMValue& value);

}  // namespace NZRVQDA20

#endif

// Key values as one byte string, the same for equal keys and for no others. It is what keys
// are hashed and compared by, because TCIMValue's comparison is not exact enough: any two
// char16 values are equal to it, some datetimes cannot be compared, arrays have no order.
//
//   * strings count byte by byte, numbers by their value, datetimes field by field;
//   * references are equal when they have the same class object and the same bindings, names
//     without case; nothing is resolved.
//
// The bytes hold addresses and are in the machine's order: for one run, never to be stored.

#ifndef QDAMEMORY_INTERNAL_KEYTEXT_H
#define QDAMEMORY_INTERNAL_KEYTEXT_H

#include <cstdint>
#include <string>

#include <qdacore/cim/value/TCIMValue.h>

namespace NZRVQDA20 {

// Appends the bytes of one value, null or not. No value's bytes begin those of another.
void AppendKeyText(std::string& text, const TCIMValue& value);

bool SameKeyText(const TCIMValue& left, const TCIMValue& right);

std::uint64_t HashKeyText(const std::string& text);

}  // namespace NZRVQDA20

#endif

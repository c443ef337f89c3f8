// Numbers read from text just as `std::istream >> number` reads them in the classic locale with
// no base set: white space in front is skipped, a sign is taken, "0x" means hexadecimal and "0"
// octal, reading stops at the first character that does not fit, a number out of range becomes
// the nearest limit, and nothing readable is 0. Without a stream, because a key of an object
// path should not cost a locale.

#ifndef QDACORE_CIM_VALUE_INTERNAL_NUMBEREXTRACTION_H
#define QDACORE_CIM_VALUE_INTERNAL_NUMBEREXTRACTION_H

#include <limits>
#include <string>

namespace NZRVQDA20 {

struct ExtractedInteger {
  bool negative;
  // More than 64 bits: `magnitude` is the greatest number then.
  bool overflow;
  unsigned long long magnitude;
};

ExtractedInteger ExtractInteger(const std::string& text);

// A negative number wraps around, as it does in a stream, unless it is out of range.
template <class Unsigned>
Unsigned ExtractUnsigned(const std::string& text) {
  const Unsigned limit = std::numeric_limits<Unsigned>::max();
  const ExtractedInteger number = ExtractInteger(text);
  if (number.overflow || number.magnitude > limit) {
    return limit;
  }
  return static_cast<Unsigned>(number.negative ? 0 - number.magnitude : number.magnitude);
}

template <class Signed>
Signed ExtractSigned(const std::string& text) {
  const ExtractedInteger number = ExtractInteger(text);
  const unsigned long long limit =
      static_cast<unsigned long long>(std::numeric_limits<Signed>::max()) +
      (number.negative ? 1 : 0);
  if (number.overflow || number.magnitude >= limit) {
    return number.negative ? std::numeric_limits<Signed>::min()
                           : std::numeric_limits<Signed>::max();
  }
  const Signed magnitude = static_cast<Signed>(number.magnitude);
  return number.negative ? static_cast<Signed>(-magnitude) : magnitude;
}

// The word "true" is true; "false", and all else, is false.
bool ExtractBoolean(const std::string& text);

}  // namespace NZRVQDA20

#endif

#include <tests/qdamemory/RandomValues.h>

#include <limits>

#include <qdacore/cim/value/TCIMChar16.h>
#include <qdacore/cim/value/TCIMDateTime.h>

namespace memory_test {

TCIMValue RandomValues::Scalar(Type::ECIMType type) {
  static const char* const kTimes[] = {"20261121120000.000000+000", "19990101000000.123456-720",
                                       "99999999235959.999999:000", "00000000000000.000000:000",
                                       "00000003010203.000004:000"};
  static const double kReals[] = {0.0,  -0.0,  0.1,    1.0 / 3,
                                  -1.5, 1e300, 5e-324, std::numeric_limits<double>::infinity()};
  const unsigned long long bits = Bits();
  switch (type) {
    case Type::kCIMTypeBoolean:
      return TCIMValue(bits % 2 == 0);
    case Type::kCIMTypeUint8:
      return TCIMValue(static_cast<unsigned char>(bits));
    case Type::kCIMTypeSint8:
      return TCIMValue(static_cast<signed char>(bits));
    case Type::kCIMTypeUint16:
      return TCIMValue(static_cast<unsigned short>(bits));
    case Type::kCIMTypeSint16:
      return TCIMValue(static_cast<short>(bits));
    case Type::kCIMTypeUint32:
      return TCIMValue(static_cast<unsigned int>(bits));
    case Type::kCIMTypeSint32:
      return TCIMValue(static_cast<int>(bits));
    case Type::kCIMTypeUint64:
      return TCIMValue(bits);
    case Type::kCIMTypeSint64:
      return TCIMValue(static_cast<long long>(bits));
    case Type::kCIMTypeReal32:
      return TCIMValue(static_cast<float>(static_cast<int>(bits)) / 7);
    case Type::kCIMTypeReal64:
      return TCIMValue(kReals[Below(8)]);
    case Type::kCIMTypeChar16:
      return TCIMValue(TCIMChar16(static_cast<unsigned short>(bits)));
    case Type::kCIMTypeDateTime:
      return TCIMValue(TCIMDateTime(kTimes[Below(5)]));
    default:
      return TCIMValue(Text());
  }
}

TCIMValue RandomValues::Array(Type::ECIMType element, unsigned int size) {
  std::vector<TCIMValue> elements(Below(size == 0 ? 5 : size + 1));
  for (TCIMValue& each : elements) {
    each.Set(OneIn(6) ? Null(element) : Scalar(element));
  }
  return TCIMValue(Type(element), size, elements);
}

// Of any size and sign, often at an end of its range.
unsigned long long RandomValues::Bits() {
  const unsigned long long high = fRandom();
  const unsigned long long all = high << 32 | fRandom();
  switch (Below(4)) {
    case 0:
      return all >> Below(64);
    case 1:
      return (1ull << Below(64)) - Below(2);
    case 2:
      return ~0ull << Below(64);
    default:
      return all;
  }
}

std::string RandomValues::Text() {
  static const char* const kParts[] = {"a",    "A",    "\"", "\\",       "\n", ".ID=\"x\"",
                                       ",",    "NULL", "//", "\xC3\xA4", "{",  "}",
                                       "\x01", "\xFF", " ",  "'"};
  std::string text;
  for (std::size_t left = Below(6); left > 0; --left) {
    text += kParts[Below(16)];
  }
  return text;
}

}  // namespace memory_test

#include <qdacore/cim/value/TCIMNumericValueImpl.h>

#include <charconv>

#include <qdacore/frame/internal/Throw.h>

namespace NZRVQDA20 {

typedef TCIMValue::TCIMType TType;

namespace {

template <class Integer>
std::string DecimalText(Integer number) {
  char buffer[24];
  const std::to_chars_result end = std::to_chars(buffer, buffer + sizeof buffer, number);
  return std::string(buffer, end.ptr);
}

// Six significant digits in general format, as a stream writes by default.
template <class Real>
std::string RealText(Real number) {
  char buffer[32];
  const std::to_chars_result end =
      std::to_chars(buffer, buffer + sizeof buffer, number, std::chars_format::general, 6);
  return std::string(buffer, end.ptr);
}

// Hexadecimal stands in capitals, filled with zeros to two digits a byte.
std::string HexText(unsigned long long number, int digits) {
  std::string text(digits, '0');
  for (int at = digits; at-- > 0; number >>= 4) {
    text[at] = "0123456789ABCDEF"[number & 15];
  }
  return text;
}

std::string OctalText(unsigned long long number) {
  char buffer[24];
  const std::to_chars_result end = std::to_chars(buffer, buffer + sizeof buffer, number, 8);
  return std::string(buffer, end.ptr);
}

template <class Unsigned>
std::string UnsignedText(Unsigned number, unsigned char base) {
  switch (base) {
    case 16:
      return HexText(number, 2 * static_cast<int>(sizeof number));
    case 8:
      return OctalText(number);
    default:
      return DecimalText(static_cast<unsigned long long>(number));
  }
}

void RequireDecimal(unsigned char base) {
  if (base != 10) {
    Throw(TQDAStatusCode::kQDAStatusNotSupported);
  }
}

template <class Signed>
std::string SignedText(Signed number, unsigned char base) {
  RequireDecimal(base);
  return DecimalText(static_cast<long long>(number));
}

// Equal or less, with one place that knows which member the type names.
struct Equal {
  template <class Number>
  bool operator()(Number left, Number right) const {
    return left == right;
  }
};

struct Less {
  template <class Number>
  bool operator()(Number left, Number right) const {
    return left < right;
  }
};

template <class Union, class Comparison>
bool Compare(TType::ECIMType type, const Union& left, const Union& right, Comparison compare) {
  switch (type) {
    case TType::kCIMTypeBoolean:
      return compare(left.boolean, right.boolean);
    case TType::kCIMTypeUint8:
      return compare(left.uint8, right.uint8);
    case TType::kCIMTypeSint8:
      return compare(left.sint8, right.sint8);
    case TType::kCIMTypeUint16:
      return compare(left.uint16, right.uint16);
    case TType::kCIMTypeSint16:
      return compare(left.sint16, right.sint16);
    case TType::kCIMTypeUint32:
      return compare(left.uint32, right.uint32);
    case TType::kCIMTypeSint32:
      return compare(left.sint32, right.sint32);
    case TType::kCIMTypeUint64:
      return compare(left.uint64, right.uint64);
    case TType::kCIMTypeSint64:
      return compare(left.sint64, right.sint64);
    case TType::kCIMTypeReal32:
      return compare(left.real32, right.real32);
    case TType::kCIMTypeReal64:
      return compare(left.real64, right.real64);
    case TType::kCIMTypeChar16:
      Throw(TQDAStatusCode::kQDAStatusNotImplemented);
    default:
      Throw(TQDAStatusCode::kQDAStatusTypeMismatch);
  }
}

}  // namespace

#define QDACORE_NUMERIC(cppType, cimType, member)  \
  TCIMNumericValueImpl::operator cppType() const { \
    Require(TType::cimType);                       \
    return fValue.member;                          \
  }

QDACORE_NUMERIC(bool, kCIMTypeBoolean, boolean)
QDACORE_NUMERIC(unsigned char, kCIMTypeUint8, uint8)
QDACORE_NUMERIC(signed char, kCIMTypeSint8, sint8)
QDACORE_NUMERIC(unsigned short, kCIMTypeUint16, uint16)
QDACORE_NUMERIC(short, kCIMTypeSint16, sint16)
QDACORE_NUMERIC(unsigned int, kCIMTypeUint32, uint32)
QDACORE_NUMERIC(int, kCIMTypeSint32, sint32)
QDACORE_NUMERIC(unsigned long long, kCIMTypeUint64, uint64)
QDACORE_NUMERIC(long long, kCIMTypeSint64, sint64)
QDACORE_NUMERIC(float, kCIMTypeReal32, real32)
QDACORE_NUMERIC(double, kCIMTypeReal64, real64)

#undef QDACORE_NUMERIC

void TCIMNumericValueImpl::Require(TType::ECIMType type) const {
  if (fType != type) {
    Throw(TQDAStatusCode::kQDAStatusTypeMismatch);
  }
}

std::string TCIMNumericValueImpl::ToString(unsigned char base) const {
  // Before the type is looked at, so it holds for booleans too.
  if (base != 10 && base != 16 && base != 8) {
    Throw(TQDAStatusCode::kQDAStatusNotSupported);
  }
  switch (fType) {
    case TType::kCIMTypeBoolean:
      return fValue.boolean ? "true" : "false";
    case TType::kCIMTypeUint8:
      return UnsignedText(fValue.uint8, base);
    case TType::kCIMTypeUint16:
      return UnsignedText(fValue.uint16, base);
    case TType::kCIMTypeUint32:
      return UnsignedText(fValue.uint32, base);
    case TType::kCIMTypeUint64:
      return UnsignedText(fValue.uint64, base);
    case TType::kCIMTypeSint8:
      return SignedText(fValue.sint8, base);
    case TType::kCIMTypeSint16:
      return SignedText(fValue.sint16, base);
    case TType::kCIMTypeSint32:
      return SignedText(fValue.sint32, base);
    case TType::kCIMTypeSint64:
      return SignedText(fValue.sint64, base);
    case TType::kCIMTypeReal32:
      RequireDecimal(base);
      return RealText(fValue.real32);
    case TType::kCIMTypeReal64:
      RequireDecimal(base);
      return RealText(fValue.real64);
    case TType::kCIMTypeChar16:
      Throw(TQDAStatusCode::kQDAStatusNotImplemented);
    default:
      Throw(TQDAStatusCode::kQDAStatusTypeMismatch);
  }
}

bool TCIMNumericValueImpl::operator==(const TCIMValue& other) const {
  const TCIMValueImpl* peer = other.GetType() == fType ? BodyOf(other) : nullptr;
  return peer &&
         Compare(fType, fValue, static_cast<const TCIMNumericValueImpl*>(peer)->fValue, Equal());
}

bool TCIMNumericValueImpl::operator<(const TCIMValue& other) const {
  const TCIMValueImpl* peer = other.GetType() == fType ? BodyOf(other) : nullptr;
  return peer &&
         Compare(fType, fValue, static_cast<const TCIMNumericValueImpl*>(peer)->fValue, Less());
}

}  // namespace NZRVQDA20

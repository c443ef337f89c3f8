#include <qdacore/cim/value/TCIMChar16.h>
#include <qdacore/cim/value/TCIMDateTime.h>
#include <qdacore/cim/value/TCIMReference.h>
#include <qdacore/cim/value/TCIMValueImpl.h>
#include <qdacore/frame/internal/Throw.h>

namespace NZRVQDA20 {

typedef TCIMValue::TCIMType TType;

const TCIMValueImpl& TCIMValue::BodyOfType(TCIMType::ECIMType type) const {
  if (!fBody) {
    Throw(TQDAStatusCode::kQDAStatusValueIsNULL);
  }
  if (fType != type) {
    Throw(TQDAStatusCode::kQDAStatusTypeMismatch);
  }
  return *fBody;
}

TCIMValue::operator bool() const { return BodyOfType(TType::kCIMTypeBoolean).operator bool(); }

TCIMValue::operator unsigned char() const {
  return BodyOfType(TType::kCIMTypeUint8).operator unsigned char();
}

TCIMValue::operator signed char() const {
  return BodyOfType(TType::kCIMTypeSint8).operator signed char();
}

TCIMValue::operator unsigned short() const {
  return BodyOfType(TType::kCIMTypeUint16).operator unsigned short();
}

TCIMValue::operator short() const { return BodyOfType(TType::kCIMTypeSint16).operator short(); }

TCIMValue::operator unsigned int() const {
  return BodyOfType(TType::kCIMTypeUint32).operator unsigned int();
}

TCIMValue::operator int() const { return BodyOfType(TType::kCIMTypeSint32).operator int(); }

TCIMValue::operator unsigned long long() const {
  return BodyOfType(TType::kCIMTypeUint64).operator unsigned long long();
}

TCIMValue::operator long long() const {
  return BodyOfType(TType::kCIMTypeSint64).operator long long();
}

TCIMValue::operator float() const { return BodyOfType(TType::kCIMTypeReal32).operator float(); }

TCIMValue::operator double() const { return BodyOfType(TType::kCIMTypeReal64).operator double(); }

TCIMValue::operator std::string() const {
  return BodyOfType(TType::kCIMTypeString).operator std::string();
}

TCIMValue::operator TCIMDateTime() const {
  return BodyOfType(TType::kCIMTypeDateTime).operator TCIMDateTime();
}

TCIMValue::operator TCIMReference() const {
  return BodyOfType(TType::kCIMTypeReference).operator TCIMReference();
}

TCIMValue::operator std::vector<TCIMValue>&() const {
  if (!fBody) {
    Throw(TQDAStatusCode::kQDAStatusValueIsNULL);
  }
  if (!IsArray()) {
    Throw(TQDAStatusCode::kQDAStatusTypeMismatch);
  }
  return fBody->operator std::vector<TCIMValue>&();
}

}  // namespace NZRVQDA20

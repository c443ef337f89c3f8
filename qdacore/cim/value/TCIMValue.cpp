#include <qdacore/cim/value/TCIMValue.h>

#include <memory>
#include <utility>

#include <qdacore/cim/value/TCIMArrayValueImpl.h>
#include <qdacore/cim/value/TCIMChar16ValueImpl.h>
#include <qdacore/cim/value/TCIMDateTimeValueImpl.h>
#include <qdacore/cim/value/TCIMNumericValueImpl.h>
#include <qdacore/cim/value/TCIMReferenceValueImpl.h>
#include <qdacore/cim/value/TCIMRoom.h>
#include <qdacore/cim/value/TCIMStringValueImpl.h>
#include <qdacore/cim/value/internal/NewBody.h>
#include <qdacore/frame/internal/Throw.h>
#include <qdacore/logging/internal/CoreLog.h>

namespace NZRVQDA20 {

namespace {

typedef TCIMValue::TCIMType TType;

TType::ECIMType WithArrayFlag(TType::ECIMType type) {
  return static_cast<TType::ECIMType>(type | TType::kCIMTypeArrayFlag);
}

// The copy of a body, whose class the handle's type tells.
template <class Body>
TCIMValueImpl* CopyOf(const TCIMValueImpl& body) {
  return new Body(static_cast<const Body&>(body));
}

template <class Body>
TCIMValueImpl* CopyIn(TCIMRoom& room, const TCIMValueImpl& body) {
  static_assert(sizeof(Body) <= TCIMRoom::kMost && alignof(Body) <= alignof(void*),
                "a body finds room");
  return ::new (room.Take(sizeof(Body))) Body(static_cast<const Body&>(body));
}

}  // namespace

TCIMValue::TCIMValue() : fBody(nullptr), fMaxArraySize(0) {}

TCIMValue::~TCIMValue() { delete fBody; }

TCIMValue::TCIMValue(TCIMType type, unsigned int maxArraySize)
    : fType(maxArraySize != 0 ? TCIMType(WithArrayFlag(type)) : type),
      fBody(nullptr),
      fMaxArraySize(maxArraySize) {}

TCIMValue::TCIMValue(TCIMType type, unsigned int maxArraySize,
                     const std::vector<TCIMValue>& elements)
    : TCIMValue() {
  Set(type, maxArraySize, elements);
}

TCIMValue::TCIMValue(const TCIMValue& other) : TCIMValue() { Set(other); }

TCIMValue::TCIMValue(const TCIMValue& other, TCIMRoom& room) : TCIMValue() {
  // A body tells that the type has values.
  if (!other.fBody || other.IsArray() || other.IsReference()) {
    Set(other);
    return;
  }
  switch (other.fType) {
    case TType::kCIMTypeChar16:
      fBody = CopyIn<TCIMChar16ValueImpl>(room, *other.fBody);
      break;
    case TType::kCIMTypeString:
      fBody = CopyIn<TCIMStringValueImpl>(room, *other.fBody);
      break;
    case TType::kCIMTypeDateTime:
      fBody = CopyIn<TCIMDateTimeValueImpl>(room, *other.fBody);
      break;
    default:
      fBody = CopyIn<TCIMNumericValueImpl>(room, *other.fBody);
      break;
  }
  fType = other.fType;
}

TCIMValue::TCIMValue(TCIMReference& value) : TCIMValue() { Set(value); }

TCIMValue& TCIMValue::operator=(const TCIMValue& other) {
  Set(other);
  return *this;
}

#define QDACORE_SCALAR(parameter, cimType, newBody)                     \
  TCIMValue::TCIMValue(parameter value)                                 \
      : fType(TType::cimType), fBody(newBody), fMaxArraySize(0) {}      \
  void TCIMValue::Set(parameter value) {                                \
    const std::unique_ptr<TCIMValueImpl> old(BeginSet(TType::cimType)); \
    fBody = newBody;                                                    \
  }
#define QDACORE_NUMBER(parameter, cimType) \
  QDACORE_SCALAR(parameter, cimType, NewPlainBody<TCIMNumericValueImpl>(value))

QDACORE_NUMBER(bool, kCIMTypeBoolean)
QDACORE_NUMBER(unsigned char, kCIMTypeUint8)
QDACORE_NUMBER(signed char, kCIMTypeSint8)
QDACORE_NUMBER(unsigned short, kCIMTypeUint16)
QDACORE_NUMBER(short, kCIMTypeSint16)
QDACORE_NUMBER(unsigned int, kCIMTypeUint32)
QDACORE_NUMBER(int, kCIMTypeSint32)
QDACORE_NUMBER(unsigned long long, kCIMTypeUint64)
QDACORE_NUMBER(long long, kCIMTypeSint64)
QDACORE_NUMBER(float, kCIMTypeReal32)
QDACORE_NUMBER(double, kCIMTypeReal64)
QDACORE_SCALAR(const std::string&, kCIMTypeString, new TCIMStringValueImpl(value))
QDACORE_SCALAR(const char*, kCIMTypeString, new TCIMStringValueImpl(value))
QDACORE_SCALAR(const TCIMChar16&, kCIMTypeChar16, new TCIMChar16ValueImpl(value))
QDACORE_SCALAR(const TCIMDateTime&, kCIMTypeDateTime, new TCIMDateTimeValueImpl(value))

#undef QDACORE_NUMBER
#undef QDACORE_SCALAR

// To the caller the old body is gone now, and a failure from here on leaves a typed null. It is
// released only when the new one is made, because what that is made of may stand inside the old
// one.
TCIMValueImpl* TCIMValue::BeginSet(TCIMType::ECIMType type) {
  TCIMValueImpl* const old = fBody;
  fBody = nullptr;
  fType = type;
  return old;
}

void TCIMValue::DeleteBody() {
  delete fBody;
  fBody = nullptr;
}

void TCIMValue::Take(TCIMValue& source) {
  std::swap(fType, source.fType);
  std::swap(fBody, source.fBody);
  fReferencedClass.swap(source.fReferencedClass);
  std::swap(fMaxArraySize, source.fMaxArraySize);
}

void TCIMValue::Set(TCIMReference& value) {
  const std::unique_ptr<TCIMValueImpl> old(BeginSet(TType::kCIMTypeReference));
  fBody = new TCIMReferenceValueImpl(value);
  fReferencedClass = value.GetClass();
}

void TCIMValue::Set(TCIMType type, unsigned int maxArraySize,
                    const std::vector<TCIMValue>& elements) {
  const std::unique_ptr<TCIMValueImpl> old(BeginSet(WithArrayFlag(type)));
  fMaxArraySize = maxArraySize;
  fBody = new TCIMArrayValueImpl(elements);

  // Checked only now, so a failed call leaves the wrong elements in place; that is meant.
  const int elementType = type & ~TType::kCIMTypeArrayFlag;
  const std::vector<TCIMValue>& stored = *this;
  for (const TCIMValue& element : stored) {
    if (element.fType != elementType) {
      LogAndThrow(ILogger::kLogError,
                  "Core: ERROR: Attempting to create array of type " + type.ToString() +
                      ", but element is of type " + element.fType.ToString() + ".",
                  TQDAStatusCode::kQDAStatusInvalidProperty);
    }
  }
}

void TCIMValue::Set(const TCIMValue& source) {
  // A test of values and not of identity: an equal source changes nothing at all.
  if (*this == source) {
    return;
  }
  // So a number that is none, over itself, becomes a typed null; that is meant.
  const std::unique_ptr<TCIMValueImpl> old(BeginSet(source.fType));
  if (source.IsArray()) {
    fMaxArraySize = source.fMaxArraySize;
    if (source.fBody) {
      fBody = CopyOf<TCIMArrayValueImpl>(*source.fBody);
    }
    return;
  }
  if (fType == TType::kCIMTypeReference) {
    fReferencedClass = source.fReferencedClass;
  } else if (fType < TType::kCIMTypeBoolean || fType > TType::kCIMTypeReference) {
    Throw(TQDAStatusCode::kQDAStatusTypeMismatch);
  }
  if (!source.fBody) {
    return;
  }
  switch (fType) {
    case TType::kCIMTypeChar16:
      fBody = CopyOf<TCIMChar16ValueImpl>(*source.fBody);
      break;
    case TType::kCIMTypeString:
      fBody = CopyOf<TCIMStringValueImpl>(*source.fBody);
      break;
    case TType::kCIMTypeDateTime:
      fBody = CopyOf<TCIMDateTimeValueImpl>(*source.fBody);
      break;
    case TType::kCIMTypeReference:
      fBody = CopyOf<TCIMReferenceValueImpl>(*source.fBody);
      break;
    default:
      fBody = CopyOf<TCIMNumericValueImpl>(*source.fBody);
      break;
  }
}

void TCIMValue::SetNullValue(TCIMType::ECIMType type, unsigned int maxArraySize) {
  fType = type;
  if (IsArray()) {
    fMaxArraySize = maxArraySize;
  }
  DeleteBody();
}

void TCIMValue::SetReferencedClass(boost::shared_ptr<ICIMClass> cls) {
  if (fBody) {
    Throw(TQDAStatusCode::kQDAStatusInvalidOpSequence);
  }
  fReferencedClass = cls;
}

boost::shared_ptr<ICIMClass> TCIMValue::GetReferencedClass() const { return fReferencedClass; }

std::string TCIMValue::ToString(unsigned char base) const {
  if (!fBody) {
    Throw(TQDAStatusCode::kQDAStatusValueIsNULL);
  }
  return fBody->ToString(base);
}

bool TCIMValue::operator==(const TCIMValue& other) const {
  if (!fBody && !other.fBody) {
    if (fType != other.fType) {
      return false;
    }
    if (IsReference()) {
      return fReferencedClass == other.fReferencedClass;
    }
    return !IsArray() || fMaxArraySize == other.fMaxArraySize;
  }
  if (!fBody || !other.fBody || fType != other.fType) {
    return false;
  }
  return *fBody == other;
}

bool TCIMValue::operator<(const TCIMValue& other) const {
  if (!fBody) {
    return other.fBody != nullptr;
  }
  if (!other.fBody) {
    return false;
  }
  if (fType != other.fType) {
    return static_cast<TCIMType::ECIMType>(fType) < static_cast<TCIMType::ECIMType>(other.fType);
  }
  return *fBody < other;
}

bool TCIMValue::operator!=(const TCIMValue& other) const { return !(*this == other); }

bool TCIMValue::operator>=(const TCIMValue& other) const { return !(*this < other); }

// Both test equality first, so that two equal arrays compare although arrays have no order.
bool TCIMValue::operator>(const TCIMValue& other) const {
  return !(*this == other) && !(*this < other);
}

bool TCIMValue::operator<=(const TCIMValue& other) const { return *this == other || *this < other; }

}  // namespace NZRVQDA20

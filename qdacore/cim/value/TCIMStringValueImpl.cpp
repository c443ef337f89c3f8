#include <qdacore/cim/value/TCIMStringValueImpl.h>

namespace NZRVQDA20 {

TCIMStringValueImpl::TCIMStringValueImpl(const std::string& value) : fValue(value) {}
TCIMStringValueImpl::TCIMStringValueImpl(const char* value) : fValue(value ? value : "") {}
TCIMStringValueImpl::TCIMStringValueImpl(const TCIMStringValueImpl& other)
    : TCIMValueImpl(other), fValue(other.fValue) {}
TCIMStringValueImpl::~TCIMStringValueImpl() {}

TCIMStringValueImpl::operator std::string() const { return fValue; }

std::string TCIMStringValueImpl::ToString(unsigned char /*base*/) const { return fValue; }

bool TCIMStringValueImpl::operator==(const TCIMValue& other) const {
  const TCIMStringValueImpl* peer = Peer(other);
  return peer && fValue == peer->fValue;
}

bool TCIMStringValueImpl::operator<(const TCIMValue& other) const {
  const TCIMStringValueImpl* peer = Peer(other);
  return peer && fValue < peer->fValue;
}

const TCIMStringValueImpl* TCIMStringValueImpl::Peer(const TCIMValue& other) {
  const bool sameType = other.GetType() == TCIMValue::TCIMType::kCIMTypeString;
  return sameType ? static_cast<const TCIMStringValueImpl*>(BodyOf(other)) : nullptr;
}

}  // namespace NZRVQDA20

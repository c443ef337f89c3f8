#include <qdacore/cim/value/TCIMDateTimeValueImpl.h>

namespace NZRVQDA20 {

TCIMDateTimeValueImpl::TCIMDateTimeValueImpl(const TCIMDateTime& value) : fValue(value) {}
TCIMDateTimeValueImpl::TCIMDateTimeValueImpl(const TCIMDateTimeValueImpl& other)
    : TCIMValueImpl(other), fValue(other.fValue) {}
TCIMDateTimeValueImpl::~TCIMDateTimeValueImpl() {}

TCIMDateTimeValueImpl::operator TCIMDateTime() const { return fValue; }

std::string TCIMDateTimeValueImpl::ToString(unsigned char /*base*/) const {
  return fValue.ToString();
}

bool TCIMDateTimeValueImpl::operator==(const TCIMValue& other) const {
  const TCIMDateTimeValueImpl* peer = Peer(other);
  return peer && fValue == peer->fValue;
}

bool TCIMDateTimeValueImpl::operator<(const TCIMValue& other) const {
  const TCIMDateTimeValueImpl* peer = Peer(other);
  return peer && fValue < peer->fValue;
}

const TCIMDateTimeValueImpl* TCIMDateTimeValueImpl::Peer(const TCIMValue& other) {
  const bool sameType = other.GetType() == TCIMValue::TCIMType::kCIMTypeDateTime;
  return sameType ? static_cast<const TCIMDateTimeValueImpl*>(BodyOf(other)) : nullptr;
}

}  // namespace NZRVQDA20

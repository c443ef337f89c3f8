#include <qdacore/cim/value/TCIMChar16ValueImpl.h>

namespace NZRVQDA20 {

TCIMChar16ValueImpl::TCIMChar16ValueImpl(const TCIMChar16& value) : fValue(value) {}
TCIMChar16ValueImpl::TCIMChar16ValueImpl(const TCIMChar16ValueImpl& other)
    : TCIMValueImpl(other), fValue(other.fValue) {}
TCIMChar16ValueImpl::~TCIMChar16ValueImpl() {}

TCIMChar16ValueImpl::operator TCIMChar16() const { return fValue; }

std::string TCIMChar16ValueImpl::ToString(unsigned char /*base*/) const {
  return fValue.ToString();
}

bool TCIMChar16ValueImpl::operator==(const TCIMValue& other) const {
  const TCIMChar16ValueImpl* peer = Peer(other);
  return peer && fValue == peer->fValue;
}

bool TCIMChar16ValueImpl::operator<(const TCIMValue& other) const {
  const TCIMChar16ValueImpl* peer = Peer(other);
  return peer && fValue < peer->fValue;
}

const TCIMChar16ValueImpl* TCIMChar16ValueImpl::Peer(const TCIMValue& other) {
  const bool sameType = other.GetType() == TCIMValue::TCIMType::kCIMTypeChar16;
  return sameType ? static_cast<const TCIMChar16ValueImpl*>(BodyOf(other)) : nullptr;
}

}  // namespace NZRVQDA20

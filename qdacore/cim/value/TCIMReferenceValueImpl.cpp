#include <qdacore/cim/value/TCIMReferenceValueImpl.h>

namespace NZRVQDA20 {

TCIMReferenceValueImpl::TCIMReferenceValueImpl(const TCIMReference& value) : fValue(value) {}
TCIMReferenceValueImpl::TCIMReferenceValueImpl(const TCIMReferenceValueImpl& other)
    : TCIMValueImpl(other), fValue(other.fValue) {}
TCIMReferenceValueImpl::~TCIMReferenceValueImpl() {}

TCIMReferenceValueImpl::operator TCIMReference() const { return fValue; }

std::string TCIMReferenceValueImpl::ToString(unsigned char /*base*/) const {
  return fValue.GetPath();
}

bool TCIMReferenceValueImpl::operator==(const TCIMValue& other) const {
  const TCIMReferenceValueImpl* peer = Peer(other);
  return peer && fValue == peer->fValue;
}

bool TCIMReferenceValueImpl::operator<(const TCIMValue& other) const {
  const TCIMReferenceValueImpl* peer = Peer(other);
  return peer && fValue < peer->fValue;
}

const TCIMReferenceValueImpl* TCIMReferenceValueImpl::Peer(const TCIMValue& other) {
  const bool sameType = other.GetType() == TCIMValue::TCIMType::kCIMTypeReference;
  return sameType ? static_cast<const TCIMReferenceValueImpl*>(BodyOf(other)) : nullptr;
}

}  // namespace NZRVQDA20

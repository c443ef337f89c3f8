#include <qdacore/cim/value/TCIMArrayValueImpl.h>

#include <qdacore/frame/internal/Throw.h>

namespace NZRVQDA20 {

TCIMArrayValueImpl::TCIMArrayValueImpl(const std::vector<TCIMValue>& elements) : fValue(elements) {}
TCIMArrayValueImpl::TCIMArrayValueImpl(const TCIMArrayValueImpl& other)
    : TCIMValueImpl(other), fValue(other.fValue) {}
TCIMArrayValueImpl::~TCIMArrayValueImpl() {}

TCIMArrayValueImpl::operator std::vector<TCIMValue>&() const { return fValue; }

std::string TCIMArrayValueImpl::ToString(unsigned char base) const {
  std::string text = "{ ";
  const char* separator = "";
  for (const TCIMValue& element : fValue) {
    text += separator;
    text += element.ToString(base);
    separator = ", ";
  }
  text += " }";
  return text;
}

bool TCIMArrayValueImpl::operator==(const TCIMValue& other) const {
  const TCIMValueImpl* body = other.IsArray() ? BodyOf(other) : nullptr;
  return body && fValue == static_cast<const TCIMArrayValueImpl*>(body)->fValue;
}

bool TCIMArrayValueImpl::operator<(const TCIMValue&) const {
  Throw(TQDAStatusCode::kQDAStatusNotImplemented);
}

}  // namespace NZRVQDA20

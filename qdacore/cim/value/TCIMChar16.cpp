#include <qdacore/cim/value/TCIMChar16.h>

#include <boost/make_shared.hpp>

#include <qdacore/cim/value/TCIMChar16Impl.h>
#include <qdacore/frame/internal/Throw.h>

namespace NZRVQDA20 {

namespace {

// The date-time's status serves here too.
void RequireBothSet(const TCIMChar16Impl& left, const TCIMChar16Impl& right) {
  if (left.IsNull() || right.IsNull()) {
    Throw(TQDAStatusCode::kQDAStatusInvalidDateTime);
  }
}

}  // namespace

TCIMChar16::TCIMChar16()
    : fBody(boost::make_shared<TCIMChar16Impl>(false, static_cast<std::uint16_t>(0))) {}

TCIMChar16::TCIMChar16(unsigned short value)
    : fBody(boost::make_shared<TCIMChar16Impl>(false, value)) {}

// The text is not read, on purpose.
TCIMChar16::TCIMChar16(const std::string&)
    : fBody(boost::make_shared<TCIMChar16Impl>(true, static_cast<std::uint16_t>(0))) {}

TCIMChar16::TCIMChar16(const TCIMChar16& other)
    : fBody(boost::make_shared<TCIMChar16Impl>(*other.fBody)) {}

TCIMChar16::~TCIMChar16() {}

TCIMChar16& TCIMChar16::operator=(const TCIMChar16& other) {
  fBody = other.fBody;
  return *this;
}

unsigned short TCIMChar16::GetValue() const { return fBody->GetValue(); }

std::string TCIMChar16::ToString() const {
  if (fBody->IsNull()) {
    Throw(TQDAStatusCode::kQDAStatusInvalidDateTime);
  }
  return std::to_string(fBody->GetValue());
}

// Neither comparison reads the characters; both results are meant.
bool TCIMChar16::operator==(const TCIMChar16& other) const {
  RequireBothSet(*fBody, *other.fBody);
  return true;
}

bool TCIMChar16::operator<(const TCIMChar16& other) const {
  RequireBothSet(*fBody, *other.fBody);
  return true;
}

}  // namespace NZRVQDA20

#include <qdacore/cim/value/TCIMValueImpl.h>

#include <cstdlib>
#include <new>

#include <qdacore/cim/value/TCIMChar16.h>
#include <qdacore/cim/value/TCIMDateTime.h>
#include <qdacore/cim/value/TCIMReference.h>
#include <qdacore/cim/value/TCIMRoom.h>
#include <qdacore/frame/internal/Throw.h>

namespace NZRVQDA20 {

namespace {

[[noreturn]] void NotThisKind() { Throw(TQDAStatusCode::kQDAStatusTypeMismatch); }

}  // namespace

void* TCIMValueImpl::operator new(std::size_t size) {
  if (void* const block = std::malloc(size)) {
    return block;
  }
  throw std::bad_alloc();
}

void TCIMValueImpl::operator delete(void* block) {
  if (!TCIMRoom::IsIn(block)) {
    std::free(block);
  }
}

TCIMValueImpl::operator bool() const { NotThisKind(); }
TCIMValueImpl::operator unsigned char() const { NotThisKind(); }
TCIMValueImpl::operator signed char() const { NotThisKind(); }
TCIMValueImpl::operator unsigned short() const { NotThisKind(); }
TCIMValueImpl::operator short() const { NotThisKind(); }
TCIMValueImpl::operator unsigned int() const { NotThisKind(); }
TCIMValueImpl::operator int() const { NotThisKind(); }
TCIMValueImpl::operator unsigned long long() const { NotThisKind(); }
TCIMValueImpl::operator long long() const { NotThisKind(); }
TCIMValueImpl::operator float() const { NotThisKind(); }
TCIMValueImpl::operator double() const { NotThisKind(); }
TCIMValueImpl::operator std::string() const { NotThisKind(); }
TCIMValueImpl::operator TCIMChar16() const { NotThisKind(); }
TCIMValueImpl::operator TCIMDateTime() const { NotThisKind(); }
TCIMValueImpl::operator TCIMReference() const { NotThisKind(); }
TCIMValueImpl::operator std::vector<TCIMValue>&() const { NotThisKind(); }

}  // namespace NZRVQDA20

#include <qdamemory/internal/TMemoryQualifier.h>

#include <qdamemory/internal/TMemoryQualifierDecl.h>
#include <qdamemory/internal/TQualifierDeclPool.h>

namespace NZRVQDA20 {

// A qualifier is complete from the start.
void TMemoryQualifier::Commit(TContext) {}

boost::shared_ptr<const ICIMQualifierDecl> TMemoryQualifier::GetQualifierDecl(TContext) const {
  return boost::shared_ptr<const ICIMQualifierDecl>(fDecl->Pool()->shared_from_this(), fDecl);
}

const TCIMValue& TMemoryQualifier::GetValue(TContext) const { return Value(); }

}  // namespace NZRVQDA20

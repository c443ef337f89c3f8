#include <qdamemory/internal/TMemoryQualifier.h>

#include <qdamemory/internal/TMemoryClass.h>
#include <qdamemory/internal/TMemoryQualifierDecl.h>
#include <qdamemory/internal/TQualifierDeclPool.h>

namespace NZRVQDA20 {

TMemoryQualifier::TMemoryQualifier(const boost::shared_ptr<const TMemoryClass>& cls,
                                   const TQualifierList::TNode* node)
    : fClass(cls), fNode(node) {}

// A qualifier is complete from the start.
void TMemoryQualifier::Commit(TContext) {}

boost::shared_ptr<const ICIMQualifierDecl> TMemoryQualifier::GetQualifierDecl(TContext) const {
  return boost::shared_ptr<const ICIMQualifierDecl>(fClass->DeclPool(), fNode->decl);
}

const TCIMValue& TMemoryQualifier::GetValue(TContext) const { return fNode->Value(); }

}  // namespace NZRVQDA20

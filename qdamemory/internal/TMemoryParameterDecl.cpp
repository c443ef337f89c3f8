#include <qdamemory/internal/TMemoryParameterDecl.h>

#include <qdacore/cim/object/ICIMQualifier.h>
#include <qdamemory/internal/Fail.h>
#include <qdamemory/internal/TMemoryClass.h>

namespace NZRVQDA20 {

TMemoryParameterDecl::TMemoryParameterDecl(TMemoryClass& cls, const std::string& name,
                                           TCIMValue::TCIMType type)
    : fClass(cls), fName(name), fType(type), fIsCommitted(false), fQualifiers(0) {}

boost::shared_ptr<ICIMQualifier> TMemoryParameterDecl::AddQualifier(
    boost::shared_ptr<ICIMQualifierDecl> declaration, const TCIMValue& value, TContext) {
  fClass.RequireOpen();
  if (fIsCommitted) {
    Fail(TQDAStatusCode::kQDAStatusInvalidOpSequence);
  }
  return TQualifierList::Share(fClass, fQualifiers.Add(fClass, declaration, value));
}

boost::shared_ptr<ICIMQualifier> TMemoryParameterDecl::GetQualifier(const std::string& name,
                                                                    TContext) const {
  TMemoryQualifier* qualifier = fQualifiers.Find(name);
  if (qualifier == 0) {
    Fail(TQDAStatusCode::kQDAStatusNotFound);
  }
  return TQualifierList::Share(fClass, qualifier);
}

void TMemoryParameterDecl::EnumerateQualifiers(
    boost::function<bool(boost::shared_ptr<ICIMQualifier>)>& visit, TContext) const {
  fQualifiers.Enumerate(fClass, visit);
}

void TMemoryParameterDecl::Commit(TContext) { fIsCommitted = true; }

const std::string& TMemoryParameterDecl::GetName(TContext) const { return fName; }

TCIMValue::TCIMType TMemoryParameterDecl::GetType(TContext) const { return fType; }

void TMemoryParameterDecl::Release() { fQualifiers.Release(); }

}  // namespace NZRVQDA20

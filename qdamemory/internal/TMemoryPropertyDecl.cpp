#include <qdamemory/internal/TMemoryPropertyDecl.h>

#include <memory>

#include <qdacore/cim/object/ICIMQualifier.h>
#include <qdamemory/internal/StoredValue.h>
#include <qdamemory/internal/TMemoryClass.h>
#include <qdamemory/internal/TMemoryQualifierDecl.h>

namespace NZRVQDA20 {

TMemoryPropertyDecl::~TMemoryPropertyDecl() { delete OwnDefault(); }

const TCIMValue* TMemoryPropertyDecl::CopyOf(const TCIMValue& value) {
  std::unique_ptr<TCIMValue> copy(
      new TCIMValue(value.GetType(), value.IsArray() ? value.GetMaxArraySize() : 0));
  StoreValue(*copy, value);
  return copy.release();
}

TCIMValue* TMemoryPropertyDecl::OwnDefault() const {
  return PlainNull(*fDefaultValue) == fDefaultValue ? 0 : const_cast<TCIMValue*>(fDefaultValue);
}

boost::shared_ptr<ICIMQualifier> TMemoryPropertyDecl::AddQualifier(
    boost::shared_ptr<ICIMQualifierDecl> declaration, const TCIMValue& value, TContext) {
  fClass.RequireOpen();
  if (fIsCommitted) {
    Fail(TQDAStatusCode::kQDAStatusInvalidOpSequence);
  }
  TMemoryQualifier* qualifier = fQualifiers.Add(fClass, declaration, value);
  if (qualifier->Decl()->Meaning() == TMemoryQualifierDecl::kKey) {
    fIsKey = IsTrue(qualifier->Value());
    fClass.NoteOwnKey();
  }
  return TQualifierList::Share(fClass, qualifier);
}

boost::shared_ptr<ICIMQualifier> TMemoryPropertyDecl::GetQualifier(const std::string& name,
                                                                   TContext) const {
  TMemoryQualifier* qualifier = fQualifiers.Find(name);
  if (qualifier == 0) {
    Fail(TQDAStatusCode::kQDAStatusNotFound);
  }
  return TQualifierList::Share(fClass, qualifier);
}

void TMemoryPropertyDecl::EnumerateQualifiers(
    boost::function<bool(boost::shared_ptr<ICIMQualifier>)>& visit, TContext) const {
  fQualifiers.Enumerate(fClass, visit);
}

void TMemoryPropertyDecl::Commit(TContext) { fIsCommitted = true; }

const std::string& TMemoryPropertyDecl::GetName(TContext) const { return fName; }

TCIMValue::TCIMType TMemoryPropertyDecl::GetType(TContext) const { return Type(); }

const TCIMValue& TMemoryPropertyDecl::GetDefaultValue(TContext) const { return *fDefaultValue; }

boost::shared_ptr<const ICIMPropertyDecl> TMemoryPropertyDecl::Share() const {
  return boost::shared_ptr<const ICIMPropertyDecl>(fClass.shared_from_this(), this);
}

void TMemoryPropertyDecl::RequireRefersTo(const TCIMValue& value) const {
  const boost::shared_ptr<ICIMClass> declared = fDefaultValue->GetReferencedClass();
  if (declared && !IsNamedOrDerived(value.GetReferencedClass(), declared->GetName(TContext()))) {
    Fail(TQDAStatusCode::kQDAStatusInvalidReference);
  }
}

void TMemoryPropertyDecl::StoreTo(TCIMValue& slot, const TCIMValue& value) const {
  StoreValue(slot, value);
  if (slot.IsNull() && slot.IsReference()) {
    slot.SetReferencedClass(fDefaultValue->GetReferencedClass());
  }
}

void TMemoryPropertyDecl::Release() {
  if (TCIMValue* own = OwnDefault()) {
    ReleaseReferences(*own);
  }
  fQualifiers.Release();
}

}  // namespace NZRVQDA20

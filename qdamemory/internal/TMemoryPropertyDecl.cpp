#include <qdamemory/internal/TMemoryPropertyDecl.h>

#include <qdacore/cim/object/ICIMQualifier.h>
#include <qdamemory/internal/Fail.h>
#include <qdamemory/internal/StoredValue.h>
#include <qdamemory/internal/TMemoryClass.h>
#include <qdamemory/internal/TMemoryQualifierDecl.h>

namespace NZRVQDA20 {

TMemoryPropertyDecl::TMemoryPropertyDecl(TMemoryClass& cls, const std::string& name,
                                         const TCIMValue& defaultValue,
                                         const TMemoryPropertyDecl* overridden, std::uint32_t slot)
    : fClass(cls),
      fName(name),
      fDefaultValue(defaultValue.GetType(),
                    defaultValue.IsArray() ? defaultValue.GetMaxArraySize() : 0),
      fQualifiers(overridden == 0 ? 0 : &overridden->fQualifiers),
      fSlot(slot),
      fIsKey(overridden != 0 && overridden->fIsKey),
      fIsCommitted(false) {
  // A plain null, which most defaults are, is there already.
  if (!defaultValue.IsNull() || HoldsReferences(defaultValue)) {
    StoreValue(fDefaultValue, defaultValue);
  }
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

const TCIMValue& TMemoryPropertyDecl::GetDefaultValue(TContext) const { return fDefaultValue; }

boost::shared_ptr<const ICIMPropertyDecl> TMemoryPropertyDecl::Share() const {
  return boost::shared_ptr<const ICIMPropertyDecl>(fClass.shared_from_this(), this);
}

void TMemoryPropertyDecl::RequireFits(const TCIMValue& value) const {
  if (value.GetType() != Type()) {
    Fail(TQDAStatusCode::kQDAStatusTypeMismatch);
  }
  // Only a scalar names its class; and a reference property may be declared without one.
  if (value.IsReference() && !value.IsNull()) {
    RequireRefersTo(value);
  }
}

void TMemoryPropertyDecl::RequireRefersTo(const TCIMValue& value) const {
  const boost::shared_ptr<ICIMClass> declared = fDefaultValue.GetReferencedClass();
  if (declared && !IsNamedOrDerived(value.GetReferencedClass(), declared->GetName(TContext()))) {
    Fail(TQDAStatusCode::kQDAStatusInvalidReference);
  }
}

void TMemoryPropertyDecl::StoreTo(TCIMValue& slot, const TCIMValue& value) const {
  StoreValue(slot, value);
  if (slot.IsNull() && slot.IsReference()) {
    slot.SetReferencedClass(fDefaultValue.GetReferencedClass());
  }
}

void TMemoryPropertyDecl::Release() {
  ReleaseReferences(fDefaultValue);
  fQualifiers.Release();
}

}  // namespace NZRVQDA20

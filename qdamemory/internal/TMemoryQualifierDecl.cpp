#include <qdamemory/internal/TMemoryQualifierDecl.h>

#include <qdamemory/StandardQualifiers.h>
#include <qdamemory/internal/CIMName.h>
#include <qdamemory/internal/Fail.h>
#include <qdamemory/internal/StoredValue.h>

namespace NZRVQDA20 {

namespace {

TMemoryQualifierDecl::EMeaning MeaningOf(const std::string& name) {
  if (EqualCIMNames(name, "Key")) {
    return TMemoryQualifierDecl::kKey;
  }
  if (EqualCIMNames(name, "Association")) {
    return TMemoryQualifierDecl::kAssociation;
  }
  if (EqualCIMNames(name, "Abstract")) {
    return TMemoryQualifierDecl::kAbstract;
  }
  return TMemoryQualifierDecl::kNoMeaning;
}

}  // namespace

TMemoryQualifierDecl::TMemoryQualifierDecl(const TQualifierDeclPool* pool, const std::string& name,
                                           const TCIMValue& value, std::int32_t scope,
                                           std::int32_t flavor)
    : fPool(pool), fName(name), fScope(scope), fFlavor(flavor), fMeaning(MeaningOf(name)) {
  StoreValue(fValue, value);
}

// There is nothing left to add to a declaration.
void TMemoryQualifierDecl::Commit(TContext) {}

const std::string& TMemoryQualifierDecl::GetName(TContext) const { return fName; }

const TCIMValue& TMemoryQualifierDecl::GetValue(TContext) const { return fValue; }

std::int32_t TMemoryQualifierDecl::GetFirstAttribute(TContext) const { return fScope; }

std::int32_t TMemoryQualifierDecl::GetSecondAttribute(TContext) const { return fFlavor; }

bool TMemoryQualifierDecl::IsInherited() const {
  switch (fMeaning) {
    case kAbstract:
      return false;
    case kAssociation:
    case kKey:
      return true;
    default:
      return (fFlavor & kQualifierToSubclass) != 0;
  }
}

bool TMemoryQualifierDecl::IsFixedBelow() const {
  return IsInherited() && (fFlavor & kQualifierToSubclass) != 0 &&
         (fFlavor & kQualifierEnableOverride) == 0;
}

void TMemoryQualifierDecl::RequireType(const TCIMValue& value) const {
  // A declaration without a type takes any value.
  if (fValue.GetType() != TCIMValue::TCIMType::kCIMTypeNone &&
      fValue.GetType() != value.GetType()) {
    Fail(TQDAStatusCode::kQDAStatusTypeMismatch);
  }
}

void TMemoryQualifierDecl::Release() { ReleaseReferences(fValue); }

}  // namespace NZRVQDA20

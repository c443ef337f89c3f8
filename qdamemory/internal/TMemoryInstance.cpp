#include <qdamemory/internal/TMemoryInstance.h>

#include <boost/make_shared.hpp>

#include <qdamemory/internal/Fail.h>
#include <qdamemory/internal/KeyText.h>
#include <qdamemory/internal/StoredValue.h>
#include <qdamemory/internal/TMemoryProperty.h>

namespace NZRVQDA20 {

TMemoryInstance::TMemoryInstance(const boost::shared_ptr<TMemoryClass>& cls)
    : fClass(cls),
      fProperties(cls->InstanceProperties()),
      fValues(static_cast<std::uint32_t>(fProperties.Size())),
      fNextSlot(0),
      fSerial(0) {}

boost::shared_ptr<ICIMClass> TMemoryInstance::GetClass(TContext) const { return fClass; }

boost::shared_ptr<ICIMProperty> TMemoryInstance::GetProperty(const std::string& name,
                                                             TContext) const {
  const TMemoryPropertyDecl* decl = fProperties.Find(name, HashCIMName(name));
  if (decl == 0) {
    Fail(TQDAStatusCode::kQDAStatusNotFound);
  }
  return boost::make_shared<TMemoryProperty>(shared_from_this(), decl->Slot());
}

const TMemoryPropertyDecl* TMemoryInstance::FindToSet(const std::string& name) {
  const TMemoryPropertyDecl* decl = 0;
  if (fNextSlot < fProperties.Size() && IsSameText(DeclAt(fNextSlot)->Name(), name)) {
    decl = DeclAt(fNextSlot);
  } else {
    decl = fProperties.Find(name, HashCIMName(name));
  }
  if (decl != 0) {
    fNextSlot = decl->Slot() + 1;
  }
  return decl;
}

void TMemoryInstance::SetProperty(const std::string& name, const TCIMValue& value, TContext) {
  const TMemoryPropertyDecl* decl = FindToSet(name);
  if (decl == 0) {
    Fail(TQDAStatusCode::kQDAStatusNotFound);
  }
  decl->RequireFits(value);
  if (fSerial != 0 && decl->IsKey()) {
    if (!SameKeyText(ValueAt(decl->Slot()), value)) {
      Fail(TQDAStatusCode::kQDAStatusInvalidOpSequence);
    }
    return;
  }
  // The first value that a property is given is mostly its only one.
  if (!fValues.IsMade(decl->Slot()) && !HoldsReferences(value)) {
    fValues.MakeCopy(decl->Slot(), value);
  } else {
    decl->StoreTo(fValues.Make(decl->Slot(), decl->Type()), value);
  }
}

void TMemoryInstance::EnumerateProperties(
    boost::function<bool(boost::shared_ptr<ICIMProperty>)>& visit, TContext) const {
  const boost::shared_ptr<const TMemoryInstance> keeper = shared_from_this();
  const std::uint32_t count = static_cast<std::uint32_t>(fProperties.Size());
  for (std::uint32_t slot = 0; slot < count; ++slot) {
    if (!visit(boost::make_shared<TMemoryProperty>(keeper, slot))) {
      return;
    }
  }
}

}  // namespace NZRVQDA20

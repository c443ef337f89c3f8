#include <qdamemory/internal/StoredValue.h>

#include <utility>
#include <vector>

#include <qdacore/cim/object/ICIMClass.h>
#include <qdacore/cim/value/TCIMReference.h>
#include <qdamemory/internal/CIMName.h>
#include <qdamemory/internal/Context.h>
#include <qdamemory/internal/Fail.h>
#include <qdamemory/internal/TMemoryClass.h>

namespace NZRVQDA20 {

namespace {

typedef TCIMValue::TCIMType TType;

TCIMReference WithoutElement(const TCIMValue& value);

struct TBindTo {
  TCIMReference* target;

  bool operator()(const std::pair<std::string, TCIMValue>& binding) const {
    if (binding.second.IsReference() && !binding.second.IsNull()) {
      TCIMReference nested = WithoutElement(binding.second);
      target->AddKeyValue(binding.first, TCIMValue(nested));
    } else {
      target->AddKeyValue(binding.first, binding.second);
    }
    return true;
  }
};

// A reference has no operation that drops only its resolved element, so it is made anew. Its
// context is lost, which counts only for the lookup of a class name.
TCIMReference WithoutElement(const TCIMValue& value) {
  TCIMReference source = value;
  TCIMReference result(source.GetNamespace());
  result.SetNameSpaceName(source.GetNameSpaceName());
  result.SetClass(source.GetClass());
  const TBindTo bind = {&result};
  source.EnumerateKeyBindings(bind);
  return result;
}

void StoreReference(TCIMValue& slot, const TCIMValue& value) {
  TCIMReference clean = WithoutElement(value);
  slot.Set(clean);
}

void StoreReferenceArray(TCIMValue& slot, const TCIMValue& value) {
  const std::vector<TCIMValue>& elements = value;
  std::vector<TCIMValue> clean(elements.size());
  for (std::size_t at = 0; at < elements.size(); ++at) {
    StoreValue(clean[at], elements[at]);
  }
  slot.Set(value.GetType(), value.GetMaxArraySize(), clean);
}

}  // namespace

void StoreOverValue(TCIMValue& slot, const TCIMValue& value) {
  if (&slot == &value) {
    return;
  }
  if (HoldsReferences(value) && !value.IsNull()) {
    if (value.IsArray()) {
      StoreReferenceArray(slot, value);
    } else {
      StoreReference(slot, value);
    }
    return;
  }
  // Null first, so that the assignment has nothing to compare with.
  if (!slot.IsNull()) {
    slot.SetNullValue(slot.GetType(), 0);
  }
  slot.Set(value);
}

void ReleaseReferences(TCIMValue& slot) {
  if (HoldsReferences(slot)) {
    slot.SetNullValue(slot.GetType(), slot.GetMaxArraySize());
    slot.SetReferencedClass(boost::shared_ptr<ICIMClass>());
  }
}

bool IsTrue(const TCIMValue& value) {
  return value.GetType() == TType::kCIMTypeBoolean && !value.IsNull() && value.operator bool();
}

bool IsNamedOrDerived(const boost::shared_ptr<ICIMClass>& cls, const std::string& name) {
  if (const TMemoryClass* own = dynamic_cast<const TMemoryClass*>(cls.get())) {
    for (; own != 0; own = own->SuperClass()) {
      if (EqualCIMNames(own->Name(), name)) {
        return true;
      }
    }
    return false;
  }
  const TContext none;
  boost::shared_ptr<ICIMClass> at = cls;
  while (at) {
    if (EqualCIMNames(at->GetName(none), name)) {
      return true;
    }
    at = at->IsRootClass(none) ? boost::shared_ptr<ICIMClass>() : at->GetSuperClass(none);
  }
  return false;
}

}  // namespace NZRVQDA20

// The part of TMemoryClass that deals with instances and their keys.

#include <algorithm>
#include <utility>

#include <boost/make_shared.hpp>

#include <qdacore/cim/value/TCIMReference.h>
#include <qdamemory/internal/KeyText.h>
#include <qdamemory/internal/TKeyIndex.h>
#include <qdamemory/internal/TMemoryClass.h>
#include <qdamemory/internal/TMemoryInstance.h>
#include <qdamemory/internal/TMemoryNamespace.h>

namespace NZRVQDA20 {

namespace {

// Enough for the key text of an ordinary instance, so that building it allocates once.
const std::size_t kOrdinaryKeyText = 64;

// Takes the key texts of a reference's bindings, each to the place that its key has.
struct TCollectKeys {
  const TMemoryClass* cls;
  const std::vector<std::uint32_t>* slots;
  std::vector<std::string>* texts;
  std::size_t* bound;

  bool operator()(const std::pair<std::string, TCIMValue>& binding) const {
    const TMemoryPropertyDecl* decl = cls->FindProperty(binding.first, HashCIMName(binding.first));
    if (decl == 0 || decl->Type() != binding.second.GetType() || binding.second.IsNull()) {
      Fail(TQDAStatusCode::kQDAStatusInvalidReference);
    }
    const std::size_t at = static_cast<std::size_t>(
        std::find(slots->begin(), slots->end(), decl->Slot()) - slots->begin());
    // No key, or bound already by a name in another case.
    if (at == slots->size() || !(*texts)[at].empty()) {
      Fail(TQDAStatusCode::kQDAStatusInvalidReference);
    }
    (*texts)[at].reserve(kOrdinaryKeyText);
    AppendKeyText((*texts)[at], binding.second);
    ++*bound;
    return true;
  }
};

}  // namespace

const TNameTable<TMemoryPropertyDecl>& TMemoryClass::InstanceProperties() {
  if (fInstanceProperties) {
    return *fInstanceProperties;
  }
  // A class that declares nothing has what its superclass has.
  TMemoryClass* owner = this;
  while (owner->fProperties.Size() == 0 && owner->fSuper) {
    owner = owner->fSuper.get();
  }
  if (!owner->fInstanceProperties) {
    owner->MakeInstanceProperties();
  }
  return *owner->fInstanceProperties;
}

void TMemoryClass::MakeInstanceProperties() {
  std::vector<const TMemoryClass*> path;
  for (const TMemoryClass* cls = this; cls != 0; cls = cls->fSuper.get()) {
    path.push_back(cls);
  }
  std::unique_ptr<TNameTable<TMemoryPropertyDecl> > all(new TNameTable<TMemoryPropertyDecl>());
  for (std::size_t at = path.size(); at-- > 0;) {
    path[at]->fProperties.ForEach([&all](TMemoryPropertyDecl& decl) {
      // A slot that is there already is overridden.
      if (decl.Slot() < all->Size()) {
        all->Replace(decl.Slot(), &decl);
      } else {
        all->Add(&decl, decl.Hash());
      }
    });
  }
  all->Shrink();
  fInstanceProperties = std::move(all);
}

boost::shared_ptr<ICIMInstance> TMemoryClass::CreateInstance(TContext) {
  if (fNamespace == 0 || !fIsCommitted) {
    Fail(TQDAStatusCode::kQDAStatusInvalidOpSequence);
  }
  if (fIsAbstract) {
    Fail(TQDAStatusCode::kQDAStatusInvalidClass);
  }
  return boost::make_shared<TMemoryInstance>(shared_from_this());
}

void TMemoryClass::AddInstance(boost::shared_ptr<ICIMInstance> instance) {
  TMemoryInstance* own = dynamic_cast<TMemoryInstance*>(instance.get());
  if (own == 0 || &own->Class() != this) {
    Fail(TQDAStatusCode::kQDAStatusInvalidInstance);
  }
  RequireAttached();
  if (own->Serial() != 0) {
    Fail(TQDAStatusCode::kQDAStatusAlreadyExists);
  }
  // One key, unless it is a text, needs no more than the string itself has room for.
  std::string key;
  if (fKeys != 0 && fKeys->Slots().size() > 1) {
    key.reserve(kOrdinaryKeyText);
  }
  // An instance with a null key has no name: it is enumerated and nothing else.
  const bool hasName = fKeys != 0 && fKeys->TextOf(*own, key);
  if (hasName) {
    if (fKeys->Find(key) != 0) {
      Fail(TQDAStatusCode::kQDAStatusAlreadyExists);
    }
    fKeys->Reserve();
  }
  fInstances.push_back(boost::static_pointer_cast<TMemoryInstance>(std::move(instance)));
  if (hasName) {
    fKeys->Insert(key, own);
  }
  own->SetSerial(fNamespace->TakeInstanceSerial());
}

void TMemoryClass::EnumerateInstances(boost::function<bool(boost::shared_ptr<ICIMInstance>)>& visit,
                                      bool deep, TContext) const {
  if (fNamespace == 0) {
    return;
  }
  const boost::shared_ptr<const TMemoryClass> guard = shared_from_this();
  const std::uint64_t last = fNamespace->LastInstanceSerial();
  if (!VisitInstances(visit, last) || !deep) {
    return;
  }
  boost::shared_ptr<TMemoryClass> at;
  for (TMemoryClass* next = Next(this, this); next != 0; next = Next(at.get(), this)) {
    at = next->shared_from_this();
    if (!at->VisitInstances(visit, last)) {
      return;
    }
  }
}

bool TMemoryClass::VisitInstances(boost::function<bool(boost::shared_ptr<ICIMInstance>)>& visit,
                                  std::uint64_t lastSerial) const {
  // By position: `visit` may publish instances, and may even end the namespace.
  for (std::size_t at = 0; at < fInstances.size(); ++at) {
    const boost::shared_ptr<TMemoryInstance> instance = fInstances[at];
    if (instance->Serial() > lastSerial) {
      return true;
    }
    if (!visit(instance)) {
      return false;
    }
  }
  return true;
}

boost::shared_ptr<ICIMInstance> TMemoryClass::FindInstance(const TCIMReference& reference) const {
  if (fKeys == 0) {
    Fail(TQDAStatusCode::kQDAStatusInvalidReference);
  }
  std::vector<std::string> texts(fKeys->Slots().size());
  std::size_t bound = 0;
  const TCollectKeys collect = {this, &fKeys->Slots(), &texts, &bound};
  reference.EnumerateKeyBindings(boost::cref(collect));
  if (bound != texts.size()) {
    Fail(TQDAStatusCode::kQDAStatusInvalidReference);
  }
  std::string& key = texts[0];
  for (std::size_t at = 1; at < texts.size(); ++at) {
    key += texts[at];
  }
  TMemoryInstance* instance = fKeys->Find(key);
  // The keys are those of the whole tree; this class's part of it is asked for.
  return instance != 0 && instance->Class().DerivesFrom(this)
             ? instance->shared_from_this()
             : boost::shared_ptr<TMemoryInstance>();
}

}  // namespace NZRVQDA20

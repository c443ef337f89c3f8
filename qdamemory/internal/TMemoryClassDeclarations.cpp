// The part of TMemoryClass that deals with properties, static properties and methods.

#include <algorithm>
#include <utility>

#include <boost/make_shared.hpp>

#include <qdacore/frame/TQDAException.h>
#include <qdamemory/internal/StoredValue.h>
#include <qdamemory/internal/TKeyIndex.h>
#include <qdamemory/internal/TMemoryClass.h>
#include <qdamemory/internal/TMemoryNamespace.h>

namespace NZRVQDA20 {

namespace {

void RequirePropertyType(const TCIMValue& value) {
  const TCIMValue::TCIMType::ECIMType type = ElementType(value);
  if (type < TCIMValue::TCIMType::kCIMTypeBoolean ||
      type > TCIMValue::TCIMType::kCIMTypeReference) {
    Fail(TQDAStatusCode::kQDAStatusTypeMismatch);
  }
}

}  // namespace

boost::shared_ptr<ICIMPropertyDecl> TMemoryClass::AddPropertyDecl(const std::string& name,
                                                                  const TCIMValue& defaultValue,
                                                                  TContext) {
  RequireOpen();
  const std::uint32_t hash = HashNewCIMName(name);
  if (fProperties.Find(name, hash) != 0) {
    Fail(TQDAStatusCode::kQDAStatusAlreadyExists);
  }
  RequirePropertyType(defaultValue);
  const TMemoryPropertyDecl* overridden = fSuper ? fSuper->FindProperty(name, hash) : 0;
  if (overridden != 0 && overridden->Type() != defaultValue.GetType()) {
    Fail(TQDAStatusCode::kQDAStatusTypeMismatch);
  }
  TMemoryPropertyDecl* decl = fProperties.Add(*this, name, hash, defaultValue, overridden,
                                              overridden == 0 ? fSlotCount : overridden->Slot());
  if (overridden == 0) {
    ++fSlotCount;
  }
  // From the namespace's own hold, which costs less than to ask whether there still is one.
  return boost::shared_ptr<ICIMPropertyDecl>(fNamespace->ClassAt(fNumber), decl);
}

boost::shared_ptr<const ICIMPropertyDecl> TMemoryClass::GetPropertyDecl(const std::string& name,
                                                                        TContext) const {
  const TMemoryPropertyDecl* decl = LookUpProperty(name);
  if (decl == 0) {
    // From this very frame: a copier asks for each new name, and every frame that an exception
    // crosses costs more than the question.
    throw TQDAException(TQDAStatusCode::kQDAStatusNotFound);
  }
  return decl->Share();
}

void TMemoryClass::EnumeratePropertyDecls(
    boost::function<bool(boost::shared_ptr<ICIMPropertyDecl>)>& visit, TContext) const {
  const boost::shared_ptr<const TMemoryClass> keeper = shared_from_this();
  const std::uint32_t count = fProperties.Size();
  for (std::uint32_t at = 0; at < count; ++at) {
    if (!visit(boost::shared_ptr<ICIMPropertyDecl>(keeper, fProperties.At(at)))) {
      return;
    }
  }
}

const TMemoryPropertyDecl* TMemoryClass::FindProperty(const std::string& name,
                                                      std::uint32_t hash) const {
  for (const TMemoryClass* cls = this; cls != 0; cls = cls->fSuper.get()) {
    // Has all that stands above, too.
    if (cls->fInstanceProperties) {
      return cls->fInstanceProperties->Find(name, hash);
    }
    if (const TMemoryPropertyDecl* decl = cls->fProperties.Find(name, hash)) {
      return decl;
    }
  }
  return 0;
}

const TMemoryPropertyDecl* TMemoryClass::LookUpProperty(const std::string& name) const {
  const TMemoryPropertyDecl* decl = fLastFound.load(std::memory_order_relaxed);
  if (decl != 0 && IsSameText(decl->Name(), name)) {
    return decl;
  }
  decl = FindProperty(name, HashCIMName(name));
  if (decl != 0 && fIsCommitted) {
    fLastFound.store(decl, std::memory_order_relaxed);
  }
  return decl;
}

const TMemoryPropertyDecl* TMemoryClass::RequireProperty(const std::string& name) const {
  const TMemoryPropertyDecl* decl = LookUpProperty(name);
  if (decl == 0) {
    Fail(TQDAStatusCode::kQDAStatusNotFound);
  }
  return decl;
}

void TMemoryClass::SetStaticProperty(const std::string& name, const TCIMValue& value, TContext) {
  RequireAttached();
  const TMemoryPropertyDecl* decl = RequireProperty(name);
  decl->RequireFits(value);
  TMemoryStaticProperty::TNode* node = 0;
  for (std::size_t at = 0; at < fStaticProperties.size() && node == 0; ++at) {
    if (EqualCIMNames(fStaticProperties[at]->name, name)) {
      node = fStaticProperties[at].get();
    }
  }
  if (node == 0) {
    std::unique_ptr<TMemoryStaticProperty::TNode> added(new TMemoryStaticProperty::TNode());
    added->name = name;
    decl->StoreTo(added->value, value);
    fStaticProperties.push_back(std::move(added));
    return;
  }
  decl->StoreTo(node->value, value);
}

void TMemoryClass::EnumerateStaticProperties(
    boost::function<bool(boost::shared_ptr<ICIMProperty>)>& visit, TContext) const {
  const boost::shared_ptr<const TMemoryClass> keeper = shared_from_this();
  const std::size_t count = fStaticProperties.size();
  for (std::size_t at = 0; at < count; ++at) {
    if (!visit(boost::make_shared<TMemoryStaticProperty>(keeper, fStaticProperties[at].get()))) {
      return;
    }
  }
}

boost::shared_ptr<ICIMMethodDecl> TMemoryClass::AddMethodDecl(const std::string& name,
                                                              TCIMValue::TCIMType returnType,
                                                              TContext) {
  RequireOpen();
  RequireCIMName(name);
  for (std::size_t at = 0; at < fMethodDecls.size(); ++at) {
    if (EqualCIMNames(fMethodDecls[at]->Name(), name)) {
      Fail(TQDAStatusCode::kQDAStatusAlreadyExists);
    }
  }
  const TMemoryMethodDecl* overridden = FindMethod(name);
  if (overridden != 0 && overridden->Type() != returnType) {
    Fail(TQDAStatusCode::kQDAStatusTypeMismatch);
  }
  std::unique_ptr<TMemoryMethodDecl> decl(
      new TMemoryMethodDecl(*this, name, returnType, overridden));
  fMethodDecls.push_back(std::move(decl));
  return boost::shared_ptr<ICIMMethodDecl>(shared_from_this(), fMethodDecls.back().get());
}

void TMemoryClass::EnumerateMethodDecls(
    boost::function<bool(boost::shared_ptr<ICIMMethodDecl>)>& visit, TContext) const {
  const boost::shared_ptr<const TMemoryClass> keeper = shared_from_this();
  const std::size_t count = fMethodDecls.size();
  for (std::size_t at = 0; at < count; ++at) {
    if (!visit(boost::shared_ptr<ICIMMethodDecl>(keeper, fMethodDecls[at].get()))) {
      return;
    }
  }
}

const TMemoryMethodDecl* TMemoryClass::FindMethod(const std::string& name) const {
  for (const TMemoryClass* cls = this; cls != 0; cls = cls->fSuper.get()) {
    for (std::size_t at = 0; at < cls->fMethodDecls.size(); ++at) {
      if (EqualCIMNames(cls->fMethodDecls[at]->Name(), name)) {
        return cls->fMethodDecls[at].get();
      }
    }
  }
  return 0;
}

void TMemoryClass::SettleKeys() {
  fKeys = fSuper ? fSuper->fKeys : 0;
  if (fKeys == 0 && !fHasOwnKeys) {
    return;
  }
  std::vector<std::uint32_t> slots;
  if (fKeys != 0) {
    slots = fKeys->Slots();
  }
  bool changed = false;
  fProperties.ForEach([&slots, &changed](const TMemoryPropertyDecl& decl) {
    const std::vector<std::uint32_t>::iterator found =
        std::find(slots.begin(), slots.end(), decl.Slot());
    if (decl.IsKey() && found == slots.end()) {
      slots.push_back(decl.Slot());
      changed = true;
    } else if (!decl.IsKey() && found != slots.end()) {
      slots.erase(found);
      changed = true;
    }
  });
  if (changed) {
    fOwnKeys.reset(slots.empty() ? 0 : new TKeyIndex(slots));
    fKeys = fOwnKeys.get();
  }
}

}  // namespace NZRVQDA20

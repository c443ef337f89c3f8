#include <qdamemory/internal/TMemoryClass.h>

#include <qdacore/cim/object/ICIMQualifier.h>
#include <qdamemory/internal/StoredValue.h>
#include <qdamemory/internal/TKeyIndex.h>
#include <qdamemory/internal/TMemoryInstance.h>
#include <qdamemory/internal/TMemoryNamespace.h>
#include <qdamemory/internal/TMemoryQualifierDecl.h>

namespace NZRVQDA20 {

TMemoryClass::TMemoryClass(TMemoryNamespace& ns, const std::string& name,
                           const boost::shared_ptr<TMemoryClass>& superclass, std::size_t number)
    : fNamespace(&ns),
      fDeclPool(ns.DeclPool()),
      fName(name),
      fNumber(number),
      fSuper(superclass),
      fFirstSubClass(0),
      fLastSubClass(0),
      fNextSibling(0),
      fQualifiers(superclass ? &superclass->fQualifiers : 0),
      fIsCommitted(false),
      fIsAssociation(superclass && superclass->fIsAssociation),
      fIsAbstract(false),
      fHasOwnKeys(false),
      fSlotCount(superclass ? superclass->fSlotCount : 0),
      fLastFound(0),
      fKeys(0) {}

TMemoryClass::~TMemoryClass() {
  // The superclasses that nobody else holds, one by one: a chain of destructors calling each
  // other could be as deep as the tree.
  boost::shared_ptr<TMemoryClass> super;
  super.swap(fSuper);
  while (super && super.use_count() == 1) {
    boost::shared_ptr<TMemoryClass> next;
    next.swap(super->fSuper);
    super.swap(next);
  }
}

boost::shared_ptr<ICIMQualifier> TMemoryClass::AddQualifier(
    boost::shared_ptr<ICIMQualifierDecl> declaration, const TCIMValue& value, TContext) {
  RequireOpen();
  TMemoryQualifier* qualifier = fQualifiers.Add(*this, declaration, value);
  if (qualifier->Decl()->Meaning() == TMemoryQualifierDecl::kAssociation) {
    fIsAssociation = IsTrue(qualifier->Value());
  } else if (qualifier->Decl()->Meaning() == TMemoryQualifierDecl::kAbstract) {
    fIsAbstract = IsTrue(qualifier->Value());
  }
  return TQualifierList::Share(*this, qualifier);
}

boost::shared_ptr<ICIMQualifier> TMemoryClass::GetQualifier(const std::string& name,
                                                            TContext) const {
  // Unlike on a declaration, absence is an empty pointer here and no failure.
  TMemoryQualifier* qualifier = fQualifiers.Find(name);
  return qualifier == 0 ? boost::shared_ptr<ICIMQualifier>()
                        : TQualifierList::Share(*this, qualifier);
}

void TMemoryClass::EnumerateQualifiers(
    boost::function<bool(boost::shared_ptr<ICIMQualifier>)>& visit, TContext) const {
  fQualifiers.Enumerate(*this, visit);
}

void TMemoryClass::Commit(TContext) {
  if (fIsCommitted) {
    return;
  }
  RequireAttached();
  SettleKeys();
  fIsCommitted = true;
}

const std::string& TMemoryClass::GetName(TContext) const { return fName; }

boost::shared_ptr<ICIMNamespace> TMemoryClass::GetNamespace(TContext) const {
  return fNamespace == 0 ? boost::shared_ptr<ICIMNamespace>() : fNamespace->weak_from_this().lock();
}

bool TMemoryClass::IsAssociation(TContext) const { return fIsAssociation; }

bool TMemoryClass::IsAbstract(TContext) const { return fIsAbstract; }

bool TMemoryClass::IsRootClass(TContext) const { return !fSuper; }

boost::shared_ptr<ICIMClass> TMemoryClass::GetSuperClass(TContext) const { return fSuper; }

void TMemoryClass::EnumerateSubClasses(boost::function<bool(boost::shared_ptr<ICIMClass>)>& visit,
                                       bool deep, TContext) const {
  if (fNamespace == 0) {
    return;
  }
  const boost::shared_ptr<const TMemoryClass> guard = shared_from_this();
  const std::size_t end = fNamespace->ClassCount();
  boost::shared_ptr<TMemoryClass> at;
  for (TMemoryClass* next = fFirstSubClass; next != 0;
       next = deep ? Next(at.get(), this) : at->fNextSibling) {
    at = next->shared_from_this();
    if (at->fNumber < end && !visit(at)) {
      return;
    }
  }
}

TMemoryClass* TMemoryClass::Next(const TMemoryClass* at, const TMemoryClass* root) {
  if (at->fFirstSubClass != 0) {
    return at->fFirstSubClass;
  }
  while (at != root && at != 0) {
    if (at->fNextSibling != 0) {
      return at->fNextSibling;
    }
    at = at->fSuper.get();
  }
  return 0;
}

void TMemoryClass::AppendSibling(TMemoryClass** first, TMemoryClass** last, TMemoryClass* cls) {
  (*last == 0 ? *first : (*last)->fNextSibling) = cls;
  *last = cls;
}

void TMemoryClass::LinkToSuperClass() {
  AppendSibling(&fSuper->fFirstSubClass, &fSuper->fLastSubClass, this);
}

bool TMemoryClass::DerivesFrom(const TMemoryClass* other) const {
  const TMemoryClass* at = this;
  while (at != 0 && at != other) {
    at = at->fSuper.get();
  }
  return at != 0;
}

void TMemoryClass::Detach() {
  fNamespace = 0;
  fFirstSubClass = 0;
  fLastSubClass = 0;
  fNextSibling = 0;
  if (fOwnKeys) {
    fOwnKeys->Clear();
  }
  std::vector<boost::shared_ptr<TMemoryInstance> >().swap(fInstances);
  fQualifiers.Release();
  fProperties.ForEach([](TMemoryPropertyDecl& decl) { decl.Release(); });
  for (std::size_t at = 0; at < fMethodDecls.size(); ++at) {
    fMethodDecls[at]->Release();
  }
  for (std::size_t at = 0; at < fStaticProperties.size(); ++at) {
    ReleaseReferences(fStaticProperties[at]->value);
  }
}

}  // namespace NZRVQDA20

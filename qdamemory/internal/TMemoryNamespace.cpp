#include <qdamemory/internal/TMemoryNamespace.h>

#include <boost/make_shared.hpp>

#include <qdacore/cim/value/TCIMReference.h>
#include <qdamemory/internal/Fail.h>
#include <qdamemory/internal/TMemoryClass.h>
#include <qdamemory/internal/TMemoryInstance.h>
#include <qdamemory/internal/TQualifierDeclPool.h>

namespace NZRVQDA20 {

TMemoryNamespace::TMemoryNamespace(const std::string& name)
    : fName(name),
      fDeclPool(boost::make_shared<TQualifierDeclPool>()),
      fFirstRoot(0),
      fLastRoot(0),
      fLastInstanceSerial(0) {}

TMemoryNamespace::~TMemoryNamespace() {
  fDeclPool->Release();
  for (std::size_t at = 0; at < fClasses.size(); ++at) {
    fClasses[at]->Detach();
  }
  // Subclasses before what they hold.
  while (!fClasses.empty()) {
    fClasses.pop_back();
  }
}

boost::shared_ptr<ICIMClass> TMemoryNamespace::CreateClass(const std::string& name,
                                                           boost::shared_ptr<ICIMClass> superclass,
                                                           TContext) {
  const std::uint32_t hash = HashNewCIMName(name);
  if (fTable.Find(name, hash) != 0) {
    Fail(TQDAStatusCode::kQDAStatusAlreadyExists);
  }
  const boost::shared_ptr<TMemoryClass> super = OwnSuperClass(superclass);
  boost::shared_ptr<TMemoryClass> cls =
      boost::make_shared<TMemoryClass>(boost::ref(*this), name, super, fClasses.size());
  fClasses.push_back(cls);
  try {
    fTable.Add(cls.get(), hash);
  } catch (...) {
    fClasses.pop_back();
    throw;
  }
  if (super) {
    cls->LinkToSuperClass();
  } else {
    TMemoryClass::AppendSibling(&fFirstRoot, &fLastRoot, cls.get());
  }
  return cls;
}

boost::shared_ptr<TMemoryClass> TMemoryNamespace::OwnSuperClass(
    const boost::shared_ptr<ICIMClass>& superclass) const {
  if (!superclass) {
    return boost::shared_ptr<TMemoryClass>();
  }
  const boost::shared_ptr<TMemoryClass> own = boost::dynamic_pointer_cast<TMemoryClass>(superclass);
  if (!own || own->Namespace() != this) {
    Fail(TQDAStatusCode::kQDAStatusInvalidClass);
  }
  if (!own->IsCommitted()) {
    Fail(TQDAStatusCode::kQDAStatusInvalidOpSequence);
  }
  return own;
}

boost::shared_ptr<ICIMClass> TMemoryNamespace::GetClass(const std::string& name, TContext) const {
  const std::size_t position = fTable.Position(name, HashCIMName(name));
  if (position == TNameTable<TMemoryClass>::kNone) {
    Fail(TQDAStatusCode::kQDAStatusNotFound);
  }
  return fClasses[position];
}

void TMemoryNamespace::EnumerateClasses(boost::function<bool(boost::shared_ptr<ICIMClass>)>& visit,
                                        TContext) const {
  const boost::shared_ptr<const TMemoryNamespace> guard = shared_from_this();
  const std::size_t end = fClasses.size();
  for (TMemoryClass* at = fFirstRoot; at != 0 && at->Number() < end; at = at->NextSibling()) {
    if (!visit(at->shared_from_this())) {
      return;
    }
  }
}

boost::shared_ptr<ICIMQualifierDecl> TMemoryNamespace::CreateQualifierDecl(
    const std::string& name, const TCIMValue& value, std::int32_t firstAttribute,
    std::int32_t secondAttribute, TContext) {
  return boost::shared_ptr<ICIMQualifierDecl>(
      fDeclPool, fDeclPool->Create(name, value, firstAttribute, secondAttribute));
}

boost::shared_ptr<ICIMQualifierDecl> TMemoryNamespace::GetQualifierDecl(const std::string& name,
                                                                        TContext) const {
  TMemoryQualifierDecl* decl = fDeclPool->Find(name);
  if (decl == 0) {
    Fail(TQDAStatusCode::kQDAStatusNotFound);
  }
  return boost::shared_ptr<ICIMQualifierDecl>(fDeclPool, decl);
}

void TMemoryNamespace::EnumerateQualifierDecls(
    boost::function<bool(boost::shared_ptr<ICIMQualifierDecl>)>& visit, TContext) const {
  const boost::shared_ptr<TQualifierDeclPool> pool = fDeclPool;
  const std::size_t count = pool->Size();
  for (std::size_t at = 0; at < count; ++at) {
    if (!visit(boost::shared_ptr<ICIMQualifierDecl>(pool, pool->At(at)))) {
      return;
    }
  }
}

boost::shared_ptr<ICIMInstance> TMemoryNamespace::GetInstance(const TCIMReference& reference,
                                                              TContext) const {
  const boost::shared_ptr<ICIMClass> cls = reference.GetClass();
  const TMemoryClass* own = dynamic_cast<const TMemoryClass*>(cls.get());
  if (own == 0 || own->Namespace() != this) {
    Fail(TQDAStatusCode::kQDAStatusInvalidReference);
  }
  return own->FindInstance(reference);
}

}  // namespace NZRVQDA20

#include <qdamemory/internal/TQualifierList.h>

#include <new>

#include <qdamemory/internal/CIMName.h>
#include <qdamemory/internal/Fail.h>
#include <qdamemory/internal/KeyText.h>
#include <qdamemory/internal/TMemoryClass.h>
#include <qdamemory/internal/TMemoryQualifierDecl.h>
#include <qdamemory/internal/TQualifierDeclPool.h>

namespace NZRVQDA20 {

TQualifierList::~TQualifierList() {
  while (fFirst != 0) {
    TMemoryQualifier* next = fFirst->fNext;
    fFirst->~TMemoryQualifier();
    fFirst = next;
  }
}

TMemoryQualifier* TQualifierList::Add(TMemoryClass& cls,
                                      const boost::shared_ptr<ICIMQualifierDecl>& declaration,
                                      const TCIMValue& value) {
  const TMemoryQualifierDecl* decl = dynamic_cast<const TMemoryQualifierDecl*>(declaration.get());
  if (decl == 0 || decl->Pool() != cls.DeclPool().get()) {
    Fail(TQDAStatusCode::kQDAStatusContainerMismatch);
  }
  decl->RequireType(value);
  TMemoryQualifier** end = &fFirst;
  for (; *end != 0; end = &(*end)->fNext) {
    if ((*end)->fDecl == decl) {
      Fail(TQDAStatusCode::kQDAStatusAlreadyExists);
    }
  }
  if (fParent != 0 && decl->IsFixedBelow()) {
    TMemoryQualifier* inherited = fParent->Find(decl->Name());
    if (inherited != 0 && !SameKeyText(inherited->Value(), value)) {
      Fail(TQDAStatusCode::kQDAStatusNotOverridable);
    }
  }
  static_assert(sizeof(TMemoryQualifier) <= TCIMRoom::kMost, "a qualifier finds room");
  *end = new (cls.Room().Take(sizeof(TMemoryQualifier))) TMemoryQualifier(decl, value);
  return *end;
}

TMemoryQualifier* TQualifierList::Find(const std::string& name) const {
  for (const TQualifierList* list = this; list != 0; list = list->fParent) {
    for (TMemoryQualifier* node = list->fFirst; node != 0; node = node->fNext) {
      if ((list == this || node->Decl()->IsInherited()) &&
          EqualCIMNames(node->Decl()->Name(), name)) {
        return node;
      }
    }
  }
  return 0;
}

boost::shared_ptr<ICIMQualifier> TQualifierList::Share(const TMemoryClass& cls,
                                                       TMemoryQualifier* qualifier) {
  return boost::shared_ptr<ICIMQualifier>(cls.shared_from_this(), qualifier);
}

void TQualifierList::Enumerate(
    const TMemoryClass& cls, boost::function<bool(boost::shared_ptr<ICIMQualifier>)>& visit) const {
  const boost::shared_ptr<const TMemoryClass> guard = cls.shared_from_this();
  TMemoryQualifier* last = fFirst;
  while (last != 0 && last->fNext != 0) {
    last = last->fNext;
  }
  for (TMemoryQualifier* node = fFirst; node != 0; node = node->fNext) {
    if (!visit(Share(cls, node)) || node == last) {
      return;
    }
  }
}

void TQualifierList::Release() {
  for (TMemoryQualifier* node = fFirst; node != 0; node = node->fNext) {
    node->fShared.Release();
  }
}

}  // namespace NZRVQDA20

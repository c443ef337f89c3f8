#include <qdamemory/internal/TQualifierList.h>

#include <cstddef>

#include <boost/make_shared.hpp>

#include <qdamemory/internal/CIMName.h>
#include <qdamemory/internal/Fail.h>
#include <qdamemory/internal/KeyText.h>
#include <qdamemory/internal/TMemoryClass.h>
#include <qdamemory/internal/TMemoryQualifier.h>
#include <qdamemory/internal/TMemoryQualifierDecl.h>
#include <qdamemory/internal/TQualifierDeclPool.h>

namespace NZRVQDA20 {

TQualifierList::~TQualifierList() {
  while (fFirst != 0) {
    TNode* next = fFirst->next;
    delete fFirst;
    fFirst = next;
  }
}

const TQualifierList::TNode* TQualifierList::Add(
    const TMemoryClass& cls, const boost::shared_ptr<ICIMQualifierDecl>& declaration,
    const TCIMValue& value) {
  const TMemoryQualifierDecl* decl = dynamic_cast<const TMemoryQualifierDecl*>(declaration.get());
  if (decl == 0 || decl->Pool() != cls.DeclPool().get()) {
    Fail(TQDAStatusCode::kQDAStatusContainerMismatch);
  }
  decl->RequireType(value);
  TNode** end = &fFirst;
  for (; *end != 0; end = &(*end)->next) {
    if ((*end)->decl == decl) {
      Fail(TQDAStatusCode::kQDAStatusAlreadyExists);
    }
  }
  if (fParent != 0 && decl->IsFixedBelow()) {
    const TNode* inherited = fParent->Find(decl->Name());
    if (inherited != 0 && !SameKeyText(inherited->Value(), value)) {
      Fail(TQDAStatusCode::kQDAStatusNotOverridable);
    }
  }
  *end = new TNode(decl, value);
  return *end;
}

const TQualifierList::TNode* TQualifierList::Find(const std::string& name) const {
  for (const TQualifierList* list = this; list != 0; list = list->fParent) {
    for (const TNode* node = list->fFirst; node != 0; node = node->next) {
      if ((list == this || node->decl->IsInherited()) && EqualCIMNames(node->decl->Name(), name)) {
        return node;
      }
    }
  }
  return 0;
}

boost::shared_ptr<ICIMQualifier> TQualifierList::Share(const TMemoryClass& cls, const TNode* node) {
  return boost::make_shared<TMemoryQualifier>(cls.shared_from_this(), node);
}

void TQualifierList::Enumerate(
    const TMemoryClass& cls, boost::function<bool(boost::shared_ptr<ICIMQualifier>)>& visit) const {
  const boost::shared_ptr<const TMemoryClass> guard = cls.shared_from_this();
  const TNode* last = fFirst;
  while (last != 0 && last->next != 0) {
    last = last->next;
  }
  for (const TNode* node = fFirst; node != 0; node = node->next) {
    if (!visit(Share(cls, node)) || node == last) {
      return;
    }
  }
}

void TQualifierList::Release() {
  for (TNode* node = fFirst; node != 0; node = node->next) {
    node->shared.Release();
  }
}

}  // namespace NZRVQDA20

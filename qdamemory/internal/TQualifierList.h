// TQualifierList: the qualifiers that one element has itself, in order of creation, and the way
// to those that it inherits. Nodes never move, since their values are given out by reference.

#ifndef QDAMEMORY_INTERNAL_TQUALIFIERLIST_H
#define QDAMEMORY_INTERNAL_TQUALIFIERLIST_H

#include <string>

#include <boost/function.hpp>
#include <boost/shared_ptr.hpp>

#include <qdacore/cim/value/TCIMValue.h>
#include <qdamemory/internal/TSharedValue.h>

namespace NZRVQDA20 {

class ICIMQualifier;
class ICIMQualifierDecl;
class TMemoryClass;
class TMemoryQualifierDecl;

class TQualifierList {
 public:
  struct TNode {
    TNode(const TMemoryQualifierDecl* declaration, const TCIMValue& qualifierValue)
        : next(0), decl(declaration), shared(qualifierValue) {}

    const TCIMValue& Value() const { return shared.Get(); }

    TNode* next;
    const TMemoryQualifierDecl* decl;
    TSharedValue shared;
  };

  // `parent`: the list of the superclass or of the element that is overridden, or null. It must
  // outlive this list.
  explicit TQualifierList(const TQualifierList* parent) : fFirst(0), fParent(parent) {}
  ~TQualifierList();

  // Adds a qualifier to an element of `cls`. Throws
  //   kQDAStatusContainerMismatch  `declaration` is empty or not of the class's namespace
  //   kQDAStatusTypeMismatch       the value is not of the declared type
  //   kQDAStatusAlreadyExists      the element itself has one of that name
  //   kQDAStatusNotOverridable     what is inherited has another value and must keep it
  const TNode* Add(const TMemoryClass& cls, const boost::shared_ptr<ICIMQualifierDecl>& declaration,
                   const TCIMValue& value);

  // The qualifier that the element has or inherits; null when there is none.
  const TNode* Find(const std::string& name) const;

  // A qualifier as it is given out: it shares ownership of `cls`, which must keep `node` alive.
  static boost::shared_ptr<ICIMQualifier> Share(const TMemoryClass& cls, const TNode* node);

  // What the element has itself.
  void Enumerate(const TMemoryClass& cls,
                 boost::function<bool(boost::shared_ptr<ICIMQualifier>)>& visit) const;

  // See ReleaseReferences.
  void Release();

 private:
  TQualifierList(const TQualifierList&);
  TQualifierList& operator=(const TQualifierList&);

  TNode* fFirst;
  const TQualifierList* fParent;
};

}  // namespace NZRVQDA20

#endif

// TQualifierList: the qualifiers that one element has itself, in order of creation, and the way
// to those that it inherits. They stand in the room of their class, and never move, since they are
// given out as they are.

#ifndef QDAMEMORY_INTERNAL_TQUALIFIERLIST_H
#define QDAMEMORY_INTERNAL_TQUALIFIERLIST_H

#include <string>

#include <boost/function.hpp>
#include <boost/shared_ptr.hpp>

#include <qdamemory/internal/TMemoryQualifier.h>

namespace NZRVQDA20 {

class TMemoryClass;

class TQualifierList {
 public:
  // `parent`: the list of the superclass or of the element that is overridden, or null. It must
  // outlive this list.
  explicit TQualifierList(const TQualifierList* parent) : fFirst(0), fParent(parent) {}
  ~TQualifierList();

  // Adds a qualifier to an element of `cls`. Throws
  //   kQDAStatusContainerMismatch  `declaration` is empty or not of the class's namespace
  //   kQDAStatusTypeMismatch       the value is not of the declared type
  //   kQDAStatusAlreadyExists      the element itself has one of that name
  //   kQDAStatusNotOverridable     what is inherited has another value and must keep it
  TMemoryQualifier* Add(TMemoryClass& cls, const boost::shared_ptr<ICIMQualifierDecl>& declaration,
                        const TCIMValue& value);

  // The qualifier that the element has or inherits; null when there is none.
  TMemoryQualifier* Find(const std::string& name) const;

  // A qualifier as it is given out: it shares ownership of `cls`, which must keep `qualifier`
  // alive.
  static boost::shared_ptr<ICIMQualifier> Share(const TMemoryClass& cls,
                                                TMemoryQualifier* qualifier);

  // What the element has itself.
  void Enumerate(const TMemoryClass& cls,
                 boost::function<bool(boost::shared_ptr<ICIMQualifier>)>& visit) const;

  // See ReleaseReferences.
  void Release();

 private:
  TQualifierList(const TQualifierList&);
  TQualifierList& operator=(const TQualifierList&);

  TMemoryQualifier* fFirst;
  const TQualifierList* fParent;
};

}  // namespace NZRVQDA20

#endif

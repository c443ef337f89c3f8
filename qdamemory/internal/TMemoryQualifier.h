// TMemoryQualifier: a qualifier of an element, a link in the list of the element's qualifiers. It
// belongs to that list; what is given out shares ownership of the class.

#ifndef QDAMEMORY_INTERNAL_TMEMORYQUALIFIER_H
#define QDAMEMORY_INTERNAL_TMEMORYQUALIFIER_H

#include <qdacore/cim/object/ICIMQualifier.h>
#include <qdamemory/internal/Context.h>
#include <qdamemory/internal/TSharedValue.h>

namespace NZRVQDA20 {

class TMemoryQualifierDecl;

class TMemoryQualifier final : public ICIMQualifier {
 public:
  TMemoryQualifier(const TMemoryQualifierDecl* declaration, const TCIMValue& value)
      : fNext(0), fDecl(declaration), fShared(value) {}

  virtual void Commit(TContext context);
  virtual boost::shared_ptr<const ICIMQualifierDecl> GetQualifierDecl(TContext context) const;
  virtual const TCIMValue& GetValue(TContext context) const;

  const TMemoryQualifierDecl* Decl() const { return fDecl; }
  const TCIMValue& Value() const { return fShared.Get(); }

 private:
  friend class TQualifierList;

  TMemoryQualifier* fNext;
  const TMemoryQualifierDecl* fDecl;
  TSharedValue fShared;
};

}  // namespace NZRVQDA20

#endif

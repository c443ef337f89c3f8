// TMemoryQualifier: a qualifier as it is given out, a view that keeps its class alive.

#ifndef QDAMEMORY_INTERNAL_TMEMORYQUALIFIER_H
#define QDAMEMORY_INTERNAL_TMEMORYQUALIFIER_H

#include <qdacore/cim/object/ICIMQualifier.h>
#include <qdamemory/internal/Context.h>
#include <qdamemory/internal/TQualifierList.h>

namespace NZRVQDA20 {

class TMemoryQualifier final : public ICIMQualifier {
 public:
  TMemoryQualifier(const boost::shared_ptr<const TMemoryClass>& cls,
                   const TQualifierList::TNode* node);

  virtual void Commit(TContext context);
  virtual boost::shared_ptr<const ICIMQualifierDecl> GetQualifierDecl(TContext context) const;
  virtual const TCIMValue& GetValue(TContext context) const;

 private:
  boost::shared_ptr<const TMemoryClass> fClass;
  const TQualifierList::TNode* fNode;
};

}  // namespace NZRVQDA20

#endif

// TMemoryQualifierDecl: the declaration of a qualifier. It never changes once made. It belongs
// to the pool of its namespace.

#ifndef QDAMEMORY_INTERNAL_TMEMORYQUALIFIERDECL_H
#define QDAMEMORY_INTERNAL_TMEMORYQUALIFIERDECL_H

#include <string>

#include <qdacore/cim/object/ICIMQualifierDecl.h>
#include <qdamemory/internal/Context.h>

namespace NZRVQDA20 {

class TQualifierDeclPool;

class TMemoryQualifierDecl final : public ICIMQualifierDecl {
 public:
  // What a qualifier means to this library itself.
  enum EMeaning { kNoMeaning, kAbstract, kAssociation, kKey };

  TMemoryQualifierDecl(const TQualifierDeclPool* pool, const std::string& name,
                       const TCIMValue& value, std::int32_t scope, std::int32_t flavor);

  virtual void Commit(TContext context);
  virtual const std::string& GetName(TContext context) const;
  virtual const TCIMValue& GetValue(TContext context) const;
  virtual std::int32_t GetFirstAttribute(TContext context) const;
  virtual std::int32_t GetSecondAttribute(TContext context) const;

  const TQualifierDeclPool* Pool() const { return fPool; }
  const std::string& Name() const { return fName; }
  EMeaning Meaning() const { return fMeaning; }

  // A qualifier with this declaration is found on what derives from its element.
  bool IsInherited() const;
  // What is inherited must keep its value.
  bool IsFixedBelow() const;
  // Throws kQDAStatusTypeMismatch unless a qualifier with this declaration may have `value`.
  void RequireType(const TCIMValue& value) const;

  // See ReleaseReferences.
  void Release();

 private:
  const TQualifierDeclPool* fPool;
  std::string fName;
  TCIMValue fValue;
  std::int32_t fScope;
  std::int32_t fFlavor;
  EMeaning fMeaning;
};

}  // namespace NZRVQDA20

#endif

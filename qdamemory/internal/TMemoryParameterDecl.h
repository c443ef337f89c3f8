// TMemoryParameterDecl: the declaration of a method's parameter. It belongs to its method.

#ifndef QDAMEMORY_INTERNAL_TMEMORYPARAMETERDECL_H
#define QDAMEMORY_INTERNAL_TMEMORYPARAMETERDECL_H

#include <string>

#include <qdacore/cim/object/ICIMParameterDecl.h>
#include <qdamemory/internal/Context.h>
#include <qdamemory/internal/TQualifierList.h>

namespace NZRVQDA20 {

class TMemoryClass;

class TMemoryParameterDecl final : public ICIMParameterDecl {
 public:
  TMemoryParameterDecl(TMemoryClass& cls, const std::string& name, TCIMValue::TCIMType type);

  virtual boost::shared_ptr<ICIMQualifier> AddQualifier(
      boost::shared_ptr<ICIMQualifierDecl> declaration, const TCIMValue& value, TContext context);
  virtual boost::shared_ptr<ICIMQualifier> GetQualifier(const std::string& name,
                                                        TContext context) const;
  virtual void EnumerateQualifiers(boost::function<bool(boost::shared_ptr<ICIMQualifier>)>& visit,
                                   TContext context) const;
  virtual void Commit(TContext context);
  virtual const std::string& GetName(TContext context) const;
  virtual TCIMValue::TCIMType GetType(TContext context) const;

  const std::string& Name() const { return fName; }

  // See ReleaseReferences.
  void Release();

 private:
  TMemoryClass& fClass;
  std::string fName;
  TCIMValue::TCIMType fType;
  bool fIsCommitted;
  TQualifierList fQualifiers;
};

}  // namespace NZRVQDA20

#endif

// TMemoryMethodDecl: the declaration of a method. It belongs to its class and is closed with
// it: there is no Commit of its own.

#ifndef QDAMEMORY_INTERNAL_TMEMORYMETHODDECL_H
#define QDAMEMORY_INTERNAL_TMEMORYMETHODDECL_H

#include <memory>
#include <string>
#include <vector>

#include <qdacore/cim/object/ICIMMethodDecl.h>
#include <qdamemory/internal/Context.h>
#include <qdamemory/internal/TMemoryParameterDecl.h>
#include <qdamemory/internal/TQualifierList.h>

namespace NZRVQDA20 {

class TMemoryClass;

class TMemoryMethodDecl final : public ICIMMethodDecl {
 public:
  // `overridden`: the inherited declaration of that name, or null.
  TMemoryMethodDecl(TMemoryClass& cls, const std::string& name, TCIMValue::TCIMType type,
                    const TMemoryMethodDecl* overridden);

  virtual boost::shared_ptr<ICIMQualifier> AddQualifier(
      boost::shared_ptr<ICIMQualifierDecl> declaration, const TCIMValue& value, TContext context);
  virtual boost::shared_ptr<ICIMQualifier> GetQualifier(const std::string& name,
                                                        TContext context) const;
  virtual void EnumerateQualifiers(boost::function<bool(boost::shared_ptr<ICIMQualifier>)>& visit,
                                   TContext context) const;
  virtual const std::string& GetName(TContext context) const;
  virtual TCIMValue::TCIMType GetType(TContext context) const;
  virtual boost::shared_ptr<ICIMParameterDecl> AddParameterDecl(const std::string& name,
                                                                TCIMValue::TCIMType type,
                                                                TContext context);
  virtual void EnumerateParameterDecls(
      boost::function<bool(boost::shared_ptr<ICIMParameterDecl>)>& visit, TContext context) const;

  const std::string& Name() const { return fName; }
  TCIMValue::TCIMType Type() const { return fType; }

  // See ReleaseReferences.
  void Release();

 private:
  TMemoryClass& fClass;
  std::string fName;
  TCIMValue::TCIMType fType;
  TQualifierList fQualifiers;
  std::vector<std::unique_ptr<TMemoryParameterDecl> > fParameters;
};

}  // namespace NZRVQDA20

#endif

// TCIMReferenceImpl: what a TCIMReference holds. Each handle owns one of its own.

#ifndef QDACORE_CIM_VALUE_TCIMREFERENCEIMPL_H
#define QDACORE_CIM_VALUE_TCIMREFERENCEIMPL_H

#include <map>
#include <string>

#include <boost/shared_ptr.hpp>
#include <boost/weak_ptr.hpp>

#include <qdacore/Export.h>
#include <qdacore/cim/value/TCIMReference.h>

namespace NZRVQDA20 {

class QDACORE_EXPORT TCIMReferenceImpl {
 public:
  typedef std::map<std::string, TCIMValue> TContext;
  typedef std::map<std::string, TCIMValue> TKeyBindings;

  // Takes the context over.
  TCIMReferenceImpl(const TCIMReference* owner, const boost::shared_ptr<ICIMNamespace>& ns,
                    TContext& context);
  TCIMReferenceImpl(const TCIMReference* owner, const TCIMReferenceImpl& other);
  ~TCIMReferenceImpl();

  std::string GetPath() const;
  // `held`: the namespace, when the caller holds it until this returns, or null. `depth` paths, of
  // which this is one, are being read already.
  void SetPath(const std::string& path, const ICIMNamespace* held = nullptr, int depth = 0);
  const std::string& ClassName() const;
  void SetClassName(const std::string& name);
  boost::shared_ptr<ICIMClass> GetClass() const;
  void SetClass(boost::shared_ptr<ICIMClass> cls);
  void AddKeyValue(const std::string& name, const TCIMValue& value);
  // The same, taking over name and value in place of copying them.
  void AddParsedKeyValue(std::string& name, TCIMValue& value);
  boost::shared_ptr<ICIMElement> GetCIMElement(bool classOnly);
  void Clear();
  bool Equals(const TCIMReferenceImpl& other) const;
  bool LessThan(const TCIMReferenceImpl& other) const;

  // The handle that holds this body; the namespace is given it to find an instance.
  const TCIMReference* fOwner;
  boost::weak_ptr<ICIMNamespace> fNamespace;
  TContext fContext;
  boost::shared_ptr<ICIMClass> fClass;
  TKeyBindings fKeyBindings;
  boost::shared_ptr<ICIMElement> fElement;
  std::string fNamespaceName;

 private:
  void RequireDeclared(const std::string& name, const TCIMValue& value) const;

  TCIMReferenceImpl(const TCIMReferenceImpl&);
  TCIMReferenceImpl& operator=(const TCIMReferenceImpl&);
};

}  // namespace NZRVQDA20

#endif

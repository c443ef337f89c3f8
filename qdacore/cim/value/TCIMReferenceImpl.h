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

class TCIMReferenceImpl {
 public:
  typedef std::map<std::string, TCIMValue> TContext;
  typedef std::map<std::string, TCIMValue> TKeyBindings;

  TCIMReferenceImpl(const TCIMReference* owner, const boost::shared_ptr<ICIMNamespace>& ns,
                    const TContext& context);
  TCIMReferenceImpl(const TCIMReference* owner, const TCIMReferenceImpl& other);
  ~TCIMReferenceImpl();

  std::string GetPath() const;
  void SetPath(TCIMReference& owner, const std::string& path);
  const std::string& ClassName() const;
  void SetClassName(const std::string& name);
  boost::shared_ptr<ICIMClass> GetClass() const;
  void SetClass(const boost::shared_ptr<ICIMClass>& cls);
  void AddKeyValue(const std::string& name, const TCIMValue& value);
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
  TCIMReferenceImpl(const TCIMReferenceImpl&);
  TCIMReferenceImpl& operator=(const TCIMReferenceImpl&);
};

}  // namespace NZRVQDA20

#endif

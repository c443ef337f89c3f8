// ICIMMethodDecl: the declaration of a method. See ICIMElement.h.

#ifndef QDACORE_CIM_OBJECT_ICIMMETHODDECL_H
#define QDACORE_CIM_OBJECT_ICIMMETHODDECL_H

#include <map>
#include <string>

#include <boost/function.hpp>
#include <boost/shared_ptr.hpp>

#include <qdacore/Export.h>
#include <qdacore/cim/object/ICIMNamedElement.h>
#include <qdacore/cim/value/TCIMValue.h>

namespace NZRVQDA20 {

class ICIMParameterDecl;

class QDACORE_EXPORT ICIMMethodDecl : public ICIMNamedElement {
 public:
  virtual ~ICIMMethodDecl();
  virtual void Reserved8();
  virtual void Reserved9();

  virtual const std::string& GetName(std::map<std::string, TCIMValue> context) const = 0;
  virtual void Reserved11();

  // The type of the result.
  virtual TCIMValue::TCIMType GetType(std::map<std::string, TCIMValue> context) const = 0;

  virtual boost::shared_ptr<ICIMParameterDecl> AddParameterDecl(
      const std::string& name, TCIMValue::TCIMType type,
      std::map<std::string, TCIMValue> context) = 0;
  virtual void Reserved14();

  virtual void EnumerateParameterDecls(
      boost::function<bool(boost::shared_ptr<ICIMParameterDecl>)>& visit,
      std::map<std::string, TCIMValue> context) const = 0;
};

}  // namespace NZRVQDA20

#endif

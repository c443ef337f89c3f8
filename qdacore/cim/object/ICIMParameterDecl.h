// ICIMParameterDecl: the declaration of a method's parameter. See ICIMElement.h.

#ifndef QDACORE_CIM_OBJECT_ICIMPARAMETERDECL_H
#define QDACORE_CIM_OBJECT_ICIMPARAMETERDECL_H

#include <map>
#include <string>

#include <qdacore/Export.h>
#include <qdacore/cim/object/ICIMNamedElement.h>
#include <qdacore/cim/value/TCIMValue.h>

namespace NZRVQDA20 {

class QDACORE_EXPORT ICIMParameterDecl : public ICIMNamedElement {
 public:
  virtual ~ICIMParameterDecl();
  virtual void Reserved8();

  // Finishes a declaration made by ICIMMethodDecl::AddParameterDecl.
  virtual void Commit(std::map<std::string, TCIMValue> context) = 0;

  virtual const std::string& GetName(std::map<std::string, TCIMValue> context) const = 0;
  virtual void Reserved11();

  virtual TCIMValue::TCIMType GetType(std::map<std::string, TCIMValue> context) const = 0;
};

}  // namespace NZRVQDA20

#endif

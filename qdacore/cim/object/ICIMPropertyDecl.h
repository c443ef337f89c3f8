// ICIMPropertyDecl: the declaration of a property. See ICIMElement.h.

#ifndef QDACORE_CIM_OBJECT_ICIMPROPERTYDECL_H
#define QDACORE_CIM_OBJECT_ICIMPROPERTYDECL_H

#include <map>
#include <string>

#include <qdacore/Export.h>
#include <qdacore/cim/object/ICIMNamedElement.h>
#include <qdacore/cim/value/TCIMValue.h>

namespace NZRVQDA20 {

class QDACORE_EXPORT ICIMPropertyDecl : public ICIMNamedElement {
 public:
  virtual ~ICIMPropertyDecl();
  virtual void Reserved8();

  // Finishes a declaration made by ICIMClass::AddPropertyDecl.
  virtual void Commit(std::map<std::string, TCIMValue> context) = 0;
  virtual void Reserved10();

  virtual const std::string& GetName(std::map<std::string, TCIMValue> context) const = 0;
  virtual void Reserved12();

  virtual TCIMValue::TCIMType GetType(std::map<std::string, TCIMValue> context) const = 0;
  virtual void Reserved14();

  // May be null. It also tells whether the property is a reference.
  virtual const TCIMValue& GetDefaultValue(std::map<std::string, TCIMValue> context) const = 0;
};

}  // namespace NZRVQDA20

#endif

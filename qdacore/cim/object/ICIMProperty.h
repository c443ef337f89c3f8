// ICIMProperty: a property of an instance or, static, of a class. See ICIMElement.h.

#ifndef QDACORE_CIM_OBJECT_ICIMPROPERTY_H
#define QDACORE_CIM_OBJECT_ICIMPROPERTY_H

#include <map>
#include <string>

#include <boost/shared_ptr.hpp>

#include <qdacore/Export.h>
#include <qdacore/cim/value/TCIMValue.h>

namespace NZRVQDA20 {

class ICIMPropertyDecl;

class QDACORE_EXPORT ICIMProperty {
 public:
  virtual ~ICIMProperty();
  virtual void Reserved2();
  virtual void Reserved3();
  virtual void Reserved4();

  // May be a null value.
  virtual const TCIMValue& GetValue(std::map<std::string, TCIMValue> context) const = 0;
  virtual void Reserved6();
  virtual void Reserved7();

  // The only road to the property's name.
  virtual boost::shared_ptr<const ICIMPropertyDecl> GetPropertyDecl(
      std::map<std::string, TCIMValue> context) const = 0;
  virtual void Reserved9();
  virtual void Reserved10();
  virtual void Reserved11();
  virtual void Reserved12();
  virtual void Reserved13();
  virtual void Reserved14();
  virtual void Reserved15();

  // The value as text. Takes no context.
  virtual std::string ToString() const = 0;
};

}  // namespace NZRVQDA20

#endif

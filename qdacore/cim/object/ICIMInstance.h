// ICIMInstance: an instance of a class. See ICIMElement.h.

#ifndef QDACORE_CIM_OBJECT_ICIMINSTANCE_H
#define QDACORE_CIM_OBJECT_ICIMINSTANCE_H

#include <map>
#include <string>

#include <boost/function.hpp>
#include <boost/shared_ptr.hpp>

#include <qdacore/Export.h>
#include <qdacore/cim/object/ICIMElement.h>
#include <qdacore/cim/value/TCIMValue.h>

namespace NZRVQDA20 {

class ICIMClass;
class ICIMProperty;

class QDACORE_EXPORT ICIMInstance : public ICIMElement {
 public:
  virtual ~ICIMInstance();
  virtual void Reserved2();
  virtual void Reserved3();
  virtual void Reserved4();
  virtual void Reserved5();
  virtual void Reserved6();
  virtual void Reserved7();

  // The instance's most derived class.
  virtual boost::shared_ptr<ICIMClass> GetClass(std::map<std::string, TCIMValue> context) const = 0;
  virtual void Reserved9();
  virtual void Reserved10();

  // Throws kQDAStatusNotFound for an unknown name.
  virtual boost::shared_ptr<ICIMProperty> GetProperty(
      const std::string& name, std::map<std::string, TCIMValue> context) const = 0;

  virtual void SetProperty(const std::string& name, const TCIMValue& value,
                           std::map<std::string, TCIMValue> context) = 0;

  virtual void EnumerateProperties(boost::function<bool(boost::shared_ptr<ICIMProperty>)>& visit,
                                   std::map<std::string, TCIMValue> context) const = 0;
};

}  // namespace NZRVQDA20

#endif

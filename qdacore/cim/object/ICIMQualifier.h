// ICIMQualifier: a qualifier on an element. See ICIMElement.h.

#ifndef QDACORE_CIM_OBJECT_ICIMQUALIFIER_H
#define QDACORE_CIM_OBJECT_ICIMQUALIFIER_H

#include <map>
#include <string>

#include <boost/shared_ptr.hpp>

#include <qdacore/Export.h>
#include <qdacore/cim/value/TCIMValue.h>

namespace NZRVQDA20 {

class ICIMQualifierDecl;

class QDACORE_EXPORT ICIMQualifier {
 public:
  virtual ~ICIMQualifier();
  virtual void Reserved2();

  // Finishes a qualifier made by ICIMNamedElement::AddQualifier.
  virtual void Commit(std::map<std::string, TCIMValue> context) = 0;
  virtual void Reserved4();
  virtual void Reserved5();
  virtual void Reserved6();
  virtual void Reserved7();
  virtual void Reserved8();

  virtual boost::shared_ptr<const ICIMQualifierDecl> GetQualifierDecl(
      std::map<std::string, TCIMValue> context) const = 0;

  virtual const TCIMValue& GetValue(std::map<std::string, TCIMValue> context) const = 0;
};

}  // namespace NZRVQDA20

#endif

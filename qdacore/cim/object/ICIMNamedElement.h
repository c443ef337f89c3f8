// ICIMNamedElement: the part of classes and declarations that carries qualifiers. See
// ICIMElement.h.

#ifndef QDACORE_CIM_OBJECT_ICIMNAMEDELEMENT_H
#define QDACORE_CIM_OBJECT_ICIMNAMEDELEMENT_H

#include <map>
#include <string>

#include <boost/function.hpp>
#include <boost/shared_ptr.hpp>

#include <qdacore/Export.h>
#include <qdacore/cim/value/TCIMValue.h>

namespace NZRVQDA20 {

class ICIMQualifier;
class ICIMQualifierDecl;

class QDACORE_EXPORT ICIMNamedElement {
 public:
  virtual ~ICIMNamedElement();
  virtual void ReservedElement2();
  virtual void ReservedElement3();

  // Puts a qualifier on this element; Commit finishes it.
  virtual boost::shared_ptr<ICIMQualifier> AddQualifier(
      boost::shared_ptr<ICIMQualifierDecl> declaration, const TCIMValue& value,
      std::map<std::string, TCIMValue> context) = 0;
  virtual void ReservedElement5();

  // Absent: an empty pointer on a class; on a property declaration any TQDAException counts as
  // absent, and the pointer is never looked at.
  virtual boost::shared_ptr<ICIMQualifier> GetQualifier(
      const std::string& name, std::map<std::string, TCIMValue> context) const = 0;

  virtual void EnumerateQualifiers(boost::function<bool(boost::shared_ptr<ICIMQualifier>)>& visit,
                                   std::map<std::string, TCIMValue> context) const = 0;
};

}  // namespace NZRVQDA20

#endif

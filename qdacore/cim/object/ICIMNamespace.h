// ICIMNamespace: a namespace of classes, instances and qualifier declarations. For what holds
// for all of these interfaces see ICIMElement.h.

#ifndef QDACORE_CIM_OBJECT_ICIMNAMESPACE_H
#define QDACORE_CIM_OBJECT_ICIMNAMESPACE_H

#include <cstdint>
#include <map>
#include <string>

#include <boost/function.hpp>
#include <boost/shared_ptr.hpp>

#include <qdacore/Export.h>
#include <qdacore/cim/value/TCIMValue.h>

namespace NZRVQDA20 {

class ICIMClass;
class ICIMInstance;
class ICIMQualifierDecl;
class TCIMReference;

class QDACORE_EXPORT ICIMNamespace {
 public:
  virtual ~ICIMNamespace();
  virtual void Reserved2();
  virtual void Reserved3();
  virtual void Reserved4();

  // Makes a new, unfinished class; Commit finishes it. `superclass` is empty for a root class.
  virtual boost::shared_ptr<ICIMClass> CreateClass(const std::string& name,
                                                   boost::shared_ptr<ICIMClass> superclass,
                                                   std::map<std::string, TCIMValue> context) = 0;

  // Throws kQDAStatusNotFound when there is no such class; never gives an empty pointer.
  virtual boost::shared_ptr<ICIMClass> GetClass(const std::string& name,
                                                std::map<std::string, TCIMValue> context) const = 0;

  // Root classes only; the others are reached through ICIMClass::EnumerateSubClasses.
  virtual void EnumerateClasses(boost::function<bool(boost::shared_ptr<ICIMClass>)>& visit,
                                std::map<std::string, TCIMValue> context) const = 0;
  virtual void Reserved8();

  // The arguments are what the four getters of ICIMQualifierDecl give. The attributes are the
  // natural place for scope and flavor (DSP0004, "Qualifiers"); callers only carry them.
  virtual boost::shared_ptr<ICIMQualifierDecl> CreateQualifierDecl(
      const std::string& name, const TCIMValue& value, std::int32_t firstAttribute,
      std::int32_t secondAttribute, std::map<std::string, TCIMValue> context) = 0;

  virtual boost::shared_ptr<ICIMQualifierDecl> GetQualifierDecl(
      const std::string& name, std::map<std::string, TCIMValue> context) const = 0;

  virtual void EnumerateQualifierDecls(
      boost::function<bool(boost::shared_ptr<ICIMQualifierDecl>)>& visit,
      std::map<std::string, TCIMValue> context) const = 0;
  virtual void Reserved12();

  // The instance that `reference` names, or an empty pointer.
  virtual boost::shared_ptr<ICIMInstance> GetInstance(
      const TCIMReference& reference, std::map<std::string, TCIMValue> context) const = 0;
};

}  // namespace NZRVQDA20

#endif

// ICIMClass: a class: its place in the tree, its declarations and its instances. See
// ICIMElement.h.

#ifndef QDACORE_CIM_OBJECT_ICIMCLASS_H
#define QDACORE_CIM_OBJECT_ICIMCLASS_H

#include <map>
#include <string>

#include <boost/function.hpp>
#include <boost/shared_ptr.hpp>

#include <qdacore/Export.h>
#include <qdacore/cim/object/ICIMElement.h>
#include <qdacore/cim/object/ICIMNamedElement.h>
#include <qdacore/cim/value/TCIMValue.h>

namespace NZRVQDA20 {

class ICIMInstance;
class ICIMMethodDecl;
class ICIMNamespace;
class ICIMProperty;
class ICIMPropertyDecl;

class QDACORE_EXPORT ICIMClass : public ICIMElement, public ICIMNamedElement {
 public:
  virtual ~ICIMClass();
  virtual void Reserved2();

  // Finishes a class made by ICIMNamespace::CreateClass.
  virtual void Commit(std::map<std::string, TCIMValue> context) = 0;
  virtual void Reserved4();
  virtual void Reserved5();

  virtual const std::string& GetName(std::map<std::string, TCIMValue> context) const = 0;

  // The namespace that holds the class.
  virtual boost::shared_ptr<ICIMNamespace> GetNamespace(
      std::map<std::string, TCIMValue> context) const = 0;

  virtual bool IsAssociation(std::map<std::string, TCIMValue> context) const = 0;

  virtual bool IsAbstract(std::map<std::string, TCIMValue> context) const = 0;

  // True when there is no superclass.
  virtual bool IsRootClass(std::map<std::string, TCIMValue> context) const = 0;

  // Asked only of a class that is no root class.
  virtual boost::shared_ptr<ICIMClass> GetSuperClass(
      std::map<std::string, TCIMValue> context) const = 0;

  // `deep`: all descendants, each once and after its superclass; otherwise the next level.
  virtual void EnumerateSubClasses(boost::function<bool(boost::shared_ptr<ICIMClass>)>& visit,
                                   bool deep, std::map<std::string, TCIMValue> context) const = 0;
  virtual void Reserved13();
  virtual void Reserved14();
  virtual void Reserved15();
  virtual void Reserved16();

  // Makes a declaration in this class; Commit finishes it. The type is the default value's,
  // which may be a typed null.
  virtual boost::shared_ptr<ICIMPropertyDecl> AddPropertyDecl(
      const std::string& name, const TCIMValue& defaultValue,
      std::map<std::string, TCIMValue> context) = 0;

  // Finds inherited declarations too. Throws kQDAStatusNotFound for an unknown name.
  virtual boost::shared_ptr<const ICIMPropertyDecl> GetPropertyDecl(
      const std::string& name, std::map<std::string, TCIMValue> context) const = 0;

  // What this class declares or overrides itself; inherited ones as the provider chooses.
  virtual void EnumeratePropertyDecls(
      boost::function<bool(boost::shared_ptr<ICIMPropertyDecl>)>& visit,
      std::map<std::string, TCIMValue> context) const = 0;
  virtual void Reserved20();

  // Sets a value that belongs to the class and not to an instance.
  virtual void SetStaticProperty(const std::string& name, const TCIMValue& value,
                                 std::map<std::string, TCIMValue> context) = 0;

  virtual void EnumerateStaticProperties(
      boost::function<bool(boost::shared_ptr<ICIMProperty>)>& visit,
      std::map<std::string, TCIMValue> context) const = 0;

  // A new, empty instance, not part of the class until AddInstance.
  virtual boost::shared_ptr<ICIMInstance> CreateInstance(
      std::map<std::string, TCIMValue> context) = 0;

  // `deep`: instances of subclasses too.
  virtual void EnumerateInstances(boost::function<bool(boost::shared_ptr<ICIMInstance>)>& visit,
                                  bool deep, std::map<std::string, TCIMValue> context) const = 0;

  virtual boost::shared_ptr<ICIMMethodDecl> AddMethodDecl(
      const std::string& name, TCIMValue::TCIMType returnType,
      std::map<std::string, TCIMValue> context) = 0;
  virtual void Reserved26();

  virtual void EnumerateMethodDecls(boost::function<bool(boost::shared_ptr<ICIMMethodDecl>)>& visit,
                                    std::map<std::string, TCIMValue> context) const = 0;
  virtual void Reserved28();
  virtual void Reserved29();
  virtual void Reserved30();
  virtual void Reserved31();
  virtual void Reserved32();
  virtual void Reserved33();
  virtual void Reserved34();
  virtual void Reserved35();

  // Publishes an instance made by CreateInstance. Takes no context.
  virtual void AddInstance(boost::shared_ptr<ICIMInstance> instance) = 0;
};

}  // namespace NZRVQDA20

#endif

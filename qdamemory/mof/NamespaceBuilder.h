// What a MOF text declares becomes part of a namespace: at once where all that it needs is there,
// otherwise when the reading ends, so that texts may stand in any order.

#ifndef QDAMEMORY_MOF_NAMESPACEBUILDER_H
#define QDAMEMORY_MOF_NAMESPACEBUILDER_H

#include <list>
#include <map>
#include <string>
#include <vector>

#include <boost/shared_ptr.hpp>

#include <qdacore/cim/object/ICIMClass.h>
#include <qdacore/cim/object/ICIMNamespace.h>
#include <qdacore/cim/object/ICIMQualifierDecl.h>
#include <qdamemory/mof/MofSyntax.h>
#include <qdamemory/mof/MofValues.h>

namespace NZRVQDA20 {
namespace mof {

class NamespaceBuilder {
 public:
  explicit NamespaceBuilder(const boost::shared_ptr<ICIMNamespace>& ns) : fNamespace(ns) {}

  // All throw Failure. The declarations are taken over.
  void Add(QualifierDeclaration& declaration);
  void Add(ClassDeclaration& declaration);
  void Add(InstanceDeclaration& declaration);
  void Add(StaticValue& value);

  // Makes what has waited.
  void Finish();

 private:
  struct WaitingClass {
    ClassDeclaration declaration;
    bool isInWork;
  };

  boost::shared_ptr<ICIMClass> FindClass(const std::string& name) const;
  boost::shared_ptr<ICIMClass> NeedClass(const std::string& name, const Place& place);
  bool IsReady(const ClassDeclaration& declaration) const;
  void MakeWaiting(WaitingClass& waiting);
  void Make(const ClassDeclaration& declaration);
  void Qualify(ICIMNamedElement& element, const Qualifiers& qualifiers);
  void AddProperty(ICIMClass& cls, const Feature& feature);
  void AddMethod(ICIMClass& cls, const Feature& feature);
  TCIMValue DefaultValue(const Feature& feature);

  bool IsReady(const InstanceDeclaration& declaration) const;
  TCIMReference Make(const InstanceDeclaration& declaration);
  TCIMValue ValueFor(const ICIMClass& cls, const PropertyValue& property);
  TCIMReference Resolve(const Literal& alias);
  void Make(const StaticValue& value);

  const boost::shared_ptr<ICIMNamespace> fNamespace;
  // By folded name; a list keeps its elements in place and in order.
  std::list<WaitingClass> fWaitingClasses;
  std::map<std::string, WaitingClass*> fWaitingByName;
  std::list<InstanceDeclaration> fWaitingInstances;
  // Of instances that wait; null while one is in work.
  std::map<std::string, const InstanceDeclaration*> fWaitingAliases;
  std::map<std::string, TCIMReference> fAliases;
  std::vector<StaticValue> fWaitingStatics;
  // How deep the classes and instances in work stand in one another.
  int fChain = 0;
  // The last qualifier declaration that was asked for by each spelling.
  std::map<std::string, boost::shared_ptr<ICIMQualifierDecl>> fQualifiers;
};

}  // namespace mof
}  // namespace NZRVQDA20

#endif

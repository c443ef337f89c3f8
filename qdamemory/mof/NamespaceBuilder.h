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
  // A class that waits goes through these in order. References among classes may form a circle, so
  // one that is open may be referred to already.
  enum Stage { kWaits, kGathersNeeds, kBegins, kIsOpen, kFills };

  struct WaitingClass {
    ClassDeclaration declaration;
    Stage stage;
    boost::shared_ptr<ICIMClass> cls;
  };

  boost::shared_ptr<ICIMClass> FindClass(const std::string& name) const;
  WaitingClass& NeedWaiting(const std::string& name, const Place& place);
  boost::shared_ptr<ICIMClass> NeedClass(const std::string& name, const Place& place);
  boost::shared_ptr<ICIMClass> NeedSuperclass(const ClassDeclaration& declaration);
  bool CanBeRead(const Feature& feature) const;
  bool IsReady(const ClassDeclaration& declaration) const;
  void MakeWaiting(WaitingClass& waiting);
  void GatherNeeds(const ClassDeclaration& declaration);
  void Begin(WaitingClass& waiting);
  void Complete(WaitingClass& waiting);
  boost::shared_ptr<ICIMClass> Create(const ClassDeclaration& declaration);
  void Fill(ICIMClass& cls, const ClassDeclaration& declaration);
  void Qualify(ICIMNamedElement& element, const Qualifiers& qualifiers);
  void AddProperty(ICIMClass& cls, const Feature& feature);
  void AddMethod(ICIMClass& cls, const Feature& feature);
  TCIMValue DefaultValue(const Feature& feature);

  bool IsReady(const InstanceDeclaration& declaration) const;
  void Make(const InstanceDeclaration& declaration);
  TCIMValue ValueFor(const ICIMClass& cls, const PropertyValue& property);
  TCIMReference Resolve(const Literal& alias);
  TCIMReference NameOfWaiting(const InstanceDeclaration& declaration);
  void Make(const StaticValue& value);

  const boost::shared_ptr<ICIMNamespace> fNamespace;
  // What needs what it needs, and so on: a chain that is no schema any more, and would end the
  // stack.
  static constexpr int kDeepestChain = 1000;

  // By folded name; a list keeps its elements in place and in order. What is made is no longer
  // found by its name.
  std::list<WaitingClass> fWaitingClasses;
  std::map<std::string, WaitingClass*> fWaitingByName;
  std::list<InstanceDeclaration> fWaitingInstances;
  // Of instances that wait; null while one is being named.
  std::map<std::string, const InstanceDeclaration*> fWaitingAliases;
  std::map<std::string, TCIMReference> fAliases;
  std::vector<StaticValue> fWaitingStatics;
  // How deep the classes in work, or the instances that are being named, stand in one another.
  int fChain = 0;
  // The last qualifier declaration that was asked for by each spelling.
  std::map<std::string, boost::shared_ptr<ICIMQualifierDecl>> fQualifiers;
};

}  // namespace mof
}  // namespace NZRVQDA20

#endif

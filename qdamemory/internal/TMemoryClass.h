// TMemoryClass: a class, its place in the tree, its declarations, its instances.
//
// Who owns what, so that nothing keeps a namespace alive in a circle: the namespace owns its
// classes and outlives their use of it, or detaches them; a class owns its declarations and
// published instances, and holds its superclass; an instance holds its class; whatever refers
// downward or back is a plain pointer. References in values hold classes, in any direction,
// which is why Detach releases every one that a class could be holding.
//
// An open class (not committed) has no subclasses and no instances, so slots, once given to
// properties, never change. Sources: TMemoryClass.cpp (tree, qualifiers, life),
// TMemoryClassDeclarations.cpp, TMemoryClassInstances.cpp.

#ifndef QDAMEMORY_INTERNAL_TMEMORYCLASS_H
#define QDAMEMORY_INTERNAL_TMEMORYCLASS_H

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include <boost/enable_shared_from_this.hpp>
#include <boost/shared_ptr.hpp>

#include <qdacore/cim/object/ICIMClass.h>
#include <qdacore/cim/value/TCIMRoom.h>
#include <qdamemory/internal/Context.h>
#include <qdamemory/internal/Fail.h>
#include <qdamemory/internal/TMemoryMethodDecl.h>
#include <qdamemory/internal/TMemoryPropertyDecl.h>
#include <qdamemory/internal/TMemoryStaticProperty.h>
#include <qdamemory/internal/TNameTable.h>
#include <qdamemory/internal/TPropertyDeclList.h>
#include <qdamemory/internal/TQualifierList.h>

namespace NZRVQDA20 {

class TCIMReference;
class TKeyIndex;
class TMemoryInstance;
class TMemoryNamespace;
class TQualifierDeclPool;

class TMemoryClass final : public ICIMClass, public boost::enable_shared_from_this<TMemoryClass> {
 public:
  // `superclass` may be empty and is committed otherwise. `number`: the class's place in the
  // order of creation in its namespace.
  TMemoryClass(TMemoryNamespace& ns, const std::string& name,
               const boost::shared_ptr<TMemoryClass>& superclass, std::size_t number);
  virtual ~TMemoryClass();

  virtual boost::shared_ptr<ICIMQualifier> AddQualifier(
      boost::shared_ptr<ICIMQualifierDecl> declaration, const TCIMValue& value, TContext context);
  virtual boost::shared_ptr<ICIMQualifier> GetQualifier(const std::string& name,
                                                        TContext context) const;
  virtual void EnumerateQualifiers(boost::function<bool(boost::shared_ptr<ICIMQualifier>)>& visit,
                                   TContext context) const;
  virtual void Commit(TContext context);
  virtual const std::string& GetName(TContext context) const;
  virtual boost::shared_ptr<ICIMNamespace> GetNamespace(TContext context) const;
  virtual bool IsAssociation(TContext context) const;
  virtual bool IsAbstract(TContext context) const;
  virtual bool IsRootClass(TContext context) const;
  virtual boost::shared_ptr<ICIMClass> GetSuperClass(TContext context) const;
  virtual void EnumerateSubClasses(boost::function<bool(boost::shared_ptr<ICIMClass>)>& visit,
                                   bool deep, TContext context) const;
  virtual boost::shared_ptr<ICIMPropertyDecl> AddPropertyDecl(const std::string& name,
                                                              const TCIMValue& defaultValue,
                                                              TContext context);
  virtual boost::shared_ptr<const ICIMPropertyDecl> GetPropertyDecl(const std::string& name,
                                                                    TContext context) const;
  virtual void EnumeratePropertyDecls(
      boost::function<bool(boost::shared_ptr<ICIMPropertyDecl>)>& visit, TContext context) const;
  virtual void SetStaticProperty(const std::string& name, const TCIMValue& value, TContext context);
  virtual void EnumerateStaticProperties(
      boost::function<bool(boost::shared_ptr<ICIMProperty>)>& visit, TContext context) const;
  virtual boost::shared_ptr<ICIMInstance> CreateInstance(TContext context);
  virtual void EnumerateInstances(boost::function<bool(boost::shared_ptr<ICIMInstance>)>& visit,
                                  bool deep, TContext context) const;
  virtual boost::shared_ptr<ICIMMethodDecl> AddMethodDecl(const std::string& name,
                                                          TCIMValue::TCIMType returnType,
                                                          TContext context);
  virtual void EnumerateMethodDecls(boost::function<bool(boost::shared_ptr<ICIMMethodDecl>)>& visit,
                                    TContext context) const;
  virtual void AddInstance(boost::shared_ptr<ICIMInstance> instance);

  const std::string& Name() const { return fName; }
  std::size_t Number() const { return fNumber; }
  bool IsCommitted() const { return fIsCommitted; }
  const boost::shared_ptr<TQualifierDeclPool>& DeclPool() const { return fDeclPool; }
  // For the qualifiers of the class and of all that it declares.
  TCIMRoom& Room() { return fRoom; }
  // One of the class's own declarations has the qualifier Key, whatever its value.
  void NoteOwnKey() { fHasOwnKeys = true; }
  // Null for a root class.
  const TMemoryClass* SuperClass() const { return fSuper.get(); }
  // Null when the namespace is gone.
  const TMemoryNamespace* Namespace() const { return fNamespace; }

  // Throws kQDAStatusInvalidOpSequence when the namespace is gone.
  void RequireAttached() const {
    if (fNamespace == 0) {
      Fail(TQDAStatusCode::kQDAStatusInvalidOpSequence);
    }
  }
  // Throws kQDAStatusInvalidOpSequence when the namespace is gone or the class committed.
  void RequireOpen() const {
    if (fNamespace == 0 || fIsCommitted) {
      Fail(TQDAStatusCode::kQDAStatusInvalidOpSequence);
    }
  }

  // The declaration that the class has or inherits; null when there is none.
  const TMemoryPropertyDecl* FindProperty(const std::string& name, std::uint32_t hash) const;
  // The same, by name alone.
  const TMemoryPropertyDecl* LookUpProperty(const std::string& name) const;
  // The same; throws kQDAStatusNotFound.
  const TMemoryPropertyDecl* RequireProperty(const std::string& name) const;

  // All that the class has or inherits, by slot. Made at the first call, which needs a
  // committed class. Valid as long as the class.
  const TNameTable<TMemoryPropertyDecl>& InstanceProperties();

  // The published instance of this class or a subclass that `reference`, a reference to this
  // class, names; empty when there is none. Throws kQDAStatusInvalidReference unless it binds
  // exactly the keys, each to a value.
  boost::shared_ptr<ICIMInstance> FindInstance(const TCIMReference& reference) const;

  // The next class in creation order, superclass first, of the tree below `root`, or null.
  static TMemoryClass* Next(const TMemoryClass* at, const TMemoryClass* root);
  TMemoryClass* NextSibling() const { return fNextSibling; }
  // Makes `cls` the last of the siblings from `*first` to `*last`, null when there are none.
  static void AppendSibling(TMemoryClass** first, TMemoryClass** last, TMemoryClass* cls);
  // Links a new class under its superclass.
  void LinkToSuperClass();

  // The namespace is going: lets go of all that could lead back here. Never throws.
  void Detach();

 private:
  TMemoryClass(const TMemoryClass&);
  TMemoryClass& operator=(const TMemoryClass&);

  bool DerivesFrom(const TMemoryClass* other) const;
  const TMemoryMethodDecl* FindMethod(const std::string& name) const;
  void SettleKeys();
  void MakeInstanceProperties();
  bool VisitInstances(boost::function<bool(boost::shared_ptr<ICIMInstance>)>& visit,
                      std::uint64_t lastSerial) const;

  TMemoryNamespace* fNamespace;
  boost::shared_ptr<TQualifierDeclPool> fDeclPool;
  std::string fName;
  std::size_t fNumber;
  boost::shared_ptr<TMemoryClass> fSuper;
  TMemoryClass* fFirstSubClass;
  TMemoryClass* fLastSubClass;
  TMemoryClass* fNextSibling;
  // In front of all that stands in it.
  TCIMRoom fRoom;
  TQualifierList fQualifiers;
  bool fIsCommitted;
  bool fIsAssociation;
  bool fIsAbstract;
  bool fHasOwnKeys;

  // How many slots there are, inherited ones included.
  std::uint32_t fSlotCount;
  TPropertyDeclList fProperties;
  // The one that was asked for last, once none can be added any more: whoever reads a path asks
  // twice for each of its keys. Atomic, because reading operations may run side by side.
  mutable std::atomic<const TMemoryPropertyDecl*> fLastFound;
  std::vector<std::unique_ptr<TMemoryMethodDecl> > fMethodDecls;
  std::vector<std::unique_ptr<TMemoryStaticProperty::TNode> > fStaticProperties;

  std::unique_ptr<TNameTable<TMemoryPropertyDecl> > fInstanceProperties;
  std::vector<boost::shared_ptr<TMemoryInstance> > fInstances;
  // Of the class that completes the keys, this one or an ancestor; null without keys.
  TKeyIndex* fKeys;
  std::unique_ptr<TKeyIndex> fOwnKeys;
};

}  // namespace NZRVQDA20

#endif

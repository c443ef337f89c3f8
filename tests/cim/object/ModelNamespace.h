// A namespace for tests of what copies from one to another: plain lists behind the CIM object
// interfaces, a record of every call, and a failure at the n-th one. Nothing of it is shared with
// the namespaces in memory that the project ships.
//
// A call is recorded as "ELEMENT: OPERATION", with "{...}" behind it when the context is not
// empty. Elements read S/Disk (a class), S/Disk.Size (a property's declaration), S/Disk!Size (a
// static value), S/Disk#1 and S/Disk#1.Size (an instance, its value), S/Disk.Reset() (a method),
// S/Disk.Reset(Mode) (a parameter), S[Key] (a qualifier's declaration), and any of the first with
// [Key] behind it (a qualifier); S is the namespace's label.

#ifndef TESTS_CIM_OBJECT_MODELNAMESPACE_H
#define TESTS_CIM_OBJECT_MODELNAMESPACE_H

#include <map>
#include <string>
#include <vector>

#include <boost/enable_shared_from_this.hpp>
#include <boost/shared_ptr.hpp>
#include <boost/weak_ptr.hpp>

#include <qdacore/cim/object/ICIMClass.h>
#include <qdacore/cim/object/ICIMInstance.h>
#include <qdacore/cim/object/ICIMMethodDecl.h>
#include <qdacore/cim/object/ICIMNamespace.h>
#include <qdacore/cim/object/ICIMParameterDecl.h>
#include <qdacore/cim/object/ICIMProperty.h>
#include <qdacore/cim/object/ICIMPropertyDecl.h>
#include <qdacore/cim/object/ICIMQualifier.h>
#include <qdacore/cim/object/ICIMQualifierDecl.h>
#include <qdacore/frame/TQDAStatusCode.h>

namespace cim_model {

using NZRVQDA20::TCIMValue;
typedef std::map<std::string, TCIMValue> Context;
template <class T>
using Pointer = boost::shared_ptr<T>;
template <class T>
using Visitor = boost::function<bool(boost::shared_ptr<T>)>;

// Shared by the namespaces of a test, so that their calls stand in one order.
struct Calls {
  std::vector<std::string> made;
  // The call that fails, counted from 1; 0: none. It throws ModelFailure.
  std::size_t failAt = 0;
  // How many elements are alive.
  int alive = 0;

  void Add(const std::string& call, const Context& context);
};

// The status is none that the copy knows.
extern const NZRVQDA20::TQDAStatusCode::EQDAStatusCode kModelFailure;

// What every element has.
class Element {
 public:
  Element(Calls& calls, const std::string& label);
  ~Element();
  Element(const Element&) = delete;
  Element& operator=(const Element&) = delete;

  void Note(const char* operation, const Context& context) const;
  void Note(const std::string& operation, const Context& context) const;

  Calls& calls;
  const std::string label;
  bool committed = false;
};

class QualifierDecl : public NZRVQDA20::ICIMQualifierDecl, public Element {
 public:
  QualifierDecl(Calls& calls, const std::string& label, const std::string& name,
                const TCIMValue& value, std::int32_t first, std::int32_t second);
  void Commit(Context context) override;
  const std::string& GetName(Context context) const override;
  const TCIMValue& GetValue(Context context) const override;
  std::int32_t GetFirstAttribute(Context context) const override;
  std::int32_t GetSecondAttribute(Context context) const override;

  const std::string name;
  const TCIMValue value;
  const std::int32_t first;
  const std::int32_t second;
};

class Qualifier : public NZRVQDA20::ICIMQualifier, public Element {
 public:
  Qualifier(Calls& calls, const std::string& label, const Pointer<QualifierDecl>& declaration,
            const TCIMValue& value);
  void Commit(Context context) override;
  Pointer<const NZRVQDA20::ICIMQualifierDecl> GetQualifierDecl(Context context) const override;
  const TCIMValue& GetValue(Context context) const override;

  const Pointer<QualifierDecl> declaration;
  const TCIMValue value;
};

// What classes and declarations have in common.
class Qualified : public Element {
 public:
  Qualified(Calls& calls, const std::string& label, bool absentThrows);

  Pointer<NZRVQDA20::ICIMQualifier> Add(Pointer<NZRVQDA20::ICIMQualifierDecl> declaration,
                                        const TCIMValue& value, const Context& context);
  Pointer<NZRVQDA20::ICIMQualifier> Find(const std::string& name, const Context& context) const;
  void Enumerate(Visitor<NZRVQDA20::ICIMQualifier>& visit, const Context& context) const;

  // For a test that fills an element: no call is recorded, and the qualifier is committed.
  void Put(const Pointer<QualifierDecl>& declaration, const TCIMValue& value);

  std::vector<Pointer<Qualifier>> qualifiers;

 private:
  const bool fAbsentThrows;
};

// The three operations of ICIMNamedElement, over Qualified.
template <class Interface>
class Named : public Interface, public Qualified {
 public:
  using Qualified::Qualified;
  Pointer<NZRVQDA20::ICIMQualifier> AddQualifier(Pointer<NZRVQDA20::ICIMQualifierDecl> declaration,
                                                 const TCIMValue& value, Context context) override {
    return Add(declaration, value, context);
  }
  Pointer<NZRVQDA20::ICIMQualifier> GetQualifier(const std::string& name,
                                                 Context context) const override {
    return Find(name, context);
  }
  void EnumerateQualifiers(Visitor<NZRVQDA20::ICIMQualifier>& visit,
                           Context context) const override {
    Enumerate(visit, context);
  }
};

class PropertyDecl : public Named<NZRVQDA20::ICIMPropertyDecl> {
 public:
  PropertyDecl(Calls& calls, const std::string& label, const std::string& name,
               const TCIMValue& value);
  void Commit(Context context) override;
  const std::string& GetName(Context context) const override;
  TCIMValue::TCIMType GetType(Context context) const override;
  const TCIMValue& GetDefaultValue(Context context) const override;

  const std::string name;
  TCIMValue value;
};

class ParameterDecl : public Named<NZRVQDA20::ICIMParameterDecl> {
 public:
  ParameterDecl(Calls& calls, const std::string& label, const std::string& name,
                TCIMValue::TCIMType type);
  void Commit(Context context) override;
  const std::string& GetName(Context context) const override;
  TCIMValue::TCIMType GetType(Context context) const override;

  const std::string name;
  const TCIMValue::TCIMType type;
};

class MethodDecl : public Named<NZRVQDA20::ICIMMethodDecl> {
 public:
  MethodDecl(Calls& calls, const std::string& label, const std::string& name,
             TCIMValue::TCIMType type);
  const std::string& GetName(Context context) const override;
  TCIMValue::TCIMType GetType(Context context) const override;
  Pointer<NZRVQDA20::ICIMParameterDecl> AddParameterDecl(const std::string& name,
                                                         TCIMValue::TCIMType type,
                                                         Context context) override;
  void EnumerateParameterDecls(Visitor<NZRVQDA20::ICIMParameterDecl>& visit,
                               Context context) const override;

  const std::string name;
  const TCIMValue::TCIMType type;
  std::vector<Pointer<ParameterDecl>> parameters;
};

class Property : public NZRVQDA20::ICIMProperty, public Element {
 public:
  Property(Calls& calls, const std::string& label, const Pointer<const PropertyDecl>& declaration,
           const TCIMValue& value);
  const TCIMValue& GetValue(Context context) const override;
  Pointer<const NZRVQDA20::ICIMPropertyDecl> GetPropertyDecl(Context context) const override;
  std::string ToString() const override;

  const Pointer<const PropertyDecl> declaration;
  const TCIMValue value;
};

class Class;

class Instance : public NZRVQDA20::ICIMInstance, public Element {
 public:
  Instance(Calls& calls, const std::string& label, const Pointer<Class>& cls);
  Pointer<NZRVQDA20::ICIMClass> GetClass(Context context) const override;
  Pointer<NZRVQDA20::ICIMProperty> GetProperty(const std::string& name,
                                               Context context) const override;
  void SetProperty(const std::string& name, const TCIMValue& value, Context context) override;
  void EnumerateProperties(Visitor<NZRVQDA20::ICIMProperty>& visit, Context context) const override;

  // Not recorded.
  Instance& Put(const std::string& name, const TCIMValue& value);

  const boost::weak_ptr<Class> cls;
  std::vector<Pointer<Property>> properties;
};

class Namespace;

class Class : public Named<NZRVQDA20::ICIMClass>, public boost::enable_shared_from_this<Class> {
 public:
  Class(Namespace& ns, const std::string& name, const Pointer<Class>& superclass);

  void Commit(Context context) override;
  const std::string& GetName(Context context) const override;
  Pointer<NZRVQDA20::ICIMNamespace> GetNamespace(Context context) const override;
  bool IsAssociation(Context context) const override;
  bool IsAbstract(Context context) const override;
  bool IsRootClass(Context context) const override;
  Pointer<NZRVQDA20::ICIMClass> GetSuperClass(Context context) const override;
  void EnumerateSubClasses(Visitor<NZRVQDA20::ICIMClass>& visit, bool deep,
                           Context context) const override;
  Pointer<NZRVQDA20::ICIMPropertyDecl> AddPropertyDecl(const std::string& name,
                                                       const TCIMValue& value,
                                                       Context context) override;
  Pointer<const NZRVQDA20::ICIMPropertyDecl> GetPropertyDecl(const std::string& name,
                                                             Context context) const override;
  // Inherited ones too, superclass first, when the namespace says so.
  void EnumeratePropertyDecls(Visitor<NZRVQDA20::ICIMPropertyDecl>& visit,
                              Context context) const override;
  void SetStaticProperty(const std::string& name, const TCIMValue& value, Context context) override;
  void EnumerateStaticProperties(Visitor<NZRVQDA20::ICIMProperty>& visit,
                                 Context context) const override;
  Pointer<NZRVQDA20::ICIMInstance> CreateInstance(Context context) override;
  void EnumerateInstances(Visitor<NZRVQDA20::ICIMInstance>& visit, bool deep,
                          Context context) const override;
  Pointer<NZRVQDA20::ICIMMethodDecl> AddMethodDecl(const std::string& name,
                                                   TCIMValue::TCIMType type,
                                                   Context context) override;
  void EnumerateMethodDecls(Visitor<NZRVQDA20::ICIMMethodDecl>& visit,
                            Context context) const override;
  void AddInstance(Pointer<NZRVQDA20::ICIMInstance> instance) override;

  // For a test that fills a class; not recorded.
  PropertyDecl& Declare(const std::string& name, const TCIMValue& value);
  Class& PutStatic(const std::string& name, const TCIMValue& value);
  MethodDecl& DeclareMethod(const std::string& name, TCIMValue::TCIMType type);
  Instance& PutInstance();
  Pointer<PropertyDecl> FindDeclaration(const std::string& name) const;
  // Those of this class and, when `deep`, of its descendants, depth first.
  std::vector<Pointer<Class>> Descendants(bool deep) const;

  Namespace& ns;
  const std::string name;
  const Pointer<Class> superclass;
  bool association = false;
  bool abstract = false;
  std::vector<boost::weak_ptr<Class>> subclasses;
  std::vector<Pointer<PropertyDecl>> declarations;
  std::vector<Pointer<Property>> statics;
  std::vector<Pointer<MethodDecl>> methods;
  std::vector<Pointer<Instance>> instances;
  int created = 0;
};

class Namespace : public NZRVQDA20::ICIMNamespace,
                  public Element,
                  public boost::enable_shared_from_this<Namespace> {
 public:
  static Pointer<Namespace> Create(Calls& calls, const std::string& label);
  ~Namespace() override;

  Pointer<NZRVQDA20::ICIMClass> CreateClass(const std::string& name,
                                            Pointer<NZRVQDA20::ICIMClass> superclass,
                                            Context context) override;
  Pointer<NZRVQDA20::ICIMClass> GetClass(const std::string& name, Context context) const override;
  void EnumerateClasses(Visitor<NZRVQDA20::ICIMClass>& visit, Context context) const override;
  Pointer<NZRVQDA20::ICIMQualifierDecl> CreateQualifierDecl(const std::string& name,
                                                            const TCIMValue& value,
                                                            std::int32_t first, std::int32_t second,
                                                            Context context) override;
  Pointer<NZRVQDA20::ICIMQualifierDecl> GetQualifierDecl(const std::string& name,
                                                         Context context) const override;
  void EnumerateQualifierDecls(Visitor<NZRVQDA20::ICIMQualifierDecl>& visit,
                               Context context) const override;
  Pointer<NZRVQDA20::ICIMInstance> GetInstance(const NZRVQDA20::TCIMReference& reference,
                                               Context context) const override;

  // For a test that fills a namespace; not recorded, and committed.
  Pointer<QualifierDecl> DeclareQualifier(const std::string& name, const TCIMValue& value,
                                          std::int32_t first = 0, std::int32_t second = 0);
  Class& Declare(const std::string& name, const std::string& superclass = "");
  Pointer<Class> Find(const std::string& name) const;

  // All that it holds, a line each; "?" stands behind what was never committed.
  std::vector<std::string> Content() const;

  bool showsInherited = false;
  // What GetInstance finds.
  std::map<std::string, Pointer<Instance>> byPath;
  std::vector<Pointer<QualifierDecl>> qualifierDecls;
  std::vector<Pointer<Class>> classes;

 private:
  Namespace(Calls& calls, const std::string& label);
};

}  // namespace cim_model

#endif

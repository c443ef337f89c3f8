// Providers with inventories that a host seldom meets: every type of value, hostile text, and
// classes that no sound provider serves.

#include <map>
#include <string>
#include <vector>

#include <boost/enable_shared_from_this.hpp>
#include <boost/make_shared.hpp>
#include <boost/shared_ptr.hpp>

#include <qdacore/cim/object/ICIMClass.h>
#include <qdacore/cim/object/ICIMInstance.h>
#include <qdacore/cim/object/ICIMMethodDecl.h>
#include <qdacore/cim/object/ICIMNamespace.h>
#include <qdacore/cim/object/ICIMParameterDecl.h>
#include <qdacore/cim/object/ICIMProperty.h>
#include <qdacore/cim/object/ICIMPropertyDecl.h>
#include <qdacore/cim/object/ICIMQualifier.h>
#include <qdacore/cim/object/ICIMQualifierDecl.h>
#include <qdacore/cim/value/TCIMChar16.h>
#include <qdacore/cim/value/TCIMDateTime.h>
#include <qdacore/cim/value/TCIMReference.h>
#include <qdacore/frame/TQDAException.h>
#include <qdacore/frame/TRootObject.h>
#include <qdacore/plugin/INamespaceProviderManager.h>
#include <qdacore/plugin/INamespaceSource.h>
#include <qdamemory/MemoryNamespace.h>
#include <qdamemory/StandardQualifiers.h>
#include <tests/qda/modules/NamedSource.h>

namespace {

using boost::shared_ptr;
using namespace NZRVQDA20;

typedef std::map<std::string, TCIMValue> Context;
typedef TCIMValue::TCIMType Type;

struct Property {
  const char* name;
  TCIMValue defaultValue;
  bool isKey;
};

TCIMValue Null(Type::ECIMType type) { return TCIMValue(type, 0); }

template <class Element>
void Qualify(const shared_ptr<ICIMNamespace>& ns, const shared_ptr<Element>& element,
             const char* name, const TCIMValue& value) {
  element->AddQualifier(ns->GetQualifierDecl(name, Context()), value, Context())->Commit(Context());
}

shared_ptr<ICIMClass> BeginClass(const shared_ptr<ICIMNamespace>& ns, const char* name,
                                 const shared_ptr<ICIMClass>& superclass,
                                 const std::vector<Property>& properties) {
  const shared_ptr<ICIMClass> cls = ns->CreateClass(name, superclass, Context());
  for (const Property& property : properties) {
    const shared_ptr<ICIMPropertyDecl> decl =
        cls->AddPropertyDecl(property.name, property.defaultValue, Context());
    if (property.isKey) {
      Qualify(ns, decl, "Key", TCIMValue(true));
    }
    decl->Commit(Context());
  }
  return cls;
}

void AddInstance(const shared_ptr<ICIMClass>& cls, const std::map<std::string, TCIMValue>& values) {
  const shared_ptr<ICIMInstance> instance = cls->CreateInstance(Context());
  for (const auto& value : values) {
    instance->SetProperty(value.first, value.second, Context());
  }
  cls->AddInstance(instance);
}

// An abstract class with a method and qualifiers, and one under it with a key and two instances.
shared_ptr<ICIMClass> AddThings(const shared_ptr<ICIMNamespace>& ns) {
  const shared_ptr<ICIMClass> base = BeginClass(ns, "T_Base", shared_ptr<ICIMClass>(),
                                                {{"Name", Null(Type::kCIMTypeString), true}});
  Qualify(ns, base, "Abstract", TCIMValue(true));
  const shared_ptr<ICIMMethodDecl> method =
      base->AddMethodDecl("Reset", Type::kCIMTypeUint32, Context());
  method->AddParameterDecl("Hard", Type::kCIMTypeBoolean, Context())->Commit(Context());
  Qualify(ns, method, "Description", TCIMValue("Starts \"it\" again"));
  base->Commit(Context());
  const shared_ptr<ICIMClass> thing = BeginClass(
      ns, "T_Thing", base,
      {{"Count", TCIMValue(7u), false}, {"Tags", TCIMValue(Type::kCIMTypeString, 4), false}});
  thing->Commit(Context());
  AddInstance(thing, {{"Name", TCIMValue("plain")}});
  AddInstance(thing, {{"Name", TCIMValue("a\"b\\c.d,e=f")}, {"Count", TCIMValue(9u)}});
  return thing;
}

void AddLink(const shared_ptr<ICIMNamespace>& ns, const shared_ptr<ICIMClass>& thing) {
  TCIMValue reference = Null(Type::kCIMTypeReference);
  reference.SetReferencedClass(thing);
  const shared_ptr<ICIMClass> link =
      BeginClass(ns, "T_Link", shared_ptr<ICIMClass>(),
                 {{"Antecedent", reference, true}, {"Dependent", reference, true}});
  Qualify(ns, link, "Association", TCIMValue(true));
  link->Commit(Context());
  TCIMReference first(ns, "T_Thing.Name=\"plain\"", Context());
  TCIMReference second(ns, "T_Thing.Name=\"a\\\"b\\\\c.d,e=f\"", Context());
  AddInstance(link, {{"Antecedent", TCIMValue(first)}, {"Dependent", TCIMValue(second)}});
}

TCIMValue Numbers(unsigned int count) {
  std::vector<TCIMValue> elements;
  for (unsigned int i = 0; i < count; ++i) {
    elements.push_back(TCIMValue(i));
  }
  return TCIMValue(Type::kCIMTypeUint32, 0, elements);
}

// One property a type; an instance with values, one that is null throughout.
void AddValues(const shared_ptr<ICIMNamespace>& ns) {
  const shared_ptr<ICIMClass> cls = BeginClass(
      ns, "T_Values", shared_ptr<ICIMClass>(),
      {{"Id", Null(Type::kCIMTypeUint8), true},
       {"Boolean", Null(Type::kCIMTypeBoolean), false},
       {"Unsigned64", Null(Type::kCIMTypeUint64), false},
       {"Signed64", Null(Type::kCIMTypeSint64), false},
       {"Real32", Null(Type::kCIMTypeReal32), false},
       {"Real64", Null(Type::kCIMTypeReal64), false},
       {"NoNumber", Null(Type::kCIMTypeReal64), false},
       {"Character", Null(Type::kCIMTypeChar16), false},
       {"Text", Null(Type::kCIMTypeString), false},
       {"When", Null(Type::kCIMTypeDateTime), false},
       {"Some",
        TCIMValue(Type(static_cast<Type::ECIMType>(Type::kCIMTypeString | Type::kCIMTypeArrayFlag)),
                  0),
        false},
       {"Many",
        TCIMValue(Type(static_cast<Type::ECIMType>(Type::kCIMTypeUint32 | Type::kCIMTypeArrayFlag)),
                  0),
        false}});
  cls->Commit(Context());
  const double zero = 0;
  AddInstance(cls, {{"Id", TCIMValue(static_cast<unsigned char>(1))},
                    {"Boolean", TCIMValue(true)},
                    {"Unsigned64", TCIMValue(18446744073709551615ull)},
                    {"Signed64", TCIMValue(-9223372036854775807ll - 1)},
                    {"Real32", TCIMValue(0.1f)},
                    {"Real64", TCIMValue(1e300)},
                    {"NoNumber", TCIMValue(1 / zero)},
                    {"Character", TCIMValue(TCIMChar16(65))},
                    {"Text", TCIMValue(std::string("\x1B[2J\xFF\xE2\x80\xAE\n\0\"\\", 12))},
                    {"When", TCIMValue(TCIMDateTime("20190314092653.012345+060"))},
                    {"Some", TCIMValue(Type::kCIMTypeString, 0,
                                       {TCIMValue("a, b"), Null(Type::kCIMTypeString)})},
                    {"Many", Numbers(10000)}});
  AddInstance(cls, {{"Id", TCIMValue(static_cast<unsigned char>(2))}});
}

typedef odd_modules::NamedSource Source;

class ValuesSource : public Source {
 public:
  ValuesSource() : Source("values") {}
  shared_ptr<ICIMNamespace> GetNamespace(Context) override {
    const shared_ptr<ICIMNamespace> ns = CreateMemoryNamespace("root");
    DeclareStandardQualifiers(ns);
    AddLink(ns, AddThings(ns));
    AddValues(ns);
    const shared_ptr<ICIMClass> keyless =
        BeginClass(ns, "T_Keyless", shared_ptr<ICIMClass>(), {{"Note", TCIMValue("x"), false}});
    keyless->Commit(Context());
    AddInstance(keyless, {});
    const shared_ptr<ICIMClass> nullKey = BeginClass(ns, "T_NullKey", shared_ptr<ICIMClass>(),
                                                     {{"Name", Null(Type::kCIMTypeString), true}});
    nullKey->Commit(Context());
    AddInstance(nullKey, {});
    return ns;
  }
};

[[noreturn]] void Refuse() { throw TQDAException(TQDAStatusCode::kQDAStatusCimomConnectFailure); }

// An instance without a class.
class StrayInstance : public ICIMInstance {
 public:
  shared_ptr<ICIMClass> GetClass(Context) const override { return shared_ptr<ICIMClass>(); }
  shared_ptr<ICIMProperty> GetProperty(const std::string&, Context) const override { Refuse(); }
  void SetProperty(const std::string&, const TCIMValue&, Context) override { Refuse(); }
  void EnumerateProperties(boost::function<bool(shared_ptr<ICIMProperty>)>& visit,
                           Context) const override {
    visit(shared_ptr<ICIMProperty>());
  }
};

// Its own superclass and subclass, with empty pointers wherever something is presented.
class LoopClass : public ICIMClass, public boost::enable_shared_from_this<LoopClass> {
 public:
  void Commit(Context) override { Refuse(); }
  const std::string& GetName(Context) const override { return fName; }
  shared_ptr<ICIMNamespace> GetNamespace(Context) const override {
    return shared_ptr<ICIMNamespace>();
  }
  bool IsAssociation(Context) const override { return true; }
  bool IsAbstract(Context) const override { return true; }
  bool IsRootClass(Context) const override { return false; }
  shared_ptr<ICIMClass> GetSuperClass(Context) const override { return Self(); }
  void EnumerateSubClasses(boost::function<bool(shared_ptr<ICIMClass>)>& visit, bool,
                           Context) const override {
    visit(shared_ptr<ICIMClass>());
    visit(Self());
  }
  shared_ptr<ICIMPropertyDecl> AddPropertyDecl(const std::string&, const TCIMValue&,
                                               Context) override {
    Refuse();
  }
  shared_ptr<const ICIMPropertyDecl> GetPropertyDecl(const std::string&, Context) const override {
    Refuse();
  }
  void EnumeratePropertyDecls(boost::function<bool(shared_ptr<ICIMPropertyDecl>)>& visit,
                              Context) const override {
    visit(shared_ptr<ICIMPropertyDecl>());
  }
  void SetStaticProperty(const std::string&, const TCIMValue&, Context) override { Refuse(); }
  void EnumerateStaticProperties(boost::function<bool(shared_ptr<ICIMProperty>)>&,
                                 Context) const override {
    Refuse();
  }
  shared_ptr<ICIMInstance> CreateInstance(Context) override { Refuse(); }
  void EnumerateInstances(boost::function<bool(shared_ptr<ICIMInstance>)>& visit, bool deep,
                          Context) const override {
    visit(shared_ptr<ICIMInstance>());
    if (deep) {
      visit(boost::make_shared<StrayInstance>());
    }
  }
  shared_ptr<ICIMMethodDecl> AddMethodDecl(const std::string&, Type, Context) override { Refuse(); }
  void EnumerateMethodDecls(boost::function<bool(shared_ptr<ICIMMethodDecl>)>& visit,
                            Context) const override {
    visit(shared_ptr<ICIMMethodDecl>());
  }
  void AddInstance(shared_ptr<ICIMInstance>) override { Refuse(); }
  shared_ptr<ICIMQualifier> AddQualifier(shared_ptr<ICIMQualifierDecl>, const TCIMValue&,
                                         Context) override {
    Refuse();
  }
  shared_ptr<ICIMQualifier> GetQualifier(const std::string&, Context) const override {
    return shared_ptr<ICIMQualifier>();
  }
  void EnumerateQualifiers(boost::function<bool(shared_ptr<ICIMQualifier>)>& visit,
                           Context) const override {
    visit(shared_ptr<ICIMQualifier>());
  }

 private:
  shared_ptr<ICIMClass> Self() const {
    return boost::const_pointer_cast<LoopClass>(shared_from_this());
  }

  const std::string fName = "T_Loop";
};

// Has one class that is listed; any other name gives an empty pointer, which it must not, and
// "T_Refused" a refusal.
class LoopNamespace : public ICIMNamespace {
 public:
  shared_ptr<ICIMClass> CreateClass(const std::string&, shared_ptr<ICIMClass>, Context) override {
    Refuse();
  }
  shared_ptr<ICIMClass> GetClass(const std::string& name, Context) const override {
    if (name == "T_Refused") {
      Refuse();
    }
    return name == "T_Loop" ? fLoop : shared_ptr<ICIMClass>();
  }
  void EnumerateClasses(boost::function<bool(shared_ptr<ICIMClass>)>& visit,
                        Context) const override {
    visit(fLoop);
    visit(shared_ptr<ICIMClass>());
  }
  shared_ptr<ICIMQualifierDecl> CreateQualifierDecl(const std::string&, const TCIMValue&,
                                                    std::int32_t, std::int32_t, Context) override {
    Refuse();
  }
  shared_ptr<ICIMQualifierDecl> GetQualifierDecl(const std::string&, Context) const override {
    Refuse();
  }
  void EnumerateQualifierDecls(boost::function<bool(shared_ptr<ICIMQualifierDecl>)>&,
                               Context) const override {
    Refuse();
  }
  shared_ptr<ICIMInstance> GetInstance(const TCIMReference&, Context) const override { Refuse(); }

 private:
  const shared_ptr<ICIMClass> fLoop = boost::make_shared<LoopClass>();
};

class LoopSource : public Source {
 public:
  LoopSource() : Source("loop") {}
  shared_ptr<ICIMNamespace> GetNamespace(Context) override {
    return boost::make_shared<LoopNamespace>();
  }
};

// Its classes cannot be listed.
class RefusingNamespace : public LoopNamespace {
 public:
  void EnumerateClasses(boost::function<bool(shared_ptr<ICIMClass>)>&, Context) const override {
    Refuse();
  }
};

class RefusingSource : public Source {
 public:
  RefusingSource() : Source("unlisted") {}
  shared_ptr<ICIMNamespace> GetNamespace(Context) override {
    return boost::make_shared<RefusingNamespace>();
  }
};

template <class Provider>
void Register() {
  TRootObject::GetNamespaceProviderManager()->RegisterNamespaceProvider(
      shared_ptr<INamespaceProvider>(new Provider));
}

struct Registration {
  Registration() {
    Register<ValuesSource>();
    Register<LoopSource>();
    Register<RefusingSource>();
  }
};

const Registration registration;

}  // namespace

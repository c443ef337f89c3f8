#include <tests/qdamemory/MemoryTestSupport.h>

namespace memory_test {

namespace {

// Appends the name of each declaration, and goes on.
template <class T>
boost::function<bool(boost::shared_ptr<T>)> Collect(Names* names) {
  return [names](boost::shared_ptr<T> element) {
    names->push_back(element->GetName(None()));
    return true;
  };
}

boost::function<bool(boost::shared_ptr<ICIMProperty>)> CollectProperties(Names* names) {
  return [names](boost::shared_ptr<ICIMProperty> property) {
    names->push_back(property->GetPropertyDecl(None())->GetName(None()));
    return true;
  };
}

}  // namespace

Context None() { return Context(); }

TCIMValue Null(Type::ECIMType type, bool array) {
  return TCIMValue(static_cast<Type::ECIMType>(array ? type | Type::kCIMTypeArrayFlag : type), 0);
}

TCIMValue NullReferenceTo(const Class& cls) {
  TCIMValue value(Type::kCIMTypeReference, 0);
  value.SetReferencedClass(cls);
  return value;
}

Namespace MakeNamespace() {
  Namespace ns = CreateMemoryNamespace("test");
  DeclareStandardQualifiers(ns);
  return ns;
}

Class Open(const Namespace& ns, const std::string& name, const Class& superclass) {
  return ns->CreateClass(name, superclass, None());
}

Class Make(const Namespace& ns, const std::string& name, const Class& superclass) {
  Class cls = Open(ns, name, superclass);
  cls->Commit(None());
  return cls;
}

boost::shared_ptr<ICIMPropertyDecl> Add(const Class& cls, const std::string& name,
                                        const TCIMValue& defaultValue) {
  return cls->AddPropertyDecl(name, defaultValue, None());
}

boost::shared_ptr<ICIMPropertyDecl> AddKey(const Class& cls, const std::string& name,
                                           const TCIMValue& defaultValue) {
  boost::shared_ptr<ICIMPropertyDecl> decl = Add(cls, name, defaultValue);
  Qualify(cls, *decl, "Key", TCIMValue(true));
  return decl;
}

void Qualify(const Class& cls, ICIMNamedElement& element, const std::string& name,
             const TCIMValue& value) {
  const Namespace ns = cls->GetNamespace(None());
  element.AddQualifier(ns->GetQualifierDecl(name, None()), value, None())->Commit(None());
}

Class MakeKeyed(const Namespace& ns, const std::string& name, const std::string& key,
                const Class& superclass) {
  Class cls = Open(ns, name, superclass);
  AddKey(cls, key, Null(Type::kCIMTypeString));
  cls->Commit(None());
  return cls;
}

Instance Create(const Class& cls, const std::string& name, const TCIMValue& value) {
  Instance instance = cls->CreateInstance(None());
  instance->SetProperty(name, value, None());
  return instance;
}

Instance Publish(const Class& cls, const std::string& name, const TCIMValue& value) {
  Instance instance = Create(cls, name, value);
  cls->AddInstance(instance);
  return instance;
}

Instance Resolve(const Namespace& ns, const std::string& path) {
  return ns->GetInstance(TCIMReference(ns, path, None()), None());
}

TCIMValue ReferenceValue(const Namespace& ns, const std::string& path) {
  TCIMReference reference(ns, path, None());
  return TCIMValue(reference);
}

TCIMValue ValueOf(const Instance& instance, const std::string& name) {
  return instance->GetProperty(name, None())->GetValue(None());
}

std::string TextOf(const Instance& instance, const std::string& name) {
  return instance->GetProperty(name, None())->ToString();
}

Names RootsOf(const Namespace& ns) {
  Names names;
  boost::function<bool(Class)> visit = Collect<ICIMClass>(&names);
  ns->EnumerateClasses(visit, None());
  return names;
}

Names SubClassesOf(const Class& cls, bool deep) {
  Names names;
  boost::function<bool(Class)> visit = Collect<ICIMClass>(&names);
  cls->EnumerateSubClasses(visit, deep, None());
  return names;
}

Names PropertiesOf(const Class& cls) {
  Names names;
  boost::function<bool(boost::shared_ptr<ICIMPropertyDecl>)> visit =
      Collect<ICIMPropertyDecl>(&names);
  cls->EnumeratePropertyDecls(visit, None());
  return names;
}

Names PropertiesOf(const Instance& instance) {
  Names names;
  boost::function<bool(boost::shared_ptr<ICIMProperty>)> visit = CollectProperties(&names);
  instance->EnumerateProperties(visit, None());
  return names;
}

Names StaticPropertiesOf(const Class& cls) {
  Names names;
  boost::function<bool(boost::shared_ptr<ICIMProperty>)> visit = CollectProperties(&names);
  cls->EnumerateStaticProperties(visit, None());
  return names;
}

Names MethodsOf(const Class& cls) {
  Names names;
  boost::function<bool(boost::shared_ptr<ICIMMethodDecl>)> visit = Collect<ICIMMethodDecl>(&names);
  cls->EnumerateMethodDecls(visit, None());
  return names;
}

Names ParametersOf(const ICIMMethodDecl& method) {
  Names names;
  boost::function<bool(boost::shared_ptr<ICIMParameterDecl>)> visit =
      Collect<ICIMParameterDecl>(&names);
  method.EnumerateParameterDecls(visit, None());
  return names;
}

Names QualifiersOf(const ICIMNamedElement& element) {
  Names names;
  boost::function<bool(boost::shared_ptr<ICIMQualifier>)> visit =
      [&names](boost::shared_ptr<ICIMQualifier> qualifier) {
        names.push_back(qualifier->GetQualifierDecl(None())->GetName(None()));
        return true;
      };
  element.EnumerateQualifiers(visit, None());
  return names;
}

Names QualifierDeclsOf(const Namespace& ns) {
  Names names;
  boost::function<bool(boost::shared_ptr<ICIMQualifierDecl>)> visit =
      Collect<ICIMQualifierDecl>(&names);
  ns->EnumerateQualifierDecls(visit, None());
  return names;
}

Names InstancesOf(const Class& cls, bool deep, const std::string& property) {
  Names names;
  boost::function<bool(Instance)> visit = [&](Instance instance) {
    names.push_back(TextOf(instance, property));
    return true;
  };
  cls->EnumerateInstances(visit, deep, None());
  return names;
}

}  // namespace memory_test

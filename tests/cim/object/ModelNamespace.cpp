#include <tests/cim/object/ModelNamespace.h>

#include <qdacore/cim/value/TCIMReference.h>
#include <qdacore/frame/TQDAException.h>

namespace cim_model {

using namespace NZRVQDA20;

const TQDAStatusCode::EQDAStatusCode kModelFailure = TQDAStatusCode::kQDAStatusConnectionFailed;

namespace {

[[noreturn]] void NotFound() { throw TQDAException(TQDAStatusCode::kQDAStatusNotFound); }

// Offers the elements one after the other, as every enumeration does.
template <class Interface, class T>
void Offer(const std::vector<Pointer<T>>& elements, Visitor<Interface>& visit) {
  for (const Pointer<T>& element : std::vector<Pointer<T>>(elements)) {
    if (!visit(element)) {
      return;
    }
  }
}

template <class T>
Pointer<T> FindNamed(const std::vector<Pointer<T>>& elements, const std::string& name) {
  for (const Pointer<T>& element : elements) {
    if (element->name == name) {
      return element;
    }
  }
  return Pointer<T>();
}

}  // namespace

void Calls::Add(const std::string& call, const Context& context) {
  made.push_back(context.empty() ? call : call + " {...}");
  if (made.size() == failAt) {
    throw TQDAException(kModelFailure);
  }
}

Element::Element(Calls& record, const std::string& elementLabel)
    : calls(record), label(elementLabel) {
  ++calls.alive;
}

Element::~Element() { --calls.alive; }

void Element::Note(const char* operation, const Context& context) const {
  calls.Add(label + ": " + operation, context);
}

void Element::Note(const std::string& operation, const Context& context) const {
  Note(operation.c_str(), context);
}

QualifierDecl::QualifierDecl(Calls& record, const std::string& elementLabel,
                             const std::string& declName, const TCIMValue& declValue,
                             std::int32_t firstAttribute, std::int32_t secondAttribute)
    : Element(record, elementLabel),
      name(declName),
      value(declValue),
      first(firstAttribute),
      second(secondAttribute) {}

void QualifierDecl::Commit(Context context) {
  Note("Commit", context);
  committed = true;
}
const std::string& QualifierDecl::GetName(Context context) const {
  Note("GetName", context);
  return name;
}
const TCIMValue& QualifierDecl::GetValue(Context context) const {
  Note("GetValue", context);
  return value;
}
std::int32_t QualifierDecl::GetFirstAttribute(Context context) const {
  Note("GetFirstAttribute", context);
  return first;
}
std::int32_t QualifierDecl::GetSecondAttribute(Context context) const {
  Note("GetSecondAttribute", context);
  return second;
}

Qualifier::Qualifier(Calls& record, const std::string& elementLabel,
                     const Pointer<QualifierDecl>& decl, const TCIMValue& qualifierValue)
    : Element(record, elementLabel), declaration(decl), value(qualifierValue) {}

void Qualifier::Commit(Context context) {
  Note("Commit", context);
  committed = true;
}
Pointer<const ICIMQualifierDecl> Qualifier::GetQualifierDecl(Context context) const {
  Note("GetQualifierDecl", context);
  return declaration;
}
const TCIMValue& Qualifier::GetValue(Context context) const {
  Note("GetValue", context);
  return value;
}

Qualified::Qualified(Calls& record, const std::string& elementLabel, bool absentThrows)
    : Element(record, elementLabel), fAbsentThrows(absentThrows) {}

Pointer<ICIMQualifier> Qualified::Add(Pointer<ICIMQualifierDecl> declaration,
                                      const TCIMValue& value, const Context& context) {
  const Pointer<QualifierDecl> own = boost::dynamic_pointer_cast<QualifierDecl>(declaration);
  Note("AddQualifier " + own->label, context);
  const Pointer<Qualifier> added(new Qualifier(calls, label + "[" + own->name + "]", own, value));
  qualifiers.push_back(added);
  return added;
}

Pointer<ICIMQualifier> Qualified::Find(const std::string& name, const Context& context) const {
  Note("GetQualifier " + name, context);
  for (const Pointer<Qualifier>& qualifier : qualifiers) {
    if (qualifier->declaration->name == name) {
      return qualifier;
    }
  }
  if (fAbsentThrows) {
    NotFound();
  }
  return Pointer<ICIMQualifier>();
}

void Qualified::Enumerate(Visitor<ICIMQualifier>& visit, const Context& context) const {
  Note("EnumerateQualifiers", context);
  Offer<ICIMQualifier>(qualifiers, visit);
}

void Qualified::Put(const Pointer<QualifierDecl>& declaration, const TCIMValue& value) {
  qualifiers.push_back(Pointer<Qualifier>(
      new Qualifier(calls, label + "[" + declaration->name + "]", declaration, value)));
  qualifiers.back()->committed = true;
}

PropertyDecl::PropertyDecl(Calls& record, const std::string& elementLabel,
                           const std::string& declName, const TCIMValue& defaultValue)
    : Named(record, elementLabel, true), name(declName), value(defaultValue) {}

void PropertyDecl::Commit(Context context) {
  Note("Commit", context);
  committed = true;
}
const std::string& PropertyDecl::GetName(Context context) const {
  Note("GetName", context);
  return name;
}
TCIMValue::TCIMType PropertyDecl::GetType(Context context) const {
  Note("GetType", context);
  return value.GetType();
}
const TCIMValue& PropertyDecl::GetDefaultValue(Context context) const {
  Note("GetDefaultValue", context);
  return value;
}

ParameterDecl::ParameterDecl(Calls& record, const std::string& elementLabel,
                             const std::string& declName, TCIMValue::TCIMType declType)
    : Named(record, elementLabel, true), name(declName), type(declType) {}

void ParameterDecl::Commit(Context context) {
  Note("Commit", context);
  committed = true;
}
const std::string& ParameterDecl::GetName(Context context) const {
  Note("GetName", context);
  return name;
}
TCIMValue::TCIMType ParameterDecl::GetType(Context context) const {
  Note("GetType", context);
  return type;
}

MethodDecl::MethodDecl(Calls& record, const std::string& elementLabel, const std::string& declName,
                       TCIMValue::TCIMType declType)
    : Named(record, elementLabel, true), name(declName), type(declType) {}

const std::string& MethodDecl::GetName(Context context) const {
  Note("GetName", context);
  return name;
}
TCIMValue::TCIMType MethodDecl::GetType(Context context) const {
  Note("GetType", context);
  return type;
}
Pointer<ICIMParameterDecl> MethodDecl::AddParameterDecl(const std::string& parameterName,
                                                        TCIMValue::TCIMType parameterType,
                                                        Context context) {
  Note("AddParameterDecl " + parameterName + " " + parameterType.ToString(), context);
  parameters.push_back(Pointer<ParameterDecl>(
      new ParameterDecl(calls, label.substr(0, label.size() - 1) + parameterName + ")",
                        parameterName, parameterType)));
  return parameters.back();
}
void MethodDecl::EnumerateParameterDecls(Visitor<ICIMParameterDecl>& visit, Context context) const {
  Note("EnumerateParameterDecls", context);
  Offer<ICIMParameterDecl>(parameters, visit);
}

Property::Property(Calls& record, const std::string& elementLabel,
                   const Pointer<const PropertyDecl>& decl, const TCIMValue& propertyValue)
    : Element(record, elementLabel), declaration(decl), value(propertyValue) {}

const TCIMValue& Property::GetValue(Context context) const {
  Note("GetValue", context);
  return value;
}
Pointer<const ICIMPropertyDecl> Property::GetPropertyDecl(Context context) const {
  Note("GetPropertyDecl", context);
  return declaration;
}
std::string Property::ToString() const {
  Note("ToString", Context());
  return value.ToString();
}

Instance::Instance(Calls& record, const std::string& elementLabel, const Pointer<Class>& of)
    : Element(record, elementLabel), cls(of) {}

Pointer<ICIMClass> Instance::GetClass(Context context) const {
  Note("GetClass", context);
  return cls.lock();
}
Pointer<ICIMProperty> Instance::GetProperty(const std::string& name, Context context) const {
  Note("GetProperty " + name, context);
  for (const Pointer<Property>& property : properties) {
    if (property->declaration->name == name) {
      return property;
    }
  }
  NotFound();
}
void Instance::SetProperty(const std::string& name, const TCIMValue& value, Context context) {
  Note("SetProperty " + name, context);
  Put(name, value);
}
void Instance::EnumerateProperties(Visitor<ICIMProperty>& visit, Context context) const {
  Note("EnumerateProperties", context);
  Offer<ICIMProperty>(properties, visit);
}

Instance& Instance::Put(const std::string& name, const TCIMValue& value) {
  const Pointer<PropertyDecl> declaration = cls.lock()->FindDeclaration(name);
  if (!declaration) {
    NotFound();
  }
  properties.push_back(
      Pointer<Property>(new Property(calls, label + "." + name, declaration, value)));
  return *this;
}

Class::Class(Namespace& of, const std::string& className, const Pointer<Class>& above)
    : Named(of.calls, of.label + "/" + className, false),
      ns(of),
      name(className),
      superclass(above) {}

void Class::Commit(Context context) {
  Note("Commit", context);
  committed = true;
}
const std::string& Class::GetName(Context context) const {
  Note("GetName", context);
  return name;
}
Pointer<ICIMNamespace> Class::GetNamespace(Context context) const {
  Note("GetNamespace", context);
  return ns.shared_from_this();
}
bool Class::IsAssociation(Context context) const {
  Note("IsAssociation", context);
  return association;
}
bool Class::IsAbstract(Context context) const {
  Note("IsAbstract", context);
  return abstract;
}
bool Class::IsRootClass(Context context) const {
  Note("IsRootClass", context);
  return !superclass;
}
Pointer<ICIMClass> Class::GetSuperClass(Context context) const {
  Note("GetSuperClass", context);
  return superclass;
}
void Class::EnumerateSubClasses(Visitor<ICIMClass>& visit, bool deep, Context context) const {
  Note(deep ? "EnumerateSubClasses deep" : "EnumerateSubClasses", context);
  Offer<ICIMClass>(Descendants(deep), visit);
}
Pointer<ICIMPropertyDecl> Class::AddPropertyDecl(const std::string& declName,
                                                 const TCIMValue& value, Context context) {
  Note("AddPropertyDecl " + declName, context);
  declarations.push_back(
      Pointer<PropertyDecl>(new PropertyDecl(calls, label + "." + declName, declName, value)));
  return declarations.back();
}
Pointer<const ICIMPropertyDecl> Class::GetPropertyDecl(const std::string& declName,
                                                       Context context) const {
  Note("GetPropertyDecl " + declName, context);
  const Pointer<PropertyDecl> found = FindDeclaration(declName);
  if (!found) {
    NotFound();
  }
  return found;
}
void Class::EnumeratePropertyDecls(Visitor<ICIMPropertyDecl>& visit, Context context) const {
  Note("EnumeratePropertyDecls", context);
  std::vector<Pointer<PropertyDecl>> shown = declarations;
  for (const Class* above = superclass.get(); ns.showsInherited && above;
       above = above->superclass.get()) {
    std::vector<Pointer<PropertyDecl>> inherited;
    for (const Pointer<PropertyDecl>& declaration : above->declarations) {
      if (!FindNamed(shown, declaration->name)) {
        inherited.push_back(declaration);
      }
    }
    shown.insert(shown.begin(), inherited.begin(), inherited.end());
  }
  Offer<ICIMPropertyDecl>(shown, visit);
}
void Class::SetStaticProperty(const std::string& declName, const TCIMValue& value,
                              Context context) {
  Note("SetStaticProperty " + declName, context);
  PutStatic(declName, value);
}
void Class::EnumerateStaticProperties(Visitor<ICIMProperty>& visit, Context context) const {
  Note("EnumerateStaticProperties", context);
  Offer<ICIMProperty>(statics, visit);
}
Pointer<ICIMInstance> Class::CreateInstance(Context context) {
  Note("CreateInstance", context);
  return Pointer<Instance>(
      new Instance(calls, label + "#" + std::to_string(++created), shared_from_this()));
}
void Class::EnumerateInstances(Visitor<ICIMInstance>& visit, bool deep, Context context) const {
  Note(deep ? "EnumerateInstances deep" : "EnumerateInstances", context);
  std::vector<Pointer<Instance>> found = instances;
  for (const Pointer<Class>& below : Descendants(deep)) {
    if (deep) {
      found.insert(found.end(), below->instances.begin(), below->instances.end());
    }
  }
  Offer<ICIMInstance>(found, visit);
}
Pointer<ICIMMethodDecl> Class::AddMethodDecl(const std::string& declName, TCIMValue::TCIMType type,
                                             Context context) {
  Note("AddMethodDecl " + declName + " " + type.ToString(), context);
  methods.push_back(
      Pointer<MethodDecl>(new MethodDecl(calls, label + "." + declName + "()", declName, type)));
  return methods.back();
}
void Class::EnumerateMethodDecls(Visitor<ICIMMethodDecl>& visit, Context context) const {
  Note("EnumerateMethodDecls", context);
  Offer<ICIMMethodDecl>(methods, visit);
}
void Class::AddInstance(Pointer<ICIMInstance> instance) {
  Note("AddInstance", Context());
  instances.push_back(boost::dynamic_pointer_cast<Instance>(instance));
}

PropertyDecl& Class::Declare(const std::string& declName, const TCIMValue& value) {
  declarations.push_back(
      Pointer<PropertyDecl>(new PropertyDecl(calls, label + "." + declName, declName, value)));
  declarations.back()->committed = true;
  return *declarations.back();
}
Class& Class::PutStatic(const std::string& declName, const TCIMValue& value) {
  statics.push_back(Pointer<Property>(
      new Property(calls, label + "!" + declName, FindDeclaration(declName), value)));
  return *this;
}
MethodDecl& Class::DeclareMethod(const std::string& declName, TCIMValue::TCIMType type) {
  methods.push_back(
      Pointer<MethodDecl>(new MethodDecl(calls, label + "." + declName + "()", declName, type)));
  return *methods.back();
}
Instance& Class::PutInstance() {
  instances.push_back(Pointer<Instance>(
      new Instance(calls, label + "#" + std::to_string(++created), shared_from_this())));
  return *instances.back();
}
Pointer<PropertyDecl> Class::FindDeclaration(const std::string& declName) const {
  for (const Class* cls = this; cls; cls = cls->superclass.get()) {
    const Pointer<PropertyDecl> found = FindNamed(cls->declarations, declName);
    if (found) {
      return found;
    }
  }
  return Pointer<PropertyDecl>();
}
std::vector<Pointer<Class>> Class::Descendants(bool deep) const {
  std::vector<Pointer<Class>> found;
  for (const boost::weak_ptr<Class>& subclass : subclasses) {
    const Pointer<Class> below = subclass.lock();
    found.push_back(below);
    if (deep) {
      const std::vector<Pointer<Class>> deeper = below->Descendants(true);
      found.insert(found.end(), deeper.begin(), deeper.end());
    }
  }
  return found;
}

Namespace::Namespace(Calls& record, const std::string& elementLabel)
    : Element(record, elementLabel) {}

Pointer<Namespace> Namespace::Create(Calls& record, const std::string& elementLabel) {
  return Pointer<Namespace>(new Namespace(record, elementLabel));
}

// Values hold classes and classes hold values.
Namespace::~Namespace() {
  for (const Pointer<Class>& cls : classes) {
    byPath.clear();
    cls->instances.clear();
    cls->statics.clear();
    cls->declarations.clear();
  }
}

Pointer<ICIMClass> Namespace::CreateClass(const std::string& name, Pointer<ICIMClass> superclass,
                                          Context context) {
  const Pointer<Class> above = boost::dynamic_pointer_cast<Class>(superclass);
  Note("CreateClass " + name + (above ? " under " + above->label : ""), context);
  const Pointer<Class> cls(new Class(*this, name, above));
  classes.push_back(cls);
  if (above) {
    above->subclasses.push_back(cls);
  }
  return cls;
}
Pointer<ICIMClass> Namespace::GetClass(const std::string& name, Context context) const {
  Note("GetClass " + name, context);
  const Pointer<Class> found = Find(name);
  if (!found) {
    NotFound();
  }
  return found;
}
void Namespace::EnumerateClasses(Visitor<ICIMClass>& visit, Context context) const {
  Note("EnumerateClasses", context);
  std::vector<Pointer<Class>> roots;
  for (const Pointer<Class>& cls : classes) {
    if (!cls->superclass) {
      roots.push_back(cls);
    }
  }
  Offer<ICIMClass>(roots, visit);
}
Pointer<ICIMQualifierDecl> Namespace::CreateQualifierDecl(const std::string& name,
                                                          const TCIMValue& value,
                                                          std::int32_t first, std::int32_t second,
                                                          Context context) {
  Note("CreateQualifierDecl " + name + " " + std::to_string(first) + " " + std::to_string(second),
       context);
  qualifierDecls.push_back(Pointer<QualifierDecl>(
      new QualifierDecl(calls, label + "[" + name + "]", name, value, first, second)));
  return qualifierDecls.back();
}
Pointer<ICIMQualifierDecl> Namespace::GetQualifierDecl(const std::string& name,
                                                       Context context) const {
  Note("GetQualifierDecl " + name, context);
  const Pointer<QualifierDecl> found = FindNamed(qualifierDecls, name);
  if (!found) {
    NotFound();
  }
  return found;
}
void Namespace::EnumerateQualifierDecls(Visitor<ICIMQualifierDecl>& visit, Context context) const {
  Note("EnumerateQualifierDecls", context);
  Offer<ICIMQualifierDecl>(qualifierDecls, visit);
}
Pointer<ICIMInstance> Namespace::GetInstance(const TCIMReference& reference,
                                             Context context) const {
  Note("GetInstance", context);
  if (byPath.empty()) {
    return Pointer<ICIMInstance>();
  }
  const auto found = byPath.find(reference.GetPath());
  return found == byPath.end() ? Pointer<Instance>() : found->second;
}

Pointer<QualifierDecl> Namespace::DeclareQualifier(const std::string& name, const TCIMValue& value,
                                                   std::int32_t first, std::int32_t second) {
  qualifierDecls.push_back(Pointer<QualifierDecl>(
      new QualifierDecl(calls, label + "[" + name + "]", name, value, first, second)));
  qualifierDecls.back()->committed = true;
  return qualifierDecls.back();
}
Class& Namespace::Declare(const std::string& name, const std::string& superclass) {
  const Pointer<Class> above = Find(superclass);
  classes.push_back(Pointer<Class>(new Class(*this, name, above)));
  classes.back()->committed = true;
  if (above) {
    above->subclasses.push_back(classes.back());
  }
  return *classes.back();
}
Pointer<Class> Namespace::Find(const std::string& name) const { return FindNamed(classes, name); }

}  // namespace cim_model

// Instances and static values.

#include <utility>

#include <qdacore/cim/object/ICIMInstance.h>
#include <qdacore/cim/object/ICIMProperty.h>
#include <qdacore/cim/object/ICIMPropertyDecl.h>
#include <qdacore/cim/object/ICIMQualifier.h>
#include <qdamemory/internal/CIMName.h>
#include <qdamemory/internal/Context.h>
#include <qdamemory/mof/NamespaceBuilder.h>
#include <qdamemory/mof/NamespaceFailure.h>

namespace NZRVQDA20 {
namespace mof {

namespace {

typedef TCIMValue::TCIMType Type;

bool IsKey(const ICIMPropertyDecl& declaration) {
  try {
    const boost::shared_ptr<ICIMQualifier> key = declaration.GetQualifier("Key", TContext());
    return key && key->GetValue(TContext()) == TCIMValue(true);
  } catch (const TQDAException&) {
    return false;
  }
}

// The reference that names an instance: its class and its keys.
TCIMReference NameOf(const boost::shared_ptr<ICIMNamespace>& ns, const ICIMClass& cls,
                     const ICIMInstance& instance) {
  TCIMReference name(ns);
  name.SetClassName(cls.GetName(TContext()));
  boost::function<bool(boost::shared_ptr<ICIMProperty>)> visit =
      [&name](boost::shared_ptr<ICIMProperty> property) {
        const boost::shared_ptr<const ICIMPropertyDecl> declaration =
            property->GetPropertyDecl(TContext());
        if (IsKey(*declaration)) {
          name.AddKeyValue(declaration->GetName(TContext()), property->GetValue(TContext()));
        }
        return true;
      };
  instance.EnumerateProperties(visit, TContext());
  return name;
}

bool HasKeys(const TCIMReference& name) {
  bool hasKeys = false;
  name.EnumerateKeyBindings(
      [&hasKeys](std::pair<std::string, TCIMValue>) { return !(hasKeys = true); });
  return hasKeys;
}

boost::shared_ptr<const ICIMPropertyDecl> FindProperty(const ICIMClass& cls,
                                                       const PropertyValue& property) {
  try {
    return cls.GetPropertyDecl(property.name, TContext());
  } catch (const TQDAException& failure) {
    Fail(property.place,
         "class " + Quoted(cls.GetName(TContext())) + " has no property " + Quoted(property.name),
         failure.GetStatus().GetStatusCode());
  }
}

}  // namespace

// Whether the class and all aliases are there.
bool NamespaceBuilder::IsReady(const InstanceDeclaration& declaration) const {
  if (!FindClass(declaration.className)) {
    return false;
  }
  for (const PropertyValue& property : declaration.values) {
    for (const Literal& literal : property.value.literals) {
      if (literal.kind == Literal::kAlias && fAliases.count(FoldCIMName(literal.text)) == 0) {
        return false;
      }
    }
  }
  // A path may name a class that is still to come.
  return fWaitingClasses.empty();
}

void NamespaceBuilder::Add(InstanceDeclaration& declaration) {
  const std::string alias = FoldCIMName(declaration.alias);
  if (!alias.empty() && (fAliases.count(alias) != 0 || fWaitingAliases.count(alias) != 0)) {
    Fail(declaration.place, "alias " + Quoted(declaration.alias) + " is taken",
         TQDAStatusCode::kQDAStatusAlreadyExists);
  }
  if (IsReady(declaration)) {
    Make(declaration);
    return;
  }
  fWaitingInstances.push_back(std::move(declaration));
  if (!alias.empty()) {
    fWaitingAliases[alias] = &fWaitingInstances.back();
  }
}

TCIMReference NamespaceBuilder::Resolve(const Literal& literal) {
  const std::string alias = FoldCIMName(literal.text);
  auto known = fAliases.find(alias);
  if (known == fAliases.end()) {
    const auto waiting = fWaitingAliases.find(alias);
    if (waiting == fWaitingAliases.end()) {
      Fail(literal.place, "no instance has the alias " + Quoted(literal.text),
           TQDAStatusCode::kQDAStatusNotFound);
    }
    const InstanceDeclaration* const declaration = waiting->second;
    if (!declaration) {
      Fail(literal.place, "the key of " + Quoted(literal.text) + " needs itself",
           TQDAStatusCode::kQDAStatusInvalidReference);
    }
    if (++fChain > kDeepestChain) {
      Fail(literal.place, "keys of instances need one another in a chain of more than 1000",
           TQDAStatusCode::kQDAStatusInvalidReference);
    }
    waiting->second = nullptr;
    known = fAliases.emplace(alias, NameOfWaiting(*declaration)).first;
    --fChain;
  }
  if (!HasKeys(known->second)) {
    Fail(literal.place,
         "the instance of alias " + Quoted(literal.text) +
             " has no key, and nothing can refer to it",
         TQDAStatusCode::kQDAStatusInvalidReference);
  }
  return known->second;
}

// The name that an instance will have. Only its keys are looked at: what refers to an instance may
// be referred to by it.
TCIMReference NamespaceBuilder::NameOfWaiting(const InstanceDeclaration& declaration) {
  const boost::shared_ptr<ICIMClass> cls = NeedClass(declaration.className, declaration.place);
  const std::string what = "an instance of class " + Quoted(declaration.className);
  const boost::shared_ptr<ICIMInstance> unpublished =
      At(declaration.place, what, [&] { return cls->CreateInstance(TContext()); });
  for (const PropertyValue& property : declaration.values) {
    if (IsKey(*FindProperty(*cls, property))) {
      const TCIMValue value = ValueFor(*cls, property);
      At(property.place, "property " + Quoted(property.name),
         [&] { unpublished->SetProperty(property.name, value, TContext()); });
    }
  }
  return At(declaration.place, what, [&] { return NameOf(fNamespace, *cls, *unpublished); });
}

TCIMValue NamespaceBuilder::ValueFor(const ICIMClass& cls, const PropertyValue& property) {
  const boost::shared_ptr<const ICIMPropertyDecl> declaration = FindProperty(cls, property);
  const TCIMValue& declared = declaration->GetDefaultValue(TContext());
  const Type type = declaration->GetType(TContext());
  const Slot slot = {static_cast<Type::ECIMType>(type & ~Type::kCIMTypeArrayFlag),
                     (type & Type::kCIMTypeArrayFlag) != 0, declared.GetMaxArraySize()};
  return MakeValue(slot, property.value, fNamespace,
                   [this](const Literal& alias) { return Resolve(alias); });
}

void NamespaceBuilder::Make(const InstanceDeclaration& declaration) {
  const boost::shared_ptr<ICIMClass> cls = NeedClass(declaration.className, declaration.place);
  const std::string what = "an instance of class " + Quoted(declaration.className);
  const boost::shared_ptr<ICIMInstance> instance =
      At(declaration.place, what, [&] { return cls->CreateInstance(TContext()); });
  for (const PropertyValue& property : declaration.values) {
    const TCIMValue value = ValueFor(*cls, property);
    At(property.place, "property " + Quoted(property.name),
       [&] { instance->SetProperty(property.name, value, TContext()); });
  }
  At(declaration.place, what, [&] { cls->AddInstance(instance); });
  const std::string alias = FoldCIMName(declaration.alias);
  if (!alias.empty() && fAliases.count(alias) == 0) {
    fAliases[alias] =
        At(declaration.place, what, [&] { return NameOf(fNamespace, *cls, *instance); });
  }
}

void NamespaceBuilder::Add(StaticValue& value) {
  // Its class may still wait, and so may what its path names.
  if (fWaitingClasses.empty()) {
    return Make(value);
  }
  fWaitingStatics.push_back(std::move(value));
}

void NamespaceBuilder::Make(const StaticValue& declaration) {
  const boost::shared_ptr<ICIMClass> cls = NeedClass(declaration.className, declaration.place);
  const TCIMValue value = ValueFor(*cls, declaration.value);
  At(declaration.place, "the static value of " + Quoted(declaration.value.name),
     [&] { cls->SetStaticProperty(declaration.value.name, value, TContext()); });
}

}  // namespace mof
}  // namespace NZRVQDA20

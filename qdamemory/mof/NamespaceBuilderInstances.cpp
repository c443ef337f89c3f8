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

// As with classes.
const int kDeepestChain = 1000;

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
    Fail(declaration.place, "alias \"" + declaration.alias + "\" is taken",
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
  const auto known = fAliases.find(alias);
  if (known != fAliases.end()) {
    return known->second;
  }
  const auto waiting = fWaitingAliases.find(alias);
  if (waiting == fWaitingAliases.end()) {
    Fail(literal.place, "no instance has the alias \"" + literal.text + "\"",
         TQDAStatusCode::kQDAStatusNotFound);
  }
  if (!waiting->second) {
    Fail(literal.place, "the instances that need each other include \"" + literal.text + "\"",
         TQDAStatusCode::kQDAStatusInvalidReference);
  }
  if (++fChain > kDeepestChain) {
    Fail(literal.place, "instances need one another in a chain of more than 1000",
         TQDAStatusCode::kQDAStatusInvalidReference);
  }
  const TCIMReference made = Make(*waiting->second);
  --fChain;
  return made;
}

TCIMValue NamespaceBuilder::ValueFor(const ICIMClass& cls, const PropertyValue& property) {
  boost::shared_ptr<const ICIMPropertyDecl> declaration;
  try {
    declaration = cls.GetPropertyDecl(property.name, TContext());
  } catch (const TQDAException& failure) {
    Fail(property.place,
         "class \"" + cls.GetName(TContext()) + "\" has no property \"" + property.name + "\"",
         failure.GetStatus().GetStatusCode());
  }
  const TCIMValue& declared = declaration->GetDefaultValue(TContext());
  const Type type = declaration->GetType(TContext());
  const Slot slot = {static_cast<Type::ECIMType>(type & ~Type::kCIMTypeArrayFlag),
                     (type & Type::kCIMTypeArrayFlag) != 0, declared.GetMaxArraySize()};
  return MakeValue(slot, property.value, fNamespace,
                   [this](const Literal& alias) { return Resolve(alias); });
}

TCIMReference NamespaceBuilder::Make(const InstanceDeclaration& declaration) {
  const std::string alias = FoldCIMName(declaration.alias);
  if (!alias.empty()) {
    fWaitingAliases[alias] = nullptr;
  }
  const boost::shared_ptr<ICIMClass> cls = NeedClass(declaration.className, declaration.place);
  const std::string what = "an instance of class \"" + declaration.className + "\"";
  const boost::shared_ptr<ICIMInstance> instance =
      At(declaration.place, what, [&] { return cls->CreateInstance(TContext()); });
  for (const PropertyValue& property : declaration.values) {
    const TCIMValue value = ValueFor(*cls, property);
    At(property.place, "property \"" + property.name + "\"",
       [&] { instance->SetProperty(property.name, value, TContext()); });
  }
  At(declaration.place, what, [&] { cls->AddInstance(instance); });
  if (alias.empty()) {
    return TCIMReference();
  }
  return fAliases[alias] =
             At(declaration.place, what, [&] { return NameOf(fNamespace, *cls, *instance); });
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
  At(declaration.place, "the static value of \"" + declaration.value.name + "\"",
     [&] { cls->SetStaticProperty(declaration.value.name, value, TContext()); });
}

}  // namespace mof
}  // namespace NZRVQDA20

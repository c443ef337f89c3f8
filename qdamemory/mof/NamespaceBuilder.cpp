// Qualifiers and classes; instances stand in NamespaceBuilderInstances.cpp.

#include <qdamemory/mof/NamespaceBuilder.h>

#include <utility>

#include <qdacore/cim/object/ICIMMethodDecl.h>
#include <qdacore/cim/object/ICIMParameterDecl.h>
#include <qdacore/cim/object/ICIMPropertyDecl.h>
#include <qdacore/cim/object/ICIMQualifier.h>
#include <qdamemory/internal/CIMName.h>
#include <qdamemory/internal/Context.h>
#include <qdamemory/mof/NamespaceFailure.h>

namespace NZRVQDA20 {
namespace mof {

namespace {

typedef TCIMValue::TCIMType Type;

Slot SlotOf(const TypeName& type, const ArraySize& array) {
  return {type.type, array.isArray, array.size};
}

Type TypeOf(const TypeName& type, const ArraySize& array) {
  return NullValue({type.type, array.isArray, 0}).GetType();
}

// The class that a feature of `cls` needs; empty when there is none but itself.
std::string NeededClass(const Feature& feature, const std::string& cls) {
  const std::string& name = feature.type.className;
  const bool isNeeded = !feature.isMethod && name != kAnyClass && !EqualCIMNames(name, cls);
  return isNeeded ? name : std::string();
}

// What needs what it needs, and so on: a chain that is no schema any more, and would end the stack.
const int kDeepestChain = 1000;

bool IsNotFound(const TQDAException& failure) {
  return failure.GetStatus().GetStatusCode() == TQDAStatusCode::kQDAStatusNotFound;
}

}  // namespace

void NamespaceBuilder::Add(QualifierDeclaration& declaration) {
  const Slot slot = SlotOf(declaration.type, declaration.array);
  const TCIMValue value = declaration.value
                              ? MakeValue(slot, *declaration.value, fNamespace, AliasResolver())
                              : NullValue(slot);
  At(declaration.place, "the declaration of qualifier \"" + declaration.name + "\"", [&] {
    fNamespace
        ->CreateQualifierDecl(declaration.name, value, declaration.scope, declaration.flavor,
                              TContext())
        ->Commit(TContext());
  });
}

boost::shared_ptr<ICIMClass> NamespaceBuilder::FindClass(const std::string& name) const {
  try {
    return fNamespace->GetClass(name, TContext());
  } catch (const TQDAException& failure) {
    if (!IsNotFound(failure)) {
      throw;
    }
    return boost::shared_ptr<ICIMClass>();
  }
}

boost::shared_ptr<ICIMClass> NamespaceBuilder::NeedClass(const std::string& name,
                                                         const Place& place) {
  boost::shared_ptr<ICIMClass> cls = FindClass(name);
  if (!cls) {
    const auto waiting = fWaitingByName.find(FoldCIMName(name));
    if (waiting == fWaitingByName.end()) {
      Fail(place, "class \"" + name + "\" is declared nowhere", TQDAStatusCode::kQDAStatusNotFound);
    }
    if (waiting->second->isInWork) {
      Fail(place, "class \"" + name + "\" and what it needs need each other",
           TQDAStatusCode::kQDAStatusInvalidClass);
    }
    MakeWaiting(*waiting->second);
    cls = FindClass(name);
  }
  return cls;
}

// Whether all the classes that it names are there, itself not counted.
bool NamespaceBuilder::IsReady(const ClassDeclaration& declaration) const {
  if (!declaration.superclass.empty() && !FindClass(declaration.superclass)) {
    return false;
  }
  for (const Feature& feature : declaration.features) {
    const std::string needed = NeededClass(feature, declaration.name);
    if (!needed.empty() && !FindClass(needed)) {
      return false;
    }
  }
  return true;
}

void NamespaceBuilder::Add(ClassDeclaration& declaration) {
  if (IsReady(declaration)) {
    return Make(declaration);
  }
  const std::string key = FoldCIMName(declaration.name);
  const Place place = declaration.place;
  if (fWaitingByName.count(key) != 0) {
    Fail(place, "class \"" + declaration.name + "\" is declared a second time",
         TQDAStatusCode::kQDAStatusAlreadyExists);
  }
  fWaitingClasses.push_back({std::move(declaration), false});
  fWaitingByName[key] = &fWaitingClasses.back();
}

void NamespaceBuilder::MakeWaiting(WaitingClass& waiting) {
  waiting.isInWork = true;
  const ClassDeclaration& declaration = waiting.declaration;
  if (++fChain > kDeepestChain) {
    Fail(declaration.place, "classes need one another in a chain of more than 1000",
         TQDAStatusCode::kQDAStatusInvalidClass);
  }
  if (!declaration.superclass.empty()) {
    NeedClass(declaration.superclass, declaration.superclassPlace);
  }
  for (const Feature& feature : declaration.features) {
    const std::string needed = NeededClass(feature, declaration.name);
    if (!needed.empty()) {
      NeedClass(needed, feature.type.place);
    }
  }
  Make(declaration);
  // It may stand further down the list that is being worked off.
  fWaitingByName.erase(FoldCIMName(declaration.name));
  --fChain;
}

void NamespaceBuilder::Make(const ClassDeclaration& declaration) {
  boost::shared_ptr<ICIMClass> superclass;
  if (!declaration.superclass.empty()) {
    superclass = NeedClass(declaration.superclass, declaration.superclassPlace);
  }
  const std::string what = "class \"" + declaration.name + "\"";
  const boost::shared_ptr<ICIMClass> cls = At(declaration.place, what, [&] {
    return fNamespace->CreateClass(declaration.name, superclass, TContext());
  });
  Qualify(*cls, declaration.qualifiers);
  for (const Feature& feature : declaration.features) {
    if (feature.isMethod) {
      AddMethod(*cls, feature);
    } else {
      AddProperty(*cls, feature);
    }
  }
  At(declaration.place, what, [&] { cls->Commit(TContext()); });
}

void NamespaceBuilder::Qualify(ICIMNamedElement& element, const Qualifiers& qualifiers) {
  for (const QualifierUse& use : qualifiers) {
    boost::shared_ptr<ICIMQualifierDecl>& declaration = fQualifiers[use.name];
    if (!declaration) {
      try {
        declaration = fNamespace->GetQualifierDecl(use.name, TContext());
      } catch (const TQDAException& failure) {
        Fail(use.place, "qualifier \"" + use.name + "\" is not declared above",
             failure.GetStatus().GetStatusCode());
      }
    }
    const TCIMValue& declared = declaration->GetValue(TContext());
    const Slot slot = {static_cast<Type::ECIMType>(declared.GetType() & ~Type::kCIMTypeArrayFlag),
                       declared.IsArray(), declared.GetMaxArraySize()};
    TCIMValue value = NullValue(slot);
    if (use.value) {
      value = MakeValue(slot, *use.value, fNamespace, AliasResolver());
    } else if (declared.GetType() == Type::kCIMTypeBoolean) {
      value.Set(true);
    }
    At(use.place, "qualifier \"" + use.name + "\"",
       [&] { element.AddQualifier(declaration, value, TContext())->Commit(TContext()); });
  }
}

TCIMValue NamespaceBuilder::DefaultValue(const Feature& feature) {
  TCIMValue value = NullValue(SlotOf(feature.type, feature.array));
  if (feature.type.type == Type::kCIMTypeReference && feature.type.className != kAnyClass) {
    value.SetReferencedClass(NeedClass(feature.type.className, feature.type.place));
  }
  if (!feature.value) {
    return value;
  }
  const TCIMValue given =
      MakeValue(SlotOf(feature.type, feature.array), *feature.value, fNamespace, AliasResolver());
  return given.IsNull() ? value : given;
}

void NamespaceBuilder::AddProperty(ICIMClass& cls, const Feature& feature) {
  const TCIMValue value = DefaultValue(feature);
  const std::string what = "property \"" + feature.name + "\"";
  const boost::shared_ptr<ICIMPropertyDecl> declaration =
      At(feature.place, what, [&] { return cls.AddPropertyDecl(feature.name, value, TContext()); });
  Qualify(*declaration, feature.qualifiers);
  At(feature.place, what, [&] { declaration->Commit(TContext()); });
}

void NamespaceBuilder::AddMethod(ICIMClass& cls, const Feature& feature) {
  const boost::shared_ptr<ICIMMethodDecl> method =
      At(feature.place, "method \"" + feature.name + "\"", [&] {
        return cls.AddMethodDecl(feature.name, TypeOf(feature.type, ArraySize()), TContext());
      });
  for (const Parameter& parameter : feature.parameters) {
    const boost::shared_ptr<ICIMParameterDecl> declaration =
        At(parameter.place, "parameter \"" + parameter.name + "\"", [&] {
          return method->AddParameterDecl(parameter.name, TypeOf(parameter.type, parameter.array),
                                          TContext());
        });
    Qualify(*declaration, parameter.qualifiers);
    declaration->Commit(TContext());
  }
  Qualify(*method, feature.qualifiers);
}

void NamespaceBuilder::Finish() {
  for (WaitingClass& waiting : fWaitingClasses) {
    if (!waiting.isInWork) {
      MakeWaiting(waiting);
    }
  }
  for (const StaticValue& value : fWaitingStatics) {
    Make(value);
  }
  for (const InstanceDeclaration& declaration : fWaitingInstances) {
    if (declaration.alias.empty() || fAliases.count(FoldCIMName(declaration.alias)) == 0) {
      Make(declaration);
    }
  }
}

}  // namespace mof
}  // namespace NZRVQDA20

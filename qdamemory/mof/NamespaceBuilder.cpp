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
#include <qdamemory/mof/ObjectPathText.h>

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

// The classes that the default value of a feature may name.
std::vector<std::string> ClassesInDefault(const Feature& feature) {
  std::vector<std::string> classes;
  if (feature.type.type == Type::kCIMTypeReference && feature.value) {
    for (const Literal& literal : feature.value->literals) {
      const std::vector<std::string> named = ClassesInPath(literal.text);
      classes.insert(classes.end(), named.begin(), named.end());
    }
  }
  return classes;
}

[[noreturn]] void FailInCircle(const Place& place, const std::string& name) {
  Fail(place, "class " + Quoted(name) + " and what it needs need each other",
       TQDAStatusCode::kQDAStatusInvalidClass);
}

bool IsNotFound(const TQDAException& failure) {
  return failure.GetStatus().GetStatusCode() == TQDAStatusCode::kQDAStatusNotFound;
}

}  // namespace

void NamespaceBuilder::Add(QualifierDeclaration& declaration) {
  const Slot slot = SlotOf(declaration.type, declaration.array);
  const TCIMValue value = declaration.value
                              ? MakeValue(slot, *declaration.value, fNamespace, AliasResolver())
                              : NullValue(slot);
  At(declaration.place, "the declaration of qualifier " + Quoted(declaration.name), [&] {
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

// The declaration of a class that is not made yet.
NamespaceBuilder::WaitingClass& NamespaceBuilder::NeedWaiting(const std::string& name,
                                                              const Place& place) {
  const auto waiting = fWaitingByName.find(FoldCIMName(name));
  if (waiting == fWaitingByName.end()) {
    Fail(place, "class " + Quoted(name) + " is declared nowhere",
         TQDAStatusCode::kQDAStatusNotFound);
  }
  return *waiting->second;
}

// A class to refer to, which may still be open.
boost::shared_ptr<ICIMClass> NamespaceBuilder::NeedClass(const std::string& name,
                                                         const Place& place) {
  boost::shared_ptr<ICIMClass> cls = FindClass(name);
  if (cls) {
    return cls;
  }
  WaitingClass& waiting = NeedWaiting(name, place);
  if (waiting.stage == kWaits) {
    MakeWaiting(waiting);
  } else if (waiting.stage == kGathersNeeds) {
    Begin(waiting);
  } else {
    FailInCircle(place, name);
  }
  return waiting.cls;
}

// The superclass, committed; an empty pointer where there is none.
boost::shared_ptr<ICIMClass> NamespaceBuilder::NeedSuperclass(const ClassDeclaration& declaration) {
  const std::string& name = declaration.superclass;
  const Place& place = declaration.superclassPlace;
  const auto known = fWaitingByName.find(FoldCIMName(name));
  if (name.empty() || known == fWaitingByName.end()) {
    return name.empty() ? boost::shared_ptr<ICIMClass>() : NeedClass(name, place);
  }
  WaitingClass& waiting = *known->second;
  if (waiting.stage == kWaits) {
    MakeWaiting(waiting);
  } else if (waiting.stage == kBegins || waiting.stage == kFills) {
    FailInCircle(place, name);
  } else {
    Complete(waiting);
  }
  return waiting.cls;
}

bool NamespaceBuilder::CanBeRead(const Feature& feature) const {
  try {
    MakeValue(SlotOf(feature.type, feature.array), *feature.value, fNamespace, AliasResolver());
    return true;
  } catch (const Failure&) {
    return false;
  }
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
    for (const std::string& named : ClassesInDefault(feature)) {
      // It may be part of a text that only looks like a path.
      if (!EqualCIMNames(named, declaration.name) && !FindClass(named) && !CanBeRead(feature)) {
        return false;
      }
    }
  }
  return true;
}

void NamespaceBuilder::Add(ClassDeclaration& declaration) {
  if (IsReady(declaration)) {
    return Fill(*Create(declaration), declaration);
  }
  const std::string key = FoldCIMName(declaration.name);
  const Place place = declaration.place;
  if (fWaitingByName.count(key) != 0) {
    Fail(place, "class " + Quoted(declaration.name) + " is declared a second time",
         TQDAStatusCode::kQDAStatusAlreadyExists);
  }
  fWaitingClasses.push_back({std::move(declaration), kWaits, boost::shared_ptr<ICIMClass>()});
  fWaitingByName[key] = &fWaitingClasses.back();
}

void NamespaceBuilder::MakeWaiting(WaitingClass& waiting) {
  waiting.stage = kGathersNeeds;
  if (++fChain > kDeepestChain) {
    Fail(waiting.declaration.place, "classes need one another in a chain of more than 1000",
         TQDAStatusCode::kQDAStatusInvalidClass);
  }
  GatherNeeds(waiting.declaration);
  Complete(waiting);
  --fChain;
}

// Makes what the class needs, but for what needs the class itself and is in work already.
void NamespaceBuilder::GatherNeeds(const ClassDeclaration& declaration) {
  NeedSuperclass(declaration);
  for (const Feature& feature : declaration.features) {
    const std::string needed = NeededClass(feature, declaration.name);
    if (!needed.empty() && !FindClass(needed)) {
      WaitingClass& waiting = NeedWaiting(needed, feature.type.place);
      if (waiting.stage == kWaits) {
        MakeWaiting(waiting);
      }
    }
    for (const std::string& named : ClassesInDefault(feature)) {
      const auto waiting = fWaitingByName.find(FoldCIMName(named));
      if (waiting != fWaitingByName.end() && waiting->second->stage == kWaits) {
        MakeWaiting(*waiting->second);
      }
    }
  }
}

void NamespaceBuilder::Begin(WaitingClass& waiting) {
  waiting.stage = kBegins;
  waiting.cls = Create(waiting.declaration);
  waiting.stage = kIsOpen;
}

// Makes what is left to make of a class in work; nothing where what it needed has done so already.
void NamespaceBuilder::Complete(WaitingClass& waiting) {
  if (waiting.stage == kGathersNeeds) {
    Begin(waiting);
  }
  if (waiting.stage == kIsOpen) {
    waiting.stage = kFills;
    Fill(*waiting.cls, waiting.declaration);
    fWaitingByName.erase(FoldCIMName(waiting.declaration.name));
  }
}

boost::shared_ptr<ICIMClass> NamespaceBuilder::Create(const ClassDeclaration& declaration) {
  const boost::shared_ptr<ICIMClass> superclass = NeedSuperclass(declaration);
  return At(declaration.place, "class " + Quoted(declaration.name),
            [&] { return fNamespace->CreateClass(declaration.name, superclass, TContext()); });
}

void NamespaceBuilder::Fill(ICIMClass& cls, const ClassDeclaration& declaration) {
  Qualify(cls, declaration.qualifiers);
  for (const Feature& feature : declaration.features) {
    if (feature.isMethod) {
      AddMethod(cls, feature);
    } else {
      AddProperty(cls, feature);
    }
  }
  At(declaration.place, "class " + Quoted(declaration.name), [&] { cls.Commit(TContext()); });
}

void NamespaceBuilder::Qualify(ICIMNamedElement& element, const Qualifiers& qualifiers) {
  for (const QualifierUse& use : qualifiers) {
    boost::shared_ptr<ICIMQualifierDecl>& declaration = fQualifiers[use.name];
    if (!declaration) {
      try {
        declaration = fNamespace->GetQualifierDecl(use.name, TContext());
      } catch (const TQDAException& failure) {
        Fail(use.place, "qualifier " + Quoted(use.name) + " is not declared above",
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
    At(use.place, "qualifier " + Quoted(use.name),
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
  const std::string what = "property " + Quoted(feature.name);
  const boost::shared_ptr<ICIMPropertyDecl> declaration =
      At(feature.place, what, [&] { return cls.AddPropertyDecl(feature.name, value, TContext()); });
  Qualify(*declaration, feature.qualifiers);
  At(feature.place, what, [&] { declaration->Commit(TContext()); });
}

void NamespaceBuilder::AddMethod(ICIMClass& cls, const Feature& feature) {
  const boost::shared_ptr<ICIMMethodDecl> method =
      At(feature.place, "method " + Quoted(feature.name), [&] {
        return cls.AddMethodDecl(feature.name, TypeOf(feature.type, ArraySize()), TContext());
      });
  for (const Parameter& parameter : feature.parameters) {
    const boost::shared_ptr<ICIMParameterDecl> declaration =
        At(parameter.place, "parameter " + Quoted(parameter.name), [&] {
          return method->AddParameterDecl(parameter.name, TypeOf(parameter.type, parameter.array),
                                          TContext());
        });
    Qualify(*declaration, parameter.qualifiers);
    At(parameter.place, "parameter " + Quoted(parameter.name),
       [&] { declaration->Commit(TContext()); });
  }
  Qualify(*method, feature.qualifiers);
}

void NamespaceBuilder::Finish() {
  for (WaitingClass& waiting : fWaitingClasses) {
    if (waiting.stage == kWaits) {
      MakeWaiting(waiting);
    }
  }
  for (const StaticValue& value : fWaitingStatics) {
    Make(value);
  }
  for (const InstanceDeclaration& declaration : fWaitingInstances) {
    Make(declaration);
  }
}

}  // namespace mof
}  // namespace NZRVQDA20

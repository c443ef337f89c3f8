#include <tests/qdamemory/RandomSchema.h>

#include <algorithm>
#include <utility>

namespace memory_test {

namespace {

const int kClasses = 18;
const int kAssociations = 8;
const int kInstances = 80;
const int kMaxDepth = 4;

}  // namespace

RandomSchema::RandomSchema(unsigned int seed, RandomFor purpose)
    : fRandom(seed), fPurpose(purpose), fNamespace(MakeNamespace()) {
  DeclareQualifiers();
  for (int i = 0; i < kClasses + kAssociations; ++i) {
    AddClass(i >= kClasses);
  }
  for (int i = 0; i < kInstances; ++i) {
    AddInstance();
  }
}

int RandomSchema::Depth() const {
  int depth = 0;
  for (const Entry& entry : fClasses) {
    depth = std::max(depth, entry.depth);
  }
  return depth;
}

void RandomSchema::DeclareQualifiers() {
  for (int type = Type::kCIMTypeBoolean; type < Type::kCIMTypeReference; ++type) {
    for (const bool isArray : {false, true}) {
      Property qualifier = {"Q" + std::to_string(fQualifiers.size()),
                            static_cast<Type::ECIMType>(type),
                            isArray,
                            isArray ? static_cast<unsigned int>(fRandom.Below(4)) : 0,
                            false,
                            0,
                            false};
      std::int32_t flavor = static_cast<std::int32_t>(fRandom.Below(8));
      if (flavor & kQualifierToSubclass) {
        // So that any value may stand on what inherits it.
        flavor |= kQualifierEnableOverride;
      }
      fNamespace
          ->CreateQualifierDecl(qualifier.name,
                                fRandom.OneIn(2) ? NullOf(qualifier) : ValueOf(qualifier, false),
                                static_cast<std::int32_t>(fRandom.Below(128)), flavor, None())
          ->Commit(None());
      fQualifiers.push_back(qualifier);
    }
  }
}

void RandomSchema::QualifyAtRandom(const Class& cls, ICIMNamedElement& element) {
  for (const Property& qualifier : fQualifiers) {
    if (fRandom.OneIn(12)) {
      Qualify(cls, element, qualifier.name,
              fRandom.OneIn(5) ? NullOf(qualifier) : ValueOf(qualifier, false));
    }
  }
}

void RandomSchema::AddClass(bool isAssociation) {
  const std::size_t number = fClasses.size();
  const std::size_t first = isAssociation ? kClasses : 0;
  Entry entry = {Class(), -1, number, isAssociation, fRandom.OneIn(8), 1, false, {}, {}};
  if (number > first + 3 && !fRandom.OneIn(3)) {
    entry.parent = static_cast<int>(first + fRandom.Below(number - first));
    const Entry& parent = fClasses[static_cast<std::size_t>(entry.parent)];
    entry.root = parent.root;
    entry.depth = parent.depth;
    entry.hasKeys = parent.hasKeys;
    entry.properties = parent.properties;
    entry.methods = parent.methods;
  }
  entry.cls =
      Open(fNamespace, "CIM_Class" + std::to_string(number),
           entry.parent < 0 ? Class() : fClasses[static_cast<std::size_t>(entry.parent)].cls);
  if (isAssociation && entry.parent < 0) {
    Qualify(entry.cls, *entry.cls, "Association", TCIMValue(true));
  }
  if (entry.isAbstract) {
    Qualify(entry.cls, *entry.cls, "Abstract", TCIMValue(true));
  }
  QualifyAtRandom(entry.cls, *entry.cls);
  AddProperties(entry, number);
  AddMethods(entry);
  entry.cls->Commit(None());
  AddStaticValues(entry);
  fClasses.push_back(entry);
}

void RandomSchema::AddProperties(Entry& entry, std::size_t number) {
  for (Property& inherited : entry.properties) {
    if (!inherited.isKey && fRandom.OneIn(4)) {
      inherited.hasDefault = fRandom.OneIn(2);
      Declare(entry, inherited, true);
    }
  }
  const std::size_t keys = entry.parent < 0 ? 1 + fRandom.Below(3) : 0;
  for (std::size_t left = keys + fRandom.Below(6), i = 0; i < left; ++i) {
    const Property property = NewProperty(entry, number, i < keys);
    if (property.isKey) {
      entry.hasKeys = true;
      if (property.type == Type::kCIMTypeReference) {
        entry.depth = std::max(entry.depth, fClasses[property.target].depth + 1);
      }
    }
    Declare(entry, property, false);
    entry.properties.push_back(property);
  }
}

RandomSchema::Property RandomSchema::NewProperty(const Entry& entry, std::size_t number,
                                                 bool isKey) {
  Property property = {"P" + std::to_string(number) + "_" + std::to_string(entry.properties.size()),
                       static_cast<Type::ECIMType>(1 + fRandom.Below(Type::kCIMTypeReference - 1)),
                       !isKey && fRandom.OneIn(3),
                       0,
                       isKey,
                       0,
                       !isKey && fRandom.OneIn(3)};
  const bool wantsReference = fRandom.OneIn(entry.isAssociation || isKey ? 2 : 5);
  if (wantsReference && PickTarget(entry, isKey ? kMaxDepth - 1 : kMaxDepth, property.target)) {
    property.type = Type::kCIMTypeReference;
  }
  if (property.isArray && fRandom.OneIn(2)) {
    property.size = static_cast<unsigned int>(1 + fRandom.Below(4));
  }
  return property;
}

void RandomSchema::Declare(const Entry& entry, const Property& property, bool isOverriding) {
  const boost::shared_ptr<ICIMPropertyDecl> declaration = Add(
      entry.cls, property.name, property.hasDefault ? ValueOf(property, false) : NullOf(property));
  if (property.isKey) {
    Qualify(entry.cls, *declaration, "Key", TCIMValue(true));
  }
  if (isOverriding) {
    Qualify(entry.cls, *declaration, "Override", TCIMValue(property.name));
  }
  QualifyAtRandom(entry.cls, *declaration);
  declaration->Commit(None());
}

void RandomSchema::AddStaticValues(const Entry& entry) {
  for (const Property& property : entry.properties) {
    if (fRandom.OneIn(6)) {
      entry.cls->SetStaticProperty(
          property.name, fRandom.OneIn(3) ? NullOf(property) : ValueOf(property, false), None());
    }
  }
}

void RandomSchema::AddMethods(Entry& entry) {
  for (const auto& inherited : entry.methods) {
    if (fRandom.OneIn(4)) {
      AddMethod(entry, inherited.first, inherited.second);
    }
  }
  for (std::size_t left = fRandom.Below(3); left > 0; --left) {
    const std::string name =
        "M" + entry.cls->GetName(None()) + "_" + std::to_string(entry.methods.size());
    const Type::ECIMType type =
        static_cast<Type::ECIMType>(1 + fRandom.Below(Type::kCIMTypeReference - 1));
    AddMethod(entry, name, type);
    entry.methods.push_back(std::make_pair(name, type));
  }
}

void RandomSchema::AddMethod(const Entry& entry, const std::string& name, Type::ECIMType type) {
  const boost::shared_ptr<ICIMMethodDecl> method =
      entry.cls->AddMethodDecl(name, Type(type), None());
  for (std::size_t number = fRandom.Below(4); number > 0; --number) {
    int word = static_cast<int>(1 + fRandom.Below(Type::kCIMTypeReference));
    word |= fRandom.OneIn(3) ? Type::kCIMTypeArrayFlag : 0;
    const boost::shared_ptr<ICIMParameterDecl> parameter = method->AddParameterDecl(
        "A" + std::to_string(number), Type(static_cast<Type::ECIMType>(word)), None());
    QualifyAtRandom(entry.cls, *parameter);
    parameter->Commit(None());
  }
  QualifyAtRandom(entry.cls, *method);
}

void RandomSchema::AddInstance() {
  const std::size_t number = fRandom.Below(fClasses.size());
  const Entry& entry = fClasses[number];
  if (entry.isAbstract) {
    return;
  }
  const Instance instance = entry.cls->CreateInstance(None());
  bool hasName = entry.hasKeys;
  for (const Property& property : entry.properties) {
    if (property.isKey ? !fRandom.OneIn(20) : fRandom.OneIn(2)) {
      instance->SetProperty(property.name, ValueOf(property, true), None());
    } else if (property.isKey) {
      hasName = false;
    } else if (fPurpose == RandomFor::kMof && fRandom.OneIn(3)) {
      instance->SetProperty(property.name, NullOf(property), None());
    }
  }
  const std::string status = test_support::ThrownStatus([&] { entry.cls->AddInstance(instance); });
  if (status == "kQDAStatusAlreadyExists") {
    return;
  }
  ASSERT_EQ("nothing", status);
  fInstances.push_back(instance);
  if (hasName) {
    fPublished.push_back({number, instance});
  }
}

}  // namespace memory_test

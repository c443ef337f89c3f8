#include <tests/qdamemory/RandomModel.h>

#include <algorithm>
#include <utility>

namespace memory_test {

void RandomModel::Run() {
  for (int i = 0; i < 30; ++i) {
    AddClass();
  }
  for (int i = 0; i < 600; ++i) {
    AddInstance();
  }
  for (std::size_t at = 0; at < fInstances.size(); ++at) {
    CheckLookup(at);
    CheckProperties(at);
  }
  for (std::size_t at = 0; at < fClasses.size(); ++at) {
    CheckTree(at);
  }
}

std::string RandomModel::AnyCase(std::string name) {
  for (char& c : name) {
    if (c >= 'a' && c <= 'z' && Below(2) == 0) {
      c = static_cast<char>(c - 'a' + 'A');
    } else if (c >= 'A' && c <= 'Z' && Below(2) == 0) {
      c = static_cast<char>(c - 'A' + 'a');
    }
  }
  return name;
}

TCIMValue RandomModel::ValueOfText(Type::ECIMType type, const std::string& text) {
  switch (type) {
    case Type::kCIMTypeString:
      return TCIMValue(text);
    case Type::kCIMTypeBoolean:
      return TCIMValue(text == "true");
    case Type::kCIMTypeUint32:
      return TCIMValue(static_cast<unsigned int>(std::stoul(text)));
    default:
      return TCIMValue(static_cast<long long>(std::stoll(text)));
  }
}

std::string RandomModel::AnyText(Type::ECIMType type) {
  static const char* const kTexts[] = {"a", "A", "b", "", "a.b", "x,y=1"};
  switch (type) {
    case Type::kCIMTypeString:
      return kTexts[Below(6)];
    case Type::kCIMTypeBoolean:
      return Below(2) == 0 ? "true" : "false";
    case Type::kCIMTypeUint32:
      return std::to_string(Below(3) * 2000000000);
    default:
      return std::to_string(static_cast<long long>(Below(3)) - 1);
  }
}

void RandomModel::AddClass() {
  const std::size_t number = fClasses.size();
  ModelClass cls = {"CIM_Class" + std::to_string(number), -1, number, 1, {}, {}};
  if (number >= 4 && Below(3) != 0) {
    const std::size_t parent = Below(number);
    cls.parent = static_cast<int>(parent);
    cls.root = fClasses[parent].root;
    cls.depth = fClasses[parent].depth;
    cls.properties = fClasses[parent].properties;
  }
  const Class real = Open(fNamespace, cls.name, cls.parent < 0 ? Class() : RealClass(cls.parent));
  AddProperties(cls, real, number);
  real->Commit(None());
  fClasses.push_back(cls);
  fDepth = std::max(fDepth, cls.depth);
}

void RandomModel::AddProperties(ModelClass& cls, const Class& real, std::size_t number) {
  static const Type::ECIMType kTypes[] = {Type::kCIMTypeString, Type::kCIMTypeBoolean,
                                          Type::kCIMTypeUint32, Type::kCIMTypeSint64};
  const std::size_t keys = cls.parent < 0 ? 1 + Below(3) : 0;
  for (std::size_t i = 0; i < keys + Below(4); ++i) {
    ModelProperty property = {"Prop" + std::to_string(number) + "_" + std::to_string(i),
                              kTypes[Below(4)], i < keys, 0, ""};
    TCIMValue defaultValue = Null(property.type);
    if (property.isKey && number > 0 && Below(2) == 0) {
      property.target = Below(number);
      if (fClasses[property.target].depth < 4) {
        property.type = Type::kCIMTypeReference;
        cls.depth = std::max(cls.depth, fClasses[property.target].depth + 1);
        defaultValue = NullReferenceTo(RealClass(static_cast<int>(property.target)));
      }
    }
    if (!property.isKey) {
      property.defaultText = AnyText(property.type);
      defaultValue = ValueOfText(property.type, property.defaultText);
    }
    const boost::shared_ptr<ICIMPropertyDecl> decl = Add(real, property.name, defaultValue);
    if (property.isKey) {
      Qualify(real, *decl, "Key", TCIMValue(true));
    }
    cls.properties.push_back(property);
  }
  for (ModelProperty& property : cls.properties) {
    const bool isInherited = property.name.find("Prop" + std::to_string(number) + "_") != 0;
    if (isInherited && !property.isKey && Below(4) == 0) {
      property.defaultText = AnyText(property.type);
      property.name = AnyCase(property.name);
      Add(real, property.name, ValueOfText(property.type, property.defaultText));
    }
  }
}

Class RandomModel::RealClass(int number) {
  return fNamespace->GetClass(AnyCase("CIM_Class" + std::to_string(number)), None());
}

bool RandomModel::PickTarget(std::size_t cls, std::size_t& picked) {
  std::vector<std::size_t> fitting;
  for (std::size_t at = 0; at < fInstances.size(); ++at) {
    if (Derives(fInstances[at].cls, cls)) {
      fitting.push_back(at);
    }
  }
  if (fitting.empty()) {
    return false;
  }
  picked = fitting[Below(fitting.size())];
  return true;
}

bool RandomModel::Derives(std::size_t cls, std::size_t from) const {
  int at = static_cast<int>(cls);
  while (at >= 0 && at != static_cast<int>(from)) {
    at = fClasses[at].parent;
  }
  return at >= 0;
}

std::string RandomModel::Path(const ModelInstance& instance, std::size_t cls, bool any) {
  std::vector<std::string> bindings;
  const std::vector<ModelProperty>& properties = fClasses[instance.cls].properties;
  for (std::size_t at = 0; at < properties.size(); ++at) {
    if (properties[at].isKey) {
      std::string text = instance.texts[at];
      if (properties[at].type == Type::kCIMTypeReference) {
        const ModelInstance& target = fInstances[instance.targets[at]];
        text = Path(target, target.cls, any);
      }
      bindings.push_back((any ? AnyCase(properties[at].name) : properties[at].name) + "=\"" + text +
                         "\"");
    }
  }
  if (any) {
    std::shuffle(bindings.begin(), bindings.end(), fRandom);
  }
  std::string path = any ? AnyCase(fClasses[cls].name) : fClasses[cls].name;
  for (std::size_t at = 0; at < bindings.size(); ++at) {
    path += (at == 0 ? "." : ",") + bindings[at];
  }
  return path;
}

void RandomModel::AddInstance() {
  ModelInstance model;
  model.cls = Below(fClasses.size());
  ModelClass& cls = fClasses[model.cls];
  const Class real = RealClass(static_cast<int>(model.cls));
  const Instance instance = real->CreateInstance(None());
  for (const ModelProperty& property : cls.properties) {
    std::string text = property.defaultText;
    std::size_t target = 0;
    if (property.type == Type::kCIMTypeReference) {
      if (!PickTarget(property.target, target)) {
        return;
      }
      const std::string path = Path(fInstances[target], fInstances[target].cls, true);
      instance->SetProperty(AnyCase(property.name), ReferenceValue(fNamespace, path), None());
    } else if (property.isKey || Below(2) == 0) {
      text = AnyText(property.type);
      instance->SetProperty(AnyCase(property.name), ValueOfText(property.type, text), None());
    }
    model.texts.push_back(text);
    model.targets.push_back(target);
  }
  // One key for the whole tree: the path under the name of the tree's root.
  const std::string key = Path(model, cls.root, false);
  const bool isNew = fKeys.insert(std::make_pair(key, fInstances.size())).second;
  ASSERT_EQ(isNew ? "nothing" : "kQDAStatusAlreadyExists",
            test_support::ThrownStatus([&] { real->AddInstance(instance); }))
      << key;
  if (isNew) {
    cls.instances.push_back(fInstances.size());
    fInstances.push_back(model);
    fReal.push_back(instance);
  } else {
    ++fDuplicates;
  }
}

}  // namespace memory_test

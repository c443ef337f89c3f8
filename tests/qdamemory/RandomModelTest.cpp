// Random schemas and instances, with references as keys up to four deep, against a model that
// knows nothing but maps of text. The seeds are fixed.

#include <algorithm>
#include <cstddef>
#include <random>
#include <utility>

#include <tests/qdamemory/MemoryTestSupport.h>

namespace memory_test {
namespace {

struct ModelProperty {
  std::string name;
  Type::ECIMType type;
  bool isKey;
  // The class that a reference refers to.
  std::size_t target;
  std::string defaultText;
};

struct ModelClass {
  std::string name;
  int parent;
  std::size_t root;
  // How deep references nest in the keys: 1 without any.
  int depth;
  // All, inherited first.
  std::vector<ModelProperty> properties;
  std::vector<std::size_t> instances;
};

struct ModelInstance {
  std::size_t cls;
  std::vector<std::string> texts;
  // For each property the instance that a reference key names.
  std::vector<std::size_t> targets;
};

class RandomModel {
 public:
  explicit RandomModel(unsigned int seed) : fRandom(seed), fNamespace(MakeNamespace()) {}

  void Run() {
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

  int Duplicates() const { return fDuplicates; }
  int Depth() const { return fDepth; }

 private:
  std::size_t Below(std::size_t count) { return fRandom() % count; }

  std::string AnyCase(std::string name) {
    for (char& c : name) {
      if (c >= 'a' && c <= 'z' && Below(2) == 0) {
        c = static_cast<char>(c - 'a' + 'A');
      } else if (c >= 'A' && c <= 'Z' && Below(2) == 0) {
        c = static_cast<char>(c - 'A' + 'a');
      }
    }
    return name;
  }

  TCIMValue ValueOfText(Type::ECIMType type, const std::string& text) {
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

  std::string AnyText(Type::ECIMType type) {
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

  void AddClass() {
    const std::size_t number = fClasses.size();
    ModelClass cls = {"CIM_Class" + std::to_string(number), -1, number, 1, {}, {}};
    if (number >= 4 && Below(3) != 0) {
      const std::size_t parent = Below(number);
      cls.parent = static_cast<int>(parent);
      cls.root = fClasses[parent].root;
      cls.depth = fClasses[parent].depth;
      cls.properties = fClasses[parent].properties;
    }
    const Class real = Open(fNamespace, cls.name,
                            cls.parent < 0 ? Class() : RealClass(cls.parent));
    AddProperties(cls, real, number);
    real->Commit(None());
    fClasses.push_back(cls);
    fDepth = std::max(fDepth, cls.depth);
  }

  void AddProperties(ModelClass& cls, const Class& real, std::size_t number) {
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

  Class RealClass(int number) {
    return fNamespace->GetClass(AnyCase("CIM_Class" + std::to_string(number)), None());
  }

  // An instance of the class or below, or none.
  bool PickTarget(std::size_t cls, std::size_t& picked) {
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

  bool Derives(std::size_t cls, std::size_t from) const {
    int at = static_cast<int>(cls);
    while (at >= 0 && at != static_cast<int>(from)) {
      at = fClasses[at].parent;
    }
    return at >= 0;
  }

  // The path of an instance under the name of a class: of the model's own spelling and order,
  // or in any.
  std::string Path(const ModelInstance& instance, std::size_t cls, bool any) {
    std::vector<std::string> bindings;
    const std::vector<ModelProperty>& properties = fClasses[instance.cls].properties;
    for (std::size_t at = 0; at < properties.size(); ++at) {
      if (properties[at].isKey) {
        std::string text = instance.texts[at];
        if (properties[at].type == Type::kCIMTypeReference) {
          const ModelInstance& target = fInstances[instance.targets[at]];
          text = Path(target, target.cls, any);
        }
        bindings.push_back((any ? AnyCase(properties[at].name) : properties[at].name) + "=\"" +
                           text + "\"");
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

  void AddInstance() {
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

  void CheckLookup(std::size_t at) {
    for (std::size_t cls = 0; cls < fClasses.size(); ++cls) {
      if (fClasses[cls].root == fClasses[fInstances[at].cls].root) {
        const Instance expected = Derives(fInstances[at].cls, cls) ? fReal[at] : Instance();
        const std::string path = Path(fInstances[at], cls, true);
        ASSERT_EQ(expected, Resolve(fNamespace, path)) << path;
      }
    }
  }

  void CheckProperties(std::size_t at) {
    const std::vector<ModelProperty>& properties = fClasses[fInstances[at].cls].properties;
    Names names;
    for (std::size_t place = 0; place < properties.size(); ++place) {
      names.push_back(properties[place].name);
      if (properties[place].type != Type::kCIMTypeReference) {
        const TCIMValue expected =
            ValueOfText(properties[place].type, fInstances[at].texts[place]);
        ASSERT_EQ(expected, ValueOf(fReal[at], AnyCase(properties[place].name)));
      } else {
        const TCIMReference reference = ValueOf(fReal[at], properties[place].name);
        ASSERT_EQ(fReal[fInstances[at].targets[place]], reference.GetCIMElement(false));
      }
    }
    ASSERT_EQ(names, PropertiesOf(fReal[at]));
  }

  void CollectDeep(std::size_t cls, Names& classes, std::vector<std::size_t>& instances) const {
    instances.insert(instances.end(), fClasses[cls].instances.begin(),
                     fClasses[cls].instances.end());
    for (std::size_t sub = cls + 1; sub < fClasses.size(); ++sub) {
      if (fClasses[sub].parent == static_cast<int>(cls)) {
        classes.push_back(fClasses[sub].name);
        CollectDeep(sub, classes, instances);
      }
    }
  }

  void CheckTree(std::size_t at) {
    Names classes;
    std::vector<std::size_t> instances;
    CollectDeep(at, classes, instances);
    const Class real = RealClass(static_cast<int>(at));
    ASSERT_EQ(classes, SubClassesOf(real, true));
    std::vector<Instance> expected;
    for (const std::size_t instance : instances) {
      expected.push_back(fReal[instance]);
    }
    std::vector<Instance> found;
    boost::function<bool(Instance)> visit = [&](Instance instance) {
      found.push_back(instance);
      return true;
    };
    real->EnumerateInstances(visit, true, None());
    ASSERT_EQ(expected, found);
  }

  std::mt19937 fRandom;
  Namespace fNamespace;
  std::vector<ModelClass> fClasses;
  std::vector<ModelInstance> fInstances;
  std::vector<Instance> fReal;
  std::map<std::string, std::size_t> fKeys;
  int fDuplicates = 0;
  int fDepth = 0;
};

TEST(MemoryRandomModel, AgreesWithTheModel) {
  int duplicates = 0;
  int depth = 0;
  for (unsigned int seed = 1; seed <= 20; ++seed) {
    SCOPED_TRACE(seed);
    RandomModel model(seed);
    model.Run();
    ASSERT_FALSE(testing::Test::HasFatalFailure());
    duplicates += model.Duplicates();
    depth = std::max(depth, model.Depth());
  }
  // What the comparison is worth.
  EXPECT_EQ(4, depth);
  EXPECT_LT(100, duplicates);
}

}  // namespace
}  // namespace memory_test

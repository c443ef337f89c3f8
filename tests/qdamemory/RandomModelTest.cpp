// The namespace against the model. The seeds are fixed.

#include <algorithm>

#include <tests/qdamemory/RandomModel.h>

namespace memory_test {

void RandomModel::CheckLookup(std::size_t at) {
  for (std::size_t cls = 0; cls < fClasses.size(); ++cls) {
    if (fClasses[cls].root == fClasses[fInstances[at].cls].root) {
      const Instance expected = Derives(fInstances[at].cls, cls) ? fReal[at] : Instance();
      const std::string path = Path(fInstances[at], cls, true);
      ASSERT_EQ(expected, Resolve(fNamespace, path)) << path;
    }
  }
}

void RandomModel::CheckProperties(std::size_t at) {
  const std::vector<ModelProperty>& properties = fClasses[fInstances[at].cls].properties;
  Names names;
  for (std::size_t place = 0; place < properties.size(); ++place) {
    names.push_back(properties[place].name);
    if (properties[place].type != Type::kCIMTypeReference) {
      const TCIMValue expected = ValueOfText(properties[place].type, fInstances[at].texts[place]);
      ASSERT_EQ(expected, ValueOf(fReal[at], AnyCase(properties[place].name)));
    } else {
      const TCIMReference reference = ValueOf(fReal[at], properties[place].name);
      ASSERT_EQ(fReal[fInstances[at].targets[place]], reference.GetCIMElement(false));
    }
  }
  ASSERT_EQ(names, PropertiesOf(fReal[at]));
}

void RandomModel::CollectDeep(std::size_t cls, Names& classes,
                              std::vector<std::size_t>& instances) const {
  instances.insert(instances.end(), fClasses[cls].instances.begin(), fClasses[cls].instances.end());
  for (std::size_t sub = cls + 1; sub < fClasses.size(); ++sub) {
    if (fClasses[sub].parent == static_cast<int>(cls)) {
      classes.push_back(fClasses[sub].name);
      CollectDeep(sub, classes, instances);
    }
  }
}

void RandomModel::CheckTree(std::size_t at) {
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

namespace {

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

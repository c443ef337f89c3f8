// Random namespaces, copied, and written as MOF and read back. What comes out is compared by a
// walk of its own. The seeds are fixed.

#include <algorithm>
#include <set>

#include <qdacore/cim/object/TCIMCopy.h>
#include <tests/qdamemory/NamespaceContent.h>
#include <tests/qdamemory/RandomSchema.h>
#include <tests/qdamemory/mof/MofTestSupport.h>

namespace {

using namespace memory_test;

#ifdef _WIN32
// Fewer, because Wine takes its time.
const unsigned int kSeeds = 5;
#else
const unsigned int kSeeds = 40;
#endif

void CopyAll(const RandomSchema& schema, const Namespace& target) {
  TCIMCopy::CopyClasses(schema.Built(), target, true);
  for (const Instance& instance : schema.Instances()) {
    TCIMCopy::CopyInstance(instance, target);
  }
}

void ExpectSame(const Namespace& expected, const Namespace& actual) {
  ExpectSameSchema(expected, actual);
  ExpectSameOrder(expected, actual);
  ExpectSameInstances(expected, actual);
}

TEST(MemoryRandomSchema, CopyIsTheSame) {
  for (unsigned int seed = 1; seed <= kSeeds; ++seed) {
    SCOPED_TRACE(seed);
    const RandomSchema schema(seed, RandomFor::kCopy);
    const Namespace copy = CreateMemoryNamespace("copy");
    CopyAll(schema, copy);
    ExpectSame(schema.Built(), copy);
    ASSERT_FALSE(testing::Test::HasFailure());
  }
}

TEST(MemoryRandomSchema, CopyOfACopyIsTheSame) {
  const RandomSchema schema(1, RandomFor::kCopy);
  const Namespace copy = CreateMemoryNamespace("copy");
  const Namespace again = CreateMemoryNamespace("again");
  CopyAll(schema, copy);
  TCIMCopy::CopyClasses(copy, again, true);
  ExpectSameSchema(schema.Built(), again);
}

TEST(MemoryRandomSchema, CopyOutlivesItsSource) {
  const Namespace copy = CreateMemoryNamespace("copy");
  NamespaceContent before;
  {
    const RandomSchema schema(2, RandomFor::kMof);
    CopyAll(schema, copy);
    before = ContentOf(copy);
  }
  EXPECT_EQ(before.classes, ContentOf(copy).classes);
  EXPECT_EQ(before.instances, ContentOf(copy).instances);
}

TEST(MemoryRandomSchema, WrittenReadsBackTheSame) {
  for (unsigned int seed = 1; seed <= kSeeds; ++seed) {
    SCOPED_TRACE(seed);
    const RandomSchema schema(seed, RandomFor::kMof);
    const std::string text = Written(schema.Built());
    const Namespace again = CreateMemoryNamespace("again");
    ASSERT_TRUE(Read(again, text));
    ExpectSame(schema.Built(), again);
    EXPECT_EQ(text, Written(again));
    ASSERT_FALSE(testing::Test::HasFailure());
  }
}

// What the comparisons are worth: every kind of thing is there, and a single value counts.
TEST(MemoryRandomSchema, HasEverything) {
  int depth = 0;
  std::size_t instances = 0;
  std::set<std::string> kinds;
  for (unsigned int seed = 1; seed <= 10; ++seed) {
    const RandomSchema schema(seed, RandomFor::kCopy);
    depth = std::max(depth, schema.Depth());
    instances += schema.Instances().size();
    for (const auto& cls : ContentOf(schema.Built()).classes) {
      for (const std::string& line : cls.second) {
        kinds.insert(line.substr(0, line.find(' ')));
        if (line.find("property") == 0) {
          // "property NAME TYPE".
          const std::size_t type = line.find(' ', line.find(' ') + 1) + 1;
          kinds.insert(line.substr(type, line.find_first_of("[ ", type) - type));
        }
      }
    }
  }
  EXPECT_EQ(4, depth);
  EXPECT_LT(400u, instances);
  for (const char* kind :
       {"root", "under", "association", "class", "property", "static", "method"}) {
    EXPECT_EQ(1u, kinds.count(kind)) << kind;
  }
  for (int type = Type::kCIMTypeBoolean; type <= Type::kCIMTypeReference; ++type) {
    EXPECT_EQ(1u, kinds.count(std::to_string(type))) << type;
    EXPECT_EQ(1u, kinds.count(std::to_string(type | Type::kCIMTypeArrayFlag))) << type;
  }
}

TEST(MemoryRandomSchema, ComparisonSeesOneValue) {
  const RandomSchema schema(3, RandomFor::kCopy);
  const Namespace copy = CreateMemoryNamespace("copy");
  CopyAll(schema, copy);
  const Class cls = ClassOf(copy, schema.Instances()[0]->GetClass(None())->GetName(None()));
  const NamespaceContent before = ContentOf(copy);
  cls->SetStaticProperty(PropertiesOf(schema.Instances()[0])[0],
                         ValueOf(schema.Instances()[0], PropertiesOf(schema.Instances()[0])[0]),
                         None());
  EXPECT_NE(before.classes, ContentOf(copy).classes);
}

}  // namespace

// A namespace that is not small.

#include <tests/qdamemory/MemoryTestSupport.h>

namespace memory_test {
namespace {

TEST(MemoryScale, HundredThousandInstances) {
  const int kCount = 100000;
  const Namespace ns = MakeNamespace();
  const Class base = Open(ns, "Base");
  AddKey(base, "ID", Null(Type::kCIMTypeString));
  AddKey(base, "Number", Null(Type::kCIMTypeUint32));
  Add(base, "Size", Null(Type::kCIMTypeUint64));
  base->Commit(None());
  const Class classes[] = {base, Make(ns, "Left", base), Make(ns, "Right", base)};
  for (int i = 0; i < kCount; ++i) {
    const Class& cls = classes[i % 3];
    const Instance instance = Create(cls, "ID", TCIMValue("disk" + std::to_string(i / 2)));
    instance->SetProperty("Number", TCIMValue(static_cast<unsigned int>(i % 2)), None());
    instance->SetProperty("Size", TCIMValue(static_cast<unsigned long long>(i)), None());
    cls->AddInstance(instance);
  }
  for (int i = 0; i < kCount; i += 7) {
    const Instance found = Resolve(ns, "Base.ID=\"disk" + std::to_string(i / 2) + "\",Number=\"" +
                                           std::to_string(i % 2) + "\"");
    ASSERT_TRUE(found) << i;
    ASSERT_EQ(std::to_string(i), TextOf(found, "Size"));
    ASSERT_EQ(classes[i % 3], found->GetClass(None()));
  }
  EXPECT_FALSE(Resolve(ns, "Base.ID=\"disk50000\",Number=\"0\""));
  int seen = 0;
  boost::function<bool(Instance)> visit = [&](Instance) { return ++seen != 0; };
  base->EnumerateInstances(visit, true, None());
  EXPECT_EQ(kCount, seen);
  const Instance taken = Create(classes[2], "ID", TCIMValue("disk49999"));
  taken->SetProperty("Number", TCIMValue(1u), None());
  EXPECT_STATUS(kQDAStatusAlreadyExists, classes[2]->AddInstance(taken));
}

}  // namespace
}  // namespace memory_test

// Subclasses and their enumeration.

#include <tests/qdamemory/MemoryTestSupport.h>

namespace memory_test {
namespace {

class MemoryClassTree : public testing::Test {
 protected:
  // A: (B: (C, D), E); F under B comes last of all.
  MemoryClassTree() : ns(MakeNamespace()) {
    a = Make(ns, "A");
    b = Make(ns, "B", a);
    Make(ns, "C", b);
    Make(ns, "E", a);
    Make(ns, "D", b);
    Make(ns, "F", b);
  }

  Namespace ns;
  Class a;
  Class b;
};

TEST_F(MemoryClassTree, SubclassKnowsItsSuperclass) {
  EXPECT_FALSE(b->IsRootClass(None()));
  EXPECT_EQ(a, b->GetSuperClass(None()));
  EXPECT_THAT(RootsOf(ns), ElementsAre("A"));
}

TEST_F(MemoryClassTree, ShallowPresentsTheNextLevel) {
  EXPECT_THAT(SubClassesOf(a, false), ElementsAre("B", "E"));
  EXPECT_THAT(SubClassesOf(b, false), ElementsAre("C", "D", "F"));
}

TEST_F(MemoryClassTree, DeepPresentsEachOnceAndAfterItsSuperclass) {
  EXPECT_THAT(SubClassesOf(a, true), ElementsAre("B", "C", "D", "F", "E"));
  EXPECT_THAT(SubClassesOf(b, true), ElementsAre("C", "D", "F"));
}

TEST_F(MemoryClassTree, LeafHasNone) {
  EXPECT_THAT(SubClassesOf(ns->GetClass("C", None()), true), IsEmpty());
  EXPECT_THAT(SubClassesOf(ns->GetClass("C", None()), false), IsEmpty());
}

TEST_F(MemoryClassTree, EnumerationStopsWhereItIsTold) {
  for (std::size_t stop = 1; stop <= 5; ++stop) {
    std::size_t seen = 0;
    boost::function<bool(Class)> visit = [&](Class) { return ++seen < stop; };
    a->EnumerateSubClasses(visit, true, None());
    EXPECT_EQ(stop, seen);
  }
}

TEST_F(MemoryClassTree, ClassesMadeDuringAnEnumerationAreNotPresented) {
  for (const bool deep : {false, true}) {
    Names seen;
    boost::function<bool(Class)> visit = [&](Class cls) {
      seen.push_back(cls->GetName(None()));
      Make(ns, seen.back() + (deep ? "Deep" : "Flat"), cls);
      Make(ns, seen.back() + (deep ? "DeepBeside" : "FlatBeside"), a);
      return true;
    };
    const Names before = SubClassesOf(a, deep);
    a->EnumerateSubClasses(visit, deep, None());
    EXPECT_EQ(before, seen);
    EXPECT_LT(before.size(), SubClassesOf(a, deep).size());
  }
}

TEST_F(MemoryClassTree, SuperclassOfAnotherNamespaceIsAnInvalidClass) {
  const Namespace other = MakeNamespace();
  Make(other, "A");
  EXPECT_STATUS(kQDAStatusInvalidClass, Open(other, "Sub", a));
  EXPECT_THAT(SubClassesOf(a, false), ElementsAre("B", "E"));
  EXPECT_STATUS(kQDAStatusNotFound, other->GetClass("Sub", None()));
}

TEST_F(MemoryClassTree, SuperclassOfADeadNamespaceIsAnInvalidClass) {
  const Class orphan = Make(MakeNamespace(), "Orphan");
  EXPECT_STATUS(kQDAStatusInvalidClass, Open(ns, "Sub", orphan));
}

TEST(MemoryClassTreeDepth, ChainOfManyLevels) {
  Namespace ns = MakeNamespace();
  Class at = MakeKeyed(ns, "L0");
  const Class root = at;
  for (int level = 1; level < 100000; ++level) {
    at = Make(ns, "L" + std::to_string(level), at);
  }
  EXPECT_EQ(99999u, SubClassesOf(root, true).size());
  EXPECT_EQ("ID", at->GetPropertyDecl("id", None())->GetName(None()));
  Publish(at, "ID", TCIMValue("deep"));
  EXPECT_TRUE(Resolve(ns, "L0.ID=\"deep\""));
  // The last pointer to the lowest class goes after the namespace: its superclasses are then
  // released one by one and not by recursion.
  ns.reset();
  EXPECT_THAT(SubClassesOf(root, true), IsEmpty());
}

}  // namespace
}  // namespace memory_test

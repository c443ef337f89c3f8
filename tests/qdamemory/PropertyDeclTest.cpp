// Property declarations: made, inherited, overridden.

#include <tests/qdamemory/MemoryTestSupport.h>

namespace memory_test {
namespace {

TEST(MemoryPropertyDecl, GivesWhatItWasMadeWith) {
  const Namespace ns = MakeNamespace();
  const Class open = Open(ns, "Cls");
  const boost::shared_ptr<ICIMPropertyDecl> decl = Add(open, "Size", TCIMValue(7u));
  EXPECT_EQ("Size", decl->GetName(None()));
  EXPECT_EQ(Type::kCIMTypeUint32, decl->GetType(None()));
  EXPECT_EQ(TCIMValue(7u), decl->GetDefaultValue(None()));
}

TEST(MemoryPropertyDecl, TakesEveryTypeAndItsArray) {
  const Namespace ns = MakeNamespace();
  const Class cls = Open(ns, "Cls");
  for (int type = Type::kCIMTypeBoolean; type <= Type::kCIMTypeReference; ++type) {
    for (const bool array : {false, true}) {
      const std::string name = (array ? "Array" : "Scalar") + std::to_string(type);
      const TCIMValue null = Null(static_cast<Type::ECIMType>(type), array);
      Add(cls, name, null)->Commit(None());
      EXPECT_EQ(type + (array ? 16 : 0), cls->GetPropertyDecl(name, None())->GetType(None()));
      EXPECT_TRUE(cls->GetPropertyDecl(name, None())->GetDefaultValue(None()).IsNull());
    }
  }
  EXPECT_EQ(30u, PropertiesOf(cls).size());
}

TEST(MemoryPropertyDecl, KeepsTheDeclaredMaximumOfAnArray) {
  const Namespace ns = MakeNamespace();
  const Class cls = Open(ns, "Cls");
  EXPECT_EQ(
      5u,
      Add(cls, "A", TCIMValue(Type::kCIMTypeUint8, 5))->GetDefaultValue(None()).GetMaxArraySize());
  // A value that was an array and is a scalar now still has its maximum, which means nothing.
  TCIMValue scalar(Type::kCIMTypeUint8, 5);
  scalar.Set(3u);
  EXPECT_EQ(Type::kCIMTypeUint32, Add(cls, "B", scalar)->GetType(None()));
}

TEST(MemoryPropertyDecl, ValueWithoutATypeIsAMismatch) {
  const Namespace ns = MakeNamespace();
  const Class cls = Open(ns, "Cls");
  EXPECT_STATUS(kQDAStatusTypeMismatch, Add(cls, "P", TCIMValue()));
  EXPECT_STATUS(kQDAStatusTypeMismatch, Add(cls, "P", Null(Type::kCIMTypeArrayFlag)));
  EXPECT_STATUS(kQDAStatusTypeMismatch, Add(cls, "P", Null(static_cast<Type::ECIMType>(32))));
  EXPECT_STATUS(kQDAStatusTypeMismatch, Add(cls, "P", Null(static_cast<Type::ECIMType>(-1))));
  EXPECT_THAT(PropertiesOf(cls), IsEmpty());
}

TEST(MemoryPropertyDecl, IsFoundWithoutCase) {
  const Namespace ns = MakeNamespace();
  const Class cls = Open(ns, "Cls");
  Add(cls, "DeviceID", TCIMValue(1));
  EXPECT_EQ("DeviceID", cls->GetPropertyDecl("DEVICEid", None())->GetName(None()));
  EXPECT_STATUS(kQDAStatusNotFound, cls->GetPropertyDecl("Device", None()));
  EXPECT_STATUS(kQDAStatusNotFound, cls->GetPropertyDecl("", None()));
  EXPECT_STATUS(kQDAStatusAlreadyExists, Add(cls, "deviceid", TCIMValue(1)));
  EXPECT_STATUS(kQDAStatusAlreadyExists, Add(cls, "DeviceID", TCIMValue("other type")));
  EXPECT_THAT(PropertiesOf(cls), ElementsAre("DeviceID"));
}

TEST(MemoryPropertyDecl, IsInheritedAndNotPresentedAgain) {
  const Namespace ns = MakeNamespace();
  const Class base = Open(ns, "Base");
  Add(base, "One", TCIMValue(1));
  Add(base, "Two", TCIMValue(2));
  base->Commit(None());
  // Before Commit, too.
  const Class sub = Open(ns, "Sub", base);
  Add(sub, "Three", TCIMValue(3));
  EXPECT_EQ(TCIMValue(1), sub->GetPropertyDecl("one", None())->GetDefaultValue(None()));
  EXPECT_EQ(TCIMValue(3), sub->GetPropertyDecl("three", None())->GetDefaultValue(None()));
  EXPECT_STATUS(kQDAStatusNotFound, base->GetPropertyDecl("Three", None()));
  EXPECT_THAT(PropertiesOf(base), ElementsAre("One", "Two"));
  EXPECT_THAT(PropertiesOf(sub), ElementsAre("Three"));
  EXPECT_THAT(PropertiesOf(Make(ns, "Open", base)), IsEmpty());
}

TEST(MemoryPropertyDecl, OverridingReplacesTheInheritedOne) {
  const Namespace ns = MakeNamespace();
  const Class base = Open(ns, "Base");
  Add(base, "One", TCIMValue(1));
  Add(base, "Two", TCIMValue(2));
  base->Commit(None());
  const Class sub = Open(ns, "Sub", base);
  Add(sub, "Three", TCIMValue(3));
  Add(sub, "ONE", TCIMValue(10));
  sub->Commit(None());
  EXPECT_EQ("ONE", sub->GetPropertyDecl("one", None())->GetName(None()));
  EXPECT_EQ(TCIMValue(10), sub->GetPropertyDecl("one", None())->GetDefaultValue(None()));
  EXPECT_EQ("One", base->GetPropertyDecl("one", None())->GetName(None()));
  EXPECT_THAT(PropertiesOf(sub), ElementsAre("Three", "ONE"));
  // The instance has it once, in the place of the inherited one.
  EXPECT_THAT(PropertiesOf(sub->CreateInstance(None())), ElementsAre("ONE", "Two", "Three"));
  EXPECT_EQ("10", TextOf(sub->CreateInstance(None()), "One"));
  EXPECT_EQ("1", TextOf(base->CreateInstance(None()), "One"));
}

TEST(MemoryPropertyDecl, OverridingNeedsTheSameType) {
  const Namespace ns = MakeNamespace();
  const Class base = Open(ns, "Base");
  Add(base, "P", TCIMValue(1));
  base->Commit(None());
  const Class sub = Open(ns, "Sub", Make(ns, "Mid", base));
  EXPECT_STATUS(kQDAStatusTypeMismatch, Add(sub, "p", TCIMValue(1u)));
  EXPECT_STATUS(kQDAStatusTypeMismatch, Add(sub, "p", Null(Type::kCIMTypeSint32, true)));
  Add(sub, "p", TCIMValue(2));
}

TEST(MemoryPropertyDecl, IsClosedByItsOwnCommit) {
  const Namespace ns = MakeNamespace();
  const Class cls = Open(ns, "Cls");
  const boost::shared_ptr<ICIMPropertyDecl> decl = Add(cls, "P", TCIMValue(1));
  decl->Commit(None());
  decl->Commit(None());
  EXPECT_STATUS(kQDAStatusInvalidOpSequence, Qualify(cls, *decl, "Key", TCIMValue(true)));
}

TEST(MemoryPropertyDecl, ManyInOneClass) {
  const Namespace ns = MakeNamespace();
  const Class cls = Open(ns, "Wide");
  for (int i = 0; i < 1000; ++i) {
    const std::string name = "Property" + std::to_string(i);
    Add(cls, name, TCIMValue(i));
    EXPECT_STATUS(kQDAStatusAlreadyExists, Add(cls, name, TCIMValue(i)));
  }
  cls->Commit(None());
  const Names names = PropertiesOf(cls);
  ASSERT_EQ(1000u, names.size());
  const Instance instance = cls->CreateInstance(None());
  for (int i = 0; i < 1000; ++i) {
    const std::string name = "PROPERTY" + std::to_string(i);
    ASSERT_EQ("Property" + std::to_string(i), names[i]);
    ASSERT_EQ(TCIMValue(i), cls->GetPropertyDecl(name, None())->GetDefaultValue(None()));
    ASSERT_EQ(std::to_string(i), TextOf(instance, name));
  }
  EXPECT_STATUS(kQDAStatusNotFound, cls->GetPropertyDecl("Property1000", None()));
}

TEST(MemoryPropertyDecl, AddedDuringAnEnumerationIsNotPresented) {
  const Namespace ns = MakeNamespace();
  const Class cls = Open(ns, "Cls");
  Add(cls, "A", TCIMValue(1));
  Add(cls, "B", TCIMValue(1));
  Names seen;
  boost::function<bool(boost::shared_ptr<ICIMPropertyDecl>)> visit =
      [&](boost::shared_ptr<ICIMPropertyDecl> decl) {
        seen.push_back(decl->GetName(None()));
        Add(cls, seen.back() + "2", TCIMValue(1));
        return true;
      };
  cls->EnumeratePropertyDecls(visit, None());
  EXPECT_THAT(seen, ElementsAre("A", "B"));
  EXPECT_THAT(PropertiesOf(cls), ElementsAre("A", "B", "A2", "B2"));
}

TEST(MemoryPropertyDecl, EnumerationStopsWhereItIsTold) {
  const Namespace ns = MakeNamespace();
  const Class cls = Open(ns, "Cls");
  Add(cls, "A", TCIMValue(1));
  Add(cls, "B", TCIMValue(1));
  int seen = 0;
  boost::function<bool(boost::shared_ptr<ICIMPropertyDecl>)> visit =
      [&](boost::shared_ptr<ICIMPropertyDecl>) {
        ++seen;
        return false;
      };
  cls->EnumeratePropertyDecls(visit, None());
  EXPECT_EQ(1, seen);
}

}  // namespace
}  // namespace memory_test

// Keys: which properties they are, and that no two instances share them.

#include <tests/qdamemory/MemoryTestSupport.h>

namespace memory_test {
namespace {

TEST(MemoryInstanceKey, TakenKeyAlreadyExists) {
  const Namespace ns = MakeNamespace();
  const Class cls = MakeKeyed(ns, "Cls");
  const Instance first = Publish(cls, "ID", TCIMValue("a"));
  const Instance second = Create(cls, "ID", TCIMValue("a"));
  EXPECT_STATUS(kQDAStatusAlreadyExists, cls->AddInstance(second));
  EXPECT_THAT(InstancesOf(cls, true), ElementsAre("a"));
  EXPECT_EQ(first, Resolve(ns, "Cls.ID=\"a\""));
  // It can still be published by another name.
  second->SetProperty("ID", TCIMValue("b"), None());
  cls->AddInstance(second);
  EXPECT_THAT(InstancesOf(cls, true), ElementsAre("a", "b"));
}

TEST(MemoryInstanceKey, StringKeysCompareWithCase) {
  const Namespace ns = MakeNamespace();
  const Class cls = MakeKeyed(ns, "Cls");
  const Instance lower = Publish(cls, "ID", TCIMValue("a"));
  const Instance upper = Publish(cls, "ID", TCIMValue("A"));
  EXPECT_EQ(lower, Resolve(ns, "Cls.ID=\"a\""));
  EXPECT_EQ(upper, Resolve(ns, "Cls.ID=\"A\""));
  EXPECT_FALSE(Resolve(ns, "Cls.ID=\"a \""));
}

TEST(MemoryInstanceKey, IsOneForTheWholeTreeOfTheClassThatDefinesIt) {
  const Namespace ns = MakeNamespace();
  const Class above = Make(ns, "Above");
  const Class base = MakeKeyed(ns, "Base", "ID", above);
  const Class left = Make(ns, "Left", base);
  const Class right = Make(ns, "Right", base);
  Publish(left, "ID", TCIMValue("a"));
  EXPECT_STATUS(kQDAStatusAlreadyExists, Publish(right, "ID", TCIMValue("a")));
  EXPECT_STATUS(kQDAStatusAlreadyExists, Publish(base, "ID", TCIMValue("a")));
  Publish(MakeKeyed(ns, "Other", "ID", above), "ID", TCIMValue("a"));
}

TEST(MemoryInstanceKey, AllOfSeveralCount) {
  const Namespace ns = MakeNamespace();
  const Class cls = Open(ns, "Cls");
  AddKey(cls, "A", Null(Type::kCIMTypeString));
  Add(cls, "Between", Null(Type::kCIMTypeString));
  AddKey(cls, "B", Null(Type::kCIMTypeString));
  cls->Commit(None());
  const char* const pairs[][2] = {{"x", "y"}, {"y", "x"}, {"xy", ""}, {"", "xy"}, {"x", "yx"}};
  for (const char* const* pair : pairs) {
    const Instance instance = Create(cls, "A", TCIMValue(pair[0]));
    instance->SetProperty("B", TCIMValue(pair[1]), None());
    cls->AddInstance(instance);
    EXPECT_EQ(instance,
              Resolve(ns, std::string("Cls.A=\"") + pair[0] + "\",B=\"" + pair[1] + "\""));
  }
  const Instance again = Create(cls, "A", TCIMValue("y"));
  again->SetProperty("B", TCIMValue("x"), None());
  EXPECT_STATUS(kQDAStatusAlreadyExists, cls->AddInstance(again));
}

TEST(MemoryInstanceKey, SubclassThatAddsAKeyStartsANewSet) {
  const Namespace ns = MakeNamespace();
  const Class base = MakeKeyed(ns, "Base");
  const Class sub = MakeKeyed(ns, "Sub", "Part", base);
  Publish(base, "ID", TCIMValue("a"));
  for (const char* part : {"1", "2"}) {
    const Instance instance = Create(sub, "ID", TCIMValue("a"));
    instance->SetProperty("Part", TCIMValue(part), None());
    sub->AddInstance(instance);
  }
  EXPECT_EQ("2", TextOf(Resolve(ns, "Sub.ID=\"a\",Part=\"2\""), "Part"));
  EXPECT_EQ("Base", Resolve(ns, "Base.ID=\"a\"")->GetClass(None())->GetName(None()));
  EXPECT_STATUS(kQDAStatusInvalidReference, Resolve(ns, "Sub.ID=\"a\""));
  EXPECT_THAT(InstancesOf(base, true), ElementsAre("a", "a", "a"));
}

TEST(MemoryInstanceKey, OverridingDeclarationStaysAKey) {
  const Namespace ns = MakeNamespace();
  const Class base = MakeKeyed(ns, "Base");
  const Class sub = Open(ns, "Sub", base);
  const boost::shared_ptr<ICIMPropertyDecl> decl = Add(sub, "id", Null(Type::kCIMTypeString));
  EXPECT_EQ(TCIMValue(true), decl->GetQualifier("Key", None())->GetValue(None()));
  EXPECT_STATUS(kQDAStatusNotOverridable, Qualify(sub, *decl, "Key", TCIMValue(false)));
  sub->Commit(None());
  Publish(sub, "ID", TCIMValue("a"));
  EXPECT_STATUS(kQDAStatusAlreadyExists, Publish(base, "ID", TCIMValue("a")));
  EXPECT_TRUE(Resolve(ns, "Sub.ID=\"a\""));
}

TEST(MemoryInstanceKey, SubclassMayDropAKeyWhereTheDeclarationLetsIt) {
  const Namespace ns = CreateMemoryNamespace("n");
  ns->CreateQualifierDecl("Key", TCIMValue(false), 0, 0, None());
  const Class base = MakeKeyed(ns, "Base");
  const Class sub = Open(ns, "Sub", base);
  Qualify(sub, *Add(sub, "ID", Null(Type::kCIMTypeString)), "Key", TCIMValue(false));
  sub->Commit(None());
  Publish(sub, "ID", TCIMValue("a"));
  Publish(sub, "ID", TCIMValue("a"));
  EXPECT_THAT(InstancesOf(sub, false), ElementsAre("a", "a"));
  EXPECT_STATUS(kQDAStatusInvalidReference, Resolve(ns, "Sub.ID=\"a\""));
}

TEST(MemoryInstanceKey, DefaultValueIsAKeyValueToo) {
  const Namespace ns = MakeNamespace();
  const Class cls = Open(ns, "Cls");
  AddKey(cls, "ID", TCIMValue("only"));
  cls->Commit(None());
  const Instance instance = cls->CreateInstance(None());
  cls->AddInstance(instance);
  EXPECT_EQ(instance, Resolve(ns, "Cls.ID=\"only\""));
  EXPECT_STATUS(kQDAStatusAlreadyExists, cls->AddInstance(cls->CreateInstance(None())));
}

TEST(MemoryInstanceKey, InstanceWithANullKeyIsPresentedAndHasNoName) {
  const Namespace ns = MakeNamespace();
  const Class cls = Open(ns, "Cls");
  AddKey(cls, "A", Null(Type::kCIMTypeString));
  AddKey(cls, "B", TCIMValue("b"));
  cls->Commit(None());
  cls->AddInstance(cls->CreateInstance(None()));
  cls->AddInstance(cls->CreateInstance(None()));
  EXPECT_THAT(InstancesOf(cls, false, "B"), ElementsAre("b", "b"));
  EXPECT_FALSE(Resolve(ns, "Cls.A=\"\",B=\"b\""));
}

TEST(MemoryInstanceKey, StandsOncePublished) {
  const Namespace ns = MakeNamespace();
  const Class cls = Open(ns, "Cls");
  AddKey(cls, "ID", Null(Type::kCIMTypeString));
  Add(cls, "Other", Null(Type::kCIMTypeString));
  cls->Commit(None());
  const Instance instance = Publish(cls, "ID", TCIMValue("a"));
  EXPECT_STATUS(kQDAStatusInvalidOpSequence, instance->SetProperty("id", TCIMValue("b"), None()));
  EXPECT_STATUS(kQDAStatusInvalidOpSequence,
                instance->SetProperty("ID", Null(Type::kCIMTypeString), None()));
  instance->SetProperty("ID", TCIMValue("a"), None());
  instance->SetProperty("Other", TCIMValue("x"), None());
  EXPECT_EQ(instance, Resolve(ns, "Cls.ID=\"a\""));
  EXPECT_EQ("x", TextOf(instance, "Other"));
}

TEST(MemoryInstanceKey, NullKeyStandsOncePublishedToo) {
  const Namespace ns = MakeNamespace();
  const Class cls = MakeKeyed(ns, "Cls");
  const Instance instance = cls->CreateInstance(None());
  cls->AddInstance(instance);
  EXPECT_STATUS(kQDAStatusInvalidOpSequence, instance->SetProperty("ID", TCIMValue("b"), None()));
  instance->SetProperty("ID", Null(Type::kCIMTypeString), None());
}

}  // namespace
}  // namespace memory_test

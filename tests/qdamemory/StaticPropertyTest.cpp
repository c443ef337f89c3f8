// Values that belong to a class and not to an instance.

#include <tests/qdamemory/MemoryTestSupport.h>

namespace memory_test {
namespace {

typedef boost::shared_ptr<ICIMProperty> Property;

Property FirstStatic(const Class& cls) {
  Property first;
  boost::function<bool(Property)> visit = [&](Property property) {
    first = property;
    return false;
  };
  cls->EnumerateStaticProperties(visit, None());
  return first;
}

TEST(MemoryStaticProperty, NoneAtFirst) {
  const Namespace ns = MakeNamespace();
  const Class cls = Open(ns, "Cls");
  Add(cls, "P", TCIMValue(1));
  EXPECT_THAT(StaticPropertiesOf(cls), IsEmpty());
}

TEST(MemoryStaticProperty, IsSetBeforeAndAfterCommit) {
  const Namespace ns = MakeNamespace();
  const Class cls = Open(ns, "Cls");
  Add(cls, "P", TCIMValue(1));
  Add(cls, "Q", TCIMValue("q"));
  cls->SetStaticProperty("q", TCIMValue("x"), None());
  cls->Commit(None());
  cls->SetStaticProperty("P", TCIMValue(2), None());
  cls->SetStaticProperty("p", TCIMValue(3), None());
  EXPECT_THAT(StaticPropertiesOf(cls), ElementsAre("Q", "P"));
  EXPECT_EQ("x", FirstStatic(cls)->ToString());
  EXPECT_EQ(TCIMValue("x"), FirstStatic(cls)->GetValue(None()));
  // Instances do not see it.
  EXPECT_EQ("1", TextOf(cls->CreateInstance(None()), "P"));
}

TEST(MemoryStaticProperty, IsALiveView) {
  const Namespace ns = MakeNamespace();
  const Class cls = Open(ns, "Cls");
  Add(cls, "P", TCIMValue("default"));
  cls->SetStaticProperty("P", TCIMValue("one"), None());
  const Property property = FirstStatic(cls);
  const TCIMValue& value = property->GetValue(None());
  cls->SetStaticProperty("P", TCIMValue("two"), None());
  EXPECT_EQ(TCIMValue("two"), value);
}

TEST(MemoryStaticProperty, MayBeNull) {
  const Namespace ns = MakeNamespace();
  const Class cls = Open(ns, "Cls");
  Add(cls, "P", TCIMValue(1));
  cls->SetStaticProperty("P", Null(Type::kCIMTypeSint32), None());
  EXPECT_TRUE(FirstStatic(cls)->GetValue(None()).IsNull());
  EXPECT_STATUS(kQDAStatusValueIsNULL, FirstStatic(cls)->ToString());
}

TEST(MemoryStaticProperty, NullReferenceSaysWhichClassItWouldReferTo) {
  const Namespace ns = MakeNamespace();
  const Class target = MakeKeyed(ns, "Target");
  const Class cls = Open(ns, "Cls");
  Add(cls, "Ref", NullReferenceTo(target));
  cls->SetStaticProperty("Ref", Null(Type::kCIMTypeReference), None());
  EXPECT_EQ(target, FirstStatic(cls)->GetValue(None()).GetReferencedClass());
}

TEST(MemoryStaticProperty, Failures) {
  const Namespace ns = MakeNamespace();
  const Class cls = Open(ns, "Cls");
  Add(cls, "P", TCIMValue(1));
  EXPECT_STATUS(kQDAStatusNotFound, cls->SetStaticProperty("X", TCIMValue(1), None()));
  EXPECT_STATUS(kQDAStatusTypeMismatch, cls->SetStaticProperty("P", TCIMValue(1u), None()));
  EXPECT_STATUS(kQDAStatusTypeMismatch, cls->SetStaticProperty("P", TCIMValue(), None()));
  EXPECT_THAT(StaticPropertiesOf(cls), IsEmpty());
}

TEST(MemoryStaticProperty, BelongsToTheClassThatSetIt) {
  const Namespace ns = MakeNamespace();
  const Class base = Open(ns, "Base");
  Add(base, "P", TCIMValue(1));
  base->Commit(None());
  const Class sub = Open(ns, "Sub", base);
  sub->SetStaticProperty("P", TCIMValue(2), None());
  EXPECT_EQ(base->GetPropertyDecl("P", None()), FirstStatic(sub)->GetPropertyDecl(None()));
  // From here on the class has a declaration of its own.
  Add(sub, "p", TCIMValue(5));
  sub->Commit(None());
  EXPECT_EQ(sub->GetPropertyDecl("P", None()), FirstStatic(sub)->GetPropertyDecl(None()));
  EXPECT_THAT(StaticPropertiesOf(base), IsEmpty());
  EXPECT_THAT(StaticPropertiesOf(sub), ElementsAre("p"));
  EXPECT_THAT(StaticPropertiesOf(Make(ns, "SubSub", sub)), IsEmpty());
}

}  // namespace
}  // namespace memory_test

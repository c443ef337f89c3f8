// Instances: properties, values, publication and enumeration.

#include <qdacore/cim/value/TCIMChar16.h>
#include <qdacore/cim/value/TCIMDateTime.h>
#include <tests/qdamemory/MemoryTestSupport.h>

namespace memory_test {
namespace {

TEST(MemoryInstance, BeginsWithTheDefaults) {
  const Namespace ns = MakeNamespace();
  const Class base = Open(ns, "Base");
  Add(base, "Text", TCIMValue("default"));
  Add(base, "Number", Null(Type::kCIMTypeUint32));
  base->Commit(None());
  const Class sub = Open(ns, "Sub", base);
  Add(sub, "More", TCIMValue(true));
  sub->Commit(None());
  const Instance instance = sub->CreateInstance(None());
  EXPECT_EQ(sub, instance->GetClass(None()));
  EXPECT_THAT(PropertiesOf(instance), ElementsAre("Text", "Number", "More"));
  EXPECT_EQ(TCIMValue("default"), ValueOf(instance, "Text"));
  EXPECT_EQ(Null(Type::kCIMTypeUint32), ValueOf(instance, "Number"));
  EXPECT_EQ(TCIMValue(true), ValueOf(instance, "More"));
}

TEST(MemoryInstance, PropertyIsFoundWithoutCase) {
  const Namespace ns = MakeNamespace();
  const Class cls = Open(ns, "Cls");
  Add(cls, "DeviceID", TCIMValue(""));
  cls->Commit(None());
  const Instance instance = Create(cls, "deviceID", TCIMValue("sda"));
  EXPECT_EQ("sda", TextOf(instance, "DEVICEid"));
  const boost::shared_ptr<ICIMProperty> property = instance->GetProperty("deviceid", None());
  EXPECT_EQ("DeviceID", property->GetPropertyDecl(None())->GetName(None()));
  EXPECT_EQ(cls->GetPropertyDecl("DeviceID", None()), property->GetPropertyDecl(None()));
}

TEST(MemoryInstance, UnknownPropertyIsNotFound) {
  const Namespace ns = MakeNamespace();
  const Class cls = MakeKeyed(ns, "Cls");
  const Instance instance = cls->CreateInstance(None());
  EXPECT_STATUS(kQDAStatusNotFound, instance->GetProperty("Name", None()));
  EXPECT_STATUS(kQDAStatusNotFound, instance->GetProperty("", None()));
  EXPECT_STATUS(kQDAStatusNotFound, instance->SetProperty("Name", TCIMValue("x"), None()));
}

TEST(MemoryInstance, ValueOfAnotherTypeIsAMismatch) {
  const Namespace ns = MakeNamespace();
  const Class cls = Open(ns, "Cls");
  Add(cls, "P", TCIMValue(5u));
  cls->Commit(None());
  const Instance instance = cls->CreateInstance(None());
  const TCIMValue wrong[] = {TCIMValue(1), TCIMValue("1"), TCIMValue(), Null(Type::kCIMTypeSint32),
                             Null(Type::kCIMTypeUint32, true)};
  for (const TCIMValue& value : wrong) {
    EXPECT_STATUS(kQDAStatusTypeMismatch, instance->SetProperty("P", value, None()));
  }
  EXPECT_EQ(TCIMValue(5u), ValueOf(instance, "P"));
  instance->SetProperty("P", Null(Type::kCIMTypeUint32), None());
  EXPECT_TRUE(ValueOf(instance, "P").IsNull());
}

TEST(MemoryInstance, SettingReplacesEvenWhatComparesEqual) {
  const Namespace ns = MakeNamespace();
  const Class cls = Open(ns, "Cls");
  Add(cls, "Char", Null(Type::kCIMTypeChar16));
  Add(cls, "Time", Null(Type::kCIMTypeDateTime));
  Add(cls, "Array", TCIMValue(Type::kCIMTypeUint8, 4));
  cls->Commit(None());
  const Instance instance = cls->CreateInstance(None());
  instance->SetProperty("Char", TCIMValue(TCIMChar16(65)), None());
  instance->SetProperty("Char", TCIMValue(TCIMChar16(66)), None());
  EXPECT_EQ("66", TextOf(instance, "Char"));
  // A timestamp, then an interval: the two cannot be compared.
  instance->SetProperty("Time", TCIMValue(TCIMDateTime("20240102030405.000006+060")), None());
  instance->SetProperty("Time", TCIMValue(TCIMDateTime("00000001020304.000005:000")), None());
  EXPECT_EQ("00000001020304.000005:000", TextOf(instance, "Time"));
  const std::vector<TCIMValue> bytes = {TCIMValue(static_cast<unsigned char>(1)),
                                        TCIMValue(static_cast<unsigned char>(2))};
  instance->SetProperty("Array", TCIMValue(Type::kCIMTypeUint8, 9, bytes), None());
  EXPECT_EQ("{ 1, 2 }", TextOf(instance, "Array"));
  EXPECT_EQ(9u, ValueOf(instance, "Array").GetMaxArraySize());
}

TEST(MemoryInstance, PropertyIsALiveViewThatKeepsItsValueInPlace) {
  const Namespace ns = MakeNamespace();
  const Class cls = Open(ns, "Cls");
  Add(cls, "P", TCIMValue("default"));
  cls->Commit(None());
  Instance instance = cls->CreateInstance(None());
  const boost::shared_ptr<ICIMProperty> property = instance->GetProperty("P", None());
  EXPECT_EQ("default", property->ToString());
  instance->SetProperty("P", TCIMValue("one"), None());
  const TCIMValue& value = property->GetValue(None());
  instance->SetProperty("P", TCIMValue("two"), None());
  EXPECT_EQ(TCIMValue("two"), value);
  // The value itself, given back to its own place.
  instance->SetProperty("P", value, None());
  EXPECT_EQ(TCIMValue("two"), value);
  instance.reset();
  EXPECT_EQ(TCIMValue("two"), value);
}

TEST(MemoryInstance, ToStringIsTheTextInBaseTen) {
  const Namespace ns = MakeNamespace();
  const Class cls = Open(ns, "Cls");
  Add(cls, "Number", TCIMValue(255u));
  Add(cls, "Null", Null(Type::kCIMTypeString));
  cls->Commit(None());
  const Instance instance = cls->CreateInstance(None());
  EXPECT_EQ("255", TextOf(instance, "Number"));
  EXPECT_STATUS(kQDAStatusValueIsNULL, TextOf(instance, "Null"));
}

TEST(MemoryInstance, EnumerationOfPropertiesStopsWhereItIsTold) {
  const Namespace ns = MakeNamespace();
  const Class cls = Open(ns, "Cls");
  Add(cls, "A", TCIMValue(1));
  Add(cls, "B", TCIMValue(1));
  cls->Commit(None());
  int seen = 0;
  boost::function<bool(boost::shared_ptr<ICIMProperty>)> visit =
      [&](boost::shared_ptr<ICIMProperty>) { return ++seen < 1; };
  cls->CreateInstance(None())->EnumerateProperties(visit, None());
  EXPECT_EQ(1, seen);
}

TEST(MemoryInstance, OfAClassWithoutProperties) {
  const Namespace ns = MakeNamespace();
  const Class cls = Make(ns, "Bare");
  const Instance instance = cls->CreateInstance(None());
  EXPECT_THAT(PropertiesOf(instance), IsEmpty());
  cls->AddInstance(instance);
  cls->AddInstance(cls->CreateInstance(None()));
  std::size_t count = 0;
  boost::function<bool(Instance)> visit = [&](Instance) { return ++count != 0; };
  cls->EnumerateInstances(visit, false, None());
  EXPECT_EQ(2u, count);
}

TEST(MemoryInstance, IsPartOfTheClassOnlyOncePublished) {
  const Namespace ns = MakeNamespace();
  const Class cls = MakeKeyed(ns, "Cls");
  const Instance instance = Create(cls, "ID", TCIMValue("a"));
  EXPECT_THAT(InstancesOf(cls, true), IsEmpty());
  EXPECT_FALSE(Resolve(ns, "Cls.ID=\"a\""));
  cls->AddInstance(instance);
  EXPECT_THAT(InstancesOf(cls, true), ElementsAre("a"));
  EXPECT_EQ(instance, Resolve(ns, "Cls.ID=\"a\""));
}

TEST(MemoryInstance, OnlyInstancesOfTheClassItselfArePublished) {
  const Namespace ns = MakeNamespace();
  const Namespace other = MakeNamespace();
  const Class cls = MakeKeyed(ns, "Cls");
  const Class sub = Make(ns, "Sub", cls);
  EXPECT_STATUS(kQDAStatusInvalidInstance, cls->AddInstance(Instance()));
  EXPECT_STATUS(kQDAStatusInvalidInstance, cls->AddInstance(sub->CreateInstance(None())));
  EXPECT_STATUS(kQDAStatusInvalidInstance, sub->AddInstance(cls->CreateInstance(None())));
  EXPECT_STATUS(kQDAStatusInvalidInstance,
                cls->AddInstance(MakeKeyed(other, "Cls")->CreateInstance(None())));
  EXPECT_THAT(InstancesOf(cls, true), IsEmpty());
}

TEST(MemoryInstance, IsPublishedOnce) {
  const Namespace ns = MakeNamespace();
  const Class bare = Make(ns, "Bare");
  const Instance instance = bare->CreateInstance(None());
  bare->AddInstance(instance);
  EXPECT_STATUS(kQDAStatusAlreadyExists, bare->AddInstance(instance));
}

TEST(MemoryInstance, ComeInOrderOfPublicationSuperclassFirst) {
  const Namespace ns = MakeNamespace();
  const Class a = MakeKeyed(ns, "A");
  const Class b = Make(ns, "B", a);
  const Class c = Make(ns, "C", b);
  const Class d = Make(ns, "D", a);
  Publish(d, "ID", TCIMValue("d1"));
  Publish(c, "ID", TCIMValue("c1"));
  Publish(a, "ID", TCIMValue("a2"));
  Publish(b, "ID", TCIMValue("b1"));
  Publish(a, "ID", TCIMValue("a1"));
  EXPECT_THAT(InstancesOf(a, false), ElementsAre("a2", "a1"));
  EXPECT_THAT(InstancesOf(a, true), ElementsAre("a2", "a1", "b1", "c1", "d1"));
  EXPECT_THAT(InstancesOf(b, true), ElementsAre("b1", "c1"));
  EXPECT_THAT(InstancesOf(c, true), ElementsAre("c1"));
}

TEST(MemoryInstance, DeepEnumerationStopsWhereItIsTold) {
  const Namespace ns = MakeNamespace();
  const Class a = MakeKeyed(ns, "A");
  const Class b = Make(ns, "B", a);
  Publish(a, "ID", TCIMValue("1"));
  Publish(b, "ID", TCIMValue("2"));
  Publish(b, "ID", TCIMValue("3"));
  for (int stop = 1; stop <= 3; ++stop) {
    int seen = 0;
    boost::function<bool(Instance)> visit = [&](Instance) { return ++seen < stop; };
    a->EnumerateInstances(visit, true, None());
    EXPECT_EQ(stop, seen);
  }
}

TEST(MemoryInstance, PublishedDuringAnEnumerationIsNotPresented) {
  const Namespace ns = MakeNamespace();
  const Class a = MakeKeyed(ns, "A");
  const Class b = Make(ns, "B", a);
  Publish(a, "ID", TCIMValue("1"));
  Publish(a, "ID", TCIMValue("2"));
  Publish(b, "ID", TCIMValue("3"));
  Names seen;
  boost::function<bool(Instance)> visit = [&](Instance instance) {
    seen.push_back(TextOf(instance, "ID"));
    Publish(a, "ID", TCIMValue("a" + seen.back()));
    Publish(b, "ID", TCIMValue("b" + seen.back()));
    return true;
  };
  a->EnumerateInstances(visit, true, None());
  EXPECT_THAT(seen, ElementsAre("1", "2", "3"));
  EXPECT_EQ(9u, InstancesOf(a, true).size());
}

}  // namespace
}  // namespace memory_test

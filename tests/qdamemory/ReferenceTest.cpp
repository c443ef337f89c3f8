// References: resolved by key, held as values, nested as keys.

#include <boost/make_shared.hpp>

#include <tests/qdamemory/ForeignClass.h>
#include <tests/qdamemory/MemoryTestSupport.h>

namespace memory_test {
namespace {

class MemoryReference : public testing::Test {
 protected:
  MemoryReference() : ns(MakeNamespace()) {
    system = Open(ns, "ZRV_System");
    AddKey(system, "CreationClassName", Null(Type::kCIMTypeString));
    AddKey(system, "Number", Null(Type::kCIMTypeUint16));
    Add(system, "Caption", Null(Type::kCIMTypeString));
    system->Commit(None());
    server = Make(ns, "ZRV_Server", system);
    for (unsigned short number = 1; number <= 3; ++number) {
      const Instance instance = Create(server, "CreationClassName", TCIMValue("ZRV_Server"));
      instance->SetProperty("Number", TCIMValue(number), None());
      server->AddInstance(instance);
      servers.push_back(instance);
    }
  }

  Namespace ns;
  Class system;
  Class server;
  std::vector<Instance> servers;
};

TEST_F(MemoryReference, IsResolvedByKey) {
  EXPECT_EQ(servers[1], Resolve(ns, "ZRV_Server.CreationClassName=\"ZRV_Server\",Number=\"2\""));
  EXPECT_FALSE(Resolve(ns, "ZRV_Server.CreationClassName=\"ZRV_Server\",Number=\"4\""));
  EXPECT_FALSE(Resolve(ns, "ZRV_Server.CreationClassName=\"zrv_server\",Number=\"2\""));
}

TEST_F(MemoryReference, NamesAreTakenInAnyCaseAndOrder) {
  EXPECT_EQ(servers[2], Resolve(ns, "zrv_SERVER.NUMBER=\"3\",creationclassname=\"ZRV_Server\""));
}

TEST_F(MemoryReference, SuperclassNamesTheInstancesOfItsSubclasses) {
  EXPECT_EQ(servers[0], Resolve(ns, "ZRV_System.CreationClassName=\"ZRV_Server\",Number=\"1\""));
  const Class blade = Make(ns, "ZRV_Blade", server);
  // And not the other way.
  EXPECT_FALSE(Resolve(ns, "ZRV_Blade.CreationClassName=\"ZRV_Server\",Number=\"1\""));
}

TEST_F(MemoryReference, GetCIMElementGivesTheInstanceOrTheClass) {
  const TCIMReference found(ns, "ZRV_Server.CreationClassName=\"ZRV_Server\",Number=\"2\"", None());
  EXPECT_EQ(servers[1], found.GetCIMElement(false));
  EXPECT_EQ(server, found.GetCIMElement(true));
  EXPECT_EQ(server, TCIMReference(ns, "ZRV_Server", None()).GetCIMElement(false));
  const TCIMReference absent(ns, "ZRV_Server.CreationClassName=\"\",Number=\"2\"", None());
  EXPECT_STATUS(kQDAStatusNotFound, absent.GetCIMElement(false));
}

TEST_F(MemoryReference, MustBindExactlyTheKeys) {
  EXPECT_STATUS(kQDAStatusInvalidReference, Resolve(ns, "ZRV_Server.Number=\"2\""));
  EXPECT_STATUS(kQDAStatusInvalidReference, Resolve(ns, "ZRV_Server"));
  EXPECT_STATUS(
      kQDAStatusInvalidReference,
      Resolve(ns, "ZRV_Server.CreationClassName=\"ZRV_Server\",Number=\"2\",Caption=\"\""));
  EXPECT_STATUS(kQDAStatusInvalidReference,
                Resolve(ns, "ZRV_Server.CreationClassName=\"ZRV_Server\",Caption=\"2\""));
  // One key twice, by names that differ in case.
  EXPECT_STATUS(kQDAStatusInvalidReference, Resolve(ns, "ZRV_Server.Number=\"2\",NUMBER=\"2\""));
  EXPECT_STATUS(
      kQDAStatusInvalidReference,
      Resolve(ns, "ZRV_Server.CreationClassName=\"ZRV_Server\",Number=\"2\",NUMBER=\"2\""));
}

TEST_F(MemoryReference, NullKeyIsInvalid) {
  TCIMReference reference(ns, None());
  reference.SetClass(server);
  reference.AddKeyValue("CreationClassName", TCIMValue("ZRV_Server"));
  reference.AddKeyValue("Number", Null(Type::kCIMTypeUint16));
  EXPECT_STATUS(kQDAStatusInvalidReference, ns->GetInstance(reference, None()));
}

TEST_F(MemoryReference, WithoutAClassOrOfAnotherNamespaceIsInvalid) {
  EXPECT_STATUS(kQDAStatusInvalidReference, ns->GetInstance(TCIMReference(), None()));
  const Namespace other = MakeNamespace();
  MakeKeyed(other, "Thing");
  const TCIMReference foreign(other, "Thing.ID=\"a\"", None());
  EXPECT_STATUS(kQDAStatusInvalidReference, ns->GetInstance(foreign, None()));
}

TEST_F(MemoryReference, ClassWithoutKeysCannotBeNamed) {
  const Class cls = Open(ns, "Keyless");
  Add(cls, "P", Null(Type::kCIMTypeString));
  cls->Commit(None());
  Publish(cls, "P", TCIMValue("a"));
  EXPECT_STATUS(kQDAStatusInvalidReference, Resolve(ns, "Keyless.P=\"a\""));
  EXPECT_STATUS(kQDAStatusInvalidReference, Resolve(ns, "Keyless"));
}

TEST_F(MemoryReference, OpenClassCannotBeNamed) {
  const Class cls = Open(ns, "Half");
  AddKey(cls, "ID", Null(Type::kCIMTypeString));
  EXPECT_STATUS(kQDAStatusInvalidReference, Resolve(ns, "Half.ID=\"a\""));
}

class MemoryReferenceValue : public MemoryReference {
 protected:
  MemoryReferenceValue() {
    hosts = Open(ns, "ZRV_Hosts");
    Qualify(hosts, *hosts, "Association", TCIMValue(true));
    AddKey(hosts, "Antecedent", NullReferenceTo(system));
    AddKey(hosts, "Dependent", NullReferenceTo(system));
    Add(hosts, "Any", Null(Type::kCIMTypeReference));
    Add(hosts, "Many", Null(Type::kCIMTypeReference, true));
    hosts->Commit(None());
  }

  TCIMValue Server(int number) {
    return ReferenceValue(ns, "ZRV_Server.CreationClassName=\"ZRV_Server\",Number=\"" +
                                  std::to_string(number) + "\"");
  }

  Class hosts;
};

TEST_F(MemoryReferenceValue, IsAKeyLikeAnyOther) {
  const Instance pair = Create(hosts, "Antecedent", Server(1));
  pair->SetProperty("Dependent", Server(2), None());
  hosts->AddInstance(pair);
  const std::string one = "ZRV_Server.CreationClassName=\"ZRV_Server\",Number=\"1\"";
  const std::string two = "ZRV_Server.CreationClassName=\"ZRV_Server\",Number=\"2\"";
  EXPECT_EQ(pair, Resolve(ns, "ZRV_Hosts.Antecedent=\"" + one + "\",Dependent=\"" + two + "\""));
  EXPECT_EQ(pair, Resolve(ns,
                          "zrv_hosts.dependent=\"zrv_server.number=\"2\",CREATIONCLASSNAME="
                          "\"ZRV_Server\"\",antecedent=\"" +
                              one + "\""));
  EXPECT_FALSE(Resolve(ns, "ZRV_Hosts.Antecedent=\"" + two + "\",Dependent=\"" + one + "\""));
  // The same keys under another class are another reference.
  EXPECT_FALSE(Resolve(ns,
                       "ZRV_Hosts.Antecedent=\"ZRV_System.CreationClassName=\"ZRV_Server\","
                       "Number=\"1\"\",Dependent=\"" +
                           two + "\""));
  const Instance again = Create(hosts, "Antecedent", Server(1));
  again->SetProperty("Dependent", Server(2), None());
  EXPECT_STATUS(kQDAStatusAlreadyExists, hosts->AddInstance(again));
}

TEST_F(MemoryReferenceValue, LeadsToTheInstance) {
  const Instance pair = Create(hosts, "Antecedent", Server(3));
  const TCIMReference reference = ValueOf(pair, "Antecedent");
  EXPECT_EQ(servers[2], reference.GetCIMElement(false));
  EXPECT_EQ(server, ValueOf(pair, "Antecedent").GetReferencedClass());
  EXPECT_EQ("ZRV_Server.CreationClassName=\"ZRV_Server\",Number=\"3\"", TextOf(pair, "Antecedent"));
}

TEST_F(MemoryReferenceValue, KeepsTheNamespaceName) {
  TCIMReference reference(ns, "ZRV_Server.CreationClassName=\"ZRV_Server\",Number=\"3\"", None());
  reference.SetNameSpaceName("root/cimv2");
  const Instance pair = Create(hosts, "Antecedent", TCIMValue(reference));
  TCIMReference stored = ValueOf(pair, "Antecedent");
  EXPECT_EQ("root/cimv2", stored.GetNameSpaceName());
  EXPECT_EQ(ns, stored.GetNamespace());
  EXPECT_TRUE(stored == reference);
}

TEST_F(MemoryReferenceValue, MayNameTheClassAlone) {
  const Instance pair = Create(hosts, "Any", ReferenceValue(ns, "ZRV_Server"));
  EXPECT_EQ("ZRV_Server", TextOf(pair, "Any"));
}

TEST_F(MemoryReferenceValue, MustReferToTheDeclaredClassOrBelow) {
  MakeKeyed(ns, "Thing");
  const Instance pair = hosts->CreateInstance(None());
  pair->SetProperty("Antecedent", Server(1), None());
  EXPECT_STATUS(kQDAStatusInvalidReference,
                pair->SetProperty("Antecedent", ReferenceValue(ns, "Thing.ID=\"1\""), None()));
  EXPECT_EQ(Server(1), ValueOf(pair, "Antecedent"));
  pair->SetProperty("Any", ReferenceValue(ns, "Thing.ID=\"1\""), None());
}

TEST_F(MemoryReferenceValue, OfAnotherNamespaceIsTakenWhenTheNameFits) {
  const Namespace other = MakeNamespace();
  MakeKeyed(other, "zrv_system");
  MakeKeyed(other, "Thing");
  const Instance pair = hosts->CreateInstance(None());
  pair->SetProperty("Antecedent", ReferenceValue(other, "ZRV_System.ID=\"1\""), None());
  EXPECT_STATUS(kQDAStatusInvalidReference,
                pair->SetProperty("Antecedent", ReferenceValue(other, "Thing.ID=\"1\""), None()));
}

TEST_F(MemoryReferenceValue, OfAnotherImplementationIsTakenWhenTheNameFits) {
  const Class base = boost::make_shared<ForeignClass>("ZRV_SYSTEM", Class());
  const Class sub = boost::make_shared<ForeignClass>("Sub", base);
  const Class thing = boost::make_shared<ForeignClass>("Thing", Class());
  const Instance pair = hosts->CreateInstance(None());
  TCIMReference reference(ns, None());
  reference.SetClass(sub);
  pair->SetProperty("Antecedent", TCIMValue(reference), None());
  EXPECT_EQ(sub, ValueOf(pair, "Antecedent").GetReferencedClass());
  reference.SetClass(thing);
  EXPECT_STATUS(kQDAStatusInvalidReference,
                pair->SetProperty("Antecedent", TCIMValue(reference), None()));
  EXPECT_STATUS(kQDAStatusInvalidReference, ns->GetInstance(reference, None()));
  EXPECT_STATUS(kQDAStatusInvalidClass, Open(ns, "New", base));
}

TEST_F(MemoryReferenceValue, WithoutAClassIsInvalidAndChangesNothing) {
  TCIMReference empty;
  TCIMValue broken;
  EXPECT_STATUS(kQDAStatusInvalidReference, broken.Set(empty));
  ASSERT_FALSE(broken.IsNull());
  const Instance pair = hosts->CreateInstance(None());
  EXPECT_STATUS(kQDAStatusInvalidReference, pair->SetProperty("Antecedent", broken, None()));
  EXPECT_STATUS(kQDAStatusInvalidReference, pair->SetProperty("Any", broken, None()));
  EXPECT_TRUE(ValueOf(pair, "Any").IsNull());
  EXPECT_EQ(Type::kCIMTypeReference, ValueOf(pair, "Any").GetType());
}

TEST_F(MemoryReferenceValue, NullTakesTheDeclaredClass) {
  const Instance pair = Create(hosts, "Antecedent", Server(1));
  pair->SetProperty("Antecedent", Null(Type::kCIMTypeReference), None());
  EXPECT_TRUE(ValueOf(pair, "Antecedent").IsNull());
  EXPECT_EQ(system, ValueOf(pair, "Antecedent").GetReferencedClass());
}

TEST_F(MemoryReferenceValue, StandsInArrays) {
  const std::vector<TCIMValue> elements = {Server(1), Null(Type::kCIMTypeReference), Server(3)};
  const Instance pair = Create(hosts, "Many", TCIMValue(Type::kCIMTypeReference, 7, elements));
  const TCIMValue stored = ValueOf(pair, "Many");
  const std::vector<TCIMValue>& back = stored;
  ASSERT_EQ(3u, back.size());
  EXPECT_EQ(elements[0], back[0]);
  EXPECT_TRUE(back[1].IsNull());
  EXPECT_EQ(elements[2], back[2]);
  EXPECT_EQ(7u, stored.GetMaxArraySize());
}

TEST_F(MemoryReferenceValue, MayReferToItsOwnClass) {
  const Class node = Open(ns, "Node");
  AddKey(node, "ID", Null(Type::kCIMTypeString));
  Add(node, "Next", NullReferenceTo(node));
  node->Commit(None());
  Publish(node, "ID", TCIMValue("a"))
      ->SetProperty("Next", ReferenceValue(ns, "Node.ID=\"b\""), None());
  Publish(node, "ID", TCIMValue("b"))
      ->SetProperty("Next", ReferenceValue(ns, "Node.ID=\"a\""), None());
  Instance at = Resolve(ns, "Node.ID=\"a\"");
  for (int step = 0; step < 4; ++step) {
    const TCIMReference next = ValueOf(at, "Next");
    at = boost::dynamic_pointer_cast<ICIMInstance>(next.GetCIMElement(false));
  }
  EXPECT_EQ("a", TextOf(at, "ID"));
}

}  // namespace
}  // namespace memory_test

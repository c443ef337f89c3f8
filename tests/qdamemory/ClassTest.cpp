// A class by itself: open, committed, abstract, association.

#include <tests/qdamemory/MemoryTestSupport.h>

namespace memory_test {
namespace {

TEST(MemoryClass, KnowsItsNamespaceAndName) {
  const Namespace ns = MakeNamespace();
  const Class cls = Make(ns, "CIM_Thing");
  EXPECT_EQ(ns, cls->GetNamespace(None()));
  EXPECT_EQ("CIM_Thing", cls->GetName(None()));
  EXPECT_TRUE(cls->IsRootClass(None()));
  EXPECT_FALSE(cls->GetSuperClass(None()));
  EXPECT_FALSE(cls->IsAbstract(None()));
  EXPECT_FALSE(cls->IsAssociation(None()));
}

TEST(MemoryClass, IsFoundAndPresentedWhileItIsOpen) {
  const Namespace ns = MakeNamespace();
  const Class cls = Open(ns, "Half");
  EXPECT_EQ(cls, ns->GetClass("Half", None()));
  EXPECT_THAT(RootsOf(ns), ElementsAre("Half"));
  EXPECT_STATUS(kQDAStatusAlreadyExists, Open(ns, "Half"));
}

TEST(MemoryClass, HasNoSubclassesAndNoInstancesWhileItIsOpen) {
  const Namespace ns = MakeNamespace();
  const Class cls = Open(ns, "Half");
  EXPECT_STATUS(kQDAStatusInvalidOpSequence, Open(ns, "Sub", cls));
  EXPECT_STATUS(kQDAStatusInvalidOpSequence, cls->CreateInstance(None()));
  EXPECT_STATUS(kQDAStatusNotFound, ns->GetClass("Sub", None()));
  cls->Commit(None());
  Open(ns, "Sub", cls);
  cls->CreateInstance(None());
}

TEST(MemoryClass, IsClosedByCommit) {
  const Namespace ns = MakeNamespace();
  const Class cls = Open(ns, "Closed");
  const boost::shared_ptr<ICIMPropertyDecl> property = Add(cls, "P", TCIMValue(1));
  const boost::shared_ptr<ICIMMethodDecl> method =
      cls->AddMethodDecl("M", Type::kCIMTypeUint32, None());
  const boost::shared_ptr<ICIMParameterDecl> parameter =
      method->AddParameterDecl("Q", Type::kCIMTypeUint32, None());
  cls->Commit(None());
  cls->Commit(None());
  const boost::shared_ptr<ICIMQualifierDecl> key = ns->GetQualifierDecl("Key", None());
  EXPECT_STATUS(kQDAStatusInvalidOpSequence, Add(cls, "R", TCIMValue(1)));
  EXPECT_STATUS(kQDAStatusInvalidOpSequence, cls->AddMethodDecl("N", Type::kCIMTypeUint32, None()));
  EXPECT_STATUS(kQDAStatusInvalidOpSequence, cls->AddQualifier(key, TCIMValue(true), None()));
  EXPECT_STATUS(kQDAStatusInvalidOpSequence, property->AddQualifier(key, TCIMValue(true), None()));
  EXPECT_STATUS(kQDAStatusInvalidOpSequence, method->AddQualifier(key, TCIMValue(true), None()));
  EXPECT_STATUS(kQDAStatusInvalidOpSequence,
                method->AddParameterDecl("S", Type::kCIMTypeUint32, None()));
  EXPECT_STATUS(kQDAStatusInvalidOpSequence, parameter->AddQualifier(key, TCIMValue(true), None()));
}

TEST(MemoryClass, AbstractIsNotInherited) {
  const Namespace ns = MakeNamespace();
  const Class base = Open(ns, "Base");
  Qualify(base, *base, "Abstract", TCIMValue(true));
  EXPECT_TRUE(base->IsAbstract(None()));
  base->Commit(None());
  const Class sub = Make(ns, "Sub", base);
  EXPECT_FALSE(sub->IsAbstract(None()));
  EXPECT_STATUS(kQDAStatusInvalidClass, base->CreateInstance(None()));
  EXPECT_TRUE(sub->CreateInstance(None()));
}

TEST(MemoryClass, AbstractStaysWithItsClassWhateverItsFlavor) {
  const Namespace ns = CreateMemoryNamespace("n");
  ns->CreateQualifierDecl("ABSTRACT", TCIMValue(false), 0, kQualifierToSubclass, None());
  const Class base = Open(ns, "Base");
  Qualify(base, *base, "Abstract", TCIMValue(true));
  base->Commit(None());
  const Class sub = Make(ns, "Sub", base);
  EXPECT_TRUE(base->IsAbstract(None()));
  EXPECT_FALSE(sub->IsAbstract(None()));
  EXPECT_TRUE(base->GetQualifier("Abstract", None()));
  EXPECT_FALSE(sub->GetQualifier("Abstract", None()));
}

TEST(MemoryClass, AssociationIsInherited) {
  const Namespace ns = MakeNamespace();
  const Class base = Open(ns, "Base");
  Qualify(base, *base, "Association", TCIMValue(true));
  base->Commit(None());
  const Class sub = Make(ns, "Sub", Make(ns, "Mid", base));
  EXPECT_TRUE(base->IsAssociation(None()));
  EXPECT_TRUE(sub->IsAssociation(None()));
  EXPECT_FALSE(Make(ns, "Other")->IsAssociation(None()));
}

TEST(MemoryClass, SubclassMayBeNoAssociationWhereTheDeclarationLetsIt) {
  const Namespace ns = CreateMemoryNamespace("n");
  ns->CreateQualifierDecl("Association", TCIMValue(false), 0, 0, None());
  const Class base = Open(ns, "Base");
  Qualify(base, *base, "Association", TCIMValue(true));
  base->Commit(None());
  const Class sub = Open(ns, "Sub", base);
  Qualify(sub, *sub, "Association", TCIMValue(false));
  sub->Commit(None());
  EXPECT_FALSE(sub->IsAssociation(None()));
  EXPECT_FALSE(Make(ns, "SubSub", sub)->IsAssociation(None()));
}

struct FlagRow {
  const char* what;
  TCIMValue declared;
  TCIMValue value;
  bool expected;
};

TEST(MemoryClass, OnlyTheBooleanTrueCounts) {
  const FlagRow rows[] = {
      {"true", TCIMValue(false), TCIMValue(true), true},
      {"false", TCIMValue(true), TCIMValue(false), false},
      {"null", TCIMValue(true), Null(Type::kCIMTypeBoolean), false},
      {"text", TCIMValue("x"), TCIMValue("true"), false},
      {"number", TCIMValue(0), TCIMValue(1), false},
  };
  for (const FlagRow& row : rows) {
    const Namespace ns = CreateMemoryNamespace("n");
    for (const char* name : {"Abstract", "Association", "Key"}) {
      ns->CreateQualifierDecl(name, row.declared, 0, 0, None());
    }
    const Class cls = Open(ns, "Cls");
    Qualify(cls, *cls, "Abstract", row.value);
    Qualify(cls, *cls, "Association", row.value);
    Qualify(cls, *Add(cls, "ID", Null(Type::kCIMTypeString)), "Key", row.value);
    cls->Commit(None());
    EXPECT_EQ(row.expected, cls->IsAbstract(None())) << row.what;
    EXPECT_EQ(row.expected, cls->IsAssociation(None())) << row.what;
    const Class sub = Make(ns, "Sub", cls);
    Publish(sub, "ID", TCIMValue("a"));
    const std::string expected = row.expected ? "kQDAStatusAlreadyExists" : "nothing";
    EXPECT_EQ(expected, test_support::ThrownStatus([&] { Publish(sub, "ID", TCIMValue("a")); }))
        << row.what;
  }
}

}  // namespace
}  // namespace memory_test

// Qualifiers and their declarations.

#include <tests/qdamemory/MemoryTestSupport.h>

namespace memory_test {
namespace {

typedef boost::shared_ptr<ICIMQualifierDecl> Decl;
typedef boost::shared_ptr<ICIMQualifier> Qualifier;

const std::int32_t kInherited = kQualifierToSubclass | kQualifierEnableOverride;

Decl Declare(const Namespace& ns, const std::string& name, const TCIMValue& value,
             std::int32_t flavor) {
  Decl decl = ns->CreateQualifierDecl(name, value, kQualifierScopeAny, flavor, None());
  decl->Commit(None());
  return decl;
}

TEST(MemoryQualifierDecl, GivesBackWhatItWasMadeWith) {
  const Namespace ns = CreateMemoryNamespace("n");
  const Decl decl = ns->CreateQualifierDecl("MaxLen", TCIMValue(12u), -5, 2147483647, None());
  EXPECT_EQ(decl, ns->GetQualifierDecl("MAXLEN", None()));
  EXPECT_EQ("MaxLen", decl->GetName(None()));
  EXPECT_EQ(TCIMValue(12u), decl->GetValue(None()));
  EXPECT_EQ(-5, decl->GetFirstAttribute(None()));
  EXPECT_EQ(2147483647, decl->GetSecondAttribute(None()));
  decl->Commit(None());
}

TEST(MemoryQualifierDecl, UnknownIsNotFoundAndTakenAlreadyExists) {
  const Namespace ns = CreateMemoryNamespace("n");
  EXPECT_STATUS(kQDAStatusNotFound, ns->GetQualifierDecl("Key", None()));
  Declare(ns, "Key", TCIMValue(false), 0);
  EXPECT_STATUS(kQDAStatusAlreadyExists, Declare(ns, "KEY", TCIMValue(false), 0));
  EXPECT_THAT(QualifierDeclsOf(ns), ElementsAre("Key"));
}

TEST(MemoryQualifierDecl, ComeInOrderOfCreationUntilToldToStop) {
  const Namespace ns = CreateMemoryNamespace("n");
  for (const char* name : {"Z", "A", "M"}) {
    Declare(ns, name, TCIMValue(true), 0);
  }
  EXPECT_THAT(QualifierDeclsOf(ns), ElementsAre("Z", "A", "M"));
  Names seen;
  boost::function<bool(Decl)> visit = [&](Decl decl) {
    seen.push_back(decl->GetName(None()));
    Declare(ns, seen.back() + "2", TCIMValue(true), 0);
    return seen.size() < 2;
  };
  ns->EnumerateQualifierDecls(visit, None());
  EXPECT_THAT(seen, ElementsAre("Z", "A"));
}

TEST(MemoryQualifier, AbsentIsEmptyOnAClassAndThrownOnADeclaration) {
  const Namespace ns = MakeNamespace();
  const Class cls = Open(ns, "Cls");
  const boost::shared_ptr<ICIMPropertyDecl> property = Add(cls, "P", TCIMValue(1));
  const boost::shared_ptr<ICIMMethodDecl> method =
      cls->AddMethodDecl("M", Type::kCIMTypeUint32, None());
  const boost::shared_ptr<ICIMParameterDecl> parameter =
      method->AddParameterDecl("Q", Type::kCIMTypeUint32, None());
  EXPECT_FALSE(cls->GetQualifier("Description", None()));
  EXPECT_FALSE(cls->GetQualifier("NoSuchQualifierAtAll", None()));
  EXPECT_STATUS(kQDAStatusNotFound, property->GetQualifier("Description", None()));
  EXPECT_STATUS(kQDAStatusNotFound, method->GetQualifier("Description", None()));
  EXPECT_STATUS(kQDAStatusNotFound, parameter->GetQualifier("Description", None()));
}

TEST(MemoryQualifier, IsFoundOnEveryKindOfElement) {
  const Namespace ns = MakeNamespace();
  const Class cls = Open(ns, "Cls");
  const boost::shared_ptr<ICIMPropertyDecl> property = Add(cls, "P", TCIMValue(1));
  const boost::shared_ptr<ICIMMethodDecl> method =
      cls->AddMethodDecl("M", Type::kCIMTypeUint32, None());
  const boost::shared_ptr<ICIMParameterDecl> parameter =
      method->AddParameterDecl("Q", Type::kCIMTypeUint32, None());
  ICIMNamedElement* const elements[] = {cls.get(), property.get(), method.get(), parameter.get()};
  for (ICIMNamedElement* element : elements) {
    const std::string text = "text " + std::to_string(element - elements[0]);
    const Qualifier added =
        element->AddQualifier(ns->GetQualifierDecl("Description", None()), TCIMValue(text), None());
    Qualify(cls, *element, "Version", TCIMValue("1.2.3"));
    EXPECT_EQ(TCIMValue(text), added->GetValue(None()));
    const Qualifier found = element->GetQualifier("DESCRIPTION", None());
    EXPECT_EQ(TCIMValue(text), found->GetValue(None()));
    EXPECT_EQ(ns->GetQualifierDecl("Description", None()), found->GetQualifierDecl(None()));
    EXPECT_THAT(QualifiersOf(*element), ElementsAre("Description", "Version"));
    EXPECT_STATUS(kQDAStatusAlreadyExists,
                  Qualify(cls, *element, "description", TCIMValue("again")));
  }
}

TEST(MemoryQualifier, ReferenceToAValueOutlivesLaterQualifiers) {
  const Namespace ns = MakeNamespace();
  const Class cls = Open(ns, "Cls");
  Qualify(cls, *cls, "Description", TCIMValue("first"));
  const Qualifier first = cls->GetQualifier("Description", None());
  const TCIMValue& value = first->GetValue(None());
  for (int i = 0; i < 100; ++i) {
    Declare(ns, "Q" + std::to_string(i), TCIMValue(0), 0);
    Qualify(cls, *cls, "Q" + std::to_string(i), TCIMValue(i));
  }
  EXPECT_EQ(TCIMValue("first"), value);
  EXPECT_EQ(101u, QualifiersOf(*cls).size());
}

TEST(MemoryQualifier, DeclarationMustBeOfTheSameNamespace) {
  const Namespace ns = MakeNamespace();
  const Namespace other = MakeNamespace();
  const Class cls = Open(ns, "Cls");
  const Decl foreign = other->GetQualifierDecl("Key", None());
  EXPECT_STATUS(kQDAStatusContainerMismatch, cls->AddQualifier(foreign, TCIMValue(true), None()));
  EXPECT_STATUS(kQDAStatusContainerMismatch, cls->AddQualifier(Decl(), TCIMValue(true), None()));
  EXPECT_THAT(QualifiersOf(*cls), IsEmpty());
}

TEST(MemoryQualifier, ValueMustBeOfTheDeclaredType) {
  const Namespace ns = CreateMemoryNamespace("n");
  Declare(ns, "Number", TCIMValue(1u), 0);
  Declare(ns, "Texts", Null(Type::kCIMTypeString, true), 0);
  Declare(ns, "Any", TCIMValue(), 0);
  const Class cls = Open(ns, "Cls");
  EXPECT_STATUS(kQDAStatusTypeMismatch, Qualify(cls, *cls, "Number", TCIMValue(1)));
  EXPECT_STATUS(kQDAStatusTypeMismatch, Qualify(cls, *cls, "Number", TCIMValue()));
  EXPECT_STATUS(kQDAStatusTypeMismatch, Qualify(cls, *cls, "Texts", TCIMValue("a")));
  Qualify(cls, *cls, "Number", Null(Type::kCIMTypeUint32));
  Qualify(cls, *cls, "Any", TCIMValue("a"));
  EXPECT_THAT(QualifiersOf(*cls), ElementsAre("Number", "Any"));
  EXPECT_TRUE(cls->GetQualifier("Number", None())->GetValue(None()).IsNull());
}

TEST(MemoryQualifier, InheritanceFollowsTheFlavor) {
  const Namespace ns = CreateMemoryNamespace("n");
  Declare(ns, "Down", TCIMValue(""), kInherited);
  Declare(ns, "Here", TCIMValue(""), kQualifierEnableOverride);
  const Class base = Open(ns, "Base");
  const boost::shared_ptr<ICIMPropertyDecl> property = Add(base, "P", TCIMValue(1));
  const boost::shared_ptr<ICIMMethodDecl> method =
      base->AddMethodDecl("M", Type::kCIMTypeUint32, None());
  ICIMNamedElement* const elements[] = {base.get(), property.get(), method.get()};
  for (ICIMNamedElement* element : elements) {
    Qualify(base, *element, "Down", TCIMValue("d"));
    Qualify(base, *element, "Here", TCIMValue("h"));
  }
  base->Commit(None());
  const Class sub = Open(ns, "Sub", Make(ns, "Mid", base));
  const boost::shared_ptr<ICIMPropertyDecl> subProperty = Add(sub, "P", TCIMValue(1));
  const boost::shared_ptr<ICIMMethodDecl> subMethod =
      sub->AddMethodDecl("m", Type::kCIMTypeUint32, None());

  EXPECT_EQ(TCIMValue("d"), sub->GetQualifier("down", None())->GetValue(None()));
  EXPECT_EQ(TCIMValue("d"), subProperty->GetQualifier("down", None())->GetValue(None()));
  EXPECT_EQ(TCIMValue("d"), subMethod->GetQualifier("down", None())->GetValue(None()));
  EXPECT_FALSE(sub->GetQualifier("Here", None()));
  EXPECT_STATUS(kQDAStatusNotFound, subProperty->GetQualifier("Here", None()));
  EXPECT_STATUS(kQDAStatusNotFound, subMethod->GetQualifier("Here", None()));
  EXPECT_THAT(QualifiersOf(*sub), IsEmpty());
  EXPECT_THAT(QualifiersOf(*subProperty), IsEmpty());

  Qualify(sub, *sub, "Down", TCIMValue("own"));
  EXPECT_EQ(TCIMValue("own"), sub->GetQualifier("down", None())->GetValue(None()));
  EXPECT_EQ(TCIMValue("d"), base->GetQualifier("down", None())->GetValue(None()));
  EXPECT_THAT(QualifiersOf(*sub), ElementsAre("Down"));
}

TEST(MemoryQualifier, InheritedValueIsFixedWithoutEnableOverride) {
  const Namespace ns = CreateMemoryNamespace("n");
  Declare(ns, "Fixed", TCIMValue(""), kQualifierToSubclass);
  const Class base = Open(ns, "Base");
  Qualify(base, *base, "Fixed", TCIMValue("a"));
  base->Commit(None());
  const Class sub = Open(ns, "Sub", base);
  EXPECT_STATUS(kQDAStatusNotOverridable, Qualify(sub, *sub, "Fixed", TCIMValue("b")));
  EXPECT_STATUS(kQDAStatusNotOverridable, Qualify(sub, *sub, "Fixed", Null(Type::kCIMTypeString)));
  EXPECT_THAT(QualifiersOf(*sub), IsEmpty());
  Qualify(sub, *sub, "Fixed", TCIMValue("a"));
  EXPECT_THAT(QualifiersOf(*sub), ElementsAre("Fixed"));
}

TEST(MemoryQualifier, StandardAssociationCannotBeTakenBack) {
  const Namespace ns = MakeNamespace();
  const Class base = Open(ns, "Base");
  Qualify(base, *base, "Association", TCIMValue(true));
  base->Commit(None());
  const Class sub = Open(ns, "Sub", base);
  EXPECT_STATUS(kQDAStatusNotOverridable, Qualify(sub, *sub, "Association", TCIMValue(false)));
  EXPECT_TRUE(sub->IsAssociation(None()));
}

TEST(MemoryQualifier, AddedDuringAnEnumerationIsNotPresented) {
  const Namespace ns = MakeNamespace();
  const Class cls = Open(ns, "Cls");
  Qualify(cls, *cls, "Description", TCIMValue("d"));
  Names seen;
  boost::function<bool(Qualifier)> visit = [&](Qualifier qualifier) {
    seen.push_back(qualifier->GetQualifierDecl(None())->GetName(None()));
    Qualify(cls, *cls, "Version", TCIMValue("1"));
    return true;
  };
  cls->EnumerateQualifiers(visit, None());
  EXPECT_THAT(seen, ElementsAre("Description"));
  EXPECT_THAT(QualifiersOf(*cls), ElementsAre("Description", "Version"));
}

TEST(MemoryQualifier, EnumerationStopsWhereItIsTold) {
  const Namespace ns = MakeNamespace();
  const Class cls = Open(ns, "Cls");
  Qualify(cls, *cls, "Description", TCIMValue("d"));
  Qualify(cls, *cls, "Version", TCIMValue("1"));
  int seen = 0;
  boost::function<bool(Qualifier)> visit = [&](Qualifier) {
    ++seen;
    return false;
  };
  cls->EnumerateQualifiers(visit, None());
  EXPECT_EQ(1, seen);
}

}  // namespace
}  // namespace memory_test

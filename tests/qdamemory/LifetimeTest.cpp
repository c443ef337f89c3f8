// Who keeps what alive. Under the sanitizers these tests also prove that nothing leaks.

#include <tests/qdamemory/MemoryTestSupport.h>

namespace memory_test {
namespace {

// A namespace with all that could hold it in a circle: classes that refer to each other and to
// themselves, instances whose references are resolved.
Namespace MakeEntangled() {
  const Namespace ns = MakeNamespace();
  const Class left = Open(ns, "Left");
  const Class right = Open(ns, "Right");
  AddKey(left, "ID", Null(Type::kCIMTypeString));
  AddKey(right, "ID", Null(Type::kCIMTypeString));
  Add(left, "Self", NullReferenceTo(left));
  Add(left, "Other", NullReferenceTo(right));
  Add(right, "Other", NullReferenceTo(left));
  Add(right, "Many", Null(Type::kCIMTypeReference, true));
  Qualify(left, *left, "Description", TCIMValue("left"));
  left->AddMethodDecl("Start", Type::kCIMTypeUint32, None())
      ->AddParameterDecl("When", Type::kCIMTypeUint32, None());
  left->SetStaticProperty("Self", ReferenceValue(ns, "Left.ID=\"a\""), None());
  left->Commit(None());
  right->Commit(None());
  const Instance a = Publish(left, "ID", TCIMValue("a"));
  const Instance b = Publish(right, "ID", TCIMValue("b"));
  TCIMReference toA(ns, "Left.ID=\"a\"", None());
  TCIMReference toB(ns, "Right.ID=\"b\"", None());
  // From here on the two hold the instances.
  EXPECT_EQ(a, toA.GetCIMElement(false));
  EXPECT_EQ(b, toB.GetCIMElement(false));
  a->SetProperty("Self", TCIMValue(toA), None());
  a->SetProperty("Other", TCIMValue(toB), None());
  b->SetProperty("Other", TCIMValue(toA), None());
  const std::vector<TCIMValue> both = {TCIMValue(toA), TCIMValue(toB)};
  b->SetProperty("Many", TCIMValue(Type::kCIMTypeReference, 0, both), None());
  return ns;
}

TEST(MemoryLifetime, EverythingGoesWithTheLastPointerToTheNamespace) {
  Namespace ns = MakeEntangled();
  const boost::weak_ptr<ICIMNamespace> weakNamespace = ns;
  const boost::weak_ptr<ICIMClass> weakClass = ns->GetClass("Left", None());
  const boost::weak_ptr<ICIMInstance> weakInstance = Resolve(ns, "Left.ID=\"a\"");
  const boost::weak_ptr<ICIMQualifierDecl> weakDecl = ns->GetQualifierDecl("Key", None());
  EXPECT_FALSE(weakInstance.expired());
  ns.reset();
  EXPECT_TRUE(weakNamespace.expired());
  EXPECT_TRUE(weakClass.expired());
  EXPECT_TRUE(weakInstance.expired());
  EXPECT_TRUE(weakDecl.expired());
}

TEST(MemoryLifetime, NothingThatIsGivenOutKeepsTheNamespace) {
  Namespace ns = MakeEntangled();
  const boost::weak_ptr<ICIMNamespace> weak = ns;
  const Class cls = ns->GetClass("Left", None());
  const Instance instance = Resolve(ns, "Left.ID=\"a\"");
  const boost::shared_ptr<ICIMProperty> property = instance->GetProperty("Other", None());
  const boost::shared_ptr<const ICIMPropertyDecl> decl = cls->GetPropertyDecl("ID", None());
  const boost::shared_ptr<ICIMQualifier> qualifier = decl->GetQualifier("Key", None());
  const boost::shared_ptr<ICIMQualifierDecl> qualifierDecl = ns->GetQualifierDecl("Key", None());
  const TCIMReference reference(ns, "Left.ID=\"a\"", None());
  ns.reset();
  EXPECT_TRUE(weak.expired());
}

TEST(MemoryLifetime, ClassOutlivesItsNamespaceHarmlessly) {
  Namespace ns = MakeEntangled();
  const Class cls = ns->GetClass("Left", None());
  const boost::shared_ptr<ICIMQualifierDecl> key = ns->GetQualifierDecl("Key", None());
  const Class open = Open(ns, "Half");
  const boost::shared_ptr<ICIMPropertyDecl> openDecl = Add(open, "P", TCIMValue(1));
  const Instance unpublished = Create(cls, "ID", TCIMValue("new"));
  ns.reset();

  EXPECT_EQ("Left", cls->GetName(None()));
  EXPECT_FALSE(cls->GetNamespace(None()));
  EXPECT_TRUE(cls->IsRootClass(None()));
  EXPECT_THAT(PropertiesOf(cls), ElementsAre("ID", "Self", "Other"));
  EXPECT_THAT(MethodsOf(cls), ElementsAre("Start"));
  EXPECT_THAT(StaticPropertiesOf(cls), ElementsAre("Self"));
  EXPECT_THAT(QualifiersOf(*cls), ElementsAre("Description"));
  EXPECT_THAT(InstancesOf(cls, true), IsEmpty());
  EXPECT_THAT(SubClassesOf(cls, true), IsEmpty());
  EXPECT_EQ("ID", cls->GetPropertyDecl("id", None())->GetName(None()));
  EXPECT_EQ("Description",
            cls->GetQualifier("Description", None())->GetQualifierDecl(None())->GetName(None()));

  EXPECT_STATUS(kQDAStatusInvalidOpSequence, cls->CreateInstance(None()));
  EXPECT_STATUS(kQDAStatusInvalidOpSequence, cls->AddInstance(unpublished));
  EXPECT_STATUS(kQDAStatusInvalidOpSequence, cls->SetStaticProperty("ID", TCIMValue("x"), None()));
  EXPECT_STATUS(kQDAStatusInvalidOpSequence, Add(open, "Q", TCIMValue(1)));
  EXPECT_STATUS(kQDAStatusInvalidOpSequence,
                open->AddMethodDecl("M", Type::kCIMTypeUint32, None()));
  EXPECT_STATUS(kQDAStatusInvalidOpSequence, open->AddQualifier(key, TCIMValue(true), None()));
  EXPECT_STATUS(kQDAStatusInvalidOpSequence, openDecl->AddQualifier(key, TCIMValue(true), None()));
  EXPECT_STATUS(kQDAStatusInvalidOpSequence, open->Commit(None()));
}

TEST(MemoryLifetime, InstanceOutlivesItsNamespaceWithItsValues) {
  Namespace ns = MakeEntangled();
  const Instance instance = Resolve(ns, "Left.ID=\"a\"");
  const boost::shared_ptr<ICIMProperty> property = instance->GetProperty("Other", None());
  const TCIMValue& value = property->GetValue(None());
  ns.reset();
  EXPECT_EQ("a", TextOf(instance, "ID"));
  EXPECT_EQ("Right.ID=\"b\"", value.ToString(10));
  EXPECT_EQ("Left", instance->GetClass(None())->GetName(None()));
  EXPECT_THAT(PropertiesOf(instance), ElementsAre("ID", "Self", "Other"));
  const TCIMReference reference = value;
  EXPECT_STATUS(kQDAStatusFail, reference.GetCIMElement(false));
}

TEST(MemoryLifetime, DefaultReferencesEndWithTheNamespace) {
  Namespace ns = MakeEntangled();
  const boost::shared_ptr<const ICIMPropertyDecl> decl =
      ns->GetClass("Left", None())->GetPropertyDecl("Other", None());
  const TCIMValue& value = decl->GetDefaultValue(None());
  EXPECT_EQ("Right", value.GetReferencedClass()->GetName(None()));
  ns.reset();
  EXPECT_EQ(Type::kCIMTypeReference, value.GetType());
  EXPECT_TRUE(value.IsNull());
  EXPECT_FALSE(value.GetReferencedClass());
}

TEST(MemoryLifetime, SubclassKeepsItsSuperclasses) {
  Namespace ns = MakeNamespace();
  Class sub = Make(ns, "Sub", Make(ns, "Mid", MakeKeyed(ns, "Base")));
  const boost::weak_ptr<ICIMClass> base = ns->GetClass("Base", None());
  const boost::weak_ptr<ICIMClass> mid = ns->GetClass("Mid", None());
  ns.reset();
  EXPECT_EQ("Mid", sub->GetSuperClass(None())->GetName(None()));
  EXPECT_EQ("ID", sub->GetPropertyDecl("ID", None())->GetName(None()));
  EXPECT_FALSE(base.expired());
  sub.reset();
  EXPECT_TRUE(mid.expired());
  EXPECT_TRUE(base.expired());
}

TEST(MemoryLifetime, DeclarationKeepsItsClass) {
  Namespace ns = MakeNamespace();
  const Class cls = Open(ns, "Cls");
  boost::shared_ptr<ICIMPropertyDecl> decl = AddKey(cls, "ID", TCIMValue("x"));
  const boost::shared_ptr<ICIMQualifier> qualifier = decl->GetQualifier("Key", None());
  const TCIMValue& value = qualifier->GetValue(None());
  ns.reset();
  decl.reset();
  EXPECT_EQ(TCIMValue(true), value);
  EXPECT_EQ("Key", qualifier->GetQualifierDecl(None())->GetName(None()));
}

TEST(MemoryLifetime, TwoNamespacesThatReferToEachOther) {
  Namespace first = MakeNamespace();
  Namespace second = MakeNamespace();
  const boost::weak_ptr<ICIMClass> weakFirst = MakeKeyed(first, "A");
  const boost::weak_ptr<ICIMClass> weakSecond = MakeKeyed(second, "B");
  const Class toSecond = Open(first, "ToSecond");
  Add(toSecond, "Ref", NullReferenceTo(weakSecond.lock()));
  toSecond->Commit(None());
  const Class toFirst = Open(second, "ToFirst");
  Add(toFirst, "Ref", NullReferenceTo(weakFirst.lock()));
  toFirst->Commit(None());
  Publish(toSecond, "Ref", ReferenceValue(second, "B.ID=\"1\""));
  Publish(toFirst, "Ref", ReferenceValue(first, "A.ID=\"1\""));
  first.reset();
  EXPECT_FALSE(weakFirst.expired());
  second.reset();
  EXPECT_TRUE(weakFirst.expired());
  EXPECT_TRUE(weakSecond.expired());
}

TEST(MemoryLifetime, EnumerationsSurviveTheEndOfTheNamespace) {
  Namespace ns = MakeNamespace();
  Class base = MakeKeyed(ns, "Base");
  for (const char* name : {"X", "Y"}) {
    const Class sub = Make(ns, name, base);
    Publish(base, "ID", TCIMValue(name));
    Publish(sub, "ID", TCIMValue(std::string(name) + "1"));
  }
  ICIMClass& cls = *base;
  int instances = 0;
  boost::function<bool(Instance)> visitInstance = [&](Instance) {
    ns.reset();
    base.reset();
    return ++instances != 0;
  };
  cls.EnumerateInstances(visitInstance, true, None());
  EXPECT_EQ(1, instances);

  ns = MakeNamespace();
  base = MakeKeyed(ns, "Base");
  Make(ns, "Y", Make(ns, "X", base));
  ICIMClass& again = *base;
  int classes = 0;
  boost::function<bool(Class)> visitClass = [&](Class) {
    ns.reset();
    base.reset();
    return ++classes != 0;
  };
  again.EnumerateSubClasses(visitClass, true, None());
  EXPECT_EQ(1, classes);

  ns = MakeNamespace();
  Make(ns, "A");
  Make(ns, "B");
  ICIMNamespace& alone = *ns;
  int roots = 0;
  boost::function<bool(Class)> visitRoot = [&](Class) {
    ns.reset();
    return ++roots != 0;
  };
  alone.EnumerateClasses(visitRoot, None());
  EXPECT_EQ(2, roots);
}

}  // namespace
}  // namespace memory_test

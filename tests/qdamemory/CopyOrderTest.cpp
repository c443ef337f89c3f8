// A class rebuilt in another namespace, in the order in which a copier calls the interfaces:
// new classes are asked for what they inherit before they are committed, and methods are never
// committed.

#include <qdacore/frame/TQDAException.h>
#include <tests/qdamemory/MemoryTestSupport.h>

namespace memory_test {
namespace {

typedef boost::shared_ptr<ICIMQualifier> Qualifier;
typedef boost::shared_ptr<ICIMPropertyDecl> PropertyDecl;

void CopyQualifiers(const ICIMNamedElement& from, ICIMNamedElement& to, const Namespace& target) {
  boost::function<bool(Qualifier)> visit = [&](Qualifier qualifier) {
    const std::string name = qualifier->GetQualifierDecl(None())->GetName(None());
    to.AddQualifier(target->GetQualifierDecl(name, None()), qualifier->GetValue(None()), None())
        ->Commit(None());
    return true;
  };
  from.EnumerateQualifiers(visit, None());
}

void CopyProperty(const PropertyDecl& source, const Class& copy, const Namespace& target) {
  try {
    copy->GetPropertyDecl(source->GetName(None()), None());
    try {
      source->GetQualifier("OVERRIDE", None());
    } catch (const TQDAException&) {
      return;
    }
  } catch (const TQDAException& failure) {
    ASSERT_STREQ("kQDAStatusNotFound", failure.what());
  }
  const PropertyDecl decl = Add(copy, source->GetName(None()), source->GetDefaultValue(None()));
  CopyQualifiers(*source, *decl, target);
  decl->Commit(None());
}

void CopyMethod(const ICIMMethodDecl& source, const Class& copy, const Namespace& target) {
  const boost::weak_ptr<ICIMMethodDecl> weak =
      copy->AddMethodDecl(source.GetName(None()), source.GetType(None()), None());
  boost::function<bool(boost::shared_ptr<ICIMParameterDecl>)> visit =
      [&](boost::shared_ptr<ICIMParameterDecl> parameter) {
        const boost::shared_ptr<ICIMParameterDecl> added = weak.lock()->AddParameterDecl(
            parameter->GetName(None()), parameter->GetType(None()), None());
        CopyQualifiers(*parameter, *added, target);
        added->Commit(None());
        return true;
      };
  source.EnumerateParameterDecls(visit, None());
  CopyQualifiers(source, *weak.lock(), target);
}

Class CopyClass(const Class& source, const Namespace& target) {
  Class superclass;
  if (!source->IsRootClass(None())) {
    const std::string name = source->GetSuperClass(None())->GetName(None());
    superclass = target->GetClass(name, None());
  }
  const Class copy = target->CreateClass(source->GetName(None()), superclass, None());
  CopyQualifiers(*source, *copy, target);
  boost::function<bool(PropertyDecl)> visitProperty = [&](PropertyDecl decl) {
    CopyProperty(decl, copy, target);
    return true;
  };
  source->EnumeratePropertyDecls(visitProperty, None());
  boost::function<bool(boost::shared_ptr<ICIMProperty>)> visitStatic =
      [&](boost::shared_ptr<ICIMProperty> property) {
        copy->SetStaticProperty(property->GetPropertyDecl(None())->GetName(None()),
                                property->GetValue(None()), None());
        return true;
      };
  source->EnumerateStaticProperties(visitStatic, None());
  boost::function<bool(boost::shared_ptr<ICIMMethodDecl>)> visitMethod =
      [&](boost::shared_ptr<ICIMMethodDecl> method) {
        CopyMethod(*method, copy, target);
        return true;
      };
  source->EnumerateMethodDecls(visitMethod, None());
  copy->Commit(None());
  return copy;
}

// Base, Mid that overrides one property of it, Leaf that inherits the override.
Namespace MakeSource() {
  const Namespace ns = MakeNamespace();
  const Class base = Open(ns, "Base");
  Qualify(base, *base, "Description", TCIMValue("the base"));
  AddKey(base, "ID", Null(Type::kCIMTypeString));
  Add(base, "Size", TCIMValue(1u));
  base->SetStaticProperty("Size", TCIMValue(2u), None());
  base->Commit(None());
  const Class mid = Open(ns, "Mid", base);
  Qualify(mid, *Add(mid, "Size", TCIMValue(3u)), "Override", TCIMValue("Size"));
  mid->Commit(None());
  const Class leaf = Open(ns, "Leaf", mid);
  Add(leaf, "Extra", TCIMValue("x"));
  const boost::shared_ptr<ICIMMethodDecl> start =
      leaf->AddMethodDecl("Start", Type::kCIMTypeUint32, None());
  Qualify(leaf, *start, "Description", TCIMValue("starts"));
  Qualify(leaf, *start->AddParameterDecl("When", Type::kCIMTypeDateTime, None()), "In",
          TCIMValue(true));
  leaf->Commit(None());
  return ns;
}

TEST(MemoryCopyOrder, ClassesAreRebuiltAsTheyWere) {
  const Namespace source = MakeSource();
  const Namespace target = MakeNamespace();
  const Class base = CopyClass(source->GetClass("Base", None()), target);
  const Class mid = CopyClass(source->GetClass("Mid", None()), target);
  const Class leaf = CopyClass(source->GetClass("Leaf", None()), target);

  EXPECT_THAT(RootsOf(target), ElementsAre("Base"));
  EXPECT_THAT(SubClassesOf(base, true), ElementsAre("Mid", "Leaf"));
  EXPECT_THAT(QualifiersOf(*base), ElementsAre("Description"));
  EXPECT_THAT(PropertiesOf(base), ElementsAre("ID", "Size"));
  EXPECT_THAT(PropertiesOf(mid), ElementsAre("Size"));
  EXPECT_THAT(PropertiesOf(leaf), ElementsAre("Extra"));
  EXPECT_THAT(StaticPropertiesOf(base), ElementsAre("Size"));
  EXPECT_THAT(StaticPropertiesOf(leaf), IsEmpty());
  EXPECT_THAT(MethodsOf(leaf), ElementsAre("Start"));
  EXPECT_EQ(TCIMValue(3u), leaf->GetPropertyDecl("Size", None())->GetDefaultValue(None()));
  Publish(leaf, "ID", TCIMValue("a"));
  EXPECT_TRUE(Resolve(target, "Base.ID=\"a\""));
}

TEST(MemoryCopyOrder, ClassThatFailedPartWayStaysOpenAndInPlace) {
  const Namespace source = MakeSource();
  const Namespace target = CreateMemoryNamespace("without qualifiers");
  EXPECT_STATUS(kQDAStatusNotFound, CopyClass(source->GetClass("Base", None()), target));
  const Class half = target->GetClass("Base", None());
  EXPECT_STATUS(kQDAStatusInvalidOpSequence, half->CreateInstance(None()));
  EXPECT_STATUS(kQDAStatusAlreadyExists, CopyClass(source->GetClass("Base", None()), target));
  EXPECT_STATUS(kQDAStatusNotFound, CopyClass(source->GetClass("Leaf", None()), target));
}

}  // namespace
}  // namespace memory_test

// What a reference asks of its namespace and class: which calls, in which order, with which
// context, and what becomes of their failures.

#include <boost/make_shared.hpp>

#include <tests/cim/value/ReferenceFixture.h>

namespace {

using namespace NZRVQDA20;
using cim_test::Context;
using cim_test::OpaqueInstance;
using cim_test::RecordingNamespace;
using testing::ElementsAre;
using testing::IsEmpty;

class TCIMReferenceLookup : public cim_test::ReferenceTest {
 protected:
  void FailAt(const std::string& call, TQDAStatusCode::EQDAStatusCode status) {
    ns->record->before[call] = [status] { throw TQDAException(status); };
  }

  const Context context{{"key", TCIMValue("value")}};
};

TEST_F(TCIMReferenceLookup, ClassAloneIsOneCallWithTheContext) {
  const TCIMReference reference(ns, "Cls", context);
  EXPECT_THAT(ns->TakeCalls(), ElementsAre("GetClass(Cls) {key=value}"));
}

TEST_F(TCIMReferenceLookup, OnlyClassLookupsGetTheContext) {
  const TCIMReference reference(ns, "ns:Cls.B=\"2\",Number=\"1\"", context);
  EXPECT_THAT(
      ns->TakeCalls(),
      ElementsAre("GetClass(Cls) {key=value}",  //
                  "Cls.GetPropertyDecl(B) {}", "B.GetDefaultValue() {}", "B.GetType() {}",
                  "Cls.GetPropertyDecl(B) {}", "B.GetType() {}",  //
                  "Cls.GetPropertyDecl(Number) {}", "Number.GetDefaultValue() {}",
                  "Number.GetType() {}", "Cls.GetPropertyDecl(Number) {}", "Number.GetType() {}"));
}

TEST_F(TCIMReferenceLookup, NestedReferenceUsesTheSameContext) {
  const TCIMReference reference(ns, "Other.Ref=\"Cls.A=\"1\"\"", context);
  EXPECT_THAT(ns->TakeCalls(),
              ElementsAre("GetClass(Other) {key=value}",  //
                          "Other.GetPropertyDecl(Ref) {}", "Ref.GetDefaultValue() {}",
                          "GetClass(Cls) {key=value}",  //
                          "Cls.GetPropertyDecl(A) {}", "A.GetDefaultValue() {}", "A.GetType() {}",
                          "Cls.GetPropertyDecl(A) {}", "A.GetType() {}",  //
                          "Other.GetPropertyDecl(Ref) {}", "Ref.GetType() {}"));
}

TEST_F(TCIMReferenceLookup, NestedReferenceKeepsTheContext) {
  const TCIMReference reference(ns, "Other.Ref=\"Cls.A=\"1\"\"", context);
  ns->TakeCalls();
  reference.EnumerateKeyBindings([](std::pair<std::string, TCIMValue> binding) {
    TCIMReference target = binding.second;
    EXPECT_STATUS(kQDAStatusInvalidOpSequence, target.SetClassName("Other"));
    TCIMReference again = target;
    const boost::shared_ptr<ICIMNamespace> home = again.GetNamespace();
    again.Clear();
    again.SetNamespace(home);
    again.SetClassName("Other");
    return true;
  });
  EXPECT_THAT(ns->TakeCalls(), ElementsAre("GetClass(Other) {key=value}"));
}

TEST_F(TCIMReferenceLookup, ContextCanBeReplaced) {
  TCIMReference reference(ns, context);
  reference.SetContext({{"a", TCIMValue(1)}, {"b", TCIMValue(true)}});
  reference.SetClassName("Cls");
  EXPECT_THAT(ns->TakeCalls(), ElementsAre("GetClass(Cls) {a=1,b=true}"));
}

TEST_F(TCIMReferenceLookup, PathAsksOnlyForTheNameWithAnEmptyContext) {
  const TCIMReference reference(ns, "Cls.A=\"1\"", context);
  ns->TakeCalls();
  reference.GetPath();
  EXPECT_THAT(ns->TakeCalls(), ElementsAre("Cls.GetName() {}"));
  reference.GetClassName();
  EXPECT_THAT(ns->TakeCalls(), ElementsAre("Cls.GetName() {}"));
}

TEST_F(TCIMReferenceLookup, AddingAKeyAsksForItsDeclaration) {
  TCIMReference reference(ns, context);
  reference.SetClass(ns->Class("Cls"));
  reference.AddKeyValue("A", TCIMValue("1"));
  EXPECT_THAT(ns->TakeCalls(), ElementsAre("Cls.GetPropertyDecl(A) {}", "A.GetType() {}"));
}

TEST_F(TCIMReferenceLookup, CopiesAndComparisonsAskNobody) {
  const TCIMReference reference(ns, "Cls.A=\"1\"", context);
  ns->TakeCalls();
  const TCIMReference copy(reference);
  EXPECT_TRUE(copy == reference);
  EXPECT_FALSE(copy < reference);
  EXPECT_THAT(ns->TakeCalls(), IsEmpty());
}

TEST_F(TCIMReferenceLookup, OtherFailureOfAClassLookupPasses) {
  FailAt("GetClass(Cls)", TQDAStatusCode::kQDAStatusAccessDenied);
  EXPECT_STATUS(kQDAStatusAccessDenied, Parse("Cls"));
  EXPECT_STATUS(kQDAStatusAccessDenied, Parse("Cls.A=\"1\""));
  EXPECT_STATUS(kQDAStatusAccessDenied, Parse("Other.Ref=\"Cls.A=\"1\"\""));
  EXPECT_THAT(log.Lines(), IsEmpty());
}

TEST_F(TCIMReferenceLookup, OtherFailureOfAPropertyLookupPasses) {
  FailAt("Cls.GetPropertyDecl(A)", TQDAStatusCode::kQDAStatusCimomConnectFailure);
  EXPECT_STATUS(kQDAStatusCimomConnectFailure, Parse("Cls.A=\"1\""));
  EXPECT_THAT(log.Lines(), IsEmpty());
}

TEST_F(TCIMReferenceLookup, NotFoundElsewhereIsNotTranslated) {
  FailAt("A.GetType()", TQDAStatusCode::kQDAStatusNotFound);
  EXPECT_STATUS(kQDAStatusNotFound, Parse("Cls.A=\"1\""));
  FailAt("B.GetDefaultValue()", TQDAStatusCode::kQDAStatusNotFound);
  EXPECT_STATUS(kQDAStatusNotFound, Parse("Cls.B=\"1\""));
  EXPECT_THAT(log.Lines(), IsEmpty());
}

TEST_F(TCIMReferenceLookup, FailureOfAnotherKindPasses) {
  ns->record->before["GetClass(Cls)"] = [] { throw std::runtime_error("broken"); };
  EXPECT_THROW(Parse("Cls.A=\"1\""), std::runtime_error);
  ns->record->before["Other.GetPropertyDecl(A)"] = [] { throw 7; };
  EXPECT_THROW(Parse("Other.A=\"1\""), int);
  EXPECT_THAT(log.Lines(), IsEmpty());
}

TEST_F(TCIMReferenceLookup, FailedClassNameKeepsTheOldClass) {
  TCIMReference reference(ns, "Cls", context);
  EXPECT_STATUS(kQDAStatusNotFound, reference.SetClassName("Unknown"));
  EXPECT_EQ("Cls", reference.GetPath());
}

TEST_F(TCIMReferenceLookup, NamespaceThatExpiresMeanwhileIsAFailedAssertion) {
  const boost::shared_ptr<cim_test::Record> record = ns->record;
  TCIMReference reference(ns);
  // The nested class lookup finds the namespace gone.
  record->before["Ref.GetDefaultValue()"] = [this] { ns.reset(); };
  EXPECT_STATUS(kQDAStatusFail, reference.SetPath("Other.Ref=\"Cls.A=\"1\"\""));
  EXPECT_FALSE(reference.GetNamespace());
  EXPECT_THAT(log.Lines(), IsEmpty());
}

TEST_F(TCIMReferenceLookup, NamespaceThatOnlyTheArgumentHoldsIsAsked) {
  const boost::shared_ptr<ICIMClass> cls = ns->Class("Cls");
  const TCIMReference reference(std::move(ns), "Cls.A=\"1\"", context);
  EXPECT_EQ("Cls.A=\"1\"", reference.GetPath());
  EXPECT_EQ(cls, reference.GetClass());
}

TEST_F(TCIMReferenceLookup, ClassOnlyNeverAsks) {
  const TCIMReference reference = Parse("Cls.A=\"1\"");
  ns->TakeCalls();
  EXPECT_EQ(ns->Class("Cls"),
            boost::dynamic_pointer_cast<ICIMClass>(reference.GetCIMElement(true)));
  const TCIMReference withoutKeys = Parse("Cls");
  ns->TakeCalls();
  EXPECT_EQ(ns->Class("Cls"),
            boost::dynamic_pointer_cast<ICIMClass>(withoutKeys.GetCIMElement(false)));
  EXPECT_THAT(ns->TakeCalls(), IsEmpty());
}

TEST_F(TCIMReferenceLookup, InstanceIsAskedOnceOfTheClassesNamespace) {
  ns->instance = boost::make_shared<OpaqueInstance>();
  const TCIMReference reference(ns, "Cls.A=\"1\"", context);
  ns->TakeCalls();
  EXPECT_EQ(ns->instance, reference.GetCIMElement(false));
  EXPECT_THAT(ns->TakeCalls(), ElementsAre("Cls.GetNamespace() {}", "GetInstance {}"));
  EXPECT_EQ(&reference, ns->askedFor);
  EXPECT_EQ(ns->instance, reference.GetCIMElement(false));
  EXPECT_THAT(ns->TakeCalls(), IsEmpty());
}

TEST_F(TCIMReferenceLookup, ClassesNamespaceMayBeAnother) {
  const boost::shared_ptr<RecordingNamespace> home = RecordingNamespace::Create();
  home->instance = boost::make_shared<OpaqueInstance>();
  ns->Declare("Guest", home).With("A", TType::kCIMTypeString);
  TCIMReference reference = Parse("Guest.A=\"1\"");
  reference.SetNamespace(boost::shared_ptr<ICIMNamespace>());
  EXPECT_EQ(home->instance, reference.GetCIMElement(false));
  EXPECT_THAT(home->TakeCalls(), ElementsAre("GetInstance {}"));
}

TEST_F(TCIMReferenceLookup, MissingInstanceIsNotFoundAndAskedAgain) {
  const TCIMReference reference = Parse("Cls.A=\"1\"");
  EXPECT_STATUS(kQDAStatusNotFound, reference.GetCIMElement(false));
  ns->instance = boost::make_shared<OpaqueInstance>();
  EXPECT_EQ(ns->instance, reference.GetCIMElement(false));
  EXPECT_THAT(log.Lines(), IsEmpty());
}

TEST_F(TCIMReferenceLookup, FailureOfTheInstanceLookupPasses) {
  const TCIMReference reference = Parse("Cls.A=\"1\"");
  FailAt("GetInstance", TQDAStatusCode::kQDAStatusRequiredContextMissing);
  EXPECT_STATUS(kQDAStatusRequiredContextMissing, reference.GetCIMElement(false));
}

TEST_F(TCIMReferenceLookup, ClassWithoutANamespaceIsAFailedAssertion) {
  const TCIMReference reference = Parse("Cls.A=\"1\"");
  ns.reset();
  EXPECT_STATUS(kQDAStatusFail, reference.GetCIMElement(false));
}

TEST_F(TCIMReferenceLookup, FoundInstanceStaysUntilClear) {
  const boost::shared_ptr<ICIMInstance> first = boost::make_shared<OpaqueInstance>();
  const boost::shared_ptr<ICIMInstance> second = boost::make_shared<OpaqueInstance>();
  ns->instance = first;
  TCIMReference reference = Parse("Cls.A=\"1\"");
  EXPECT_EQ(first, reference.GetCIMElement(false));
  ns->instance = second;
  reference.AddKeyValue("B", TCIMValue("2"));
  EXPECT_EQ(first, reference.GetCIMElement(false));
  reference.Clear();
  reference.SetNamespace(ns);
  reference.SetPath("Cls.A=\"1\"");
  EXPECT_EQ(second, reference.GetCIMElement(false));
}

TEST_F(TCIMReferenceLookup, CopyCarriesTheFoundInstanceAndAsksForItself) {
  ns->instance = boost::make_shared<OpaqueInstance>();
  const TCIMReference reference = Parse("Cls.A=\"1\"");
  const TCIMReference before(reference);
  reference.GetCIMElement(false);
  const TCIMReference after(reference);
  ns->TakeCalls();
  EXPECT_EQ(ns->instance, after.GetCIMElement(false));
  EXPECT_THAT(ns->TakeCalls(), IsEmpty());
  EXPECT_EQ(ns->instance, before.GetCIMElement(false));
  EXPECT_EQ(&before, ns->askedFor);
}

}  // namespace

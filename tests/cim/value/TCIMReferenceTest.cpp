// The reference: its states, its keys, its path, and how two compare.

#include <tests/cim/value/ReferenceFixture.h>

namespace {

using namespace NZRVQDA20;
using cim_test::Context;
using cim_test::RecordingNamespace;
using cim_test::TypeFromNumber;
using testing::ElementsAre;
using testing::IsEmpty;

class TCIMReferenceTest : public cim_test::ReferenceTest {
 protected:
  TCIMReference Of(const std::string& cls) {
    TCIMReference reference(ns);
    reference.SetClass(ns->Class(cls));
    return reference;
  }

  TCIMReference WithA(const std::string& a) {
    TCIMReference reference = Of("Cls");
    reference.AddKeyValue("A", TCIMValue(a));
    return reference;
  }
};

TEST_F(TCIMReferenceTest, DefaultIsEmpty) {
  TCIMReference reference;
  EXPECT_FALSE(reference.GetNamespace());
  EXPECT_EQ("", reference.GetNameSpaceName());
  EXPECT_THAT(Keys(reference), IsEmpty());
  EXPECT_STATUS(kQDAStatusInvalidReference, reference.GetClass());
  EXPECT_FALSE(reference.GetCIMElement(false));
  EXPECT_FALSE(reference.GetCIMElement(true));
}

TEST_F(TCIMReferenceTest, WithoutAClassNameAndPathAreFailedAssertions) {
  const TCIMReference reference(ns);
  EXPECT_STATUS(kQDAStatusFail, reference.GetClassName());
  EXPECT_STATUS(kQDAStatusFail, reference.GetPath());
}

TEST_F(TCIMReferenceTest, ClassCanBeSetAgainUntilThereAreKeys) {
  TCIMReference reference(ns);
  reference.SetClass(ns->Class("Cls"));
  EXPECT_EQ(ns->Class("Cls"), reference.GetClass());
  EXPECT_EQ("Cls", reference.GetClassName());
  EXPECT_EQ("Cls", reference.GetPath());
  reference.SetClassName("Other");
  EXPECT_EQ("Other", reference.GetPath());
  reference.SetClass(boost::shared_ptr<ICIMClass>());
  EXPECT_STATUS(kQDAStatusInvalidReference, reference.GetClass());

  reference.SetClass(ns->Class("Cls"));
  reference.AddKeyValue("A", TCIMValue("1"));
  EXPECT_STATUS(kQDAStatusInvalidOpSequence, reference.SetClass(ns->Class("Other")));
  EXPECT_STATUS(kQDAStatusInvalidOpSequence, reference.SetClassName("Other"));
  EXPECT_STATUS(kQDAStatusInvalidOpSequence, reference.SetPath("Other"));
  EXPECT_EQ("Cls.A=\"1\"", reference.GetPath());
  EXPECT_THAT(log.Lines(), IsEmpty());
}

TEST_F(TCIMReferenceTest, ClassNamesAndPathsNeedALiveNamespace) {
  TCIMReference reference;
  EXPECT_STATUS(kQDAStatusInvalidOpSequence, reference.SetClassName("Cls"));
  EXPECT_STATUS(kQDAStatusInvalidOpSequence, reference.SetPath("Cls"));
  reference.SetNamespace(ns);
  ns.reset();
  EXPECT_FALSE(reference.GetNamespace());
  EXPECT_STATUS(kQDAStatusInvalidOpSequence, reference.SetClassName("Cls"));
  EXPECT_STATUS(kQDAStatusInvalidOpSequence, reference.SetPath("Cls"));
  EXPECT_THAT(log.Lines(), IsEmpty());
}

TEST_F(TCIMReferenceTest, PathNeedsAReferenceWithoutClass) {
  TCIMReference reference = Of("Cls");
  EXPECT_STATUS(kQDAStatusInvalidOpSequence, reference.SetPath("Cls.A=\"1\""));
  reference.Clear();
  EXPECT_STATUS(kQDAStatusInvalidOpSequence, reference.SetPath("Cls.A=\"1\""));
  reference.SetNamespace(ns);
  reference.SetPath("Cls.A=\"1\"");
  EXPECT_EQ("Cls.A=\"1\"", reference.GetPath());
}

TEST_F(TCIMReferenceTest, NamespaceIsHeldWeakly) {
  TCIMReference reference(ns);
  EXPECT_EQ(1, ns.use_count());
  EXPECT_EQ(ns, reference.GetNamespace());
  reference.SetNamespace(boost::shared_ptr<ICIMNamespace>());
  EXPECT_FALSE(reference.GetNamespace());
}

TEST_F(TCIMReferenceTest, PathOutlivesTheNamespace) {
  const TCIMReference reference = Parse("Cls.A=\"1\"");
  ns.reset();
  EXPECT_EQ("Cls.A=\"1\"", reference.GetPath());
  EXPECT_EQ("Cls", reference.GetClassName());
}

TEST_F(TCIMReferenceTest, NamespaceNameIsALabel) {
  TCIMReference reference = Of("Cls");
  reference.SetNameSpaceName("root/cimv2");
  EXPECT_EQ("root/cimv2", reference.GetNameSpaceName());
  EXPECT_EQ("Cls", reference.GetPath());
}

TEST_F(TCIMReferenceTest, KeysNeedAClass) {
  TCIMReference reference(ns);
  EXPECT_STATUS(kQDAStatusInvalidOpSequence, reference.AddKeyValue("A", TCIMValue("1")));
  EXPECT_THAT(log.Lines(), IsEmpty());
}

TEST_F(TCIMReferenceTest, KeyOfAnotherTypeIsLoggedAndRefused) {
  TCIMReference reference = Of("Cls");
  EXPECT_STATUS(kQDAStatusTypeMismatch, reference.AddKeyValue("Number", TCIMValue(1)));
  EXPECT_STATUS(kQDAStatusTypeMismatch,
                reference.AddKeyValue("A", TCIMValue(TypeFromNumber(13), 0, {})));
  EXPECT_THAT(log.Lines(),
              ElementsAre("[Error] Core: Declaration type: uint32 Value type: sint32",
                          "[Error] Core: Declaration type: string Value type: string"));
  EXPECT_THAT(Keys(reference), IsEmpty());
}

TEST_F(TCIMReferenceTest, KeyWhoseTypeHasNoSpellingIsRefusedWithoutALine) {
  TCIMReference reference = Of("Cls");
  EXPECT_STATUS(kQDAStatusTypeMismatch, reference.AddKeyValue("A", TCIMValue()));
  EXPECT_THAT(log.Lines(), IsEmpty());
}

TEST_F(TCIMReferenceTest, UnknownKeyIsTheClassesOwnFailure) {
  TCIMReference reference = Of("Cls");
  EXPECT_STATUS(kQDAStatusNotFound, reference.AddKeyValue("Unknown", TCIMValue("1")));
  ns->record->before["Cls.GetPropertyDecl(A)"] = [] {
    throw TQDAException(TQDAStatusCode::kQDAStatusAccessDenied);
  };
  EXPECT_STATUS(kQDAStatusAccessDenied, reference.AddKeyValue("A", TCIMValue("1")));
  EXPECT_THAT(log.Lines(), IsEmpty());
}

TEST_F(TCIMReferenceTest, RepeatedKeyKeepsTheFirstValue) {
  TCIMReference reference = WithA("first");
  reference.AddKeyValue("A", TCIMValue("second"));
  EXPECT_THAT(Keys(reference), ElementsAre("A=first"));
  // The type is tested all the same.
  EXPECT_STATUS(kQDAStatusTypeMismatch, reference.AddKeyValue("A", TCIMValue(1)));
}

TEST_F(TCIMReferenceTest, KeyIsACopy) {
  TCIMReference reference = Of("Cls");
  TCIMValue value("1");
  reference.AddKeyValue("A", value);
  value.Set("2");
  EXPECT_EQ("Cls.A=\"1\"", reference.GetPath());
}

TEST_F(TCIMReferenceTest, PathSortsByBytesAndEscapes) {
  ns->Declare("Sort")
      .With("b", TType::kCIMTypeString)
      .With("B", TType::kCIMTypeString)
      .With("a", TType::kCIMTypeUint8)
      .With("_", TType::kCIMTypeBoolean);
  TCIMReference reference = Of("Sort");
  reference.AddKeyValue("b", TCIMValue("a\"b\\c"));
  reference.AddKeyValue("a", TCIMValue(static_cast<unsigned char>(255)));
  reference.AddKeyValue("_", TCIMValue(true));
  reference.AddKeyValue("B", TCIMValue(""));
  EXPECT_EQ("Sort.B=\"\",_=\"true\",a=\"255\",b=\"a\\\"b\\\\c\"", reference.GetPath());
}

TEST_F(TCIMReferenceTest, NestedPathIsWrittenUnescaped) {
  TCIMReference inner = WithA("q\"q");
  TCIMReference outer = Of("Other");
  outer.AddKeyValue("Ref", TCIMValue(inner));
  outer.AddKeyValue("A", TCIMValue("x"));
  EXPECT_EQ("Other.A=\"x\",Ref=\"Cls.A=\"q\\\"q\"\"", outer.GetPath());
}

TEST_F(TCIMReferenceTest, NullKeyHasNoPath) {
  TCIMReference reference = Of("Cls");
  reference.AddKeyValue("A", TCIMValue(TypeFromNumber(13), 0));
  EXPECT_STATUS(kQDAStatusValueIsNULL, reference.GetPath());
}

TEST_F(TCIMReferenceTest, EnumerationFollowsTheOrderAndStopsAtFalse) {
  const TCIMReference reference = Parse("Cls.Number=\"3\",B=\"2\",A=\"1\"");
  EXPECT_THAT(Keys(reference), ElementsAre("A=1", "B=2", "Number=3"));
  std::vector<std::string> visited;
  reference.EnumerateKeyBindings([&visited](std::pair<std::string, TCIMValue> binding) {
    visited.push_back(binding.first);
    binding.second.Set("changed");
    return binding.first != "B";
  });
  EXPECT_THAT(visited, ElementsAre("A", "B"));
  EXPECT_EQ("Cls.A=\"1\",B=\"2\",Number=\"3\"", reference.GetPath());
}

TEST_F(TCIMReferenceTest, EmptyVisitorIsCalledOnlyWhenThereAreKeys) {
  const boost::function<bool(std::pair<std::string, TCIMValue>)> nobody;
  EXPECT_NO_THROW(Of("Cls").EnumerateKeyBindings(nobody));
  EXPECT_THROW(WithA("1").EnumerateKeyBindings(nobody), boost::bad_function_call);
}

TEST_F(TCIMReferenceTest, FailureOfAVisitorPasses) {
  EXPECT_STATUS(kQDAStatusAccessDenied,
                WithA("1").EnumerateKeyBindings([](std::pair<std::string, TCIMValue>) -> bool {
                  throw TQDAException(TQDAStatusCode::kQDAStatusAccessDenied);
                }));
}

TEST_F(TCIMReferenceTest, ClearKeepsContextAndLabel) {
  TCIMReference reference = WithA("1");
  reference.SetNameSpaceName("label");
  reference.SetContext({{"key", TCIMValue("value")}});
  reference.Clear();
  EXPECT_FALSE(reference.GetNamespace());
  EXPECT_STATUS(kQDAStatusInvalidReference, reference.GetClass());
  EXPECT_THAT(Keys(reference), IsEmpty());
  EXPECT_EQ("label", reference.GetNameSpaceName());
  ns->TakeCalls();
  reference.SetNamespace(ns);
  reference.SetClassName("Cls");
  EXPECT_THAT(ns->TakeCalls(), ElementsAre("GetClass(Cls) {key=value}"));
}

TEST_F(TCIMReferenceTest, CopiesHaveBodiesOfTheirOwn) {
  TCIMReference source = WithA("1");
  source.SetNameSpaceName("label");
  TCIMReference copy(source);
  TCIMReference assigned;
  EXPECT_EQ(&assigned, &(assigned = source));
  source.AddKeyValue("B", TCIMValue("2"));
  source.SetNameSpaceName("changed");
  for (TCIMReference* other : {&copy, &assigned}) {
    EXPECT_EQ("Cls.A=\"1\"", other->GetPath());
    EXPECT_EQ("label", other->GetNameSpaceName());
    EXPECT_EQ(ns, other->GetNamespace());
  }
}

TEST_F(TCIMReferenceTest, SelfAssignmentChangesNothing) {
  TCIMReference reference = WithA("1");
  TCIMReference& same = reference;
  reference = same;
  EXPECT_EQ("Cls.A=\"1\"", reference.GetPath());
  EXPECT_EQ(ns, reference.GetNamespace());
}

TEST_F(TCIMReferenceTest, EqualityLooksAtClassKeysAndLabel) {
  const boost::shared_ptr<RecordingNamespace> elsewhere = RecordingNamespace::Create();
  elsewhere->Declare("Cls").With("A", TType::kCIMTypeString);
  TCIMReference left = WithA("1");

  EXPECT_TRUE(left == WithA("1"));
  EXPECT_TRUE(TCIMReference() == TCIMReference());
  EXPECT_FALSE(left == WithA("2"));
  EXPECT_FALSE(left == Of("Cls"));
  EXPECT_FALSE(Of("Cls") == Of("Other"));
  EXPECT_FALSE(left == Parse("Cls.B=\"1\""));
  EXPECT_FALSE(left == TCIMReference(elsewhere, "Cls.A=\"1\"", Context()));

  TCIMReference other = WithA("1");
  other.SetNamespace(elsewhere);
  other.SetContext({{"key", TCIMValue("value")}});
  EXPECT_TRUE(left == other);
  other.SetNameSpaceName("label");
  EXPECT_FALSE(left == other);
}

TEST_F(TCIMReferenceTest, LabelsAloneMakeNoOrder) {
  TCIMReference left = WithA("1");
  TCIMReference right = WithA("1");
  right.SetNameSpaceName("label");
  EXPECT_FALSE(left == right);
  EXPECT_FALSE(left < right);
  EXPECT_FALSE(right < left);
}

TEST_F(TCIMReferenceTest, OrderWithinAClassIsThatOfTheKeys) {
  // Each less than the next.
  const char* const paths[] = {"Cls",
                               "Cls.A=\"1\"",
                               "Cls.A=\"1\",B=\"0\"",
                               "Cls.A=\"1\",B=\"1\"",
                               "Cls.A=\"2\"",
                               "Cls.A=\"2\",Number=\"10\"",
                               "Cls.B=\"0\"",
                               "Cls.Number=\"9\"",
                               "Cls.Number=\"10\""};
  for (std::size_t left = 0; left < std::size(paths); ++left) {
    for (std::size_t right = 0; right < std::size(paths); ++right) {
      SCOPED_TRACE(std::string(paths[left]) + " and " + paths[right]);
      EXPECT_EQ(left < right, Parse(paths[left]) < Parse(paths[right]));
      EXPECT_EQ(left == right, Parse(paths[left]) == Parse(paths[right]));
    }
  }
}

TEST_F(TCIMReferenceTest, OrderOfClassesIsOneWayAndDoesNotDependOnKeys) {
  const bool clsFirst = Of("Cls") < Of("Other");
  EXPECT_NE(clsFirst, Of("Other") < Of("Cls"));
  EXPECT_EQ(clsFirst, WithA("1") < Parse("Other.A=\"0\""));
  EXPECT_EQ(clsFirst, WithA("0") < Parse("Other"));
  EXPECT_EQ(clsFirst, ns->Class("Cls") < ns->Class("Other"));
}

}  // namespace

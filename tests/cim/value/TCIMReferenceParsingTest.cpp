// Reading object paths: what is accepted, and what each refusal says.

#include <qdacore/frame/TRootObject.h>
#include <tests/cim/value/ReferenceFixture.h>

namespace {

using namespace NZRVQDA20;
using cim_test::Context;
using cim_test::RecordingNamespace;
using cim_test::TypeFromNumber;
using testing::ElementsAre;
using testing::IsEmpty;

class TCIMReferenceParsing : public cim_test::ReferenceTest {};

struct AcceptedRow {
  const char* what;
  const char* path;
  // As GetPath gives it back.
  const char* canonical;
};

const AcceptedRow kAccepted[] = {
    {"class alone", "Cls", "Cls"},
    {"one key", "Cls.A=\"1\"", "Cls.A=\"1\""},
    {"keys are sorted", "Cls.B=\"2\",A=\"1\"", "Cls.A=\"1\",B=\"2\""},
    {"point between keys", "Cls.A=\"1\".B=\"2\"", "Cls.A=\"1\",B=\"2\""},
    {"namespace prefix", "ns:Cls.A=\"1\"", "Cls.A=\"1\""},
    {"prefix like a host", "//host/root/cimv2:Cls.A=\"1\"", "Cls.A=\"1\""},
    {"empty prefix", ":Cls.A=\"1\"", "Cls.A=\"1\""},
    {"colon in a value", "Cls.A=\"a:b\"", "Cls.A=\"a:b\""},
    {"point in a value", "Cls.A=\"a.b\",B=\".\"", "Cls.A=\"a.b\",B=\".\""},
    {"separators in a value", "Cls.A=\"a,B=b\"", "Cls.A=\"a,B=b\""},
    {"empty value", "Cls.A=\"\"", "Cls.A=\"\""},
    {"first value of a repeated key", "Cls.A=\"1\",A=\"2\"", "Cls.A=\"1\""},
    {"escaped quote", "Cls.A=\"a\\\"b\"", "Cls.A=\"a\\\"b\""},
    {"escaped backslash", "Cls.A=\"a\\\\b\"", "Cls.A=\"a\\\\b\""},
    {"escaped backslash at the end", "Cls.A=\"a\\\\\"", "Cls.A=\"a\\\\\""},
    {"other backslashes stay", "Cls.A=\"a\\qb\\n\"", "Cls.A=\"a\\\\qb\\\\n\""},
    {"number in hexadecimal", "Cls.Number=\"0x10\"", "Cls.Number=\"16\""},
    {"number in octal", "Cls.Number=\"010\"", "Cls.Number=\"8\""},
    {"number with text behind", "Cls.Number=\"12abc\"", "Cls.Number=\"12\""},
    {"no number", "Cls.Number=\"abc\"", "Cls.Number=\"0\""},
    {"time", "Cls.Time=\"20240102030405.000006+060\"", "Cls.Time=\"20240102030405.000006+060\""},
    {"reference", "Other.Ref=\"Cls.A=\"1\"\"", "Other.Ref=\"Cls.A=\"1\"\""},
    {"reference with several keys", "Other.Ref=\"Cls.B=\"2\",A=\"1\"\",A=\"x\"",
     "Other.A=\"x\",Ref=\"Cls.A=\"1\",B=\"2\"\""},
    {"reference with a prefix", "ns:Other.Ref=\"ns2:Cls.A=\"1\"\"", "Other.Ref=\"Cls.A=\"1\"\""},
    {"reference in a reference", "Cls.Ref=\"Other.Ref=\"Cls.A=\"1\"\",A=\"2\"\"",
     "Cls.Ref=\"Other.A=\"2\",Ref=\"Cls.A=\"1\"\"\""},
    {"escapes in a reference stay its own", "Other.Ref=\"Cls.A=\"a\\\"b\"\"",
     "Other.Ref=\"Cls.A=\"a\\\"b\"\""},
    {"reference that the text ends", "Other.Ref=\"Cls.A=\"1\"", "Other.Ref=\"Cls.A=\"1\"\""},
};

TEST_F(TCIMReferenceParsing, AcceptedPaths) {
  for (const AcceptedRow& row : kAccepted) {
    SCOPED_TRACE(row.what);
    const TCIMReference reference = Parse(row.path);
    EXPECT_EQ(row.canonical, reference.GetPath());
    // What is written reads back as an equal reference.
    EXPECT_TRUE(reference == Parse(reference.GetPath()));
  }
  EXPECT_THAT(log.Lines(), IsEmpty());
}

TEST_F(TCIMReferenceParsing, ValuesAreRead) {
  EXPECT_THAT(Keys(Parse("Cls.A=\"a\\qb\",B=\"a\\\"b\\\\\"")), ElementsAre("A=a\\qb", "B=a\"b\\"));
  EXPECT_THAT(Keys(Parse("Cls.A=\"Cls.B=1\"")), ElementsAre("A=Cls.B=1"));
}

TEST_F(TCIMReferenceParsing, ZeroBytesInAValueStay) {
  const std::string path("Cls.A=\"a\0b\"", 11);
  EXPECT_EQ(path, Parse(path).GetPath());
}

TEST_F(TCIMReferenceParsing, ReferenceValueKnowsItsClass) {
  const TCIMReference reference = Parse("Other.Ref=\"Cls.A=\"1\"\"");
  reference.EnumerateKeyBindings([this](std::pair<std::string, TCIMValue> binding) {
    EXPECT_TRUE(binding.second.IsReference());
    EXPECT_EQ(ns->Class("Cls"), binding.second.GetReferencedClass());
    TCIMReference target = binding.second;
    EXPECT_EQ(ns, target.GetNamespace());
    return true;
  });
}

TEST_F(TCIMReferenceParsing, EmptyNamesCanBeLookedUp) {
  ns->Declare("").With("", TType::kCIMTypeString);
  EXPECT_EQ("", Parse("").GetPath());
  EXPECT_EQ(".=\"1\"", Parse(".=\"1\"").GetPath());
}

TEST_F(TCIMReferenceParsing, NamesAreNotTrimmed) {
  ns->Declare(" Cls ").With(" A ", TType::kCIMTypeString);
  EXPECT_EQ(" Cls . A =\"1\"", Parse(" Cls . A =\"1\"").GetPath());
}

struct RefusedRow {
  const char* what;
  const char* path;
  // The line in the log, tag included, up to the path; empty: none.
  const char* line;
  const char* status;
};

const RefusedRow kRefused[] = {
    {"unknown class alone", "Unknown", "", "kQDAStatusNotFound"},
    {"prefix without keys is part of the name", "ns:Cls", "", "kQDAStatusNotFound"},
    {"empty text", "", "", "kQDAStatusNotFound"},
    {"unknown class with keys", "Unknown.A=\"1\"",
     "[Error] Reference specifies invalid class, path=", "kQDAStatusInvalidReference"},
    {"second colon is part of the name", "a:b:Cls.A=\"1\"",
     "[Error] Reference specifies invalid class, path=", "kQDAStatusInvalidReference"},
    {"class name ends at the first point", "Cls.1:Cls.A=\"1\"",
     "[Error] Reference specifies invalid property, property=1:Cls.A, path=",
     "kQDAStatusInvalidReference"},
    {"nothing behind the point", "Cls.",
     "[Error] Reference missing property value, path=", "kQDAStatusInvalidReference"},
    {"no equals sign", "Cls.A",
     "[Error] Reference missing property value, path=", "kQDAStatusInvalidReference"},
    {"no equals sign behind a key", "Cls.A=\"1\",B",
     "[Error] Reference missing property value, path=", "kQDAStatusInvalidReference"},
    {"comma at the end", "Cls.A=\"1\",",
     "[Error] Reference missing property value, path=", "kQDAStatusInvalidReference"},
    {"unknown property", "Cls.Unknown=\"1\"",
     "[Error] Reference specifies invalid property, property=Unknown, path=",
     "kQDAStatusInvalidReference"},
    {"unknown property before a missing quote", "Cls.Unknown=1",
     "[Error] Reference specifies invalid property, property=Unknown, path=",
     "kQDAStatusInvalidReference"},
    {"property name with a blank", "Cls. A=\"1\"",
     "[Error] Reference specifies invalid property, property= A, path=",
     "kQDAStatusInvalidReference"},
    {"case of a property counts here", "Cls.a=\"1\"",
     "[Error] Reference specifies invalid property, property=a, path=",
     "kQDAStatusInvalidReference"},
    {"no opening quote", "Cls.A=1",
     "[Debug] Reference missing opening '\"', path=", "kQDAStatusInvalidReference"},
    {"blank before the opening quote", "Cls.A= \"1\"",
     "[Debug] Reference missing opening '\"', path=", "kQDAStatusInvalidReference"},
    {"nothing behind the equals sign",
     "Cls.A=", "[Debug] Reference missing opening '\"', path=", "kQDAStatusInvalidReference"},
    {"no closing quote", "Cls.A=\"1",
     "[Error] Reference missing closing '\"', path=", "kQDAStatusInvalidReference"},
    {"opening quote at the end", "Cls.A=\"",
     "[Error] Reference missing closing '\"', path=", "kQDAStatusInvalidReference"},
    {"escaped closing quote", "Cls.A=\"1\\\"",
     "[Error] Reference missing closing '\"', path=", "kQDAStatusInvalidReference"},
    {"backslash at the end", "Cls.A=\"1\\",
     "[Error] Reference missing closing '\"', path=", "kQDAStatusInvalidReference"},
    {"text behind a value", "Cls.A=\"1\"x",
     "[Error] Reference missing '.' or ',', path=", "kQDAStatusInvalidReference"},
    {"blank behind a value", "Cls.A=\"1\" ,B=\"2\"",
     "[Error] Reference missing '.' or ',', path=", "kQDAStatusInvalidReference"},
    {"quote behind a value", "Cls.A=\"1\"\"",
     "[Error] Reference missing '.' or ',', path=", "kQDAStatusInvalidReference"},
    {"bad time", "Cls.Time=\"now\"", "", "kQDAStatusInvalidDateTime"},
    {"array key", "Cls.Array=\"1\"", "", "kQDAStatusTypeMismatch"},
    {"reference without quotes", "Other.Ref=Cls.A=\"1\"",
     "[Debug] Reference missing opening '\"', path=", "kQDAStatusInvalidReference"},
    {"reference without keys", "Other.Ref=\"Cls\"", "", "kQDAStatusNotFound"},
    {"reference that finds a point behind it", "Other.Ref=\"Cls\",A=\"x.y\"",
     "[Error] Reference specifies invalid class, path=", "kQDAStatusInvalidReference"},
    {"unknown class in a reference", "Other.Ref=\"Unknown.A=\"1\"\"",
     "[Error] Reference specifies invalid class, path=", "kQDAStatusInvalidReference"},
    {"unknown property in a reference", "Other.Ref=\"Cls.Unknown=\"1\"\"",
     "[Error] Reference specifies invalid property, property=Unknown, path=",
     "kQDAStatusInvalidReference"},
    {"text behind a value in a reference", "Other.Ref=\"Cls.A=\"1\"x\"",
     "[Error] Reference missing '.' or ',', path=", "kQDAStatusInvalidReference"},
    {"escaped quotes in a reference", "Other.Ref=\"Cls.A=\\\"1\\\"\"",
     "[Debug] Reference missing opening '\"', path=", "kQDAStatusInvalidReference"},
};

TEST_F(TCIMReferenceParsing, RefusedPaths) {
  std::vector<std::string> expectedLines;
  for (const RefusedRow& row : kRefused) {
    SCOPED_TRACE(row.what);
    EXPECT_EQ(row.status, test_support::ThrownStatus([&] { Parse(row.path); }));
    if (*row.line) {
      // The path at the end is the whole text, for a nested reference too.
      expectedLines.push_back(std::string(row.line) + row.path);
    }
  }
  EXPECT_THAT(log.Lines(), testing::ElementsAreArray(expectedLines));
}

TEST_F(TCIMReferenceParsing, Char16KeyCannotBeRead) {
  EXPECT_STATUS(kQDAStatusTypeMismatch, Parse("Cls.Character=\"x\""));
  EXPECT_THAT(log.Lines(),
              ElementsAre("[Error] Core: Declaration type: char16 Value type: string"));
}

TEST_F(TCIMReferenceParsing, FailureLeavesWhatWasBound) {
  TCIMReference reference(ns);
  EXPECT_STATUS(kQDAStatusInvalidReference, reference.SetPath("Cls.A=\"1\",B=2"));
  EXPECT_EQ("Cls.A=\"1\"", reference.GetPath());
  EXPECT_STATUS(kQDAStatusInvalidOpSequence, reference.SetPath("Cls.A=\"1\""));

  TCIMReference withClass(ns);
  EXPECT_STATUS(kQDAStatusInvalidReference, withClass.SetPath("Cls."));
  EXPECT_EQ("Cls", withClass.GetPath());

  TCIMReference empty(ns);
  EXPECT_STATUS(kQDAStatusInvalidReference, empty.SetPath("Unknown.A=\"1\""));
  EXPECT_STATUS(kQDAStatusInvalidReference, empty.GetClass());
  empty.SetPath("Cls.A=\"1\"");
  EXPECT_EQ("Cls.A=\"1\"", empty.GetPath());
}

TEST_F(TCIMReferenceParsing, DeclaredTypeAndDefaultEachHaveTheirSay) {
  // The default tells how a value is read, the declared type what may be bound.
  ns->Declare("Odd")
      .With("Text", TType::kCIMTypeString, TCIMValue(TypeFromNumber(15), 0))
      .With("Path", TType::kCIMTypeReference, TCIMValue(TypeFromNumber(13), 0))
      .With("Array", static_cast<TType::ECIMType>(31), TCIMValue(TypeFromNumber(31), 0));
  EXPECT_STATUS(kQDAStatusTypeMismatch, Parse("Odd.Text=\"Cls.A=\"1\"\""));
  EXPECT_EQ("Odd.Path=\"Cls\"", Parse("Odd.Path=\"Cls\"").GetPath());
  EXPECT_STATUS(kQDAStatusTypeMismatch, Parse("Odd.Array=\"Cls.A=\"1\"\""));
  EXPECT_THAT(log.Lines(),
              ElementsAre("[Error] Core: Declaration type: string Value type: reference"));
}

TEST(TCIMReferenceParsingWithoutLog, RefusesAllTheSame) {
  ASSERT_EQ(nullptr, TRootObject::GetCoreLogger());
  const boost::shared_ptr<RecordingNamespace> ns = RecordingNamespace::Create();
  ns->Declare("Cls")
      .With("A", TCIMValue::TCIMType::kCIMTypeString)
      .With("Character", TCIMValue::TCIMType::kCIMTypeChar16);
  for (const char* path :
       {"Unknown.A=\"1\"", "Cls.", "Cls.B=\"1\"", "Cls.A=1", "Cls.A=\"1", "Cls.A=\"1\"x"}) {
    SCOPED_TRACE(path);
    EXPECT_STATUS(kQDAStatusInvalidReference, TCIMReference(ns, path, Context()));
  }
  EXPECT_STATUS(kQDAStatusTypeMismatch, TCIMReference(ns, "Cls.Character=\"x\"", Context()));
}

}  // namespace

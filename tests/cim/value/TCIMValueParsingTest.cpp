// The constructor that reads the text of a key or literal.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tests/cim/value/SampleValues.h>
#include <tests/support/ExpectStatus.h>
#include <tests/support/LogCapture.h>

namespace {

using namespace NZRVQDA20;
using cim_test::RecordingNamespace;
using cim_test::TypeFromNumber;
using cim_test::Word;
using test_support::LogCapture;
using testing::ElementsAre;
using testing::IsEmpty;

TCIMValue Parse(int type, std::string text,
                boost::shared_ptr<ICIMNamespace> ns = boost::shared_ptr<ICIMNamespace>()) {
  const std::string before = text;
  const TCIMValue value(TypeFromNumber(type), text, ns);
  EXPECT_EQ(before, text);
  return value;
}

struct Row {
  const char* what;
  int type;
  const char* text;
  // As ToString(10) gives it.
  const char* value;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.what; }

class Parsing : public testing::TestWithParam<Row> {};

TEST_P(Parsing, GivesTheValue) {
  const Row& row = GetParam();
  const TCIMValue value = Parse(row.type, row.text);
  EXPECT_FALSE(value.IsNull());
  EXPECT_EQ(row.type, Word(value));
  EXPECT_EQ(row.value, value.ToString(10));
  EXPECT_EQ(0u, value.GetMaxArraySize());
}

INSTANTIATE_TEST_SUITE_P(Booleans, Parsing,
                         testing::Values(Row{"the word true", 1, "true", "true"},
                                         Row{"the word false", 1, "false", "false"},
                                         Row{"blanks in front", 1, " \t\n\v\f\rtrue", "true"},
                                         Row{"text behind", 1, "true blue", "true"},
                                         Row{"digit is no word", 1, "1", "false"},
                                         Row{"case counts", 1, "True", "false"},
                                         Row{"part of the word", 1, "tru", "false"},
                                         Row{"nothing", 1, "", "false"},
                                         Row{"something else", 1, "yes", "false"}));

INSTANTIATE_TEST_SUITE_P(EightBits, Parsing,
                         testing::Values(Row{"uint8", 2, "200", "200"},
                                         Row{"uint8 hexadecimal", 2, "0xfF", "255"},
                                         Row{"uint8 octal", 2, "017", "15"},
                                         Row{"uint8 keeps the low bits", 2, "300", "44"},
                                         Row{"uint8 of more than 16 bits", 2, "70000", "112"},
                                         Row{"uint8 of a negative number", 2, "-1", "255"},
                                         Row{"uint8 digit is a number", 2, "7", "7"},
                                         Row{"uint8 letter is nothing", 2, "A", "0"},
                                         Row{"uint8 far out of range", 2, "99999999999", "255"},
                                         Row{"sint8", 3, "-100", "-100"},
                                         Row{"sint8 hexadecimal", 3, "0x1F", "31"},
                                         Row{"sint8 octal", 3, "-017", "-15"},
                                         Row{"sint8 keeps the low bits", 3, "200", "-56"},
                                         Row{"sint8 of more than 16 bits", 3, "70000", "112"},
                                         Row{"sint8 far below", 3, "-99999999999", "0"},
                                         Row{"sint8 far above", 3, "99999999999", "-1"}));

INSTANTIATE_TEST_SUITE_P(
    Integers, Parsing,
    testing::Values(
        Row{"uint16", 4, "65535", "65535"}, Row{"uint16 hexadecimal", 4, "0x1F", "31"},
        Row{"uint16 octal", 4, "017", "15"}, Row{"sint16", 5, "-32768", "-32768"},
        Row{"sint16 hexadecimal", 5, "-0x1F", "-31"}, Row{"sint16 octal", 5, "017", "15"},
        Row{"uint32 decimal", 6, "10", "10"}, Row{"uint32 hexadecimal", 6, "0x10", "16"},
        Row{"uint32 octal", 6, "010", "8"}, Row{"uint32 greatest", 6, "4294967295", "4294967295"},
        Row{"uint32 capital mark", 6, "0X1f", "31"}, Row{"uint32 plus sign", 6, "+12", "12"},
        Row{"uint32 text behind", 6, "12abc", "12"},
        Row{"uint32 fraction behind", 6, "12.75", "12"},
        Row{"uint32 comma behind", 6, "1,000", "1"},
        Row{"uint32 blanks in front", 6, " \t\n\v\f\r12", "12"}, Row{"uint32 nothing", 6, "", "0"},
        Row{"uint32 blanks only", 6, "   ", "0"}, Row{"uint32 no number", 6, "abc", "0"},
        Row{"uint32 mark only", 6, "0x", "0"}, Row{"uint32 no octal digit", 6, "08", "0"},
        Row{"uint32 zero", 6, "0", "0"}, Row{"sint32", 7, "-2147483648", "-2147483648"},
        Row{"sint32 hexadecimal", 7, "0x7FFFFFFF", "2147483647"},
        Row{"sint32 octal", 7, "-010", "-8"}, Row{"sint32 text behind", 7, "-12abc", "-12"},
        Row{"uint64", 8, "18446744073709551615", "18446744073709551615"},
        Row{"uint64 hexadecimal", 8, "0xFFFFFFFFFFFFFFFF", "18446744073709551615"},
        Row{"uint64 octal", 8, "01777777777777777777777", "18446744073709551615"},
        Row{"sint64", 9, "-9223372036854775808", "-9223372036854775808"},
        Row{"sint64 hexadecimal", 9, "0x7FFFFFFFFFFFFFFF", "9223372036854775807"},
        Row{"sint64 octal", 9, "-017", "-15"}));

INSTANTIATE_TEST_SUITE_P(Reals, Parsing,
                         testing::Values(Row{"real32", 10, "1.5", "1.5"},
                                         Row{"real32 exponent", 10, "-2e3", "-2000"},
                                         Row{"real32 nothing", 10, "x", "0"},
                                         Row{"real64", 11, "-0.125", "-0.125"},
                                         Row{"real64 blanks in front", 11, " \n2.5", "2.5"},
                                         Row{"real64 text behind", 11, "2.5kg", "2.5"},
                                         Row{"real64 exponent", 11, "1e10", "1e+10"},
                                         Row{"real64 nothing", 11, "", "0"}));

INSTANTIATE_TEST_SUITE_P(
    Texts, Parsing,
    testing::Values(Row{"string as it stands", 13, " \"a\\b\" ", " \"a\\b\" "},
                    Row{"empty string", 13, "", ""},
                    Row{"timestamp", 14, "20240102030405.000006+060", "20240102030405.000006+060"},
                    Row{"interval", 14, "00000001020304.000005:000", "00000001020304.000005:000"}));

TEST(TCIMValueParsing, TextKeepsItsZeroBytes) {
  const std::string bytes("a\0b", 3);
  EXPECT_EQ(bytes, Parse(13, bytes).ToString());
}

TEST(TCIMValueParsing, Char16IsKeptAsAString) {
  for (const char* text : {"x", "", "more than one", "65"}) {
    SCOPED_TRACE(text);
    const TCIMValue value = Parse(12, text);
    EXPECT_EQ(13, Word(value));
    EXPECT_EQ(text, value.operator std::string());
  }
}

TEST(TCIMValueParsing, BadDateTimeIsRefused) {
  LogCapture log;
  EXPECT_STATUS(kQDAStatusInvalidDateTime, Parse(14, ""));
  EXPECT_STATUS(kQDAStatusInvalidDateTime, Parse(14, "2024-01-02"));
  EXPECT_STATUS(kQDAStatusInvalidDateTime, Parse(14, " 20240102030405.000006+060"));
  EXPECT_THAT(log.Lines(), IsEmpty());
}

TEST(TCIMValueParsing, ArraysNoneAndUnknownTypesHaveNoText) {
  LogCapture log;
  for (const int type : {0, 16, 17, 18, 22, 28, 29, 30, 31, 32, 33, -1}) {
    SCOPED_TRACE(type);
    EXPECT_STATUS(kQDAStatusTypeMismatch, Parse(type, "1"));
  }
  EXPECT_THAT(log.Lines(), IsEmpty());
}

TEST(TCIMValueParsing, ReferenceIsReadByTheNamespace) {
  const boost::shared_ptr<RecordingNamespace> ns = RecordingNamespace::Create();
  ns->Declare("Disk").With("ID", TCIMValue::TCIMType::kCIMTypeString);
  const TCIMValue value = Parse(15, "Disk.ID=\"sda\"", ns);
  EXPECT_TRUE(value.IsReference());
  EXPECT_EQ("Disk.ID=\"sda\"", value.ToString());
  EXPECT_EQ(ns->Class("Disk"), value.GetReferencedClass());
  EXPECT_THAT(ns->TakeCalls(),
              ElementsAre("GetClass(Disk) {}", "Disk.GetPropertyDecl(ID) {}",
                          "ID.GetDefaultValue() {}", "ID.GetType() {}",
                          "Disk.GetPropertyDecl(ID) {}", "ID.GetType() {}", "Disk.GetName() {}"));
}

TEST(TCIMValueParsing, RefusedReferencePassesItsStatus) {
  LogCapture log;
  const boost::shared_ptr<RecordingNamespace> ns = RecordingNamespace::Create();
  ns->Declare("Disk");
  EXPECT_STATUS(kQDAStatusInvalidReference, Parse(15, "Disk.", ns));
  EXPECT_STATUS(kQDAStatusNotFound, Parse(15, "Fan", ns));
  EXPECT_STATUS(kQDAStatusInvalidOpSequence, Parse(15, "Disk"));
  EXPECT_THAT(log.Lines(), ElementsAre("[Error] Reference missing property value, path=Disk."));
}

TEST(TCIMValueParsing, NamespaceIsNotAskedForOtherTypes) {
  const boost::shared_ptr<RecordingNamespace> ns = RecordingNamespace::Create();
  for (int type = 1; type <= 13; ++type) {
    Parse(type, "1", ns);
  }
  EXPECT_THAT(ns->TakeCalls(), IsEmpty());
  EXPECT_EQ(1, ns.use_count());
}

TEST(TCIMValueParsing, NamespaceIsReleasedAtTheEnd) {
  const boost::shared_ptr<RecordingNamespace> ns = RecordingNamespace::Create();
  ns->Declare("Disk");
  const TCIMValue value = Parse(15, "Disk", ns);
  EXPECT_EQ(1, ns.use_count());
  EXPECT_EQ(ns, value.operator TCIMReference().GetNamespace());
}

}  // namespace

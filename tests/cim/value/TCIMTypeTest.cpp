// The type descriptor: numbers, spellings and what they lose.

#include <sstream>

#include <gtest/gtest.h>

#include <qdacore/cim/value/TCIMValue.h>
#include <tests/support/ExpectStatus.h>

namespace {

using namespace NZRVQDA20;

typedef TCIMValue::TCIMType TType;

TType FromNumber(int number) { return TType(static_cast<TType::ECIMType>(number)); }

int Number(const TType& type) { return static_cast<TType::ECIMType>(type); }

struct TypeRow {
  TType::ECIMType enumerator;
  int number;
  const char* spelling;
};

void PrintTo(const TypeRow& row, std::ostream* out) { *out << row.spelling; }

class TypeTable : public testing::TestWithParam<TypeRow> {};

INSTANTIATE_TEST_SUITE_P(
    AllTypes, TypeTable,
    testing::Values(
        TypeRow{TType::kCIMTypeBoolean, 1, "boolean"}, TypeRow{TType::kCIMTypeUint8, 2, "uint8"},
        TypeRow{TType::kCIMTypeSint8, 3, "sint8"}, TypeRow{TType::kCIMTypeUint16, 4, "uint16"},
        TypeRow{TType::kCIMTypeSint16, 5, "sint16"}, TypeRow{TType::kCIMTypeUint32, 6, "uint32"},
        TypeRow{TType::kCIMTypeSint32, 7, "sint32"}, TypeRow{TType::kCIMTypeUint64, 8, "uint64"},
        TypeRow{TType::kCIMTypeSint64, 9, "sint64"}, TypeRow{TType::kCIMTypeReal32, 10, "real32"},
        TypeRow{TType::kCIMTypeReal64, 11, "real64"}, TypeRow{TType::kCIMTypeChar16, 12, "char16"},
        TypeRow{TType::kCIMTypeString, 13, "string"},
        TypeRow{TType::kCIMTypeDateTime, 14, "datetime"},
        TypeRow{TType::kCIMTypeReference, 15, "reference"}),
    [](const testing::TestParamInfo<TypeRow>& row) { return std::string(row.param.spelling); });

TEST_P(TypeTable, EnumeratorHasItsNumber) {
  EXPECT_EQ(GetParam().number, Number(TType(GetParam().enumerator)));
}

TEST_P(TypeTable, SpellsItself) {
  EXPECT_EQ(GetParam().spelling, FromNumber(GetParam().number).ToString());
}

TEST_P(TypeTable, SpellingReadsBack) {
  EXPECT_EQ(GetParam().number, Number(TType(std::string(GetParam().spelling))));
}

TEST_P(TypeTable, CaseOfSpellingDoesNotCount) {
  std::string text = GetParam().spelling;
  text[0] = static_cast<char>(text[0] - 'a' + 'A');
  EXPECT_EQ(GetParam().number, Number(TType(text)));
  for (char& character : text) {
    if (character >= 'a' && character <= 'z') {
      character = static_cast<char>(character - 'a' + 'A');
    }
  }
  EXPECT_EQ(GetParam().number, Number(TType(text)));
}

TEST_P(TypeTable, ArraySpellsAsItsElementAndLosesTheFlagOnTheWayBack) {
  const TType array = FromNumber(GetParam().number + 16);
  EXPECT_EQ(GetParam().number + 16, Number(array));
  EXPECT_EQ(GetParam().spelling, array.ToString());
  EXPECT_EQ(GetParam().number, Number(TType(array.ToString())));
}

TEST_P(TypeTable, StreamsItsSpelling) {
  std::ostringstream stream;
  std::ostream& result = stream << FromNumber(GetParam().number) << '|';
  EXPECT_EQ(&stream, &result);
  EXPECT_EQ(std::string(GetParam().spelling) + "|", stream.str());
}

TEST(TCIMType, DefaultIsNone) {
  EXPECT_EQ(0, Number(TType()));
  EXPECT_EQ(0, static_cast<int>(TType::kCIMTypeNone));
  EXPECT_STATUS(kQDAStatusTypeMismatch, TType().ToString());
}

TEST(TCIMType, ArrayFlagIsSixteenAndNoTypeByItself) {
  EXPECT_EQ(16, static_cast<int>(TType::kCIMTypeArrayFlag));
  EXPECT_EQ(16, Number(FromNumber(16)));
  EXPECT_STATUS(kQDAStatusTypeMismatch, FromNumber(16).ToString());
}

TEST(TCIMType, ArrayOfUint32IsTwentyTwoAndNotUint32) {
  EXPECT_EQ(22, Number(FromNumber(22)));
  EXPECT_EQ("uint32", FromNumber(22).ToString());
  EXPECT_FALSE(FromNumber(22) == TType::kCIMTypeUint32);
}

TEST(TCIMType, WordWithoutSpellingCannotBeShown) {
  for (const int number : {32, 33, 47, 48, 1024, -1, -16, 0x7FFFFFFF}) {
    SCOPED_TRACE(number);
    EXPECT_EQ(number, Number(FromNumber(number)));
    EXPECT_STATUS(kQDAStatusTypeMismatch, FromNumber(number).ToString());
    std::ostringstream stream;
    EXPECT_STATUS(kQDAStatusTypeMismatch, stream << FromNumber(number));
  }
}

TEST(TCIMType, TextsThatAreNoSpellingLeaveNone) {
  for (const char* text : {"", " ", "none", " uint32", "uint32 ", "uint32[]", "ref", "uint", "int",
                           "bool", "real", "date-time", "uint32\t", "uint8,"}) {
    SCOPED_TRACE(text);
    EXPECT_EQ(0, Number(TType(std::string(text))));
  }
  EXPECT_EQ(0, Number(TType(std::string("uint8\0", 6))));
  EXPECT_EQ(0, Number(TType(std::string("\xFF\xC4\x80"))));
}

TEST(TCIMType, CopiesTheWord) {
  const TType array = FromNumber(29);
  TType copy(array);
  EXPECT_EQ(29, Number(copy));
  TType assigned;
  EXPECT_EQ(&assigned, &(assigned = array));
  EXPECT_EQ(29, Number(assigned));
}

TEST(TCIMType, IsOneWord) { EXPECT_EQ(4u, sizeof(TType)); }

}  // namespace

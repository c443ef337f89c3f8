#include <qdacore/ipmi/TCommUtil.h>

#include <algorithm>
#include <random>
#include <string>
#include <type_traits>

#include <gtest/gtest.h>

namespace {

using NZRVQDA20::TCommUtil;

struct Row {
  const char* what;
  std::string text;
  std::string cleaned;
};

void PrintTo(const Row& row, std::ostream* stream) { *stream << row.what; }

class RemoveSpaces : public testing::TestWithParam<Row> {};

TEST_P(RemoveSpaces, Cleans) {
  EXPECT_EQ(GetParam().cleaned, TCommUtil::RemoveSpaces(GetParam().text));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, RemoveSpaces,
    testing::Values(
        Row{"empty", "", ""}, Row{"a word", "word", "word"},
        Row{"two blanks on each side", "  word  ", "word"},
        Row{"blanks within stay", " two  words ", "two  words"}, Row{"blanks only", "    ", ""},
        Row{"one blank", " ", ""}, Row{"two lines", "first\nsecond", "first"},
        Row{"line feed first", "\nword", ""}, Row{"line feed alone", "\n", ""},
        Row{"blanks before a line feed", "word  \nmore", "word"},
        Row{"blanks before a carriage return stay", "word  \r\n", "word  "},
        Row{"carriage return and then blanks", "word \r  ", "word "},
        Row{"carriage return first", "\rword", ""},
        Row{"blanks and a carriage return", "  \rword", ""},
        Row{"text behind a carriage return", "first\rsecond", "first"},
        Row{"tabs around stay", "\tword\t", "\tword\t"}, Row{"tabs within stay", "a\tb", "a\tb"},
        Row{"a tab stops the trimming", " \t word \t ", "\t word \t"}, Row{"tab alone", "\t", "\t"},
        Row{"vertical tab and form feed are white space", "a\v\fb", "a\v\fb"},
        Row{"punctuation", "!\"#$%&'()*+,-./:;<=>?@[\\]^_`{|}~",
            "!\"#$%&'()*+,-./:;<=>?@[\\]^_`{|}~"},
        Row{"control character first", "\x01word", ""},
        Row{"control character last", "word\x01", ""},
        Row{"control character within", "wo\x01rd", ""},
        Row{"control character behind the line feed", "word\n\x01", "word"},
        Row{"control character behind the carriage return", "word\r\x01", "word"},
        Row{"control character between blanks", " \x01 ", ""},
        Row{"NUL", std::string("wo\0rd", 5), ""}, Row{"delete", "word\x7F", ""},
        Row{"escape", "\x1B[0m", ""}, Row{"0x80", "word\x80", ""}, Row{"0xFF", "\xFF", ""},
        Row{"UTF-8", "w\xC3\xB6rd", ""}, Row{"0xA0 is no blank", "\xA0word", ""},
        Row{"0x80 behind the line feed", "word\n\x80", "word"}));

TEST(RemoveSpacesProperty, EveryByteIsKeptOrEmptiesTheText) {
  for (int byte = 0; byte < 256; ++byte) {
    const std::string text = std::string("a") + static_cast<char>(byte) + "b";
    const bool isKept =
        (byte >= 0x20 && byte < 0x7F) || byte == '\t' || byte == '\v' || byte == '\f';
    const std::string expected = isKept ? text : byte == '\n' || byte == '\r' ? "a" : "";
    EXPECT_EQ(expected, TCommUtil::RemoveSpaces(text)) << byte;
  }
}

TEST(RemoveSpacesProperty, ResultIsPartOfTheFirstLineAndClean) {
  std::mt19937 random(802);
  const std::string marks = " \t\r\nab\x01!\x80";
  for (int round = 0; round < 20000; ++round) {
    std::string text(random() % 12, ' ');
    for (char& character : text) {
      character = marks[random() % (random() % 4 == 0 ? marks.size() : 6)];
    }
    const std::string cleaned = TCommUtil::RemoveSpaces(text);
    EXPECT_NE(std::string::npos, text.substr(0, text.find('\n')).find(cleaned));
    EXPECT_EQ(std::string::npos, cleaned.find_first_of("\r\n\x01\x80"));
    EXPECT_NE(' ', cleaned.empty() ? 'x' : cleaned.front());
    // A second time only takes the blanks that stood before a carriage return.
    EXPECT_EQ(cleaned.substr(0, cleaned.find_last_not_of(' ') + 1),
              TCommUtil::RemoveSpaces(cleaned));
  }
}

TEST(TCommUtilClass, CannotBeMadeAndIsEmpty) {
  EXPECT_FALSE(std::is_default_constructible<TCommUtil>());
  EXPECT_TRUE(std::is_empty<TCommUtil>());
  EXPECT_FALSE(std::is_polymorphic<TCommUtil>());
  EXPECT_TRUE(std::is_copy_assignable<TCommUtil>());
}

}  // namespace

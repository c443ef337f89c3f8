#include <qda/Text.h>

#include <gtest/gtest.h>

namespace {

using qda::Columns;
using qda::Printable;

struct Row {
  const char* what;
  std::string text;
  const char* printable;
};

void PrintTo(const Row& row, std::ostream* stream) { *stream << row.what; }

class PrintableText : public testing::TestWithParam<Row> {};

TEST_P(PrintableText, HasNothingHarmful) {
  EXPECT_EQ(GetParam().printable, Printable(GetParam().text));
}

INSTANTIATE_TEST_SUITE_P(
    Kept, PrintableText,
    testing::Values(Row{"empty", "", ""}, Row{"ASCII", " aZ09~\\", " aZ09~\\"},
                    Row{"two bytes", "\xC3\xA9", "\xC3\xA9"},
                    Row{"first behind the C1 characters", "\xC2\xA0", "\xC2\xA0"},
                    Row{"three bytes", "\xE2\x82\xAC", "\xE2\x82\xAC"},
                    Row{"four bytes", "\xF0\x9F\x98\x80", "\xF0\x9F\x98\x80"},
                    Row{"the last character", "\xF4\x8F\xBF\xBF", "\xF4\x8F\xBF\xBF"}));

INSTANTIATE_TEST_SUITE_P(
    Escaped, PrintableText,
    testing::Values(Row{"NUL", std::string(1, '\0'), "\\x00"},
                    Row{"line feed and tab", "a\n\tb", "a\\x0A\\x09b"},
                    Row{"escape", "\x1B[0m", "\\x1B[0m"}, Row{"last control", "\x1F", "\\x1F"},
                    Row{"delete", "\x7F", "\\x7F"}, Row{"first C1", "\xC2\x80", "\\xC2\\x80"},
                    Row{"last C1", "\xC2\x9F", "\\xC2\\x9F"},
                    Row{"line separator", "\xE2\x80\xA8", "\\xE2\\x80\\xA8"},
                    Row{"right-to-left override", "\xE2\x80\xAE", "\\xE2\\x80\\xAE"},
                    Row{"isolate", "\xE2\x81\xA6", "\\xE2\\x81\\xA6"},
                    Row{"byte order mark", "\xEF\xBB\xBF", "\\xEF\\xBB\\xBF"}));

// RFC 3629, 3 and 4.
INSTANTIATE_TEST_SUITE_P(
    NoUtf8, PrintableText,
    testing::Values(Row{"lone continuation", "a\x80z", "a\\x80z"},
                    Row{"lone lead", "\xC3", "\\xC3"}, Row{"lead before ASCII", "\xC3z", "\\xC3z"},
                    Row{"cut after two of three", "\xE2\x82", "\\xE2\\x82"},
                    Row{"cut after three of four", "\xF0\x9F\x98", "\\xF0\\x9F\\x98"},
                    Row{"overlong two", "\xC0\xAF", "\\xC0\\xAF"},
                    Row{"overlong three", "\xE0\x9F\xBF", "\\xE0\\x9F\\xBF"},
                    Row{"overlong four", "\xF0\x8F\xBF\xBF", "\\xF0\\x8F\\xBF\\xBF"},
                    Row{"surrogate", "\xED\xA0\x80", "\\xED\\xA0\\x80"},
                    Row{"beyond the last", "\xF4\x90\x80\x80", "\\xF4\\x90\\x80\\x80"},
                    Row{"no lead at all", "\xF8\xFF", "\\xF8\\xFF"},
                    Row{"good behind bad", "\xFF\xC3\xA9", "\\xFF\xC3\xA9"}));

TEST(ColumnsTest, StandUnderEachOther) {
  EXPECT_EQ(
      "a     b  c\n"
      "long  x\n"
      "\n",
      Columns({{"a", "b", "c"}, {"long", "x"}, {}}));
}

TEST(ColumnsTest, HaveHarmlessCells) { EXPECT_EQ("\\x0A  b\n", Columns({{"\n", "b"}})); }

TEST(ColumnsTest, OfNothingAreNothing) { EXPECT_EQ("", Columns({})); }

}  // namespace

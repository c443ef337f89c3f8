// The words of a command line.

#include <ostream>

#include <gtest/gtest.h>

#include <qdacore/host/posix/CommandLine.h>

namespace {

using NZRVQDA20::host::SplitCommandLine;

typedef std::vector<std::string> Words;

struct Row {
  const char* name;
  std::string line;
  Words words;
};

void PrintTo(const Row& row, std::ostream* stream) { *stream << row.line; }

class CommandLine : public testing::TestWithParam<Row> {};

TEST_P(CommandLine, IsTakenApart) {
  EXPECT_EQ(GetParam().words, SplitCommandLine(GetParam().line));
}

const Row kRows[] = {
    {"EmptyLineHasNoWord", "", {}},
    {"BlanksAndTabsAloneAreNoWord", " \t  \t", {}},
    {"ProgramAlone", "program", {"program"}},
    {"BlanksSeparate", "a b", {"a", "b"}},
    {"TabsSeparate", "a\tb", {"a", "b"}},
    {"ManySeparatorsAreOne", "  a \t\t b  ", {"a", "b"}},
    {"LineFeedsAreText", "a\nb c\r", {"a\nb", "c\r"}},
    {"OtherWhiteSpaceIsText", "a\vb\fc", {"a\vb\fc"}},
    {"BytesAbove7FAreText", "\xC3\xA4\xA0 \xFF", {"\xC3\xA4\xA0", "\xFF"}},
    {"NulIsText", std::string("a\0b \0", 5), {std::string("a\0b", 3), std::string(1, '\0')}},

    {"SingleQuotesGroup", "'a b' c", {"a b", "c"}},
    {"SingleQuotesTakeTheirInsideAsItStands", "'a\\b' 'c\\\\\"d\\' e", {"a\\b", "c\\\\\"d\\", "e"}},
    {"SingleQuotesHoldDoubleOnes", "'a\"b'", {"a\"b"}},
    {"SingleQuotesHoldTabs", "'\t'", {"\t"}},

    {"DoubleQuotesGroup", "\"a b\" c", {"a b", "c"}},
    {"DoubleQuotesHoldSingleOnes", "\"a'b\"", {"a'b"}},
    {"DoubleQuotesHoldAnEscapedQuote", "\"a\\\"b\"", {"a\"b"}},
    {"DoubleQuotesHoldAnEscapedBackslash", "\"a\\\\\"", {"a\\"}},
    {"DoubleQuotesKeepOtherBackslashes", "\"a\\b\\ c\\'d\\n\"", {"a\\b\\ c\\'d\\n"}},
    {"BackslashesPairFromTheLeft", "\"\\\\\\\"\"", {"\\\""}},

    {"BackslashBeforeABlank", "a\\ b c", {"a b", "c"}},
    {"BackslashBeforeADoubleQuote", "a\\\"b c", {"a\"b", "c"}},
    {"BackslashBeforeASingleQuote", "a\\'b c", {"a'b", "c"}},
    {"BackslashBeforeABackslash", "a\\\\b", {"a\\b"}},
    {"BackslashBeforeATabStaysAndTheTabSeparates", "a\\\tb", {"a\\", "b"}},
    {"OtherBackslashesStay", "dir\\file \\n", {"dir\\file", "\\n"}},
    {"BackslashAtTheEndStays", "a\\", {"a\\"}},
    {"LoneBackslashIsAWord", "\\", {"\\"}},
    {"EscapedBackslashDoesNotEscape", "a\\\\ b", {"a\\", "b"}},
    {"EscapedBlankAloneIsAWord", "\\  a", {" ", "a"}},

    {"EmptyQuotesAreAnEmptyWord", "a '' \"\" b", {"a", "", "", "b"}},
    {"EmptyQuotesAloneAreAWord", "''", {""}},
    {"EmptyQuotesInAWordAreNothing", "a''b\"\"c", {"abc"}},
    {"QuotedAndBareTextAreOneWord", "a'b c'd\"e f\"g", {"ab cde fg"}},
    {"QuotesOfBothKindsTouch", "'a'\"b\"", {"ab"}},

    {"OpenSingleQuoteReachesToTheEnd", "a 'b c ", {"a", "b c "}},
    {"OpenDoubleQuoteReachesToTheEnd", "a \"b c\\", {"a", "b c\\"}},
    {"OpenQuoteAtTheEndIsAnEmptyWord", "a \"", {"a", ""}},

    {"NothingIsExpanded",
     "$HOME `x` $(y) * ~ ? [a] {b,c} | > < & ; # !",
     {"$HOME", "`x`", "$(y)", "*", "~", "?", "[a]", "{b,c}", "|", ">", "<", "&", ";", "#", "!"}},
};

INSTANTIATE_TEST_SUITE_P(Rows, CommandLine, testing::ValuesIn(kRows),
                         [](const testing::TestParamInfo<Row>& row) { return row.param.name; });

TEST(CommandLineOfManyWords, IsTakenApartInOneWalk) {
  std::string line = "program";
  for (int count = 0; count < 200000; ++count) {
    line += " '" + std::to_string(count) + "'";
  }
  const Words words = SplitCommandLine(line);
  ASSERT_EQ(200001u, words.size());
  EXPECT_EQ("199999", words.back());
}

}  // namespace

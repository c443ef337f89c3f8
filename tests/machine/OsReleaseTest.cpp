#include <plugins/machine/OsRelease.h>

#include <gtest/gtest.h>

namespace {

using machine::FindInOsRelease;

struct Row {
  const char* what;
  std::string text;
  const char* value;  // null: absent
};

void PrintTo(const Row& row, std::ostream* stream) { *stream << row.what; }

class VersionIdOf : public testing::TestWithParam<Row> {};

TEST_P(VersionIdOf, IsReadAsTheFormatHasIt) {
  const std::optional<std::string> found = FindInOsRelease(GetParam().text, "VERSION_ID");
  if (GetParam().value) {
    ASSERT_TRUE(found.has_value());
    EXPECT_EQ(GetParam().value, *found);
  } else {
    EXPECT_FALSE(found.has_value()) << *found;
  }
}

INSTANTIATE_TEST_SUITE_P(
    WellFormed, VersionIdOf,
    testing::Values(
        Row{"bare word", "VERSION_ID=39\n", "39"},
        Row{"double quotes", "VERSION_ID=\"12\"\n", "12"},
        Row{"single quotes", "VERSION_ID='7.9'\n", "7.9"},
        Row{"no line feed at the end", "VERSION_ID=39", "39"},
        Row{"among others", "NAME=\"Some OS\"\nVERSION_ID=\"1\"\nID=some\n", "1"},
        Row{"name of another as a beginning", "VERSION=\"2\"\nVERSION_ID=\"1\"\n", "1"},
        Row{"name as the end of another", "MY_VERSION_ID=\"2\"\nVERSION_ID=1\n", "1"},
        Row{"the last of two, as a shell has it", "VERSION_ID=1\nVERSION_ID=2\n", "2"},
        Row{"comment passed over", "# VERSION_ID=3\n\nVERSION_ID=1\n", "1"},
        Row{"white space around the line", "\t VERSION_ID=1 \r\n", "1"},
        Row{"blanks in quotes kept", "VERSION_ID=\" 1 \"\n", " 1 "},
        Row{"escapes in double quotes", "VERSION_ID=\"a\\\"b\\\\c\\$d\\`e\"\n", "a\"b\\c$d`e"},
        Row{"other backslashes in double quotes kept", "VERSION_ID=\"a\\nb\"\n", "a\\nb"},
        Row{"backslash in single quotes kept", "VERSION_ID='a\\\"b'\n", "a\\\"b"},
        Row{"equal sign in the value", "VERSION_ID=a=b\n", "a=b"},
        Row{"bytes above 7Fh kept", "VERSION_ID=\xC3\xA9\xFF\n", "\xC3\xA9\xFF"}));

INSTANTIATE_TEST_SUITE_P(
    Absent, VersionIdOf,
    testing::Values(Row{"empty text", "", nullptr}, Row{"line feeds only", "\n\n\n", nullptr},
                    Row{"not assigned", "NAME=x\n", nullptr},
                    Row{"commented out", "#VERSION_ID=1\n", nullptr},
                    Row{"empty value", "VERSION_ID=\n", nullptr},
                    Row{"empty quotes", "VERSION_ID=\"\"\n", nullptr},
                    Row{"emptied again", "VERSION_ID=1\nVERSION_ID=\n", nullptr},
                    Row{"name without equal sign", "VERSION_ID\n", nullptr},
                    Row{"blank before the equal sign", "VERSION_ID =1\n", nullptr},
                    Row{"other case", "version_id=1\n", nullptr}));

INSTANTIATE_TEST_SUITE_P(
    Hostile, VersionIdOf,
    testing::Values(Row{"quote never closed", "VERSION_ID=\"12\nNAME=x\n", nullptr},
                    Row{"a lone quote", "VERSION_ID=\"\n", nullptr},
                    Row{"closing quote escaped", "VERSION_ID=\"12\\\"\n", nullptr},
                    Row{"quote inside", "VERSION_ID=\"1\"2\"\n", nullptr},
                    Row{"single quote inside", "VERSION_ID='1'2'\n", nullptr},
                    Row{"text behind the quotes", "VERSION_ID=\"1\" rm\n", nullptr},
                    Row{"two words", "VERSION_ID=1 2\n", nullptr},
                    Row{"command substitution", "VERSION_ID=$(id)\n", nullptr},
                    Row{"backticks", "VERSION_ID=`id`\n", nullptr},
                    Row{"bad line passed over", "VERSION_ID=1\nVERSION_ID=\"2\n", "1"},
                    Row{"NUL bytes",
                        std::string("\0\0VERSION_ID=1\n\0VERSION_ID=2\nVERSION_ID=3\n", 42), "3"}));

TEST(FindInOsRelease, TakesALongFileInOneGo) {
  std::string text;
  for (int line = 0; line < 20000; ++line) {
    text += "VERSION_ID=\"\\\n";
  }
  EXPECT_FALSE(FindInOsRelease(text, "VERSION_ID").has_value());
  EXPECT_EQ("1", FindInOsRelease(text + "VERSION_ID=1", "VERSION_ID"));
}

TEST(FindInOsRelease, KeepsANulInAValue) {
  EXPECT_EQ(std::string("a\0b", 3), FindInOsRelease(std::string("NAME=\"a\0b\"\n", 11), "NAME"));
}

}  // namespace

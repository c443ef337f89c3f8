// The texts of firmware: blocks of strings, brackets and dashes.

#include <cstddef>
#include <cstring>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <qdacore/os/TOSSpecific.h>

namespace {

using namespace NZRVQDA20;
using namespace std::string_literals;

typedef std::vector<std::string> Strings;

// A block of exactly its bytes, so that a sanitizer sees a read outside it.
class Block {
 public:
  explicit Block(const std::string& bytes)
      : fSize(bytes.size()), fBytes(new char[bytes.size() + (bytes.empty() ? 1 : 0)]) {
    bytes.copy(fBytes.get(), bytes.size());
  }
  char* Get() const { return fBytes.get(); }
  int Size() const { return static_cast<int>(fSize); }

 private:
  std::size_t fSize;
  std::unique_ptr<char[]> fBytes;
};

// What a target full of "#" holds after the call; "false" when that is the answer.
std::string Picked(const std::string& bytes, int length, int index) {
  const Block block(bytes);
  char target[40];
  std::memset(target, '#', sizeof target);
  const bool found = TOSSpecific::getBIDString(block.Get(), target, length, index);
  const std::string left(target, sizeof target);
  if (!found) {
    EXPECT_EQ(std::string(sizeof target, '#'), left) << "touched without an answer";
    return "false";
  }
  const std::size_t end = left.find_last_not_of('#');
  return left.substr(0, end == std::string::npos ? 0 : end + 1);
}

TEST(GetBIDString, PicksOneStringOfABlock) {
  const struct {
    const char* what;
    std::string block;
    int length;
    int index;
    std::string expected;
  } rows[] = {
      {"the first comes without its NUL", "one\0two\0"s, 8, 1, "one"},
      {"a later one comes with its NUL", "one\0two\0"s, 8, 2, "two\0"s},
      {"a third of two is not there", "one\0two\0"s, 8, 3, "false"},
      {"a third of three", "one\0two\0three\0"s, 14, 3, "three\0"s},
      {"an empty first string is no character", "\0two\0"s, 5, 1, ""},
      {"an empty later string is its NUL", "one\0\0"s, 5, 2, "\0"s},
      {"the closing NUL of a set is an empty string", "one\0two\0\0"s, 9, 3, "\0"s},
      {"number 0 is none", "one\0two\0"s, 8, 0, "false"},
      {"a negative number is none", "one\0two\0"s, 8, -1, "false"},
      {"the NUL must be in the block", "one\0two\0"s, 7, 2, "false"},
      {"the first NUL too", "one\0"s, 3, 1, "false"},
      {"a block without any NUL", "one"s, 3, 1, "false"},
      {"no length", "one\0"s, 0, 1, "false"},
      {"a negative length", "one\0"s, -5, 1, "false"},
      {"the largest number", "one\0"s, 4, 2147483647, "false"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(row.expected, Picked(row.block, row.length, row.index)) << row.what;
  }
}

TEST(GetBIDString, TargetMayBeTheSource) {
  char block[] = "one\0three";
  EXPECT_TRUE(TOSSpecific::getBIDString(block, block, sizeof block, 2));
  EXPECT_STREQ("three", block);
}

TEST(GetBIDString, NullIsNoBlockAndNoTarget) {
  char byte = 0;
  EXPECT_FALSE(TOSSpecific::getBIDString(nullptr, &byte, 1, 1));
  EXPECT_FALSE(TOSSpecific::getBIDString(&byte, nullptr, 1, 1));
}

TEST(RemoveNonAlpaNumeric, LeavesWhatStandsInBrackets) {
  const struct {
    const char* text;
    const char* expected;
  } rows[] = {
      {"-[GYE143AUS-1.20]-", "GYE143AUS-1.20"},
      {"plain text, 100%!", "plain text, 100%!"},
      {"", ""},
      {"[", ""},
      {"]", ""},
      {"[]", ""},
      {"before[after", "after"},
      {"before]after", "before"},
      {"a]b[c", "c"},
      {"a]b[c]d", "c"},
      {"[a[b]", "a[b"},
      {"[a]b]", "a"},
      {"[a][b]", "a"},
  };
  for (const auto& row : rows) {
    std::string text = row.text;
    EXPECT_TRUE(TOSSpecific::removeNonAlpaNumeric(text));
    EXPECT_EQ(row.expected, text) << row.text;
  }
}

TEST(BreakApartVersion, DividesAtTheSecondDashOrTheOnlyOne) {
  const struct {
    const char* text;
    const char* first;
    const char* second;
  } rows[] = {
      {"one-two-three", "three", "one-two"},
      {"one-two", "two", "one"},
      {"no dash", "no dash", "no dash"},
      {"", "", ""},
      {"-", "", ""},
      {"--", "", "-"},
      {"a-", "", "a"},
      {"-a", "a", ""},
      {"a--b", "b", "a-"},
      {"-a-b", "b", "-a"},
      {"one-two-three-four", "three-four", "one-two"},
  };
  for (const auto& row : rows) {
    std::string first = row.text;
    std::string second = row.text;
    EXPECT_TRUE(TOSSpecific::breakApartVersion(first, second));
    EXPECT_EQ(row.first, first) << row.text;
    EXPECT_EQ(row.second, second) << row.text;
  }
}

// Such a pair is against the rule, and does no harm.
TEST(BreakApartVersion, TakesThePlaceFromTheFirstText) {
  std::string first = "one-two-three";
  std::string second = "123456789";
  EXPECT_TRUE(TOSSpecific::breakApartVersion(first, second));
  EXPECT_EQ("three", first);
  EXPECT_EQ("1234567", second);

  first = "one-two-three";
  second = "short";
  EXPECT_TRUE(TOSSpecific::breakApartVersion(first, second));
  EXPECT_EQ("short", second);

  first = "none";
  second = "a-b";
  EXPECT_TRUE(TOSSpecific::breakApartVersion(first, second));
  EXPECT_EQ("none", first);
  EXPECT_EQ("a-b", second);

  std::string same = "a-b-c";
  EXPECT_TRUE(TOSSpecific::breakApartVersion(same, same));
}

Strings Cut(const std::string& bytes, char delimiter) {
  const Block block(bytes);
  return TOSSpecific::multiStringTok(block.Get(), static_cast<unsigned>(block.Size()), delimiter);
}

TEST(MultiStringTok, CutsABlockIntoStrings) {
  const struct {
    const char* what;
    std::string block;
    char delimiter;
    Strings expected;
  } rows[] = {
      {"a set of strings lacks its last", "one\0two\0\0"s, '\0', {"one"}},
      {"one byte more behind it and it is there", "one\0two\0\0\0"s, '\0', {"one", "two"}},
      {"an empty string between others", "one\0\0two\0\0\0"s, '\0', {"one", "", "two"}},
      {"empty strings", "\0\0\0\0"s, '\0', {"", ""}},
      {"the only string of a set", "one\0\0"s, '\0', {}},
      {"no strings", "\0\0"s, '\0', {}},
      {"one byte", "\0"s, '\0', {}},
      {"nothing", ""s, '\0', {}},
      {"the last one without its NUL", "one\0twothree"s, '\0', {"one"}},
      {"no NUL at all", "onetwo"s, '\0', {}},
      {"a delimiter counts for the first only", "a;b;c\0d\0\0\0"s, ';', {"a", "b;c", "d"}},
      {"the first may be empty", ";b\0c\0\0\0"s, ';', {"", "b", "c"}},
      {"a delimiter behind a NUL is none", "one\0a;b\0\0\0"s, ';', {}},
      {"a block without its delimiter", "onetwothree"s, ';', {}},
      {"the first ends two bytes before the end", "ab;c\0"s, ';', {"ab"}},
      {"the first ends in the last two bytes", "abc;\0"s, ';', {}},
      {"bytes above 7Fh", "\xE9;\xFF\0\0\0"s, '\xE9', {"", ";\xFF"}},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(row.expected, Cut(row.block, row.delimiter)) << row.what;
  }
}

TEST(MultiStringTok, LengthThatWrapsAroundIsNoBlock) {
  char text[] = "one\0two\0three\0";
  for (const unsigned long long length : {0ull, 1ull, ~0ull, ~0ull - 200, 0ull - 27}) {
    EXPECT_EQ(Strings(), TOSSpecific::multiStringTok(text, length, '\0')) << length;
  }
}

TEST(MultiStringTok, NullIsNoBlock) {
  EXPECT_EQ(Strings(), TOSSpecific::multiStringTok(nullptr, 0, '\0'));
  EXPECT_EQ(Strings(), TOSSpecific::multiStringTok(nullptr, 100, '\0'));
}

// What is taken stands in the block, side by side, and ends before its last two bytes.
TEST(MultiStringTok, RandomBlocksKeepThePromise) {
  std::mt19937 random(1603);
  for (int round = 0; round < 20000; ++round) {
    std::string bytes(random() % 40, 'x');
    for (char& byte : bytes) {
      byte = "\0\0;ab"[random() % 5];
    }
    const char delimiter = random() % 2 ? '\0' : ';';
    std::string together;
    for (const std::string& string : Cut(bytes, delimiter)) {
      together += string + (together.empty() ? delimiter : '\0');
    }
    ASSERT_TRUE(together.empty() || together.size() + 2 <= bytes.size());
    // A first string that is empty adds nothing but its end, so the ends are all that may differ.
    for (std::size_t at = 0; at < together.size(); ++at) {
      ASSERT_TRUE(together[at] == bytes[at] || bytes[at] == '\0' || bytes[at] == delimiter);
    }
  }
}

TEST(GetBIDString, RandomBlocksKeepThePromise) {
  std::mt19937 random(2022);
  for (int round = 0; round < 20000; ++round) {
    std::string bytes(random() % 39, 'x');
    for (char& byte : bytes) {
      byte = "\0ab"[random() % 3];
    }
    const int index = static_cast<int>(random() % 6);
    const std::string picked = Picked(bytes, static_cast<int>(bytes.size()), index);
    // By the standard library's own means: the text between the NULs before and at its number.
    std::size_t begin = 0;
    std::size_t end = bytes.find('\0');
    for (int number = 1; number < index && end != std::string::npos; ++number) {
      begin = end + 1;
      end = bytes.find('\0', begin);
    }
    if (index == 0 || end == std::string::npos) {
      ASSERT_EQ("false", picked);
    } else {
      ASSERT_EQ(bytes.substr(begin, end - begin + (index > 1 ? 1 : 0)), picked);
    }
  }
}

}  // namespace

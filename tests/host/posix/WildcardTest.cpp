#include <chrono>
#include <string>

#include <gtest/gtest.h>

#include <qdacore/host/posix/Wildcard.h>

namespace {

using NZRVQDA20::host::MatchesWildcard;

struct WildcardRow {
  const char* pattern;
  const char* name;
  bool matches;
};

const WildcardRow kRows[] = {
    {"", "", true},
    {"", "a", false},
    {"a", "", false},
    {"a", "a", true},
    {"a", "A", false},
    {"a", "ab", false},
    {"ab", "a", false},
    {"*", "", true},
    {"*", ".", true},
    {"*", "..", true},
    {"*", ".hidden", true},
    {"**", "a", true},
    {"***", "", true},
    {"?", "", false},
    {"?", "a", true},
    {"?", "*", true},
    {"?", ".", true},
    {"??", "..", true},
    {"?", "ab", false},
    {"??", "a", false},
    {"?*", "a", true},
    {"*?", "", false},
    {"a*", "a", true},
    {"a*", "ba", false},
    {"*a", "ba", true},
    {"*a", "ab", false},
    {"*a*", "bab", true},
    {"a*b*c", "a--b--c", true},
    {"a*b*c", "a--c--b", false},
    {"*ab", "aab", true},
    {"*aab", "aaab", true},
    {"a?c", "abc", true},
    {"a?c", "ac", false},
    // No part of a pattern means anything else, and a dot is a character like any other.
    {"*.*", "file", false},
    {"*.*", "file.txt", true},
    {"[ab]", "a", false},
    {"[ab]", "[ab]", true},
    {"\\*", "*", false},
    {"\\*", "\\anything", true},
    {"{a,b}", "a", false},
    {"a\\b", "a\\b", true},
    {"*.nsp.dll", "a.nsp.dll", true},
    {"*.nsp.dll", ".nsp.dll", true},
    {"*.nsp.dll", "nsp.dll", false},
    {"*.nsp.dll", "a.NSP.dll", false},
    {"*.nsp.dll", "a.nsp.dll.nsp.dll", true},
    {"*.nsp.dll", "a.nsp.dllx", false},
    // Bytes, not characters.
    {"?", "\xC3\xA4", false},
    {"??", "\xC3\xA4", true},
    {"\xFF*",
     "\xFF"
     "a",
     true},
};

TEST(MatchesWildcard, StarIsAnyTextAndQuestionMarkAnyCharacter) {
  for (const WildcardRow& row : kRows) {
    EXPECT_EQ(row.matches, MatchesWildcard(row.pattern, row.name))
        << row.pattern << " and " << row.name;
  }
}

TEST(MatchesWildcard, NulInThePatternIsMatchedByNoName) {
  EXPECT_FALSE(MatchesWildcard(std::string("a\0b", 3), "a"));
  EXPECT_FALSE(MatchesWildcard(std::string("a\0", 2), "a"));
  EXPECT_TRUE(MatchesWildcard("*", "a"));
}

// One that goes back at every star would need longer than the universe has.
TEST(MatchesWildcard, ManyStarsTakeNoTime) {
  std::string pattern;
  for (int count = 0; count < 100; ++count) {
    pattern += "*a";
  }
  const std::string name(20000, 'a');
  const auto begin = std::chrono::steady_clock::now();
  EXPECT_FALSE(MatchesWildcard(pattern + "b", name.c_str()));
  EXPECT_TRUE(MatchesWildcard(pattern + "*", name.c_str()));
  EXPECT_FALSE(MatchesWildcard(pattern, (name + "b").c_str()));
  EXPECT_GT(std::chrono::seconds(10), std::chrono::steady_clock::now() - begin);
}

}  // namespace

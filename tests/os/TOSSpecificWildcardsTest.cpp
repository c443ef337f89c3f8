// ExpandCommandLineWildcards.

#include <algorithm>
#include <cstdlib>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <qdacore/os/TOSSpecific.h>
#include <tests/support/ChildProcess.h>
#include <tests/support/LeaksOnPurpose.h>
#include <tests/support/TemporaryFolder.h>

namespace {

using NZRVQDA20::TOSSpecific;
using namespace test_support;

typedef std::vector<std::string> Arguments;

#if defined(_WIN32)
const std::string kSeparator = "\\";
#else
const std::string kSeparator = "/";
#endif

// Hands over copies, and checks that they are left alone.
Arguments Expanded(const Arguments& arguments) {
  const LeaksOnPurpose searches;
  Arguments copies = arguments;
  std::vector<char*> argv;
  for (std::string& copy : copies) {
    argv.push_back(&copy[0]);
  }
  const std::vector<char*> before = argv;
  int count = -7;
  char** strings = nullptr;
  TOSSpecific::ExpandCommandLineWildcards(static_cast<int>(argv.size()), argv.data(), &count,
                                          &strings);
  EXPECT_EQ(before, argv);
  EXPECT_EQ(arguments, copies);
  Arguments result;
  for (int at = 0; at < count; ++at) {
    result.push_back(strings[at]);
    std::free(strings[at]);
  }
  std::free(strings);
  return result;
}

Arguments Sorted(Arguments arguments) {
  std::sort(arguments.begin(), arguments.end());
  return arguments;
}

class Wildcards : public testing::Test {
 protected:
  Wildcards() {
    fFolder.Write("one.txt", "");
    fFolder.Write("two.txt", "");
    fFolder.Write(".dot.txt", "");
    fFolder.Write("sub.txt/inner.c", "");
  }
  std::string In(const std::string& name) const { return fFolder.Path() + kSeparator + name; }

  TemporaryFolder fFolder;
};

TEST_F(Wildcards, MatchesReplaceTheArgumentInItsPlace) {
  EXPECT_EQ((Arguments{"first", In("one.txt"), "last"}), Expanded({"first", In("on*"), "last"}));
  EXPECT_EQ((Arguments{In(".dot.txt"), In("one.txt"), In("sub.txt"), In("two.txt")}),
            Sorted(Expanded({In("*.txt")})));
  EXPECT_EQ(
      (Arguments{In("."), In(".."), In(".dot.txt"), In("one.txt"), In("sub.txt"), In("two.txt")}),
      Sorted(Expanded({In("*")})));
  EXPECT_EQ((Arguments{In("one.txt"), In("two.txt")}),
            Sorted(Expanded({In("?ne.t*"), In("t?o.*")})));
  EXPECT_EQ(Arguments{In("sub.txt") + kSeparator + "inner.c"},
            Expanded({fFolder.Path() + "\\sub.txt\\*.c"}));
}

TEST_F(Wildcards, OtherArgumentsStayAsTheyAre) {
  const Arguments kept = {"",
                          "plain",
                          "?ne.txt",
                          In("?ne.txt"),
                          In("no*match"),
                          In("missing") + "\\*",
                          In("one.txt") + "\\*",
                          In("s*") + "\\inner.c",
                          In("su*") + "\\",
                          "--option=no\\such\\*"};
  EXPECT_EQ(kept, Expanded(kept));
}

// Only a backslash ends the prefix; the host itself takes a slash for a separator everywhere.
#if defined(_WIN32)
const char kBehindASlash[] = "<inner.c>";
#else
const char kBehindASlash[] = "<sub.txt/inner.c>";
#endif

QDACORE_CHILD(ExpandsItsArguments) {
  for (const std::string& argument : Sorted(Expanded(arguments))) {
    std::printf("<%s>", argument.c_str());
  }
  return 0;
}

TEST_F(Wildcards, WithoutAPrefixTheCurrentDirectoryIsSearched) {
  EXPECT_EQ(
      "<one.txt><sub.txt" + kSeparator + "inner.c>",
      RunProgram(OwnProgram(), {"--run-as-child", "ExpandsItsArguments", "one*", "sub.txt\\in*"},
                 {}, fFolder.Path())
          .output);
}

TEST_F(Wildcards, SlashEndsThePrefixOnlyWhereItIsTheHostsSeparator) {
  EXPECT_EQ(kBehindASlash,
            RunProgram(OwnProgram(), {"--run-as-child", "ExpandsItsArguments", "sub.txt/in*"}, {},
                       fFolder.Path())
                .output);
}

TEST(ExpandCommandLineWildcards, NoArgumentsAreAnEmptyArray) {
  for (const int argc : {0, -1, -2147483647}) {
    int count = -7;
    char** strings = nullptr;
    TOSSpecific::ExpandCommandLineWildcards(argc, nullptr, &count, &strings);
    EXPECT_EQ(0, count);
    EXPECT_NE(nullptr, strings);
    std::free(strings);
  }
}

}  // namespace

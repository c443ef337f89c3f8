// Editor and shell, with programs of the test's own in their place.

#include <cstdio>
#include <string>

#include <gtest/gtest.h>

#include <qdacore/os/TOSSpecific.h>
#include <tests/os/LaunchAids.h>
#include <tests/support/ChildProcess.h>
#include <tests/support/TemporaryFolder.h>

namespace {

using namespace NZRVQDA20;
using namespace test_support;

QDACORE_CHILD(LaunchesEditor) {
  TOSSpecific::LaunchTextEditor(arguments.at(0));
  std::puts("back");
  return 0;
}

QDACORE_CHILD(LaunchesShell) {
  TOSSpecific::LaunchCommandShell();
  std::puts("back");
  return 0;
}

std::string Edited(const std::string& path) {
  const launch_aids::Programs programs;
  const ChildResult result = programs.Run("LaunchesEditor", {path});
  EXPECT_EQ(0, result.exitCode) << result.error;
  return result.output;
}

TEST(LaunchTextEditor, RunsTheEditorAndWaitsForItsEnd) {
  EXPECT_EQ("editor [file.txt][]\nback\n", Edited("file.txt"));
}

TEST(LaunchTextEditor, DoesNotQuote) {
  EXPECT_EQ("editor [two][words.txt]\nback\n", Edited("two words.txt"));
  // What the interpreter takes for a sign acts as one.
  EXPECT_EQ("editor [a][]\nmore\nback\n", Edited("a&&echo more"));
}

TEST(LaunchTextEditor, QuotesAreTheCallers) {
  const std::string output = Edited("\"two words.txt\"");
  // One interpreter hands quotes on, another takes them away.
  EXPECT_TRUE(output == "editor [two words.txt][]\nback\n" ||
              output == "editor [\"two words.txt\"][]\nback\n")
      << output;
}

TEST(LaunchTextEditor, WithoutAPathStillStarts) { EXPECT_EQ("editor [][]\nback\n", Edited("")); }

TEST(LaunchCommandShell, RunsTheShellAndWaitsForItsEnd) {
  const launch_aids::Programs programs;
  const ChildResult result = programs.Run("LaunchesShell", {});
  EXPECT_EQ("shell [][]\nback\n", result.output) << result.error;
}

}  // namespace

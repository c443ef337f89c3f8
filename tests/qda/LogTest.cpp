// The log of a run.

#include <sstream>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tests/qda/QdaProgram.h>

namespace {

using qda_test::Installation;
using qda_test::RunQda;
using qda_test::SampleFile;
using test_support::ChildResult;
using test_support::TemporaryFolder;
using testing::AllOf;
using testing::ElementsAre;
using testing::EndsWith;
using testing::StartsWith;

const char kOpened[] = "-- QDA Log Opened ----------------------------";
const char kClosed[] = "-- QDA Log Closed ----------------------------";

std::vector<std::string> LinesOf(const std::string& path) {
  std::istringstream text(test_support::ReadTextFile(path));
  std::vector<std::string> lines;
  for (std::string line; std::getline(text, line);) {
    lines.push_back(line);
  }
  return lines;
}

// One for the machine type and model, and one for each of its parts.
testing::Matcher<std::string> DetectedLine() {
  return AllOf(StartsWith("FDR_[Debug] "), EndsWith(" TCIMSchemaHelper- Detected MTM 1234AC1"));
}

TEST(Log, AtDebugTellsTheRoad) {
  const TemporaryFolder folder;
  const std::string log = folder.PathOf("run.log");
  const ChildResult run =
      RunQda({"identify", "--smbios-dump", SampleFile(), "--log", log, "--log-level", "debug"});
  EXPECT_EQ(0, run.exitCode);
  EXPECT_EQ("", run.error);
  EXPECT_THAT(LinesOf(log),
              ElementsAre(kOpened, DetectedLine(), DetectedLine(), DetectedLine(), kClosed));
}

TEST(Log, AtItsOrdinaryLevelHasNoDebugLines) {
  const TemporaryFolder folder;
  const std::string log = folder.PathOf("run.log");
  const ChildResult run = RunQda({"identify", "--smbios-dump", SampleFile(), "--log", log});
  EXPECT_EQ(0, run.exitCode);
  EXPECT_THAT(LinesOf(log), ElementsAre(kOpened, kClosed));
}

TEST(Log, HasTheErrorsOfARunThatFailed) {
  const TemporaryFolder folder;
  const std::string log = folder.PathOf("run.log");
  const ChildResult run =
      RunQda({"identify", "--provider", "none-such", "--log", log, "--log-level", "error"});
  EXPECT_EQ(1, run.exitCode);
  EXPECT_THAT(LinesOf(log), ElementsAre(kOpened,
                                        AllOf(StartsWith("FDR_[Error] "),
                                              EndsWith(" Failed to find nsp named none-such")),
                                        kClosed));
}

TEST(Log, HoldsTheLatestRunOnly) {
  const TemporaryFolder folder;
  const std::string log = folder.Write("run.log", "what was there before\n");
  const ChildResult run = RunQda({"providers", "--log", log});
  EXPECT_EQ(0, run.exitCode);
  EXPECT_THAT(LinesOf(log), ElementsAre(kOpened, kClosed));
}

TEST(Log, ThatCannotBeOpenedIsAFailureThatNamesIt) {
  const TemporaryFolder folder;
  const std::string log = folder.PathOf("no-such-folder/run.log");
  const ChildResult run = RunQda({"identify", "--smbios-dump", SampleFile(), "--log", log});
  EXPECT_EQ(1, run.exitCode);
  EXPECT_EQ("", run.output);
  EXPECT_EQ("qda: log file \"" + log + "\": it cannot be opened (kQDAStatusFileSystemError)\n",
            run.error);
}

TEST(Log, ThatIsNotAskedForIsNowhere) {
  const Installation installation;
  installation.AddFile("broken.nsp.dll", "this is no module\n");
  const ChildResult run = installation.Run({"identify"});
  EXPECT_EQ(1, run.exitCode);
  EXPECT_THAT(run.error, testing::Not(testing::HasSubstr("FDR_")));
  EXPECT_THAT(run.output, testing::Not(testing::HasSubstr("FDR_")));
}

}  // namespace

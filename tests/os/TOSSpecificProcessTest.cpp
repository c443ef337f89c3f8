// SpawnProcess with real children.

#include <cstdlib>
#include <fstream>
#include <limits>

#include <gtest/gtest.h>

#include <qdacore/os/TOSSpecific.h>
#include <tests/os/Children.h>
#include <tests/support/ChildProcess.h>
#include <tests/support/ExpectStatus.h>
#include <tests/support/LogCapture.h>
#include <tests/support/OpenHandles.h>

namespace {

using namespace NZRVQDA20;
using namespace test_support;
using os_tests::ChildCommand;
using os_tests::PatternAt;

typedef std::vector<std::string> Words;
typedef std::vector<std::string> Lines;

struct Result {
  int exitCode;
  std::string output;
};

bool operator==(const Result& one, const Result& other) {
  return one.exitCode == other.exitCode && one.output == other.output;
}

std::ostream& operator<<(std::ostream& stream, const Result& result) {
  return stream << result.exitCode << " [" << result.output << "]";
}

Result Spawn(const std::string& program, const Words& arguments = {}, int ignored = 0) {
  Result result = {-99, "what was there before"};
  result.exitCode = TOSSpecific::SpawnProcess(program, arguments, result.output, ignored);
  return result;
}

TEST(SpawnProcess, EachFormGivesTheText) {
  const std::string program = ChildCommand("PrintsArguments");
  EXPECT_EQ((Result{0, "<a><b>"}), Spawn(program, {"a", "b"}));
  EXPECT_EQ("<a><b>", TOSSpecific::SpawnProcess(program, {"a", "b"}, 0));
  EXPECT_EQ("", TOSSpecific::SpawnProcess(program, 0));
  EXPECT_EQ("<a><b>", TOSSpecific::SpawnProcess(program + " a b", 0));
}

TEST(SpawnProcess, LastArgumentHasNoEffect) {
  const std::string program = ChildCommand("PrintsArguments");
  for (const int value : {-1, 1, std::numeric_limits<int>::max()}) {
    SCOPED_TRACE(value);
    EXPECT_EQ((Result{0, "<a>"}), Spawn(program, {"a"}, value));
    EXPECT_EQ("<a>", TOSSpecific::SpawnProcess(program, {"a"}, value));
    EXPECT_EQ("<a>", TOSSpecific::SpawnProcess(program + " a", value));
  }
}

TEST(SpawnProcess, ErrorOutputStandsBetweenTheOutputAsItWasWritten) {
  const char expected[] = "out 1\nerr 1\nout 2\nerr 2\nout 3\nerr 3\n";
  EXPECT_EQ((Result{0, expected}), Spawn(ChildCommand("WritesBothStreams")));
  EXPECT_EQ(expected, TOSSpecific::SpawnProcess(ChildCommand("WritesBothStreams"), 0));
}

TEST(SpawnProcess, NulBytesAndLineEndsAreKept) {
  const std::string expected("\0a\0\0b\r\n\xFF\0", 9);
  EXPECT_EQ((Result{0, expected}), Spawn(ChildCommand("WritesNuls")));
  EXPECT_EQ(expected, TOSSpecific::SpawnProcess(ChildCommand("WritesNuls"), 0));
}

TEST(SpawnProcess, ExitCodeIsTheChilds) {
  for (const int code : {0, 1, 42, 127, 255}) {
    EXPECT_EQ((Result{code, ""}), Spawn(ChildCommand("EndsWith"), {std::to_string(code)}));
  }
}

TEST(SpawnProcess, TextFormDoesNotTellAFailingChild) {
  EXPECT_EQ("", TOSSpecific::SpawnProcess(ChildCommand("EndsWith"), {"42"}, 0));
}

bool IsPattern(const std::string& text) {
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] != PatternAt(at)) {
      return false;
    }
  }
  return true;
}

// Far more than a pipe holds.
TEST(SpawnProcess, LargeOutputIsWhole) {
#if defined(_WIN32)
  // Each read goes to Wine's server and back: 64 MiB take ten seconds and more.
  const std::size_t size = std::size_t{8} << 20;
#else
  const std::size_t size = std::size_t{64} << 20;
#endif
  const Result result = Spawn(ChildCommand("WritesMuch"), {std::to_string(size)});
  EXPECT_EQ(0, result.exitCode);
  ASSERT_EQ(size, result.output.size());
  EXPECT_TRUE(IsPattern(result.output));
}

TEST(SpawnProcess, OutputAroundTheSizesOfReadsAndPipesIsWhole) {
  for (const std::size_t size : {1, 4095, 4096, 4097, 65536, 65537, 262145}) {
    SCOPED_TRACE(size);
    const std::string text =
        TOSSpecific::SpawnProcess(ChildCommand("WritesMuch"), {std::to_string(size)}, 0);
    EXPECT_EQ(size, text.size());
    EXPECT_TRUE(IsPattern(text));
  }
}

TEST(SpawnProcess, TenThousandArguments) {
  EXPECT_EQ((Result{0, "10000"}), Spawn(ChildCommand("CountsArguments"), Words(10000, "x")));
  EXPECT_EQ("10000",
            TOSSpecific::SpawnProcess(ChildCommand("CountsArguments"), Words(10000, "x"), 0));
}

TEST(SpawnProcess, ArgumentsAreQuotedByTheCaller) {
  const std::string program = ChildCommand("PrintsArguments");
  EXPECT_EQ("<a><b>", TOSSpecific::SpawnProcess(program, {"a b"}, 0));
  EXPECT_EQ("<a b>", TOSSpecific::SpawnProcess(program, {"\"a b\""}, 0));
  EXPECT_EQ("<a b>", TOSSpecific::SpawnProcess(program, {"\"a", "b\""}, 0));
  EXPECT_EQ("<>", TOSSpecific::SpawnProcess(program, {"\"\""}, 0));
  EXPECT_EQ("<a\"b>", TOSSpecific::SpawnProcess(program, {"\"a\\\"b\""}, 0));
  EXPECT_EQ("", TOSSpecific::SpawnProcess(program, {"", ""}, 0));
}

TEST(SpawnProcess, ChildThatReadsItsInputWaits) {
  EXPECT_EQ((Result{0, "nothing came"}), Spawn(ChildCommand("ReadsInput")));
  EXPECT_EQ("nothing came", TOSSpecific::SpawnProcess(ChildCommand("ReadsInput"), 0));
}

// The output has no end before the grandchild closes it; the exit code is the child's.
TEST(SpawnProcess, GrandchildThatHoldsTheOutputIsReadToItsEnd) {
  EXPECT_EQ((Result{3, "child\ngrandchild\n"}), Spawn(ChildCommand("LeavesAGrandchild")));
  EXPECT_EQ("child\ngrandchild\n", TOSSpecific::SpawnProcess(ChildCommand("LeavesAGrandchild"), 0));
}

TEST(SpawnProcess, ChildHasOurEnvironmentAndFolder) {
  TemporaryFolder folder;
  folder.Write("place", "in our folder");
  EXPECT_EQ("our word in our folder, our word in our folder",
            RunProgram(OwnProgram(), {"--run-as-child", "SpawnsTellers"},
                       {{"QDACORE_TEST_WORD", "our word"}}, folder.Path())
                .output);
}

QDACORE_CHILD(SpawnsTellers) {
  os_tests::WriteOutput(Spawn(ChildCommand("TellsWhatItHas")).output + ", " +
                        TOSSpecific::SpawnProcess(ChildCommand("TellsWhatItHas"), 0));
  return 0;
}

QDACORE_CHILD(TellsWhatItHas) {
  const char* const word = std::getenv("QDACORE_TEST_WORD");
  std::string place = "elsewhere";
  std::getline(std::ifstream("place"), place);
  os_tests::WriteOutput(std::string(word ? word : "no word") + " " + place);
  return 0;
}

// --- Programs that cannot be started -------------------------------------------------

void ExpectNotStarted(const std::string& program) {
  SCOPED_TRACE(program);
  std::string output = "what was there before";
  {
    LogCapture log;
    EXPECT_STATUS(kQDAStatusFail, TOSSpecific::SpawnProcess(program, {"a"}, output, 0));
    EXPECT_STATUS(kQDAStatusFail, TOSSpecific::SpawnProcess(program, {"a"}, 0));
    EXPECT_STATUS(kQDAStatusFail, TOSSpecific::SpawnProcess(program, 0));
    EXPECT_EQ(Lines(3, "[Error] ERROR: CreateProcess Failed"), log.Lines());
  }
  EXPECT_EQ("what was there before", output);
  // And without a logger.
  EXPECT_STATUS(kQDAStatusFail, TOSSpecific::SpawnProcess(program, {"a"}, output, 0));
  EXPECT_STATUS(kQDAStatusFail, TOSSpecific::SpawnProcess(program, {"a"}, 0));
  EXPECT_STATUS(kQDAStatusFail, TOSSpecific::SpawnProcess(program, 0));
}

TEST(SpawnProcess, ProgramThatCannotBeStartedFailsInTheParent) {
  TemporaryFolder folder;
  ExpectNotStarted("no-such-program-anywhere");
  ExpectNotStarted("\"" + folder.PathOf("missing") + "\"");
  ExpectNotStarted("\"" + folder.Path() + "\"");
  ExpectNotStarted("\"" + folder.Write("text.txt", "This is no program.\n") + "\"");
  ExpectNotStarted("\"" + folder.Write("empty.exe", "") + "\"");
  ExpectNotStarted(std::string("x\0y", 3));
}

// --- What stays open -----------------------------------------------------------------

template <class Call>
int HandlesLeftBy(Call call) {
  // The first time also opens what the process goes on to use.
  call();
  const int before = CountOpenHandles();
  call();
  call();
  call();
  const int left = CountOpenHandles() - before;
  EXPECT_EQ(0, left % 3);
  return left / 3;
}

TEST(SpawnProcessHandles, ExitCodeFormLeavesBothEndsOfTheInputOpen) {
  EXPECT_EQ(2, HandlesLeftBy([] { Spawn(ChildCommand("EndsWith"), {"0"}); }));
  EXPECT_EQ(2, HandlesLeftBy([] { Spawn(ChildCommand("EndsWith"), {"1"}); }));
  EXPECT_EQ(2, HandlesLeftBy([] { Spawn(ChildCommand("PrintsArguments"), {"a"}); }));
}

TEST(SpawnProcessHandles, TextFormLeavesNothingOpen) {
  EXPECT_EQ(0, HandlesLeftBy(
                   [] { TOSSpecific::SpawnProcess(ChildCommand("PrintsArguments"), {"a"}, 0); }));
  EXPECT_EQ(0,
            HandlesLeftBy([] { TOSSpecific::SpawnProcess(ChildCommand("EndsWith") + " 1", 0); }));
}

TEST(SpawnProcessHandles, ProgramThatCannotBeStartedLeavesBothPipesOpen) {
  const std::string missing = "no-such-program-anywhere";
  EXPECT_EQ(4, HandlesLeftBy([&] { EXPECT_STATUS(kQDAStatusFail, Spawn(missing)); }));
  EXPECT_EQ(4, HandlesLeftBy(
                   [&] { EXPECT_STATUS(kQDAStatusFail, TOSSpecific::SpawnProcess(missing, 0)); }));
}

// --- The log -------------------------------------------------------------------------

TEST(SpawnProcess, TextFormLogsTheTextAtDebugSeverity) {
  LogCapture log;
  Spawn(ChildCommand("PrintsArguments"), {"unseen"});
  TOSSpecific::SpawnProcess(ChildCommand("PrintsArguments"), {"a"}, 0);
  TOSSpecific::SpawnProcess(ChildCommand("PrintsArguments"), 0);
  EXPECT_EQ((Lines{"[Debug] Debug (win toss): GetFileContents() Returned: <a>",
                   "[Debug] Debug (win toss): GetFileContents() Returned: "}),
            log.Lines());
}

}  // namespace

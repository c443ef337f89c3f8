// What SpawnProcess asks of the host, and in which order.

#include <limits>

#include <gtest/gtest.h>

#include <qdacore/os/TOSSpecific.h>
#include <tests/host/FakeProcesses.h>
#include <tests/host/HostFakes.h>
#include <tests/support/ExpectStatus.h>
#include <tests/support/LogCapture.h>

namespace {

using namespace NZRVQDA20;
using namespace host_fakes;
using test_support::LogCapture;

typedef std::vector<std::string> Lines;

class FakeChild : public testing::Test {
 protected:
  FakeChild() : fHost(ProcessesOnly(fProcesses)) {}

  FakeProcesses fProcesses;
  ScopedHost fHost;
};

TEST_F(FakeChild, ExitCodeFormLeavesItsInputPipeOpen) {
  fProcesses.readings = {{true, "two ", 0}, {true, "parts", 0}};
  fProcesses.exitCode = 42;
  std::string output = "what was there before";
  EXPECT_EQ(42, TOSSpecific::SpawnProcess("program", {"-a", "b"}, output, 0));
  EXPECT_EQ("two parts", output);
  EXPECT_EQ(
      (Lines{"ask for standard output", "make pipe 1 2", "make private 1 -> 3", "make pipe 4 5",
             "make private 5 -> 6", "start [program -a b] hidden input 4 output 2", "close 2",
             "read 3 up to 4096", "read 3 up to 4096", "read 3 up to 4096", "close 3", "wait for 7",
             "exit code of 7", "release 7"}),
      fProcesses.calls);
}

TEST_F(FakeChild, TextFormClosesItsInputPipeLast) {
  fProcesses.readings = {{true, "text", 0}};
  fProcesses.exitCode = 42;
  EXPECT_EQ("text", TOSSpecific::SpawnProcess("program", {"-a", "b"}, 0));
  EXPECT_EQ((Lines{"ask for standard output", "make pipe 1 2", "make private 1 -> 3",
                   "make pipe 4 5", "make private 5 -> 6", "start [program -a b] input 4 output 2",
                   "close 2", "read 3 up to 4096", "read 3 up to 4096", "close 3", "wait for 7",
                   "release 7", "close 4", "close 6"}),
            fProcesses.calls);
}

TEST_F(FakeChild, ShortFormIsTheTextFormWithoutArguments) {
  fProcesses.readings = {{true, "text", 0}};
  EXPECT_EQ("text", TOSSpecific::SpawnProcess("program", 0));
  EXPECT_EQ("start [program] input 4 output 2", fProcesses.calls.at(5));
  EXPECT_EQ("close 6", fProcesses.calls.back());
}

TEST_F(FakeChild, CommandLineIsJoinedByBlanksAndNothingIsQuoted) {
  const struct {
    const char* program;
    std::vector<std::string> arguments;
    const char* started;
  } rows[] = {
      {"program", {}, "start [program]"},
      {"a b", {"c d", "", "e\"f", "\\"}, "start [a b c d  e\"f \\]"},
      {"", {}, "start []"},
      {"", {""}, "start [ ]"},
      {" x ", {" y "}, "start [ x   y ]"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.started);
    FakeProcesses processes;
    ScopedHost scope(ProcessesOnly(processes));
    TOSSpecific::SpawnProcess(row.program, row.arguments, 0);
    EXPECT_EQ(row.started + std::string(" input 4 output 2"), processes.calls.at(5));
  }
}

TEST_F(FakeChild, NulInTheCommandLineNamesNothing) {
  const std::string cut("true\0x", 6);
  const Lines before = {"ask for standard output", "make pipe 1 2", "make private 1 -> 3",
                        "make pipe 4 5", "make private 5 -> 6"};
  {
    LogCapture log;
    EXPECT_STATUS(kQDAStatusFail, TOSSpecific::SpawnProcess(cut, 0));
    EXPECT_EQ(Lines{"[Error] ERROR: CreateProcess Failed"}, log.Lines());
  }
  EXPECT_EQ(before, fProcesses.calls);
  std::string output = "kept";
  EXPECT_STATUS(kQDAStatusFail, TOSSpecific::SpawnProcess("true", {"a", cut}, output, 0));
  EXPECT_EQ("kept", output);
}

TEST_F(FakeChild, LastArgumentIsNeverRead) {
  TOSSpecific::SpawnProcess("program", {"a"}, 0);
  const Lines ofText = fProcesses.calls;
  for (const int value :
       {-1, 1, 1000, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
    SCOPED_TRACE(value);
    FakeProcesses processes;
    ScopedHost scope(ProcessesOnly(processes));
    TOSSpecific::SpawnProcess("program", {"a"}, value);
    EXPECT_EQ(ofText, processes.calls);
  }
}

// The whole text in one entry, before the child is waited for; in the other form nothing.
TEST_F(FakeChild, OnlyTheTextFormLogsTheText) {
  LogCapture log;
  fProcesses.readings = {{true, "one\ntwo", 0}};
  TOSSpecific::SpawnProcess("program", {}, 0);
  fProcesses.readings = {{true, "short", 0}};
  TOSSpecific::SpawnProcess("program", 0);
  fProcesses.readings = {{true, "unseen", 0}};
  std::string output;
  TOSSpecific::SpawnProcess("program", {}, output, 0);
  EXPECT_EQ((Lines{"[Debug] Debug (win toss): GetFileContents() Returned: one", "two",
                   "[Debug] Debug (win toss): GetFileContents() Returned: short"}),
            log.Lines());
}

TEST_F(FakeChild, ReadingThatFailsMidwayIsLoggedWithAnEmptyNameAndTheSystemsWords) {
  LogCapture log;
  fProcesses.readings = {{true, "kept", 0}, {false, "lost", 17}};
  std::string output;
  fProcesses.exitCode = 5;
  EXPECT_EQ(5, TOSSpecific::SpawnProcess("program", {}, output, 0));
  EXPECT_EQ("kept", output);
  EXPECT_EQ((Lines{"[Debug] GetFileContents failed to read file ", "[Debug] words for 17"}),
            log.Lines());
}

// The child must not be left with a pipe that nobody empties.
TEST_F(FakeChild, HandlesAreClosedWhenMemoryRunsOut) {
  fProcesses.memoryRunsOut = true;
  std::string output;
  EXPECT_THROW(TOSSpecific::SpawnProcess("program", {}, output, 0), std::bad_alloc);
  EXPECT_EQ((Lines{"close 3", "release 7"}),
            Lines(fProcesses.calls.end() - 2, fProcesses.calls.end()));
  fProcesses.calls.clear();
  EXPECT_THROW(TOSSpecific::SpawnProcess("program", 0), std::bad_alloc);
  EXPECT_EQ((Lines{"close 10", "release 14", "close 11", "close 13"}),
            Lines(fProcesses.calls.end() - 4, fProcesses.calls.end()));
}

}  // namespace

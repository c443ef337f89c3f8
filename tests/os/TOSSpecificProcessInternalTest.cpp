// What SpawnProcess asks of the host, in which order, and what each step's failure becomes.

#include <limits>
#include <memory>

#include <gtest/gtest.h>

#include <qdacore/os/TOSSpecific.h>
#include <tests/host/FakeProcesses.h>
#include <tests/host/FaultyProcesses.h>
#include <tests/host/HostFakes.h>
#include <tests/os/Children.h>
#include <tests/support/ExpectStatus.h>
#include <tests/support/LogCapture.h>

namespace {

using namespace NZRVQDA20;
using namespace host_fakes;
using test_support::LogCapture;
using test_support::ThrownStatus;

typedef std::vector<std::string> Lines;

host::Replacements ProcessesOnly(host::Processes& processes) {
  host::Replacements replacements;
  replacements.processes = &processes;
  return replacements;
}

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

// --- Each call fails once ------------------------------------------------------------
//
// With a real child, which writes "<word>".

struct Failure {
  // The call that fails, as FaultyProcesses names it; empty: none.
  const char* call;
  // The error line; null: the form does not fail.
  const char* text;
  // How many handles stay open.
  std::size_t leftOpen;
  // What is returned where the form does not fail.
  const char* output;
  int exitCode;
};

typedef std::vector<Failure> Failures;

// Where the child may find that its reader is gone, or end before it does.
const int kEitherCode = -12345;

const Failures kStartFailures = {
    {"MakePipe", "ERROR: Stdout pipe creation failed", 0, "", 0},
    {"MakePrivate", "ERROR: Stdout DuplicateHandle failed", 2, "", 0},
    {"MakePipe", "ERROR: Stdin pipe creation failed", 2, "", 0},
    {"MakePrivate", "ERROR: Stdin DuplicateHandle failed", 4, "", 0},
    {"Start", "ERROR: CreateProcess Failed", 4, "", 0},
    {"Close", "ERROR: CloseHandle failed", 3, "", 0},
};

// From there on nothing is an error.
const Failures kExitCodeFormGoesOn = {
    {"Read", nullptr, 2, "", kEitherCode}, {"Read", nullptr, 2, "<word>", 0},
    {"Close", nullptr, 2, "<word>", 0},    {"ExitCode", nullptr, 2, "<word>", -1},
    {"", nullptr, 2, "<word>", 0},
};

const Failures kTextFormGoesOn = {
    {"Read", nullptr, 0, "", 0},        {"Read", nullptr, 0, "<word>", 0},
    {"Close", nullptr, 0, "<word>", 0}, {"Close", nullptr, 0, "<word>", 0},
    {"Close", nullptr, 0, "<word>", 0}, {"", nullptr, 0, "<word>", 0},
};

enum class Form { kExitCode, kText, kShort };

struct Result {
  std::string status;
  std::string output;
  int exitCode;
};

Result RunForm(Form form) {
  Result result = {"", "", 0};
  const std::string program = os_tests::ChildCommand("PrintsArguments");
  result.status = ThrownStatus([&] {
    switch (form) {
      case Form::kExitCode:
        result.exitCode = TOSSpecific::SpawnProcess(program, {"word"}, result.output, 0);
        break;
      case Form::kText:
        result.output = TOSSpecific::SpawnProcess(program, {"word"}, 0);
        break;
      case Form::kShort:
        result.output = TOSSpecific::SpawnProcess(program + " word", 0);
        break;
    }
  });
  return result;
}

Lines ExpectedLines(Form form, const Failure& expected) {
  if (expected.text) {
    return {std::string("[Error] ") + expected.text};
  }
  return form == Form::kExitCode
             ? Lines()
             : Lines{std::string("[Debug] Debug (win toss): GetFileContents() Returned: ") +
                     expected.output};
}

void ExpectFailures(Form form, const Failures& goesOn, bool withLogger) {
  SCOPED_TRACE(withLogger ? "with a logger" : "without a logger");
  Failures rows = kStartFailures;
  rows.insert(rows.end(), goesOn.begin(), goesOn.end());
  std::size_t next = 0;
  const int calls = FailEachCall(kOther, [&](FaultPlan& plan) {
    const Failure& expected = rows.at(next++);
    std::unique_ptr<LogCapture> log(withLogger ? new LogCapture : nullptr);
    FaultyProcesses processes(plan);
    ScopedHost scope(ProcessesOnly(processes));
    const Result result = RunForm(form);
    EXPECT_EQ(expected.call, plan.Reached() ? plan.FailedCall() : "");
    EXPECT_EQ(expected.leftOpen, processes.LeftOpen());
    EXPECT_EQ(expected.text ? "kQDAStatusFail" : "nothing", result.status);
    EXPECT_EQ(expected.output, result.output);
    if (expected.exitCode != kEitherCode) {
      EXPECT_EQ(expected.exitCode, result.exitCode);
    }
    if (log) {
      EXPECT_EQ(ExpectedLines(form, expected), log->Lines());
    }
  });
  EXPECT_EQ(rows.size(), next);
  EXPECT_EQ(rows.size() - 1, static_cast<std::size_t>(calls));
}

TEST(SpawnProcessFailures, EveryCallOfTheExitCodeForm) {
  ExpectFailures(Form::kExitCode, kExitCodeFormGoesOn, true);
}

TEST(SpawnProcessFailures, EveryCallOfTheExitCodeFormWithoutALogger) {
  ExpectFailures(Form::kExitCode, kExitCodeFormGoesOn, false);
}

TEST(SpawnProcessFailures, EveryCallOfTheTextForm) {
  ExpectFailures(Form::kText, kTextFormGoesOn, true);
}

TEST(SpawnProcessFailures, EveryCallOfTheTextFormWithoutALogger) {
  ExpectFailures(Form::kText, kTextFormGoesOn, false);
}

TEST(SpawnProcessFailures, EveryCallOfTheShortForm) {
  ExpectFailures(Form::kShort, kTextFormGoesOn, true);
}

// The system's words differ from host to host; that there are some does not.
TEST(SpawnProcessFailures, ReadingThatFailsMidwayKeepsWhatCameBefore) {
  LogCapture log;
  FaultPlan plan(8, kDenied);
  FaultyProcesses processes(plan, 3);
  ScopedHost scope(ProcessesOnly(processes));
  EXPECT_EQ("<word>", RunForm(Form::kText).output);
  ASSERT_TRUE(plan.Reached());
  EXPECT_EQ("Read", plan.FailedCall());
  const Lines lines = log.Lines();
  ASSERT_LE(3u, lines.size());
  EXPECT_EQ("[Debug] GetFileContents failed to read file ", lines[0]);
  EXPECT_EQ(0u, lines[1].find("[Debug] "));
  EXPECT_LT(std::string("[Debug] ").size(), lines[1].size());
  EXPECT_EQ("[Debug] Debug (win toss): GetFileContents() Returned: <word>", lines.back());
}

}  // namespace

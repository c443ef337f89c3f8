// What the failure of each step of SpawnProcess becomes, with a real child, which writes "<word>".

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

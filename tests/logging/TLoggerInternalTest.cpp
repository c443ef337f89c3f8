// The logger with a clock and an event log of the test's own.

#include <gtest/gtest.h>

#include <qdacore/frame/TRootObject.h>
#include <qdacore/logging/TLogger.h>
#include <tests/host/HostFakes.h>
#include <tests/support/ExpectStatus.h>
#include <tests/support/TemporaryFolder.h>

namespace {

using namespace NZRVQDA20;
using namespace host_fakes;
using namespace test_support;

typedef std::vector<std::string> Calls;

const host::LocalNow kMarch = {{2010, 3, 7, 9, 5, 2, false}, 250, 60};

class LoggerOnAFakeHost : public testing::Test {
 protected:
  LoggerOnAFakeHost() : fFixed(kMarch), fHost({&fFixed, &fEvents, nullptr, nullptr}) {
    TLogger::Initialize();
    Logger().SetLogThreshold(ILogger::kLogVerbose);
  }
  ~LoggerOnAFakeHost() override { delete TRootObject::GetCoreLogger(); }

  ILogger& Logger() { return *TRootObject::GetCoreLogger(); }
  void Count() { host::replacements.clock = &fCounting; }

  FixedClock fFixed;
  CountingClock fCounting;
  RecordingEventLog fEvents;
  ScopedHost fHost;
};

TEST_F(LoggerOnAFakeHost, LineIsWithoutPadding) {
  Logger().LogMessage(ILogger::kLogError, "text");
  Logger().LogMessage(ILogger::kLogVerbose, "");
  EXPECT_EQ((Calls{"debugger: FDR_[Error] 3/7/2010  9:5:2 text\n",
                   "debugger: FDR_[Verbose] 3/7/2010  9:5:2 \n"}),
            fEvents.calls);
}

TEST_F(LoggerOnAFakeHost, LineOfTheLastSecondOfAYearAndOfMidnight) {
  FixedClock last({{2999, 12, 31, 23, 59, 59, false}, 999, 0});
  host::replacements.clock = &last;
  Logger().LogMessage(ILogger::kLogError, "text");
  FixedClock first({{1970, 1, 2, 0, 0, 0, false}, 0, 0});
  host::replacements.clock = &first;
  Logger().LogMessage(ILogger::kLogError, "text");
  EXPECT_EQ((Calls{"debugger: FDR_[Error] 12/31/2999  23:59:59 text\n",
                   "debugger: FDR_[Error] 1/2/1970  0:0:0 text\n"}),
            fEvents.calls);
}

TEST_F(LoggerOnAFakeHost, FileGetsTheSameLine) {
  TemporaryFolder folder;
  const std::string path = folder.PathOf("core.log");
  Logger().SetLogFilename(path);
  Logger().LogMessage(ILogger::kLogWarning, "text");
  EXPECT_EQ(
      "-- QDA Log Opened ----------------------------\n"
      "FDR_[Warning] 3/7/2010  9:5:2 text\n",
      ReadTextFile(path));
  EXPECT_EQ(Calls(), fEvents.calls);
}

// Six readings: second, minute, hour, year, day, month. A message that is kept takes one before.
TEST_F(LoggerOnAFakeHost, EachFieldIsFromAReadingOfItsOwn) {
  Count();
  Logger().LogMessage(ILogger::kLogDebug, "not kept");
  EXPECT_EQ(6, fCounting.readings);
  fCounting.readings = 0;
  Logger().LogMessage(ILogger::kLogError, "kept");
  EXPECT_EQ(7, fCounting.readings);
  fCounting.readings = 0;
  Logger().LogSystemEvent(ILogger::kLogError, "event");
  EXPECT_EQ(6, fCounting.readings);
  EXPECT_EQ((Calls{"debugger: FDR_[Debug] 6/15/2004  3:32:41 not kept\n",
                   "debugger: FDR_[Error] 7/16/2005  4:33:42 kept\n",
                   "VXTP error 1: FDR_[Error] 6/15/2004  3:32:41 event\n"}),
            fEvents.calls);
}

TEST_F(LoggerOnAFakeHost, ClockIsReadOnlyForWhatIsKeptOrWritten) {
  const struct {
    int severity;
    int readings;
  } rows[] = {{100, 1}, {101, 1}, {-1, 1}, {5, 0}, {4, 6}, {2, 7}};
  Count();
  for (const auto& row : rows) {
    SCOPED_TRACE(row.severity);
    fCounting.readings = 0;
    ThrownStatus(
        [&] { Logger().LogMessage(static_cast<ILogger::EQDALogSeverity>(row.severity), "text"); });
    EXPECT_EQ(row.readings, fCounting.readings);
  }
  Logger().SetLogThreshold(static_cast<ILogger::EQDALogSeverity>(7));
  fCounting.readings = 0;
  EXPECT_STATUS(kQDAStatusFail,
                Logger().LogMessage(static_cast<ILogger::EQDALogSeverity>(7), "text"));
  EXPECT_EQ(0, fCounting.readings);
}

TEST_F(LoggerOnAFakeHost, KeptMessageHasItsTimeInFull) {
  Logger().LogMessage(ILogger::kLogRecordOnly, "text");
  ASSERT_EQ(1u, Logger().GetLogEntries().size());
  const TLogEntry& entry = Logger().GetLogEntries().front();
  EXPECT_EQ(100, static_cast<int>(entry.severity));
  EXPECT_EQ("text", entry.message);
  EXPECT_EQ("20100307090502.250000+060", entry.time.ToString());
}

// Not the threshold, not the list and not the file.
TEST_F(LoggerOnAFakeHost, SystemEventIsReportedWhateverTheLoggersState) {
  TemporaryFolder folder;
  Logger().SetLogFilename(folder.PathOf("core.log"));
  Logger().SetLogThreshold(static_cast<ILogger::EQDALogSeverity>(-1));
  for (const int severity : {0, 1, 2, 3, 4}) {
    Logger().LogSystemEvent(static_cast<ILogger::EQDALogSeverity>(severity), "text");
  }
  EXPECT_EQ((Calls{"VXTP error 1: FDR_[Error] 3/7/2010  9:5:2 text\n",
                   "VXTP warning 1: FDR_[Warning] 3/7/2010  9:5:2 text\n",
                   "VXTP information 1: FDR_[Status] 3/7/2010  9:5:2 text\n",
                   "VXTP information 1: FDR_[Debug] 3/7/2010  9:5:2 text\n",
                   "VXTP information 1: FDR_[Verbose] 3/7/2010  9:5:2 text\n"}),
            fEvents.calls);
  EXPECT_TRUE(Logger().GetLogEntries().empty());
}

TEST_F(LoggerOnAFakeHost, SystemEventOfABadSeverityReportsNothing) {
  for (const int severity : {-1, 5, 100, 101}) {
    EXPECT_STATUS(kQDAStatusFail,
                  Logger().LogSystemEvent(static_cast<ILogger::EQDALogSeverity>(severity), "text"));
  }
  EXPECT_EQ(Calls(), fEvents.calls);
}

// The test is on the name: an empty one, which cannot be opened, stands for no file.
TEST_F(LoggerOnAFakeHost, EmptyNameFailsAndLinesGoToTheDebuggerAgain) {
  TemporaryFolder folder;
  Logger().SetLogFilename(folder.PathOf("core.log"));
  EXPECT_STATUS(kQDAStatusFileSystemError, Logger().SetLogFilename(""));
  Logger().LogMessage(ILogger::kLogError, "text");
  EXPECT_EQ(Calls{"debugger: FDR_[Error] 3/7/2010  9:5:2 text\n"}, fEvents.calls);
}

}  // namespace

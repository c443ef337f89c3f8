// What becomes of a message: every severity under every threshold.

#include <gtest/gtest.h>

#include <qdacore/frame/TRootObject.h>
#include <qdacore/logging/TLogger.h>
#include <tests/support/ExpectStatus.h>
#include <tests/support/LogCapture.h>

namespace {

using namespace NZRVQDA20;
using namespace test_support;

typedef ILogger::EQDALogSeverity Severity;

Severity SeverityOf(int number) { return static_cast<Severity>(number); }

// L: a line is written. E: an entry is kept. T: kQDAStatusFail is thrown.
struct SeverityRow {
  int severity;
  const char* outcomes[10];
};

const int kThresholds[10] = {-5, -1, 0, 1, 2, 3, 4, 7, 100, 101};

const SeverityRow kOutcomes[] = {
    // Threshold: -5   -1    0     1     2     3     4     7     100   101
    {0, {"", "", "LE", "LE", "LE", "LE", "LE", "LE", "LE", "LE"}},
    {1, {"", "", "", "LE", "LE", "LE", "LE", "LE", "LE", "LE"}},
    {2, {"", "", "", "", "LE", "LE", "LE", "LE", "LE", "LE"}},
    {3, {"", "", "", "", "", "L", "L", "L", "L", "L"}},
    {4, {"", "", "", "", "", "", "L", "L", "L", "L"}},
    {100, {"E", "E", "E", "E", "E", "E", "E", "E", "E", "E"}},
    {101, {"E", "E", "E", "E", "E", "E", "E", "E", "E", "E"}},
    {-1, {"", "ET", "ET", "ET", "ET", "ET", "ET", "ET", "ET", "ET"}},
    {-5, {"ET", "ET", "ET", "ET", "ET", "ET", "ET", "ET", "ET", "ET"}},
    {5, {"", "", "", "", "", "", "", "T", "T", "T"}},
    {7, {"", "", "", "", "", "", "", "T", "T", "T"}},
    {99, {"", "", "", "", "", "", "", "", "T", "T"}},
    {102, {"", "", "", "", "", "", "", "", "", ""}},
};

// In the same letters.
std::string OutcomeOf(const LogCapture& log, Severity severity) {
  ILogger& logger = *TRootObject::GetCoreLogger();
  const std::string status = ThrownStatus([&] { logger.LogMessage(severity, "text"); });
  std::string outcome;
  outcome.append(log.Lines().size(), 'L');
  outcome.append(logger.GetLogEntries().size(), 'E');
  if (status != "nothing") {
    EXPECT_EQ("kQDAStatusFail", status);
    outcome += 'T';
  }
  return outcome;
}

TEST(TLogger, SeverityAndThresholdDecide) {
  for (const SeverityRow& row : kOutcomes) {
    for (int column = 0; column < 10; ++column) {
      LogCapture log;
      TRootObject::GetCoreLogger()->SetLogThreshold(SeverityOf(kThresholds[column]));
      EXPECT_EQ(row.outcomes[column], OutcomeOf(log, SeverityOf(row.severity)))
          << "severity " << row.severity << ", threshold " << kThresholds[column];
    }
  }
}

TEST(TLogger, NewLoggerLetsStatusMessagesThrough) {
  TLogger::Initialize();
  EXPECT_EQ(2, TRootObject::GetCoreLogger()->GetLogThreshold());
  EXPECT_TRUE(TRootObject::GetCoreLogger()->GetLogEntries().empty());
  delete TRootObject::GetCoreLogger();
}

TEST(TLogger, ThresholdIsStoredAsItIs) {
  LogCapture log;
  ILogger& logger = *TRootObject::GetCoreLogger();
  for (const int threshold : {-2147483647 - 1, -1, 0, 4, 100, 2147483647}) {
    logger.SetLogThreshold(SeverityOf(threshold));
    EXPECT_EQ(threshold, static_cast<int>(logger.GetLogThreshold()));
  }
}

// A refused severity leaves its entry, when it is one that is kept, and no line.
TEST(TLogger, BadSeverityIsKeptBeforeItFails) {
  LogCapture log;
  ILogger& logger = *TRootObject::GetCoreLogger();
  EXPECT_STATUS(kQDAStatusFail, logger.LogMessage(SeverityOf(-1), "the message"));
  ASSERT_EQ(1u, logger.GetLogEntries().size());
  EXPECT_EQ(-1, static_cast<int>(logger.GetLogEntries().front().severity));
  EXPECT_EQ("the message", logger.GetLogEntries().front().message);
  EXPECT_TRUE(log.Lines().empty());
}

}  // namespace

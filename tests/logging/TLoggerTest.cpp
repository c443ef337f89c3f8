// The list of kept messages, and the form of a line.

#include <regex>

#include <gtest/gtest.h>

#include <qdacore/frame/TRootObject.h>
#include <qdacore/logging/TLogger.h>
#include <qdacore/os/TOSSpecific.h>
#include <tests/support/ExpectStatus.h>
#include <tests/support/LogCapture.h>

namespace {

using namespace NZRVQDA20;
using namespace test_support;

typedef std::vector<std::string> Lines;

const char kOpened[] = "-- QDA Log Opened ----------------------------\n";

ILogger& Logger() { return *TRootObject::GetCoreLogger(); }

TEST(TLogger, InitializeReturnsOK) {
  TQDAStatusCode status = TLogger::Initialize();
  EXPECT_EQ(0, status.GetStatusCode());
  delete TRootObject::GetCoreLogger();
}

TEST(TLogger, LineHasPrefixTagTimeAndMessage) {
  const struct {
    ILogger::EQDALogSeverity severity;
    const char* tag;
  } rows[] = {{ILogger::kLogError, "Error"},
              {ILogger::kLogWarning, "Warning"},
              {ILogger::kLogStatus, "Status"},
              {ILogger::kLogDebug, "Debug"},
              {ILogger::kLogVerbose, "Verbose"}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.tag);
    LogCapture log;
    Logger().LogMessage(row.severity, "the text");
    const std::regex form(std::string(kOpened) + R"(FDR_\[)" + row.tag +
                          R"(\] (1[0-2]|[1-9])/([12]\d|3[01]|[1-9])/\d{4}  )"
                          R"((1\d|2[0-3]|\d):([1-5]\d|\d):([1-5]\d|\d) the text\n)");
    EXPECT_TRUE(std::regex_match(log.Text(), form)) << log.Text();
  }
}

TEST(TLogger, MessageIsWrittenAsItIs) {
  LogCapture log;
  Logger().LogMessage(ILogger::kLogError, "");
  Logger().LogMessage(ILogger::kLogError, "100%s %n %d");
  Logger().LogMessage(ILogger::kLogError, "two\nlines");
  EXPECT_EQ((Lines{"[Error] ", "[Error] 100%s %n %d", "[Error] two", "lines"}), log.Lines());
}

TEST(TLogger, LongMessageIsWrittenWhole) {
  LogCapture log;
  const std::string message(1000000, 'x');
  Logger().LogMessage(ILogger::kLogError, message);
  const std::string text = log.Text();
  ASSERT_LT(message.size() + 1, text.size());
  EXPECT_EQ(" " + message + "\n", text.substr(text.size() - message.size() - 2));
}

TEST(TLogger, EveryLineIsInTheFileWhenTheCallReturns) {
  LogCapture log;
  for (std::size_t count = 1; count <= 3; ++count) {
    Logger().LogMessage(ILogger::kLogDebug, "text");
    EXPECT_EQ(count, log.Lines().size());
  }
}

TEST(TLogger, KeptMessagesAreOldestFirstWithoutTagTimeAndLineEnd) {
  LogCapture log;
  const TCIMDateTime before = TOSSpecific::GetLocalTime();
  Logger().LogMessage(ILogger::kLogWarning, "one");
  Logger().LogMessage(ILogger::kLogRecordOnlyAlt, "two");
  Logger().LogMessage(ILogger::kLogError, "three");
  Logger().LogMessage(ILogger::kLogRecordOnly, "four");
  const TCIMDateTime after = TOSSpecific::GetLocalTime();

  const struct {
    int severity;
    const char* message;
  } rows[] = {{1, "one"}, {101, "two"}, {0, "three"}, {100, "four"}};
  ASSERT_EQ(4u, Logger().GetLogEntries().size());
  auto entry = Logger().GetLogEntries().begin();
  for (const auto& row : rows) {
    EXPECT_EQ(row.severity, static_cast<int>(entry->severity));
    EXPECT_EQ(row.message, entry->message);
    EXPECT_FALSE(entry->time < before);
    EXPECT_FALSE(after < entry->time);
    EXPECT_FALSE(entry->time.IsInterval());
    ++entry;
  }
}

TEST(TLogger, ListIsLiveAndTheCallersToChange) {
  LogCapture log;
  std::list<TLogEntry>& entries = Logger().GetLogEntries();
  Logger().LogMessage(ILogger::kLogError, "one");
  Logger().LogMessage(ILogger::kLogError, "two");
  EXPECT_EQ(2u, entries.size());
  entries.front().message = "changed";
  entries.pop_back();
  EXPECT_EQ(&entries, &Logger().GetLogEntries());
  ASSERT_EQ(1u, Logger().GetLogEntries().size());
  EXPECT_EQ("changed", Logger().GetLogEntries().front().message);
}

TEST(TLogger, ClearLogEntriesEmptiesTheListAndLeavesTheFile) {
  LogCapture log;
  Logger().LogMessage(ILogger::kLogError, "one");
  const std::string before = log.Text();
  Logger().ClearLogEntries();
  EXPECT_TRUE(Logger().GetLogEntries().empty());
  EXPECT_EQ(before, log.Text());
  Logger().ClearLogEntries();
  Logger().LogMessage(ILogger::kLogError, "two");
  EXPECT_EQ(1u, Logger().GetLogEntries().size());
  EXPECT_EQ((Lines{"[Error] one", "[Error] two"}), log.Lines());
}

TEST(TLogger, SystemEventTouchesNeitherListNorFile) {
  LogCapture log;
  for (const int severity : {0, 1, 2, 3, 4}) {
    for (const int threshold : {-1, 0, 4}) {
      Logger().SetLogThreshold(static_cast<ILogger::EQDALogSeverity>(threshold));
      Logger().LogSystemEvent(static_cast<ILogger::EQDALogSeverity>(severity),
                              "QDA self test of the event log");
    }
  }
  EXPECT_TRUE(Logger().GetLogEntries().empty());
  EXPECT_EQ(kOpened, log.Text());
}

TEST(TLogger, SystemEventOfABadSeverityFails) {
  LogCapture log;
  for (const int severity : {-1, 5, 7, 100, 101}) {
    SCOPED_TRACE(severity);
    EXPECT_STATUS(kQDAStatusFail,
                  Logger().LogSystemEvent(static_cast<ILogger::EQDALogSeverity>(severity), "text"));
  }
  EXPECT_TRUE(Logger().GetLogEntries().empty());
}

}  // namespace

// What reaches the system's log. This program has the functions of syslog itself, and the library
// finds them before those of the C library.

#include <cstdarg>
#include <cstdio>
#include <regex>
#include <string>
#include <vector>

#include <syslog.h>

#include <gtest/gtest.h>

#include <qdacore/frame/TRootObject.h>
#include <qdacore/logging/TLogger.h>
#include <qdacore/os/TOSSpecific.h>

namespace {

std::vector<std::string> calls;

void RecordText(int priority, const char* format, va_list arguments) {
  char text[4096];
  std::vsnprintf(text, sizeof text, format, arguments);
  calls.push_back(std::to_string(priority) + " " + text);
}

}  // namespace

extern "C" {

__attribute__((visibility("default"))) void openlog(const char* ident, int, int) {
  calls.push_back(std::string("open ") + ident);
}

__attribute__((visibility("default"))) void closelog() { calls.push_back("close"); }

__attribute__((visibility("default"))) void syslog(int priority, const char* format, ...) {
  va_list arguments;
  va_start(arguments, format);
  RecordText(priority, format, arguments);
  va_end(arguments);
}

// What a fortified build calls instead.
__attribute__((visibility("default"))) void __syslog_chk(int priority, int, const char* format,
                                                         ...) {
  va_list arguments;
  va_start(arguments, format);
  RecordText(priority, format, arguments);
  va_end(arguments);
}

}  // extern "C"

namespace {

using namespace NZRVQDA20;

typedef std::vector<std::string> Calls;

TEST(Syslog, EachEventIsReportedUnderTheIdentWithItsPriority) {
  // The priorities of <syslog.h>: 3 is an error, 4 a warning, 6 information.
  const struct {
    int severity;
    const char* expected;
  } rows[] = {{0, "3 some text"},   {1, "4 some text"},  {2, "6 some text"},
              {3, "6 some text"},   {4, "6 some text"},  {100, "6 some text"},
              {101, "6 some text"}, {-1, "6 some text"}, {7, "6 some text"}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.severity);
    calls.clear();
    TOSSpecific::LogSELEvent("some text", static_cast<ILogger::EQDALogSeverity>(row.severity), 1);
    EXPECT_EQ((Calls{"open VXTP", row.expected, "close"}), calls);
  }
}

TEST(Syslog, TextIsNoFormat) {
  calls.clear();
  TOSSpecific::LogSELEvent("100%s %n %d", ILogger::kLogError, 1);
  EXPECT_EQ((Calls{"open VXTP", "3 100%s %n %d", "close"}), calls);
}

TEST(Syslog, SystemEventIsTheWholeLineWhateverTheThreshold) {
  TLogger::Initialize();
  ILogger* logger = TRootObject::GetCoreLogger();
  logger->SetLogThreshold(ILogger::kLogError);
  calls.clear();
  logger->LogSystemEvent(ILogger::kLogDebug, "the text");
  ASSERT_EQ(3u, calls.size());
  EXPECT_TRUE(std::regex_match(
      calls[1], std::regex(R"(6 FDR_\[Debug\] \d+/\d+/\d+  \d+:\d+:\d+ the text\n)")))
      << calls[1];
  EXPECT_TRUE(logger->GetLogEntries().empty());
  delete logger;
}

TEST(Syslog, MessagesDoNotReachIt) {
  TLogger::Initialize();
  ILogger* logger = TRootObject::GetCoreLogger();
  calls.clear();
  logger->LogMessage(ILogger::kLogError, "the text");
  EXPECT_EQ(Calls(), calls);
  delete logger;
}

}  // namespace

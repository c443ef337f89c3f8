// The logger without a file, which writes to the debugger's output. Children show it on their
// standard error.

#include <cstdio>
#include <regex>

#include <gtest/gtest.h>

#include <qdacore/frame/TRootObject.h>
#include <qdacore/logging/TLogger.h>
#include <qdacore/os/TOSSpecific.h>
#include <tests/logging/HostAids.h>
#include <tests/support/ChildProcess.h>
#include <tests/support/ExpectStatus.h>
#include <tests/support/TemporaryFolder.h>

namespace {

using namespace NZRVQDA20;
using namespace test_support;

QDACORE_CHILD(WritesToTheDebugger) {
  ShowDebuggerOutput();
  TOSSpecific::OutputLogString("as it is: 100%s, no line end");
  TOSSpecific::OutputLogString("|");
  TOSSpecific::OutputLogString("");
  TOSSpecific::OutputLogString("two\nlines\n");
  return 0;
}

TEST(OutputLogString, ReachesTheDebuggerAsItIs) {
  const ChildResult result = RunChild("WritesToTheDebugger");
  EXPECT_EQ("as it is: 100%s, no line end|two\nlines\n", result.error);
  EXPECT_EQ("", result.output);
}

QDACORE_CHILD(LogsWithoutAFile) {
  ShowDebuggerOutput();
  TLogger::Initialize();
  ILogger* logger = TRootObject::GetCoreLogger();
  logger->LogMessage(ILogger::kLogError, "one");
  logger->LogMessage(ILogger::kLogDebug, "filtered");
  logger->LogMessage(ILogger::kLogRecordOnly, "kept");
  logger->SetLogThreshold(ILogger::kLogVerbose);
  logger->LogMessage(ILogger::kLogVerbose, "two");
  logger->LogSystemEvent(ILogger::kLogError, "QDA self test of the event log");
  delete logger;
  return 0;
}

TEST(TLogger, WithoutAFileTheLineGoesToTheDebugger) {
  const ChildResult result = RunChild("LogsWithoutAFile");
  const std::regex form(R"(FDR_\[Error\] \d+/\d+/\d+  \d+:\d+:\d+ one\n)"
                        R"(FDR_\[Verbose\] \d+/\d+/\d+  \d+:\d+:\d+ two\n)");
  EXPECT_TRUE(std::regex_match(result.error, form)) << result.error;
  EXPECT_EQ("", result.output);
}

QDACORE_CHILD(LogsWithAFile) {
  ShowDebuggerOutput();
  TLogger::Initialize();
  ILogger* logger = TRootObject::GetCoreLogger();
  logger->SetLogFilename(arguments.at(0));
  logger->LogMessage(ILogger::kLogError, "one");
  delete logger;
  return 0;
}

TEST(TLogger, WithAFileNothingGoesToTheDebugger) {
  TemporaryFolder folder;
  EXPECT_EQ("", RunChild("LogsWithAFile", {}, {folder.PathOf("core.log")}).error);
}

QDACORE_CHILD(LogsAfterAFailedOpen) {
  ShowDebuggerOutput();
  TLogger::Initialize();
  ILogger* logger = TRootObject::GetCoreLogger();
  logger->SetLogFilename(arguments.at(0));
  std::puts(ThrownStatus([&] { logger->SetLogFilename(arguments.at(1)); }).c_str());
  logger->LogMessage(ILogger::kLogError, "lost");
  std::printf("%u entries\n", static_cast<unsigned>(logger->GetLogEntries().size()));
  delete logger;
  return 0;
}

// The name is stored before the file is opened: the logger then believes that it has a file, and
// what is written goes nowhere, neither to the debugger nor to the file that it had before.
TEST(TLogger, FailedNameIsHeldAndLaterMessagesAreLostHarmlessly) {
  TemporaryFolder folder;
  const std::string good = folder.PathOf("core.log");
  const ChildResult result =
      RunChild("LogsAfterAFailedOpen", {}, {good, folder.PathOf("missing/core.log")});
  EXPECT_EQ("kQDAStatusFileSystemError\n1 entries\n", result.output);
  EXPECT_EQ("", result.error);
  EXPECT_EQ(0, result.exitCode);
  EXPECT_EQ("-- QDA Log Opened ----------------------------\n", ReadTextFile(good));
}

}  // namespace

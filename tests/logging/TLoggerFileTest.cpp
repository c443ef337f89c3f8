// The log file: how it is opened, changed and closed.

#include <cstdio>
#include <filesystem>

#include <gtest/gtest.h>

#include <qdacore/frame/TRootObject.h>
#include <qdacore/logging/TLogger.h>
#include <tests/logging/HostAids.h>
#include <tests/support/ChildProcess.h>
#include <tests/support/ExpectStatus.h>
#include <tests/support/ScopedEnvironment.h>
#include <tests/support/TemporaryFolder.h>

namespace {

using namespace NZRVQDA20;
using namespace test_support;

const char kVariable[] = "ZRV_VXTPI_GUI_T";

#define OPENED "-- QDA Log Opened ----------------------------\n"
#define CLOSED "-- QDA Log Closed ----------------------------\n"

// A core logger of the test's own.
class LogFile : public testing::Test {
 protected:
  LogFile() : fVariable(kVariable, nullptr) { TLogger::Initialize(); }
  ~LogFile() override { Close(); }

  ILogger& Logger() { return *TRootObject::GetCoreLogger(); }
  void Close() { delete TRootObject::GetCoreLogger(); }

  TemporaryFolder fFolder;
  ScopedEnvironment fVariable;
};

TEST_F(LogFile, OpensAndClosesWithABanner) {
  const std::string path = fFolder.PathOf("core.log");
  Logger().SetLogFilename(path);
  EXPECT_EQ(OPENED, ReadTextFile(path));
  Close();
  EXPECT_EQ(OPENED CLOSED, ReadTextFile(path));
}

TEST_F(LogFile, LoggerWithoutAFileClosesNothing) {
  Logger().LogMessage(ILogger::kLogRecordOnly, "kept");
  Close();
  EXPECT_TRUE(std::filesystem::is_empty(fFolder.Path()));
}

TEST_F(LogFile, OldTextGoesUnlessTheVariableExists) {
  const struct {
    const char* value;
    const char* expected;
  } rows[] = {{nullptr, OPENED},
              {"", "old text\n" OPENED},
              {"0", "old text\n" OPENED},
              {"anything", "old text\n" OPENED}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.value ? row.value : "(unset)");
    ScopedEnvironment variable(kVariable, row.value);
    const std::string path = fFolder.Write("core.log", "old text\n");
    Close();
    TLogger::Initialize();
    Logger().SetLogFilename(path);
    EXPECT_EQ(row.expected, ReadTextFile(path));
    Close();
    EXPECT_EQ(std::string(row.expected) + CLOSED, ReadTextFile(path));
  }
}

TEST_F(LogFile, FileIsMadeWithTheVariableToo) {
  ScopedEnvironment variable(kVariable, "1");
  const std::string path = fFolder.PathOf("new.log");
  Logger().SetLogFilename(path);
  EXPECT_EQ(OPENED, ReadTextFile(path));
}

TEST_F(LogFile, MissingFolderIsAFileSystemError) {
  EXPECT_STATUS(kQDAStatusFileSystemError,
                Logger().SetLogFilename(fFolder.PathOf("missing/core.log")));
}

TEST_F(LogFile, FolderCannotBeTheFile) {
#if defined(_WIN32)
  EXPECT_STATUS(kQDAStatusAccessDenied, Logger().SetLogFilename(fFolder.Path()));
#else
  // This host has an error of its own for it.
  EXPECT_STATUS(kQDAStatusFileSystemError, Logger().SetLogFilename(fFolder.Path()));
#endif
}

QDACORE_CHILD(OpensAFileThatIsDenied) {
  if (!DenyOpening(arguments.at(0))) {
    return 3;
  }
  TLogger::Initialize();
  std::puts(
      ThrownStatus([&] { TRootObject::GetCoreLogger()->SetLogFilename(arguments.at(0)); }).c_str());
  delete TRootObject::GetCoreLogger();
  return 0;
}

TEST_F(LogFile, FileThatIsDeniedIsAccessDenied) {
  const std::string path = fFolder.Write("core.log", "old text\n");
  for (const char* value : {static_cast<const char*>(nullptr), "1"}) {
    const ChildResult result = RunChild("OpensAFileThatIsDenied", {{kVariable, value}}, {path});
    EXPECT_EQ("kQDAStatusAccessDenied\n", result.output);
    EXPECT_EQ("", result.error);
    EXPECT_EQ(0, result.exitCode);
  }
  EXPECT_EQ("old text\n", ReadTextFile(path));
}

// The old file gets no closing banner and nothing more.
TEST_F(LogFile, SecondNameLeavesTheFirstFileAsItStands) {
  const std::string first = fFolder.PathOf("first.log");
  const std::string second = fFolder.PathOf("second.log");
  Logger().SetLogFilename(first);
  Logger().SetLogFilename(second);
  EXPECT_EQ(OPENED, ReadTextFile(first));
  EXPECT_EQ(OPENED, ReadTextFile(second));
  Logger().LogMessage(ILogger::kLogError, "text");
  Close();
  EXPECT_EQ(OPENED, ReadTextFile(first));
  const std::string text = ReadTextFile(second);
  EXPECT_NE(std::string::npos, text.find(" text\n" CLOSED)) << text;
}

// The lowest number that is free for an open file.
int NextFileNumber(const std::string& path) {
  std::FILE* file = std::fopen(path.c_str(), "r");
  if (!file) {
    return -1;
  }
#if defined(_WIN32)
  const int number = _fileno(file);
#else
  const int number = fileno(file);
#endif
  std::fclose(file);
  return number;
}

TEST_F(LogFile, SecondNameLeavesTheFirstFileOpen) {
  const std::string probe = fFolder.Write("probe", "");
  const int before = NextFileNumber(probe);
  ASSERT_LE(0, before);
  Logger().SetLogFilename(fFolder.PathOf("first.log"));
  EXPECT_EQ(before + 1, NextFileNumber(probe));
  Logger().SetLogFilename(fFolder.PathOf("second.log"));
  EXPECT_EQ(before + 2, NextFileNumber(probe));
  // Only the second one is closed with the logger.
  Close();
  EXPECT_EQ(before + 1, NextFileNumber(probe));
}

TEST_F(LogFile, SecondLoggerLeavesTheFirstOnesFileOpen) {
  const std::string path = fFolder.PathOf("first.log");
  ILogger* first = &Logger();
  first->SetLogFilename(path);
  TLogger::Initialize();
  EXPECT_EQ(OPENED, ReadTextFile(path));
  first->LogMessage(ILogger::kLogError, "still here");
  delete first;
  const std::string text = ReadTextFile(path);
  EXPECT_NE(std::string::npos, text.find(" still here\n" CLOSED)) << text;
}

TEST_F(LogFile, NextNameHealsAFailedOne) {
  EXPECT_STATUS(kQDAStatusFileSystemError,
                Logger().SetLogFilename(fFolder.PathOf("missing/core.log")));
  const std::string path = fFolder.PathOf("core.log");
  Logger().SetLogFilename(path);
  Logger().LogMessage(ILogger::kLogError, "text");
  Close();
  const std::string text = ReadTextFile(path);
  EXPECT_EQ(0u, text.find(OPENED "FDR_[Error] ")) << text;
  EXPECT_NE(std::string::npos, text.find(" text\n" CLOSED)) << text;
}

}  // namespace

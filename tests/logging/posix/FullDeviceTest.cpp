// A log file that takes nothing. Only this host has a device that is always full.

#include <gtest/gtest.h>

#include <qdacore/frame/TRootObject.h>
#include <qdacore/logging/TLogger.h>
#include <tests/support/TemporaryFolder.h>

namespace {

using namespace NZRVQDA20;

TEST(FullDevice, MessagesAreLostSilentlyAndKeptInTheList) {
  if (!test_support::PathExists("/dev/full")) {
    GTEST_SKIP() << "this machine has no /dev/full";
  }
  TLogger::Initialize();
  ILogger* const logger = TRootObject::GetCoreLogger();
  EXPECT_NO_THROW(logger->SetLogFilename("/dev/full"));
  EXPECT_NO_THROW(logger->LogMessage(ILogger::kLogError, "lost"));
  ASSERT_EQ(1u, logger->GetLogEntries().size());
  EXPECT_EQ("lost", logger->GetLogEntries().front().message);
  delete logger;
}

}  // namespace

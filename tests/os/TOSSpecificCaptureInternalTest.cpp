// CaptureFile, CaptureFileLoader and the reading that they share with SpawnProcess, in a host of
// the test's own.

#include <gtest/gtest.h>

#include <qdacore/os/TOSSpecific.h>
#include <tests/host/FakeProcesses.h>
#include <tests/host/Faults.h>
#include <tests/host/HostFakes.h>
#include <tests/support/ExpectStatus.h>
#include <tests/support/LogCapture.h>

namespace {

using namespace NZRVQDA20;
using namespace host_fakes;
using test_support::LogCapture;

typedef std::vector<std::string> Lines;

class FakeCapture : public testing::Test {
 protected:
  FakeCapture() : fHost(ProcessesOnly(fProcesses)) {}

  FakeProcesses fProcesses;
  ScopedHost fHost;
};

TEST_F(FakeCapture, FileIsReadUntilAReadGivesNothingAndIsNotClosed) {
  fProcesses.readings = {{true, std::string(4096, 'a'), 0}, {true, std::string("\0b\0", 3), 0}};
  EXPECT_EQ(std::string(4096, 'a') + std::string("\0b\0", 3), TOSSpecific::CaptureFile("name"));
  EXPECT_EQ((Lines{"open name", "read 1 up to 4096", "read 1 up to 4096", "read 1 up to 4096"}),
            fProcesses.calls);
}

TEST_F(FakeCapture, FileOfOneReadsLengthTakesTwo) {
  fProcesses.readings = {{true, std::string(4096, 'a'), 0}};
  EXPECT_EQ(4096u, TOSSpecific::CaptureFileLoader("name", false).size());
  EXPECT_EQ((Lines{"open name", "read 1 up to 4096", "read 1 up to 4096"}), fProcesses.calls);
}

TEST_F(FakeCapture, FailedReadOfNothingIsAnEnd) {
  LogCapture log;
  fProcesses.readings = {{true, "kept", 0}, {false, "", 109}};
  EXPECT_EQ("kept", TOSSpecific::CaptureFile("name"));
  EXPECT_EQ((Lines{"open name", "read 1 up to 4096", "read 1 up to 4096"}), fProcesses.calls);
  EXPECT_EQ(Lines(), log.Lines());
}

// The bytes of the read that failed are lost, and those before it are kept.
TEST_F(FakeCapture, FailedReadOfSomethingIsLoggedAndTheRestIsReturned) {
  const struct {
    bool logsSystemText;
    Lines lines;
  } rows[] = {
      {true, {"[Debug] GetFileContents failed to read file the name", "[Debug] words for 1117"}},
      {false, {"[Debug] GetFileContents failed to read file the name"}},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.logsSystemText);
    LogCapture log;
    fProcesses.calls.clear();
    fProcesses.readings = {{true, "kept", 0}, {false, "lost", 1117}, {true, "never read", 0}};
    EXPECT_EQ("kept", TOSSpecific::CaptureFileLoader("the name", row.logsSystemText));
    EXPECT_EQ(row.lines, log.Lines());
    // The words are asked for also where nobody is to see them.
    EXPECT_EQ("text of error 1117", fProcesses.calls.back());
    fProcesses.readings.clear();
  }
}

TEST_F(FakeCapture, CaptureFileAlwaysLogsTheSystemsWords) {
  LogCapture log;
  fProcesses.readings = {{false, "lost", 23}};
  EXPECT_EQ("", TOSSpecific::CaptureFile("name"));
  EXPECT_EQ((Lines{"[Debug] GetFileContents failed to read file name", "[Debug] words for 23"}),
            log.Lines());
}

TEST_F(FakeCapture, FailedReadWithoutALoggerIsHarmless) {
  fProcesses.readings = {{true, "kept", 0}, {false, "lost", 23}};
  EXPECT_EQ("kept", TOSSpecific::CaptureFile("name"));
}

TEST_F(FakeCapture, EveryFailedOpeningIsAFileNotFound) {
  for (const host::Outcome& failure : AllFailures()) {
    SCOPED_TRACE(failure.number);
    LogCapture log;
    fProcesses.opening = failure;
    EXPECT_STATUS(kQDAStatusFileNotFound, TOSSpecific::CaptureFile("a b"));
    EXPECT_EQ(Lines{"[Error] ERROR: CaptureFile failed to open: a b"}, log.Lines());
  }
  EXPECT_EQ("open a b", fProcesses.calls.back());
}

TEST_F(FakeCapture, LoaderReadsAlsoAfterAFailedOpening) {
  LogCapture log;
  fProcesses.opening = kOther;
  fProcesses.readings = {{false, "", 6}};
  EXPECT_EQ("", TOSSpecific::CaptureFileLoader("a b", true));
  EXPECT_EQ((Lines{"[Debug] CaptureFile failed to open: a b",
                   "[Debug] Please confirm that the related software/driver is properly "
                   "installed."}),
            log.Lines());
  EXPECT_EQ((Lines{"open a b", "read -1 up to 4096"}), fProcesses.calls);
}

TEST_F(FakeCapture, FailedOpeningWithoutALoggerIsHarmless) {
  fProcesses.opening = kNoFile;
  EXPECT_STATUS(kQDAStatusFileNotFound, TOSSpecific::CaptureFile("name"));
  EXPECT_EQ("", TOSSpecific::CaptureFileLoader("name", true));
}

TEST_F(FakeCapture, NulInTheNameNamesNothing) {
  const std::string cut("name\0x", 6);
  EXPECT_STATUS(kQDAStatusFileNotFound, TOSSpecific::CaptureFile(cut));
  EXPECT_EQ("", TOSSpecific::CaptureFileLoader(cut, true));
  EXPECT_EQ(Lines{"read -1 up to 4096"}, fProcesses.calls);
}

// A size that is no truth costs nothing, and one that cannot be had does no harm.
TEST_F(FakeCapture, ExpectedSizeChangesNothingInTheText) {
  for (const std::size_t size :
       {std::size_t{1}, std::size_t{65536}, std::size_t{1} << 40, ~std::size_t{0}}) {
    SCOPED_TRACE(size);
    fProcesses.expectedSize = size;
    fProcesses.readings = {{true, "text", 0}};
    EXPECT_EQ("text", TOSSpecific::CaptureFile("name"));
  }
}

TEST_F(FakeCapture, LongTextIsWhole) {
  std::string expected;
  for (int read = 0; read < 1000; ++read) {
    const std::string bytes(1 + read * 37 % 4096, static_cast<char>('a' + read % 26));
    fProcesses.readings.push_back({true, bytes, 0});
    expected += bytes;
  }
  EXPECT_TRUE(expected == TOSSpecific::CaptureFile("name"));
}

}  // namespace

// CaptureFile and CaptureFileLoader with real files.

#include <fstream>

#include <gtest/gtest.h>

#include <qdacore/os/TOSSpecific.h>
#include <tests/os/Children.h>
#include <tests/support/ChildProcess.h>
#include <tests/support/ExpectStatus.h>
#include <tests/support/LogCapture.h>
#include <tests/support/OpenHandles.h>

namespace {

using namespace NZRVQDA20;
using namespace test_support;

typedef std::vector<std::string> Lines;

// The files that were read stay open, and what is open cannot be removed on every host: such a test
// runs as a child, and the folder is the parent's.
ChildResult RunInFolder(const std::string& child, const TemporaryFolder& folder) {
  return RunChild(child, {}, {folder.Path()});
}

std::string WriteBytes(const std::string& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
  return path;
}

std::string Pattern(std::size_t size) {
  std::string bytes(size, ' ');
  for (std::size_t at = 0; at < size; ++at) {
    bytes[at] = os_tests::PatternAt(at);
  }
  return bytes;
}

QDACORE_CHILD(CapturesFiles) {
  const std::size_t sizes[] = {0, 1, 4095, 4096, 4097, 8192, 65536, 65537, 1000003, 5000011};
  for (const std::size_t size : sizes) {
    const std::string bytes = Pattern(size);
    const std::string path = WriteBytes(arguments.at(0) + "/file " + std::to_string(size), bytes);
    const bool same = TOSSpecific::CaptureFile(path) == bytes &&
                      TOSSpecific::CaptureFileLoader(path, false) == bytes &&
                      TOSSpecific::CaptureFileLoader(path, true) == bytes;
    os_tests::WriteOutput(same ? "same " : "other (" + std::to_string(size) + ") ");
  }
  return 0;
}

TEST(CaptureFile, GivesAllBytesOfAFileOfAnySize) {
  TemporaryFolder folder;
  EXPECT_EQ("same same same same same same same same same same ",
            RunInFolder("CapturesFiles", folder).output);
}

QDACORE_CHILD(CapturesWithBothSeparators) {
  WriteBytes(arguments.at(0) + "/sub.txt", "contents");
  os_tests::WriteOutput(TOSSpecific::CaptureFile(arguments.at(0) + "/sub.txt") + " " +
                        TOSSpecific::CaptureFile(arguments.at(0) + "\\sub.txt") + " " +
                        TOSSpecific::CaptureFileLoader(arguments.at(0) + "\\sub.txt", true));
  return 0;
}

TEST(CaptureFile, AcceptsBothSeparators) {
  TemporaryFolder folder;
  EXPECT_EQ("contents contents contents", RunInFolder("CapturesWithBothSeparators", folder).output);
}

QDACORE_CHILD(CountsWhatCapturingLeavesOpen) {
  const std::string path = WriteBytes(arguments.at(0) + "/file", "contents");
  const std::string missing = arguments.at(0) + "/missing";
  std::string result;
  const auto count = [&result](auto call) {
    call();
    const int before = CountOpenHandles();
    call();
    call();
    result += std::to_string(CountOpenHandles() - before) + " ";
  };
  count([&] { TOSSpecific::CaptureFile(path); });
  count([&] { TOSSpecific::CaptureFileLoader(path, false); });
  count([&] { TOSSpecific::CaptureFileLoader(missing, true); });
  count([&] { ThrownStatus([&] { TOSSpecific::CaptureFile(missing); }); });
  count([&] { ThrownStatus([&] { TOSSpecific::CaptureFile(arguments.at(0)); }); });
  os_tests::WriteOutput(result);
  return 0;
}

TEST(CaptureFile, LeavesTheFileOpenAndNothingElse) {
  TemporaryFolder folder;
  EXPECT_EQ("2 2 0 0 0 ", RunInFolder("CountsWhatCapturingLeavesOpen", folder).output);
}

TEST(CaptureFile, MissingFileIsLoggedAndThrown) {
  TemporaryFolder folder;
  const std::string missing = folder.PathOf("missing file");
  {
    LogCapture log;
    EXPECT_STATUS(kQDAStatusFileNotFound, TOSSpecific::CaptureFile(missing));
    EXPECT_EQ(Lines{"[Error] ERROR: CaptureFile failed to open: " + missing}, log.Lines());
  }
  // And without a logger.
  EXPECT_STATUS(kQDAStatusFileNotFound, TOSSpecific::CaptureFile(missing));
}

TEST(CaptureFile, WhatIsNoFileIsNotFound) {
  TemporaryFolder folder;
  const std::string file = folder.Write("file", "");
  EXPECT_STATUS(kQDAStatusFileNotFound, TOSSpecific::CaptureFile(folder.Path()));
  EXPECT_STATUS(kQDAStatusFileNotFound, TOSSpecific::CaptureFile(""));
  EXPECT_STATUS(kQDAStatusFileNotFound, TOSSpecific::CaptureFile(folder.PathOf("missing/file")));
  EXPECT_STATUS(kQDAStatusFileNotFound, TOSSpecific::CaptureFile(folder.PathOf("file/file")));
  EXPECT_STATUS(kQDAStatusFileNotFound, TOSSpecific::CaptureFile(file + std::string("\0x", 2)));
}

TEST(CaptureFileLoader, MissingFileIsTwoLinesAndAnEmptyText) {
  TemporaryFolder folder;
  const std::string missing = folder.PathOf("missing file");
  for (const bool logSystemText : {true, false}) {
    LogCapture log;
    EXPECT_EQ("", TOSSpecific::CaptureFileLoader(missing, logSystemText));
    EXPECT_EQ((Lines{"[Debug] CaptureFile failed to open: " + missing,
                     "[Debug] Please confirm that the related software/driver is properly "
                     "installed."}),
              log.Lines());
  }
  EXPECT_EQ("", TOSSpecific::CaptureFileLoader(missing, true));
}

TEST(CaptureFileLoader, FileThatIsThereIsNotLogged) {
  TemporaryFolder folder;
  folder.Write("file", "contents");
  EXPECT_EQ("contents", RunInFolder("LoadsAFileWithALog", folder).output);
}

QDACORE_CHILD(LoadsAFileWithALog) {
  LogCapture log;
  const std::string contents = TOSSpecific::CaptureFileLoader(arguments.at(0) + "/file", true);
  os_tests::WriteOutput(contents + (log.Lines().empty() ? "" : ", logged"));
  return 0;
}

}  // namespace

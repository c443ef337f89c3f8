// Single files and directories: what an operation does and which status a situation has.

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <qdacore/os/TOSSpecific.h>
#include <tests/os/FileAids.h>
#include <tests/support/ChildProcess.h>
#include <tests/support/ExpectStatus.h>
#include <tests/support/OpenHandles.h>
#include <tests/support/TemporaryFolder.h>

namespace {

using namespace NZRVQDA20;
using namespace file_aids;
using namespace test_support;
namespace fs = std::filesystem;

typedef std::vector<std::string> Names;

const std::string kNul(1, '\0');

// Wine is slow at files.
#if defined(_WIN32)
const int kMany = 300;
#else
const int kMany = 10000;
#endif

Names Sorted(Names names) {
  std::sort(names.begin(), names.end());
  return names;
}

TEST(CreateDir, MakesOneLevel) {
  TemporaryFolder folder;
  TOSSpecific::CreateDir(folder.PathOf("one"));
  TOSSpecific::CreateDir(folder.Path() + "/one/two");
  TOSSpecific::CreateDir(folder.Path() + "\\one\\three");
  TOSSpecific::CreateDir(folder.Path() + "\\one/four\\");
  EXPECT_EQ((Names{"four", "three", "two"}), Sorted(TOSSpecific::ListDir(folder.PathOf("one"))));
}

TEST(CreateDir, EachSituationHasItsStatus) {
  TemporaryFolder folder;
  folder.MakeFolder("there");
  folder.Write("file", "text");
  EXPECT_STATUS(kQDAStatusDirectoryAlreadyExists, TOSSpecific::CreateDir(folder.PathOf("there")));
  EXPECT_STATUS(kQDAStatusDirectoryAlreadyExists,
                TOSSpecific::CreateDir(folder.PathOf("there") + "\\"));
  EXPECT_STATUS(kQDAStatusDirectoryAlreadyExists, TOSSpecific::CreateDir(folder.PathOf("file")));
  EXPECT_STATUS(kQDAStatusFileSystemError, TOSSpecific::CreateDir(folder.PathOf("missing/new")));
  EXPECT_STATUS(kQDAStatusFileSystemError, TOSSpecific::CreateDir(folder.PathOf("file/new")));
  EXPECT_STATUS(kQDAStatusFileSystemError, TOSSpecific::CreateDir(""));
  EXPECT_STATUS(kQDAStatusFileSystemError, TOSSpecific::CreateDir(folder.PathOf("a") + kNul + "b"));
  EXPECT_EQ((Names{"file", "there"}), Sorted(TOSSpecific::ListDir(folder.Path())));
}

TEST(DirExistsAndFileExists, ADirectoryIsNoFileAndAMissingPathIsNeither) {
  TemporaryFolder folder;
  folder.Write("sub/file", "text");
  struct {
    const char* name;
    std::string path;
    bool isDirectory;
    bool isFile;
  } const rows[] = {
      {"a directory", folder.PathOf("sub"), true, false},
      {"a directory with a backslash at the end", folder.PathOf("sub") + "\\", true, false},
      {"a directory with a slash at the end", folder.PathOf("sub") + "/", true, false},
      {"a file", folder.PathOf("sub/file"), false, true},
      {"a file behind a backslash", folder.Path() + "\\sub\\file", false, true},
      {"a missing file", folder.PathOf("sub/missing"), false, false},
      {"a missing parent", folder.PathOf("missing/file"), false, false},
      {"a file for a parent", folder.PathOf("sub/file/file"), false, false},
      {"no name", "", false, false},
      {"a NUL behind a directory", folder.PathOf("sub") + kNul, false, false},
      {"a NUL behind a file", folder.PathOf("sub/file") + kNul, false, false},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(row.isDirectory, TOSSpecific::DirExists(row.path));
    EXPECT_EQ(row.isFile, TOSSpecific::FileExists(row.path));
  }
}

TEST(FileCopy, MakesOrReplacesTheTarget) {
  TemporaryFolder folder;
  const std::string source = folder.Write("source", "short");
  TOSSpecific::FileCopy(source, folder.PathOf("new"));
  EXPECT_EQ("short", Bytes(folder.PathOf("new")));
  const std::string old = folder.Write("old", "a longer text that was there");
  TOSSpecific::FileCopy(folder.Path() + "\\source", folder.Path() + "/old");
  EXPECT_EQ("short", Bytes(old));
  EXPECT_EQ("short", Bytes(source));
  TOSSpecific::FileCopy(folder.Write("empty", ""), old);
  EXPECT_EQ("", Bytes(old));
}

TEST(FileCopy, EveryByteArrivesAndTheTimeOfTheLastChange) {
  TemporaryFolder folder;
  std::mt19937 random(20261121);
  std::string bytes(3 * 1024 * 1024 + 1, '\0');
  for (char& byte : bytes) {
    byte = static_cast<char>(random());
  }
  const std::string source = folder.Write("source", bytes);
  const auto earlier = fs::last_write_time(source) - std::chrono::hours(50);
  fs::last_write_time(source, earlier);
  TOSSpecific::FileCopy(source, folder.PathOf("target"));
  EXPECT_TRUE(bytes == Bytes(folder.PathOf("target")));
  EXPECT_EQ(earlier, fs::last_write_time(folder.PathOf("target")));
}

TEST(FileCopy, EachSituationHasItsStatusAndTouchesNothing) {
  TemporaryFolder folder;
  const std::string file = folder.Write("file", "text");
  const std::string sub = folder.MakeFolder("sub");
  const std::string missing = folder.PathOf("missing");
  const std::string deeper = folder.PathOf("missing/deeper");
  EXPECT_STATUS(kQDAStatusFileSystemError, TOSSpecific::FileCopy(missing, folder.PathOf("new")));
  EXPECT_STATUS(kQDAStatusFileSystemError, TOSSpecific::FileCopy(missing, file));
  EXPECT_STATUS(kQDAStatusFileSystemError, TOSSpecific::FileCopy(deeper, file));
  EXPECT_STATUS(kQDAStatusFileSystemError, TOSSpecific::FileCopy(file, deeper));
  EXPECT_STATUS(kQDAStatusFileSystemError, TOSSpecific::FileCopy("", file));
  EXPECT_STATUS(kQDAStatusFileSystemError, TOSSpecific::FileCopy(file, ""));
  EXPECT_STATUS(kQDAStatusAccessDenied, TOSSpecific::FileCopy(sub, folder.PathOf("new")));
  EXPECT_STATUS(kQDAStatusAccessDenied, TOSSpecific::FileCopy(file, sub));
  EXPECT_STATUS(kQDAStatusFileSystemError, TOSSpecific::FileCopy(file + kNul, missing));
  EXPECT_STATUS(kQDAStatusFileSystemError, TOSSpecific::FileCopy(file, missing + kNul + "x"));
  EXPECT_EQ((Names{"file", "sub"}), Sorted(TOSSpecific::ListDir(folder.Path())));
  EXPECT_EQ("text", Bytes(file));
}

TEST(FileCopy, OntoItselfFailsAndLosesNothing) {
  TemporaryFolder folder;
  const std::string file = folder.Write("file", "text");
  EXPECT_STATUS(kQDAStatusFileSystemError, TOSSpecific::FileCopy(file, file));
  EXPECT_STATUS(kQDAStatusFileSystemError,
                TOSSpecific::FileCopy(file, folder.Path() + "/./" + "file"));
  EXPECT_EQ("text", Bytes(file));
}

TEST(ListDir, GivesBareNamesAndPassesOverDots) {
  TemporaryFolder folder;
  folder.Write("file", "");
  folder.Write("sub/inner", "");
  folder.Write(".hidden", "");
  folder.MakeFolder("..two");
  folder.Write("a.b", "");
  EXPECT_EQ((Names{"a.b", "file", "sub"}), Sorted(TOSSpecific::ListDir(folder.Path())));
  EXPECT_EQ(Names{"inner"}, TOSSpecific::ListDir(folder.Path() + "\\sub"));
  EXPECT_EQ(Names{"inner"}, TOSSpecific::ListDir(folder.Path() + "/sub/"));
  EXPECT_EQ(Names(), TOSSpecific::ListDir(folder.PathOf("..two")));
}

TEST(ListDir, WhatCannotBeSearchedIsAFileSystemError) {
  TemporaryFolder folder;
  const std::string file = folder.Write("file", "");
  EXPECT_STATUS(kQDAStatusFileSystemError, TOSSpecific::ListDir(folder.PathOf("missing")));
  EXPECT_STATUS(kQDAStatusFileSystemError, TOSSpecific::ListDir(file));
  EXPECT_STATUS(kQDAStatusFileSystemError, TOSSpecific::ListDir(folder.Path() + kNul));
}

TEST(GetFileSize, IsInBytesBeyondFourGibibytesToo) {
  TemporaryFolder folder;
  EXPECT_EQ(0u, TOSSpecific::GetFileSize(folder.Write("empty", "")));
  EXPECT_EQ(5u, TOSSpecific::GetFileSize(folder.Write("five", "a\nb\r\n")));
  const std::string huge = folder.Write("huge", "");
  fs::resize_file(huge, 5368709127);
  EXPECT_EQ(5368709127u, TOSSpecific::GetFileSize(huge));
}

TEST(GetFileSize, WhatIsNoFileIsNotFound) {
  TemporaryFolder folder;
  EXPECT_STATUS(kQDAStatusFileNotFound, TOSSpecific::GetFileSize(folder.Path()));
  EXPECT_STATUS(kQDAStatusFileNotFound, TOSSpecific::GetFileSize(folder.PathOf("missing")));
  EXPECT_STATUS(kQDAStatusFileNotFound, TOSSpecific::GetFileSize(folder.PathOf("missing/file")));
  EXPECT_STATUS(kQDAStatusFileNotFound, TOSSpecific::GetFileSize(""));
  EXPECT_STATUS(kQDAStatusFileNotFound,
                TOSSpecific::GetFileSize(folder.Write("file", "text") + kNul));
}

QDACORE_CHILD(TellsTheCurrentDirectory) {
  std::printf("<%s>", TOSSpecific::GetCurrentDir().c_str());
  return 0;
}

TEST(GetCurrentDir, IsTheDirectoryOfTheProcess) {
  TemporaryFolder folder;
  const std::string odd = folder.MakeFolder("a b/c.d");
  EXPECT_EQ(
      "<" + fs::canonical(odd).string() + ">",
      RunProgram(OwnProgram(), {"--run-as-child", "TellsTheCurrentDirectory"}, {}, odd).output);
}

TEST(FilesAndDirectories, LeaveNothingOpen) {
  TemporaryFolder folder;
  const std::string file = folder.Write("file", "text");
  folder.Write("sub/inner", "text");
  const auto all = [&] {
    TOSSpecific::FileCopy(file, folder.PathOf("copy"));
    TOSSpecific::GetFileSize(file);
    TOSSpecific::ListDir(folder.Path());
    TOSSpecific::GetCurrentDir();
    TOSSpecific::DirExists(folder.Path());
    TOSSpecific::DirCopy(folder.PathOf("sub"), folder.PathOf("twin"), true);
    EXPECT_STATUS(kQDAStatusFileSystemError, TOSSpecific::FileCopy(file, file));
    EXPECT_STATUS(kQDAStatusAccessDenied, TOSSpecific::FileCopy(file, folder.PathOf("sub")));
    EXPECT_STATUS(kQDAStatusFileSystemError, TOSSpecific::ListDir(file));
    EXPECT_STATUS(kQDAStatusFileSystemError,
                  TOSSpecific::DirCopy(folder.PathOf("missing"), folder.PathOf("new"), true));
    EXPECT_STATUS(kQDAStatusFileSystemError,
                  TOSSpecific::DirCopy(folder.PathOf("sub"), folder.PathOf("missing/new"), true));
  };
  all();
  const int before = CountOpenHandles();
  all();
  EXPECT_EQ(before, CountOpenHandles());
}

TEST(FilesAndDirectories, BlanksAndBytesAboveAsciiArePartsOfAName) {
  for (const std::string& name : {std::string("  two blanks first"), std::string("a, b; c=[d]"),
                                  std::string("\xC3\x84\xE9\xFF"), std::string(150, 'n')}) {
    SCOPED_TRACE(name);
    TemporaryFolder folder;
    const std::string in = folder.MakeFolder("in");
    const std::string path = folder.PathOf("in/") + name;
    TOSSpecific::FileCopy(folder.Write("file", "text"), path);
    EXPECT_EQ(Names{name}, TOSSpecific::ListDir(in));
    EXPECT_TRUE(TOSSpecific::FileExists(path));
    EXPECT_EQ(4u, TOSSpecific::GetFileSize(path));
    TOSSpecific::CreateDir(folder.PathOf("out"));
    TOSSpecific::CreateDir(folder.PathOf("out/") + name);
    EXPECT_TRUE(TOSSpecific::DirExists(folder.PathOf("out/") + name));
    TOSSpecific::DirCopy(folder.PathOf("out"), in + "2", true);
    EXPECT_EQ(Names{name}, TOSSpecific::ListDir(in + "2"));
  }
}

TEST(FilesAndDirectories, ManyEntriesAreListedAndCopied) {
  TemporaryFolder folder;
  folder.MakeFolder("many");
  Names names;
  for (int count = 0; count < kMany; ++count) {
    names.push_back("entry-" + std::to_string(count));
    std::ofstream(folder.PathOf("many") + "/" + names.back()) << count;
  }
  names = Sorted(names);
  EXPECT_EQ(names, Sorted(TOSSpecific::ListDir(folder.PathOf("many"))));
  TOSSpecific::DirCopy(folder.PathOf("many"), folder.PathOf("twin"), false);
  EXPECT_EQ(names, Sorted(TOSSpecific::ListDir(folder.PathOf("twin"))));
  EXPECT_EQ("277", Bytes(folder.PathOf("twin/entry-277")));
}

}  // namespace

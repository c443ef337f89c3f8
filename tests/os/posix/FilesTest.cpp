// Files and directories that only this host can have, and situations that only it can be brought
// into: names with a backslash, permissions, a directory that is gone. The other host has no such
// names and denies by lists of its own.

#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <qdacore/os/TOSSpecific.h>
#include <tests/os/FileAids.h>
#include <tests/support/ChildProcess.h>
#include <tests/support/ExpectStatus.h>
#include <tests/support/TemporaryFolder.h>

namespace {

using namespace NZRVQDA20;
using namespace file_aids;
using namespace test_support;
namespace fs = std::filesystem;

typedef std::vector<std::string> Names;

std::string Answer(bool yes) { return yes ? "yes" : "no"; }

// --- Names -------------------------------------------------------------------------------

TEST(NamesOnPosix, AnythingButASlashIsAName) {
  const Names names = {"a\\b",      "x\\..\\..\\out",      "  blanks  ", "\xC3\x84\xFF\x80",
                       "new\nline", std::string(255, 'n'), "*?[",        "C:x"};
  for (const std::string& name : names) {
    SCOPED_TRACE(name);
    TemporaryFolder one;
    const std::string path = one.Path() + "/in/" + name;
    one.MakeFolder("in");
    std::ofstream(path) << "text";
    EXPECT_EQ(Names{name}, TOSSpecific::ListDir(one.PathOf("in")));
    EXPECT_TRUE(TOSSpecific::FileExists(path));
    EXPECT_FALSE(TOSSpecific::DirExists(path));
    EXPECT_EQ(4u, TOSSpecific::GetFileSize(path));
    TOSSpecific::FileCopy(path, one.PathOf("copy"));
    EXPECT_EQ("text", Bytes(one.PathOf("copy")));
    TOSSpecific::DirCopy(one.PathOf("in"), one.PathOf("out"), true);
    EXPECT_EQ(Names{name}, TOSSpecific::ListDir(one.PathOf("out")));
  }
}

TEST(NamesOnPosix, WhatIsThereAsItStandsIsTakenSo) {
  TemporaryFolder folder;
  const std::string odd = folder.Path() + "/a\\b";
  fs::create_directory(odd);
  EXPECT_TRUE(TOSSpecific::DirExists(odd));
  EXPECT_STATUS(kQDAStatusDirectoryAlreadyExists, TOSSpecific::CreateDir(odd));
  // Below it, and behind it, a backslash separates.
  TOSSpecific::CreateDir(odd + "/c");
  TOSSpecific::CreateDir(odd + "/c\\d");
  EXPECT_EQ(Names{"d"}, TOSSpecific::ListDir(odd + "/c"));
  EXPECT_STATUS(kQDAStatusFileSystemError, TOSSpecific::CreateDir(folder.Path() + "/x\\y"));
  EXPECT_EQ(Names{"a\\b"}, TOSSpecific::ListDir(folder.Path()));
}

TEST(NamesOnPosix, CopiedEntryNeverLeavesTheTarget) {
  TemporaryFolder folder;
  folder.Write("source/sub/x", "");
  std::ofstream(folder.Path() + "/source/c\\..\\..\\out") << "text";
  fs::create_directory(folder.Path() + "/source/d\\..\\..\\dir");
  TOSSpecific::DirCopy(folder.PathOf("source"), folder.PathOf("target"), true);
  EXPECT_EQ("text", Bytes(folder.Path() + "/target/c\\..\\..\\out"));
  EXPECT_TRUE(fs::is_directory(folder.Path() + "/target/d\\..\\..\\dir"));
  EXPECT_FALSE(PathExists(folder.PathOf("out")));
  EXPECT_FALSE(PathExists(folder.PathOf("dir")));
}

TEST(NamesOnPosix, NoNameIsTheRootForASearchOnly) {
  EXPECT_EQ(TOSSpecific::ListDir("/"), TOSSpecific::ListDir(""));
  EXPECT_FALSE(TOSSpecific::DirExists(""));
}

TEST(NamesOnPosix, TooLongANameIsAFileSystemError) {
  TemporaryFolder folder;
  const std::string path = folder.PathOf(std::string(256, 'n'));
  EXPECT_STATUS(kQDAStatusFileSystemError, TOSSpecific::CreateDir(path));
  EXPECT_STATUS(kQDAStatusFileSystemError, TOSSpecific::DirExists(path));
  EXPECT_STATUS(kQDAStatusFileSystemError, TOSSpecific::FileExists(path));
  EXPECT_STATUS(kQDAStatusFileSystemError, TOSSpecific::GetFileSize(path));
}

// --- Permissions ---------------------------------------------------------------------------

// Nothing is denied to root.
QDACORE_CHILD(WorksWhereItIsDenied) {
  const uid_t nobody = 65534;
  if (geteuid() == 0 && setuid(nobody) != 0) {
    return 1;
  }
  const std::string& folder = arguments.at(0);
  const auto tell = [](const char* name, auto call) { Tell(name, ThrownStatus(call)); };
  tell("make", [&] { TOSSpecific::CreateDir(folder + "/read only/new"); });
  tell("make below locked", [&] { TOSSpecific::CreateDir(folder + "/locked/new"); });
  tell("is a directory", [&] { Tell("", Answer(TOSSpecific::DirExists(folder + "/locked/x"))); });
  tell("is a file", [&] { Tell("", Answer(TOSSpecific::FileExists(folder + "/locked/x"))); });
  tell("size", [&] { TOSSpecific::GetFileSize(folder + "/locked/x"); });
  tell("list", [&] { TOSSpecific::ListDir(folder + "/locked"); });
  tell("read", [&] { TOSSpecific::FileCopy(folder + "/secret", folder + "/open/new"); });
  tell("write", [&] { TOSSpecific::FileCopy(folder + "/plain", folder + "/read only/new"); });
  tell("overwrite", [&] { TOSSpecific::FileCopy(folder + "/plain", folder + "/fixed"); });
  tell("copy locked", [&] { TOSSpecific::DirCopy(folder + "/locked", folder + "/open/a", true); });
  tell("copy into read only",
       [&] { TOSSpecific::DirCopy(folder + "/source", folder + "/read only/new", true); });
  tell("may", [&] { TOSSpecific::FileCopy(folder + "/plain", folder + "/open/may"); });
  return 0;
}

TEST(PermissionsOnPosix, DeniedIsDeniedWhereTheOperationSaysSo) {
  TemporaryFolder folder;
  folder.Write("plain", "text");
  folder.Write("source/file", "text");
  const std::string secret = folder.Write("secret", "text");
  const std::string fixed = folder.Write("fixed", "text");
  const std::string open = folder.MakeFolder("open");
  const std::string locked = folder.MakeFolder("locked");
  const std::string readOnly = folder.MakeFolder("read only");
  ASSERT_EQ(0, chmod(folder.Path().c_str(), 0755));
  ASSERT_EQ(0, chmod(secret.c_str(), 0));
  ASSERT_EQ(0, chmod(fixed.c_str(), 0444));
  ASSERT_EQ(0, chmod(open.c_str(), 0777));
  ASSERT_EQ(0, chmod(locked.c_str(), 0));
  ASSERT_EQ(0, chmod(readOnly.c_str(), 0555));
  const ChildResult result = RunChild("WorksWhereItIsDenied", {}, {folder.Path()});
  EXPECT_EQ(
      "make: kQDAStatusAccessDenied\n"
      "make below locked: kQDAStatusAccessDenied\n"
      "is a directory: kQDAStatusFileSystemError\n"
      "is a file: kQDAStatusFileSystemError\n"
      "size: kQDAStatusFileSystemError\n"
      "list: kQDAStatusFileSystemError\n"
      "read: kQDAStatusAccessDenied\n"
      "write: kQDAStatusAccessDenied\n"
      "overwrite: kQDAStatusAccessDenied\n"
      "copy locked: kQDAStatusFileSystemError\n"
      "copy into read only: kQDAStatusAccessDenied\n"
      "may: nothing\n",
      result.output);
  EXPECT_EQ("text", Bytes(fixed));
  EXPECT_EQ(Names{"may"}, TOSSpecific::ListDir(open));
  ASSERT_EQ(0, chmod(locked.c_str(), 0755));
}

// --- The current directory -------------------------------------------------------------------

QDACORE_CHILD(TellsItsDirectoryAsItChanges) {
  const std::string& folder = arguments.at(0);
  std::string path = folder;
  if (chdir(folder.c_str()) != 0) {
    return 1;
  }
  for (const std::size_t length : {260u, 261u, 280u}) {
    const std::string name(length - path.size() - 1, 'n');
    if (mkdir(name.c_str(), 0700) != 0 || chdir(name.c_str()) != 0) {
      return 1;
    }
    std::printf("%zu: %zu\n", length, TOSSpecific::GetCurrentDir().size());
    if (chdir("..") != 0) {
      return 1;
    }
  }
  if (mkdir("gone", 0700) != 0 || chdir("gone") != 0 || rmdir("../gone") != 0) {
    return 1;
  }
  Tell("gone", ThrownStatus([] { TOSSpecific::GetCurrentDir(); }));
  return 0;
}

TEST(GetCurrentDirOnPosix, LongerThan260CharactersIsNotDetected) {
  TemporaryFolder folder;
  EXPECT_EQ(
      "260: 260\n261: 0\n280: 0\ngone: kQDAStatusFileSystemError\n",
      RunChild("TellsItsDirectoryAsItChanges", {}, {fs::canonical(folder.Path()).string()}).output);
}

}  // namespace

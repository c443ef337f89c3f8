// Copies of what only this host can have, and copies that only on it can be made to fail: sparse
// files, links, pipes and devices, permissions, file systems that are full or read-only. The other
// host's copy is one call.

#include <fcntl.h>
#include <sched.h>
#include <signal.h>
#include <sys/mount.h>
#include <sys/resource.h>
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

struct stat FactsOf(const std::string& path) {
  struct stat facts = {};
  EXPECT_EQ(0, stat(path.c_str(), &facts)) << path;
  return facts;
}

// --- Contents ----------------------------------------------------------------------------

TEST(FileCopyOnPosix, HolesStayHolesBeyondFourGibibytes) {
  TemporaryFolder folder;
  const std::string source = folder.Write("source", "begin");
  const off_t size = 5368709120;
  const int file = open(source.c_str(), O_WRONLY | O_CLOEXEC);
  ASSERT_EQ(6, pwrite(file, "middle", 6, 4294967296 + 4096));
  ASSERT_EQ(0, ftruncate(file, size));
  close(file);
  TOSSpecific::FileCopy(source, folder.PathOf("target"));
  const struct stat facts = FactsOf(folder.PathOf("target"));
  EXPECT_EQ(size, facts.st_size);
  EXPECT_EQ(5368709120u, TOSSpecific::GetFileSize(folder.PathOf("target")));
  EXPECT_LT(facts.st_blocks * 512, 1024 * 1024);
  std::ifstream copy(folder.PathOf("target"), std::ios::binary);
  std::string text(6, '-');
  copy.read(&text[0], 5);
  EXPECT_EQ("begin-", text);
  copy.seekg(4294967296 + 4096);
  copy.read(&text[0], 6);
  EXPECT_EQ("middle", text);
}

TEST(FileCopyOnPosix, HoleAloneIsCopied) {
  TemporaryFolder folder;
  const std::string source = folder.Write("source", "");
  fs::resize_file(source, 100000);
  TOSSpecific::FileCopy(source, folder.Write("target", "an old text"));
  EXPECT_EQ(std::string(100000, '\0'), Bytes(folder.PathOf("target")));
}

TEST(FileCopyOnPosix, FileThatTheKernelMakesUpIsCopiedWhole) {
  TemporaryFolder folder;
  TOSSpecific::FileCopy("/proc/self/maps", folder.PathOf("maps"));
  EXPECT_NE(std::string::npos, Bytes(folder.PathOf("maps")).find("libc"));
  // Those of this kind say a page, whatever they hold.
  for (const char* const path : {"/sys/kernel/mm/transparent_hugepage/enabled", "/proc/version"}) {
    if (PathExists(path)) {
      TOSSpecific::FileCopy(path, folder.PathOf("copy"));
      EXPECT_EQ(Bytes(path), Bytes(folder.PathOf("copy"))) << path;
    }
  }
}

TEST(FileCopyOnPosix, OtherFileSystemIsNoDifference) {
  struct stat shm;
  if (stat("/dev/shm", &shm) != 0 || access("/dev/shm", W_OK) != 0) {
    GTEST_SKIP() << "there is no /dev/shm to write to";
  }
  TemporaryFolder folder;
  const std::string there = "/dev/shm/qdacore-test-" + std::to_string(getpid());
  const std::string source = folder.Write("source", std::string(700001, 'x') + "end");
  TOSSpecific::FileCopy(source, there);
  TOSSpecific::FileCopy(there, folder.PathOf("back"));
  fs::remove(there);
  EXPECT_TRUE(Bytes(source) == Bytes(folder.PathOf("back")));
}

TEST(FileCopyOnPosix, NewFileHasThePermissionsOfItsSourceAndAnOldOneKeepsItsOwn) {
  TemporaryFolder folder;
  const std::string source = folder.Write("source", "text");
  const mode_t mask = umask(022);
  ASSERT_EQ(0, chmod(source.c_str(), 04770));
  TOSSpecific::FileCopy(source, folder.PathOf("new"));
  EXPECT_EQ(0750u, FactsOf(folder.PathOf("new")).st_mode & 07777u);
  const std::string old = folder.Write("old", "old");
  ASSERT_EQ(0, chmod(old.c_str(), 0604));
  TOSSpecific::FileCopy(source, old);
  EXPECT_EQ(0604u, FactsOf(old).st_mode & 07777u);
  ASSERT_EQ(0, chmod(source.c_str(), 0400));
  TOSSpecific::FileCopy(source, folder.PathOf("read only"));
  EXPECT_EQ(0400u, FactsOf(folder.PathOf("read only")).st_mode & 07777u);
  EXPECT_EQ("text", Bytes(folder.PathOf("read only")));
  umask(mask);
}

TEST(FileCopyOnPosix, OtherNamesOfTheSameFileAreItToo) {
  TemporaryFolder folder;
  const std::string file = folder.Write("file", "text");
  fs::create_hard_link(file, folder.PathOf("hard"));
  fs::create_symlink("file", folder.PathOf("soft"));
  EXPECT_STATUS(kQDAStatusFileSystemError, TOSSpecific::FileCopy(file, folder.PathOf("hard")));
  EXPECT_STATUS(kQDAStatusFileSystemError, TOSSpecific::FileCopy(file, folder.PathOf("soft")));
  EXPECT_STATUS(kQDAStatusFileSystemError, TOSSpecific::FileCopy(folder.PathOf("soft"), file));
  EXPECT_EQ("text", Bytes(file));
}

TEST(FileCopyOnPosix, LinksAreFollowedOnBothSides) {
  TemporaryFolder folder;
  folder.Write("source", "new");
  folder.Write("target", "old");
  fs::create_symlink("source", folder.PathOf("from"));
  fs::create_symlink("target", folder.PathOf("to"));
  fs::create_symlink("made", folder.PathOf("to nothing"));
  TOSSpecific::FileCopy(folder.PathOf("from"), folder.PathOf("to"));
  EXPECT_EQ("new", Bytes(folder.PathOf("target")));
  TOSSpecific::FileCopy(folder.PathOf("from"), folder.PathOf("to nothing"));
  EXPECT_EQ("new", Bytes(folder.PathOf("made")));
  EXPECT_TRUE(fs::is_symlink(folder.PathOf("to nothing")));
}

TEST(FileCopyOnPosix, PipesAndDevicesAreNeitherReadNorWritten) {
  TemporaryFolder folder;
  const std::string file = folder.Write("file", "text");
  const std::string pipe = folder.PathOf("pipe");
  ASSERT_EQ(0, mkfifo(pipe.c_str(), 0600));
  for (const std::string& odd : {pipe, std::string("/dev/zero"), std::string("/dev/null")}) {
    SCOPED_TRACE(odd);
    EXPECT_STATUS(kQDAStatusFileSystemError, TOSSpecific::FileCopy(odd, folder.PathOf("new")));
    EXPECT_STATUS(kQDAStatusFileSystemError, TOSSpecific::FileCopy(file, odd));
  }
  EXPECT_FALSE(PathExists(folder.PathOf("new")));
  EXPECT_TRUE(S_ISFIFO(FactsOf(pipe).st_mode));
  EXPECT_TRUE(S_ISCHR(FactsOf("/dev/null").st_mode));
}

TEST(FileCopyOnPosix, NameThatEndsInASlashIsNoFile) {
  TemporaryFolder folder;
  const std::string file = folder.Write("file", "text");
  EXPECT_STATUS(kQDAStatusFileSystemError, TOSSpecific::FileCopy(file, folder.PathOf("new") + "/"));
  EXPECT_STATUS(kQDAStatusFileSystemError, TOSSpecific::FileCopy(file + "/", folder.PathOf("new")));
  EXPECT_EQ(Names{"file"}, TOSSpecific::ListDir(folder.Path()));
}

// --- A copy that fails on the way -----------------------------------------------------------

// No file may grow beyond 64 KiB: the copy fails in its middle.
QDACORE_CHILD(CopiesWhereFilesStaySmall) {
  signal(SIGXFSZ, SIG_IGN);
  const struct rlimit small = {65536, 65536};
  setrlimit(RLIMIT_FSIZE, &small);
  const std::string& folder = arguments.at(0);
  for (const char* const target : {"new", "old", "link"}) {
    Tell(target,
         ThrownStatus([&] { TOSSpecific::FileCopy(folder + "/source", folder + "/" + target); }));
  }
  return 0;
}

TEST(FileCopyOnPosix, NoHalfFileStays) {
  TemporaryFolder folder;
  folder.Write("source", std::string(1024 * 1024, 'x'));
  folder.Write("old", "old");
  folder.Write("behind", "old");
  fs::create_symlink("behind", folder.PathOf("link"));
  EXPECT_EQ(
      "new: kQDAStatusFileSystemError\n"
      "old: kQDAStatusFileSystemError\n"
      "link: kQDAStatusFileSystemError\n",
      RunChild("CopiesWhereFilesStaySmall", {}, {folder.Path()}).output);
  EXPECT_FALSE(PathExists(folder.PathOf("new")));
  EXPECT_FALSE(PathExists(folder.PathOf("old")));
  EXPECT_EQ("", Bytes(folder.PathOf("behind")));
  EXPECT_EQ(1024u * 1024u, TOSSpecific::GetFileSize(folder.PathOf("source")));
}

// In a mount namespace of the child's own, which ends with it. 2: not allowed to.
QDACORE_CHILD(WorksOnSmallFileSystems) {
  const std::string& folder = arguments.at(0);
  const int spaces = CLONE_NEWNS | (geteuid() == 0 ? 0 : CLONE_NEWUSER);
  if (unshare(spaces) != 0 || mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
      mount("tmpfs", (folder + "/small").c_str(), "tmpfs", 0, "size=262144") != 0 ||
      mount("tmpfs", (folder + "/fixed").c_str(), "tmpfs", 0, "size=262144") != 0) {
    return 2;
  }
  std::ofstream(folder + "/fixed/file") << "text";
  if (mount(nullptr, (folder + "/fixed").c_str(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr) != 0) {
    return 2;
  }
  const auto tell = [](const char* name, auto call) { Tell(name, ThrownStatus(call)); };
  tell("full", [&] { TOSSpecific::FileCopy(folder + "/source", folder + "/small/new"); });
  Tell("left", std::to_string(TOSSpecific::ListDir(folder + "/small").size()));
  tell("copy to read-only",
       [&] { TOSSpecific::FileCopy(folder + "/little", folder + "/fixed/x"); });
  tell("onto read-only",
       [&] { TOSSpecific::FileCopy(folder + "/little", folder + "/fixed/file"); });
  tell("make on read-only", [&] { TOSSpecific::CreateDir(folder + "/fixed/new"); });
  Tell("contents", Bytes(folder + "/fixed/file"));
  return 0;
}

TEST(FileCopyOnPosix, FullDeviceIsAFileSystemErrorAndAReadOnlyOneIsDenied) {
  TemporaryFolder folder;
  folder.Write("source", std::string(1024 * 1024, 'x'));
  folder.Write("little", "y");
  folder.MakeFolder("small");
  folder.MakeFolder("fixed");
  const ChildResult result = RunChild("WorksOnSmallFileSystems", {}, {folder.Path()});
  if (result.exitCode == 2) {
    GTEST_SKIP() << "this user may not mount a file system, not even in a namespace of its own";
  }
  EXPECT_EQ(
      "full: kQDAStatusFileSystemError\n"
      "left: 0\n"
      "copy to read-only: kQDAStatusAccessDenied\n"
      "onto read-only: kQDAStatusAccessDenied\n"
      "make on read-only: kQDAStatusAccessDenied\n"
      "contents: text\n",
      result.output);
}

}  // namespace

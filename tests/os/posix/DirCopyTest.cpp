// Directories with what only this host has in them: links, pipes, sockets.

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <qdacore/os/TOSSpecific.h>
#include <tests/os/FolderTree.h>
#include <tests/support/ChildProcess.h>
#include <tests/support/ExpectStatus.h>
#include <tests/support/LeaksOnPurpose.h>
#include <tests/support/OpenHandles.h>
#include <tests/support/TemporaryFolder.h>

namespace {

using namespace NZRVQDA20;
using namespace test_support;
using file_aids::Tree;
namespace fs = std::filesystem;

typedef std::vector<std::string> Names;

std::string CopyStatus(const TemporaryFolder& folder, bool recursive = true) {
  const LeaksOnPurpose searches;
  return ThrownStatus(
      [&] { TOSSpecific::DirCopy(folder.PathOf("source"), folder.PathOf("target"), recursive); });
}

class LinksInDirCopy : public testing::Test {
 protected:
  LinksInDirCopy() {
    fFolder.Write("outside/file", "text");
    fFolder.Write("source/sub/own", "own");
    Link("..", "source/sub/up");
    Link("../outside", "source/directory");
    Link("../outside/file", "source/file");
    Link("nowhere", "source/broken");
    Link("source/missing/thing", "source/deep broken");
  }
  void Link(const char* to, const char* name) { fs::create_symlink(to, fFolder.PathOf(name)); }

  TemporaryFolder fFolder;
};

TEST_F(LinksInDirCopy, DirectoriesAndNothingStayLinksAndFilesBecomeFiles) {
  EXPECT_EQ("nothing", CopyStatus(fFolder));
  const Names expected = {"broken>nowhere",
                          "deep broken>source/missing/thing",
                          "directory>../outside",
                          "file=text",
                          "sub/",
                          "sub/own=own",
                          "sub/up>.."};
  EXPECT_EQ(expected, Tree(fFolder.PathOf("target")));
  // And over itself once more.
  EXPECT_EQ("nothing", CopyStatus(fFolder));
  EXPECT_EQ(expected, Tree(fFolder.PathOf("target")));
}

TEST_F(LinksInDirCopy, NotRecursiveLeavesOutLinksToDirectories) {
  EXPECT_EQ("nothing", CopyStatus(fFolder, false));
  EXPECT_EQ((Names{"broken>nowhere", "deep broken>source/missing/thing", "file=text"}),
            Tree(fFolder.PathOf("target")));
}

TEST_F(LinksInDirCopy, LinkInTheTargetIsReplacedAndNotWrittenThrough) {
  fFolder.Write("victim/file", "precious");
  fFolder.MakeFolder("target");
  Link("../victim/file", "target/file");
  Link("../victim", "target/directory");
  Link("../victim/new", "target/broken");
  EXPECT_EQ("nothing", CopyStatus(fFolder));
  EXPECT_EQ("text", ReadTextFile(fFolder.PathOf("target/file")));
  EXPECT_EQ("../outside", fs::read_symlink(fFolder.PathOf("target/directory")));
  EXPECT_EQ((Names{"file=precious"}), Tree(fFolder.PathOf("victim")));
}

TEST_F(LinksInDirCopy, DirectoryIsNotCopiedThroughALinkInTheTarget) {
  fFolder.MakeFolder("victim");
  fFolder.MakeFolder("target");
  Link("../victim", "target/sub");
  EXPECT_EQ("kQDAStatusFileSystemError", CopyStatus(fFolder));
  EXPECT_EQ(Names(), Tree(fFolder.PathOf("victim")));
}

TEST_F(LinksInDirCopy, LinkDoesNotReplaceAFileOrADirectory) {
  fFolder.Write("target/directory/kept", "kept");
  EXPECT_EQ("kQDAStatusFileSystemError", CopyStatus(fFolder));
  EXPECT_EQ("kept", ReadTextFile(fFolder.PathOf("target/directory/kept")));
}

TEST_F(LinksInDirCopy, LinkThatLeadsToItselfEndsTheCopy) {
  fs::remove_all(fFolder.PathOf("source"));
  fFolder.MakeFolder("source");
  Link("itself", "source/itself");
  EXPECT_EQ("kQDAStatusFileSystemError", CopyStatus(fFolder));
  EXPECT_EQ(Names(), Tree(fFolder.PathOf("target")));
}

TEST_F(LinksInDirCopy, LinksThatTheCallerNamesAreFollowed) {
  Link("source", "from");
  fFolder.MakeFolder("real");
  Link("real", "to");
  TOSSpecific::DirCopy(fFolder.PathOf("from"), fFolder.PathOf("to"), false);
  EXPECT_EQ("text", ReadTextFile(fFolder.PathOf("real/file")));
}

TEST(DirCopyOnPosix, PipeInADirectoryFailsAndDoesNotHang) {
  TemporaryFolder folder;
  folder.MakeFolder("source");
  ASSERT_EQ(0, mkfifo(folder.PathOf("source/pipe").c_str(), 0600));
  EXPECT_EQ("kQDAStatusFileSystemError", CopyStatus(folder));
  EXPECT_EQ(Names(), Tree(folder.PathOf("target")));
}

TEST(DirCopyOnPosix, PipeInTheTargetFailsAndDoesNotHang) {
  TemporaryFolder folder;
  folder.Write("source/file", "text");
  folder.MakeFolder("target");
  ASSERT_EQ(0, mkfifo(folder.PathOf("target/file").c_str(), 0600));
  EXPECT_EQ("kQDAStatusFileSystemError", CopyStatus(folder));
}

TEST(DirCopyOnPosix, SparseFileStaysSparse) {
  TemporaryFolder folder;
  fs::resize_file(folder.Write("source/sub/huge", "x"), 5368709120);
  EXPECT_EQ("nothing", CopyStatus(folder));
  struct stat facts;
  ASSERT_EQ(0, stat(folder.PathOf("target/sub/huge").c_str(), &facts));
  EXPECT_EQ(5368709120, facts.st_size);
  EXPECT_LT(facts.st_blocks * 512, 1024 * 1024);
}

// One search for each directory in whose entries the failure came about; and none that failed
// before its entries.
TEST(DirCopyOnPosix, FailureInsideTheLoopLeavesItsSearchesOpen) {
  TemporaryFolder folder;
  folder.Write("source/sub/deep/file", "text");
  folder.MakeFolder("target/sub/deep/file");
  struct {
    const char* name;
    const char* obstacle;
    const char* status;
    int left;
  } const rows[] = {
      {"a file cannot be copied", "target/sub/deep/file/x", "kQDAStatusAccessDenied", 3},
      {"a directory cannot be made", "target/sub/deep", "kQDAStatusDirectoryAlreadyExists", 2},
      {"the first one", "target/sub", "kQDAStatusDirectoryAlreadyExists", 1},
      {"the target itself", "target", "kQDAStatusDirectoryAlreadyExists", 0},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    fs::remove_all(folder.PathOf("target"));
    folder.Write(row.obstacle, "in the way");
    const int before = CountOpenHandles();
    EXPECT_EQ(row.status, CopyStatus(folder));
    EXPECT_EQ(before + row.left, CountOpenHandles());
  }
}

// Far more arguments than descriptors: a search that is left open must not use them up.
QDACORE_CHILD(ExpandsManyArguments) {
  const struct rlimit few = {32, 32};
  setrlimit(RLIMIT_NOFILE, &few);
  const LeaksOnPurpose searches;
  std::string argument = arguments.at(0) + "/*.txt";
  std::vector<char*> argv(500, &argument[0]);
  int count = 0;
  char** strings = nullptr;
  const int before = CountOpenHandles();
  TOSSpecific::ExpandCommandLineWildcards(static_cast<int>(argv.size()), argv.data(), &count,
                                          &strings);
  int found = 0;
  for (int at = 0; at < count; ++at) {
    found += strings[at] == arguments.at(0) + "/one.txt" ? 1 : 0;
    std::free(strings[at]);
  }
  std::free(strings);
  std::printf("%d %d", found, CountOpenHandles() - before);
  return 0;
}

TEST(ExpandCommandLineWildcardsOnPosix, SearchesThatStayOpenHoldNoDescriptor) {
  TemporaryFolder folder;
  folder.Write("one.txt", "");
  EXPECT_EQ("500 0", RunChild("ExpandsManyArguments", {}, {folder.Path()}).output);
}

TEST(ExpandCommandLineWildcardsOnPosix, CaseCountsAndAnOddNameIsOnePart) {
  TemporaryFolder folder;
  folder.Write("A.txt", "");
  std::ofstream(folder.Path() + "/b\\c.txt") << "";
  const LeaksOnPurpose searches;
  std::string arguments[] = {folder.Path() + "\\a*", folder.Path() + "\\b*"};
  char* argv[] = {&arguments[0][0], &arguments[1][0]};
  int count = 0;
  char** strings = nullptr;
  TOSSpecific::ExpandCommandLineWildcards(2, argv, &count, &strings);
  ASSERT_EQ(2, count);
  EXPECT_EQ(arguments[0], strings[0]);
  EXPECT_EQ(folder.Path() + "/b\\c.txt", strings[1]);
  EXPECT_TRUE(TOSSpecific::FileExists(strings[1]));
  std::free(strings[0]);
  std::free(strings[1]);
  std::free(strings);
}

}  // namespace

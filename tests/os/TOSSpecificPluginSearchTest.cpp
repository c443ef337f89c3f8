// Plain plug-ins, in folders one level below a directory.

#include <algorithm>
#include <filesystem>

#include <gtest/gtest.h>

#include <qdacore/os/TOSSpecific.h>
#include <tests/support/ExpectStatus.h>
#include <tests/support/TemporaryFolder.h>

namespace {

using namespace NZRVQDA20;
using namespace test_support;

typedef std::vector<std::string> Paths;

// The order is that of the file system.
Paths Sorted(Paths paths) {
  std::sort(paths.begin(), paths.end());
  return paths;
}

TEST(FindPlugins, OneLevelDownAndNowhereElse) {
  TemporaryFolder folder;
  folder.Write("x.pi.dll", "");
  const std::string y = folder.Write("sub/y.pi.dll", "");
  const std::string z = folder.Write("sub/z.pi.dll", "");
  const std::string other = folder.Write("other/y.pi.dll", "");
  folder.Write("sub/deeper/d.pi.dll", "");
  folder.Write("sub/notes.txt", "");
  folder.Write("sub/pi.dll", "");
  folder.Write("sub/y.pi.dll.old", "");
  folder.MakeFolder("empty");
  EXPECT_EQ((Paths{other, y, z}), Sorted(TOSSpecific::FindPlugins(folder.Path())));
}

TEST(FindPlugins, FoldersBeginningWithADotArePassedOver) {
  TemporaryFolder folder;
  folder.Write(".hidden/y.pi.dll", "");
  folder.Write("..odd/y.pi.dll", "");
  const std::string seen = folder.Write("a.b/y.pi.dll", "");
  EXPECT_EQ(Paths{seen}, TOSSpecific::FindPlugins(folder.Path()));
}

TEST(FindPlugins, FilesBeginningWithADotAreNot) {
  TemporaryFolder folder;
  const std::string seen = folder.Write("sub/.pi.dll", "");
  EXPECT_EQ(Paths{seen}, TOSSpecific::FindPlugins(folder.Path()));
}

TEST(FindPlugins, FolderThatFitsThePatternCounts) {
  TemporaryFolder folder;
  const std::string inner = folder.MakeFolder("sub/y.pi.dll");
  EXPECT_EQ(Paths{inner}, TOSSpecific::FindPlugins(folder.Path()));
}

TEST(FindPlugins, ExtensionIsTheCallers) {
  TemporaryFolder folder;
  folder.Write("sub/a.pi.dll", "");
  const std::string foo = folder.Write("sub/b.foo.dll", "");
  EXPECT_EQ(Paths{foo}, TOSSpecific::FindPlugins(folder.Path(), "foo"));
  EXPECT_EQ(Paths(), TOSSpecific::FindPlugins(folder.Path(), "bar"));
}

TEST(FindPlugins, NothingThereIsAnEmptyList) {
  TemporaryFolder folder;
  EXPECT_EQ(Paths(), TOSSpecific::FindPlugins(folder.Path()));
  folder.Write("sub/a.dll", "");
  EXPECT_EQ(Paths(), TOSSpecific::FindPlugins(folder.Path()));
}

TEST(FindPlugins, MissingDirectoryIsAFileSystemError) {
  TemporaryFolder folder;
  EXPECT_STATUS(kQDAStatusFileSystemError, TOSSpecific::FindPlugins(folder.PathOf("missing")));
  EXPECT_STATUS(kQDAStatusFileSystemError, TOSSpecific::FindPlugins(folder.PathOf("no/where")));
  const std::string file = folder.Write("file", "");
  EXPECT_STATUS(kQDAStatusFileSystemError, TOSSpecific::FindPlugins(file));
  // Wildcards belong into the last part of a path, which is the library's.
  folder.Write("dir/sub/a.pi.dll", "");
  EXPECT_STATUS(kQDAStatusFileSystemError, TOSSpecific::FindPlugins(folder.PathOf("di*")));
}

TEST(FindPlugins, BothSeparatorsAreAccepted) {
  TemporaryFolder folder;
  const std::string file = folder.Write("plugins/sub/y.pi.dll", "");
  for (const char* directory : {"\\plugins", "/plugins"}) {
    SCOPED_TRACE(directory);
    const Paths found = TOSSpecific::FindPlugins(folder.Path() + directory);
    ASSERT_EQ(1u, found.size());
    EXPECT_TRUE(std::filesystem::equivalent(file, found[0])) << found[0];
  }
#if !defined(_WIN32)
  // What is given back is in the host's form throughout.
  EXPECT_EQ(Paths{file}, TOSSpecific::FindPlugins(folder.Path() + "\\plugins"));
#endif
}

}  // namespace

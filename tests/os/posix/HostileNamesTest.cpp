// Names and files that only this host can have: backslashes in names, links, pipes, permissions.
// The other host's names hold no backslash, its links need a privilege, and its loader neither
// waits for a pipe nor binds at run time.

#include <algorithm>
#include <string>
#include <vector>

#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

#include <gtest/gtest.h>

#include <qdacore/os/TOSSpecific.h>
#include <tests/os/ProgramCopy.h>
#include <tests/support/ExpectStatus.h>
#include <tests/support/TemporaryFolder.h>

namespace {

using namespace NZRVQDA20;
using namespace test_support;

typedef std::vector<std::string> Paths;

Paths Sorted(Paths paths) {
  std::sort(paths.begin(), paths.end());
  return paths;
}

TEST(FindServicesOnPosix, NameIsNoPath) {
  ProgramCopy program;
  program.Folder().Write("a\\b.nsp.dll", "");
  EXPECT_EQ("nsp: <a\\b>\nnsc:\n", program.Run("ListsServices").output);
}

TEST(FindPluginsOnPosix, FolderNameWithABackslashIsOneName) {
  TemporaryFolder folder;
  const std::string seen = folder.Write("in/a\\b/y.pi.dll", "");
  // Not the way out of the directory that it looks like.
  const std::string odd = folder.Write("in/c\\..\\..\\out/z.pi.dll", "");
  folder.Write("out/other.pi.dll", "");
  EXPECT_EQ((Paths{seen, odd}), Sorted(TOSSpecific::FindPlugins(folder.PathOf("in"))));
}

TEST(FindPluginsOnPosix, LinkToAFolderIsAFolder) {
  TemporaryFolder folder;
  folder.Write("elsewhere/y.pi.dll", "");
  folder.MakeFolder("plugins");
  std::filesystem::create_directory_symlink("../elsewhere", folder.PathOf("plugins/link"));
  std::filesystem::create_directory_symlink("../missing", folder.PathOf("plugins/broken"));
  EXPECT_EQ(Paths{folder.PathOf("plugins/link/y.pi.dll")},
            TOSSpecific::FindPlugins(folder.PathOf("plugins")));
}

TEST(LoadPluginLibraryOnPosix, PathFromFindPluginsIsTakenAsItStands) {
  TemporaryFolder folder;
  const std::string path = folder.Copy(ProgramCopy::ModulePath("mark.pi.dll"), "a\\b/mark.pi.dll");
  EXPECT_EQ("mark starts\nnothing\nend of main\nmark ends\n",
            RunChild("LoadsPlainPlugins", {}, {path}).output);
}

TEST(LoadNSPLibraryOnPosix, NameIsNeverAWayToAnotherFile) {
  ProgramCopy program;
  program.Folder().MakeFolder("c");
  program.AddModule("registers.nsp.dll", "out/z.nsp.dll");
  program.Folder().Write("c\\..\\out\\z.nsp.dll", "This is no module.\n");
  EXPECT_EQ(
      "c\\..\\out\\z: kQDAStatusFileSystemError\n"
      "[Error] Couldn't load NSP: c\\..\\out\\z error: 193\n"
      "lookup: kQDAStatusNotFound\n",
      program.Run("LoadsProviders", {"c\\..\\out\\z"}).output);
}

TEST(LoadPluginLibraryOnPosix, BrokenFileIsNotReadAsAnotherPath) {
  TemporaryFolder folder;
  folder.Copy(ProgramCopy::ModulePath("mark.pi.dll"), "sub/mark.pi.dll");
  const std::string broken = folder.Write("sub\\mark.pi.dll", "This is no module.\n");
  EXPECT_EQ("kQDAStatusFileSystemError\nend of main\n",
            RunChild("LoadsPlainPlugins", {}, {broken}).output);
}

TEST(LoadNSPLibraryOnPosix, PipeAndFolderAreNoModules) {
  ProgramCopy program;
  program.Folder().MakeFolder("folder.nsp.dll");
  ASSERT_EQ(0, mkfifo(program.Folder().PathOf("pipe.nsp.dll").c_str(), 0600));
  EXPECT_EQ(
      "folder: kQDAStatusFileSystemError\n"
      "pipe: kQDAStatusFileSystemError\n"
      "[Error] Couldn't load NSP: folder error: 193\n"
      "[Error] Couldn't load NSP: pipe error: 193\n"
      "lookup: kQDAStatusNotFound\n",
      program.Run("LoadsProviders", {"folder", "pipe"}).output);
}

TEST(LoadNSPLibraryOnPosix, MissingFunctionHasItsOwnNumber) {
  ProgramCopy program;
  program.AddModule("unresolved.nsp.dll");
  EXPECT_EQ(
      "unresolved: kQDAStatusFileSystemError\n"
      "[Error] Couldn't load NSP: unresolved error: 127\n"
      "lookup: kQDAStatusNotFound\n",
      program.Run("LoadsProviders", {"unresolved"}).output);
}

// As an ordinary user, because nothing is denied to root.
TEST(LoadNSPLibraryOnPosix, DeniedFileHasItsOwnNumber) {
  ProgramCopy program;
  program.AddModule("registers.nsp.dll", "locked.nsp.dll");
  ASSERT_EQ(0, chmod(program.Folder().PathOf("locked.nsp.dll").c_str(), 0));
  EXPECT_EQ(
      "locked: kQDAStatusFileSystemError\n"
      "[Error] Couldn't load NSP: locked error: 5\n"
      "lookup: kQDAStatusNotFound\n",
      program.Run("LoadsProvidersAsAnOrdinaryUser", {"locked"}).output);
}

QDACORE_CHILD(LoadsProvidersAsAnOrdinaryUser) {
  const uid_t nobody = 65534;
  if (geteuid() == 0 && setuid(nobody) != 0) {
    return 1;
  }
  return RunRegisteredChild("LoadsProviders", arguments);
}

}  // namespace

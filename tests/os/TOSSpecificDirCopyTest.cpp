// The copy of a directory.

#include <algorithm>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <qdacore/os/TOSSpecific.h>
#include <tests/os/FolderTree.h>
#include <tests/support/ExpectStatus.h>
#include <tests/support/LeaksOnPurpose.h>
#include <tests/support/TemporaryFolder.h>

namespace {

using namespace NZRVQDA20;
using namespace test_support;
using file_aids::Tree;

typedef std::vector<std::string> Names;

class DirCopy : public testing::Test {
 protected:
  DirCopy() {
    fFolder.Write("source/a", "1");
    fFolder.Write("source/sub/b", "2");
    fFolder.Write("source/sub/deep/c", "3");
    fFolder.MakeFolder("source/empty");
  }
  std::string Path(const std::string& name) const { return fFolder.PathOf(name); }

  TemporaryFolder fFolder;
};

const Names kWhole = {"a=1", "empty/", "sub/", "sub/b=2", "sub/deep/", "sub/deep/c=3"};

TEST_F(DirCopy, RecursiveCopiesAll) {
  TOSSpecific::DirCopy(Path("source"), Path("target"), true);
  EXPECT_EQ(kWhole, Tree(Path("target")));
}

TEST_F(DirCopy, NotRecursiveCopiesFilesAndMakesNoSubdirectory) {
  TOSSpecific::DirCopy(Path("source"), Path("target"), false);
  EXPECT_EQ(Names{"a=1"}, Tree(Path("target")));
}

TEST_F(DirCopy, SeparatorsAtTheEndChangeNothing) {
  TOSSpecific::DirCopy(Path("source") + "\\", Path("one") + "\\", true);
  EXPECT_EQ(kWhole, Tree(Path("one")));
  TOSSpecific::DirCopy(Path("source") + "/", Path("two") + "/", true);
  EXPECT_EQ(kWhole, Tree(Path("two")));
}

TEST_F(DirCopy, NamesThatBeginWithADotStay) {
  fFolder.Write("source/.hidden", "x");
  fFolder.Write("source/..two", "x");
  fFolder.Write("source/.folder/file", "x");
  fFolder.Write("source/sub/.inner", "x");
  TOSSpecific::DirCopy(Path("source"), Path("target"), true);
  EXPECT_EQ(kWhole, Tree(Path("target")));
}

TEST_F(DirCopy, TargetKeepsWhatHasNoNamesake) {
  fFolder.Write("target/a", "a longer old text");
  fFolder.Write("target/sub/b", "old");
  fFolder.Write("target/sub/kept", "kept");
  TOSSpecific::DirCopy(Path("source"), Path("target"), true);
  Names expected = kWhole;
  expected.push_back("sub/kept=kept");
  std::sort(expected.begin(), expected.end());
  EXPECT_EQ(expected, Tree(Path("target")));
}

TEST_F(DirCopy, SourceThatCannotBeSearchedCreatesNoTarget) {
  EXPECT_STATUS(kQDAStatusFileSystemError,
                TOSSpecific::DirCopy(Path("missing"), Path("target"), true));
  EXPECT_STATUS(kQDAStatusFileSystemError,
                TOSSpecific::DirCopy(Path("source/a"), Path("target"), true));
  EXPECT_STATUS(kQDAStatusFileSystemError,
                TOSSpecific::DirCopy(Path("source") + '\0', Path("target"), true));
  EXPECT_STATUS(kQDAStatusFileSystemError,
                TOSSpecific::DirCopy(Path("source"), Path("target") + '\0', true));
  EXPECT_FALSE(PathExists(Path("target")));
}

TEST_F(DirCopy, TargetIsMadeByTheRulesOfCreateDir) {
  EXPECT_STATUS(kQDAStatusFileSystemError,
                TOSSpecific::DirCopy(Path("source"), Path("missing/target"), true));
  const std::string file = fFolder.Write("file", "text");
  EXPECT_STATUS(kQDAStatusDirectoryAlreadyExists, TOSSpecific::DirCopy(Path("source"), file, true));
  EXPECT_EQ("text", ReadTextFile(file));
}

TEST_F(DirCopy, NestedFailureEndsItAndWhatWasCopiedStays) {
  // One way through the tree, so that the order of the host does not count.
  fFolder.Write("chain/1/2/3/f", "x");
  fFolder.Write("target/1/2/3", "in the way");
  {
    const LeaksOnPurpose searches;
    EXPECT_STATUS(kQDAStatusDirectoryAlreadyExists,
                  TOSSpecific::DirCopy(Path("chain"), Path("target"), true));
  }
  EXPECT_EQ((Names{"1/", "1/2/", "1/2/3=in the way"}), Tree(Path("target")));
  fFolder.MakeFolder("other/1/2/3/f");
  {
    const LeaksOnPurpose searches;
    EXPECT_STATUS(kQDAStatusAccessDenied, TOSSpecific::DirCopy(Path("chain"), Path("other"), true));
  }
}

TEST_F(DirCopy, TargetInsideTheSourceEnds) {
  TOSSpecific::DirCopy(Path("source"), Path("source/sub/copy"), true);
  EXPECT_EQ(kWhole, Tree(Path("source/sub/copy")));
  // And once more, now that it is there for certain.
  TOSSpecific::DirCopy(Path("source"), Path("source/sub/copy"), true);
  EXPECT_EQ(kWhole, Tree(Path("source/sub/copy")));
}

TEST_F(DirCopy, OntoItselfFailsAndLosesNothing) {
  {
    const LeaksOnPurpose searches;
    EXPECT_STATUS(kQDAStatusFileSystemError,
                  TOSSpecific::DirCopy(Path("source"), Path("source"), true));
  }
  EXPECT_EQ(kWhole, Tree(Path("source")));
}

}  // namespace

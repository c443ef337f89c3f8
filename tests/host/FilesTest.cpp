// The host's own file search, through the seam.

#include <algorithm>

#include <gtest/gtest.h>

#include <qdacore/host/HostServices.h>
#include <tests/support/TemporaryFolder.h>

namespace {

using namespace NZRVQDA20::host;
using test_support::TemporaryFolder;

struct Found {
  Outcome outcome;
  std::vector<std::string> names;
};

// Directories have a slash behind their names.
Found Search(const std::string& directory, const std::string& pattern) {
  Files::Search search = nullptr;
  FoundEntry entry;
  Found found = {SystemFiles().FindFirst(directory, pattern, search, entry), {}};
  if (found.outcome.Done()) {
    do {
      found.names.push_back(std::string(entry.name) + (entry.isDirectory ? "/" : ""));
    } while (SystemFiles().FindNext(search, entry).Done());
    SystemFiles().CloseSearch(search);
  }
  std::sort(found.names.begin(), found.names.end());
  return found;
}

TEST(SystemFiles, StarFindsEveryEntryAndTheTwoDots) {
  TemporaryFolder folder;
  folder.Write("file", "");
  folder.Write(".hidden", "");
  folder.Write("sub/inner", "");
  EXPECT_EQ((std::vector<std::string>{"../", "./", ".hidden", "file", "sub/"}),
            Search(folder.Path(), "*").names);
}

TEST(SystemFiles, PatternChooses) {
  TemporaryFolder folder;
  folder.Write("a.x.dll", "");
  folder.Write("a.y.dll", "");
  folder.MakeFolder("b.x.dll");
  EXPECT_EQ((std::vector<std::string>{"a.x.dll", "b.x.dll/"}),
            Search(folder.Path(), "*.x.dll").names);
}

TEST(SystemFiles, NoMatchAndNoDirectoryAreTwoThings) {
  TemporaryFolder folder;
  folder.Write("file", "");
  const Outcome noMatch = Search(folder.Path(), "*.x.dll").outcome;
  EXPECT_EQ(Situation::kNoFile, noMatch.situation);
  EXPECT_EQ(2u, noMatch.number);
  const Outcome noDirectory = Search(folder.PathOf("missing"), "*.x.dll").outcome;
  EXPECT_EQ(Situation::kNoPath, noDirectory.situation);
  EXPECT_EQ(3u, noDirectory.number);
  EXPECT_FALSE(Search(folder.PathOf("file"), "*").outcome.Done());
}

TEST(SystemFiles, ManySearchesLeaveNothingOpen) {
  TemporaryFolder folder;
  for (int count = 0; count < 3000; ++count) {
    ASSERT_TRUE(Search(folder.Path(), "*").outcome.Done());
    ASSERT_FALSE(Search(folder.Path(), "*.x").outcome.Done());
  }
}

}  // namespace

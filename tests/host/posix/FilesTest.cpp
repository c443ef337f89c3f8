// A search while its directory changes.

#include <unistd.h>

#include <gtest/gtest.h>

#include <qdacore/host/HostServices.h>
#include <tests/support/TemporaryFolder.h>

namespace {

using namespace NZRVQDA20::host;

TEST(SystemFilesOnPosix, DirectoryThatIsRemovedWhileItIsReadIsAtItsEnd) {
  test_support::TemporaryFolder folder;
  const std::string directory = folder.MakeFolder("goes");
  Files::Search search = nullptr;
  FoundEntry entry;
  ASSERT_TRUE(SystemFiles().FindFirst(directory, "*", search, entry).Done());
  ASSERT_EQ(0, rmdir(directory.c_str()));
  EXPECT_TRUE(SystemFiles().FindNext(search, entry).Done());
  for (int again = 0; again < 2; ++again) {
    const Outcome end = SystemFiles().FindNext(search, entry);
    EXPECT_EQ(Situation::kNoFile, end.situation);
    EXPECT_EQ(18u, end.number);
  }
  EXPECT_EQ(0u, SystemFiles().ExpectedEntries(search));
  SystemFiles().CloseSearch(search);
}

}  // namespace

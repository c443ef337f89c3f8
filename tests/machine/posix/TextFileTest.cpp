#include <plugins/machine/host/posix/TextFile.h>

#include <sys/stat.h>
#include <unistd.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tests/support/TemporaryFolder.h>

namespace {

using machine::host::IsThere;
using machine::host::NamesIn;
using machine::host::ReadFileText;
using machine::host::ReadLinkText;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(ReadFileText, GivesTheBytesUpToTheLimit) {
  const test_support::TemporaryFolder folder;
  const std::string bytes("a\0\xFF\n", 4);
  const std::string path = folder.Write("file", bytes);
  EXPECT_EQ(bytes, ReadFileText(path, 4));
  EXPECT_EQ(std::nullopt, ReadFileText(path, 3));
  EXPECT_EQ("", ReadFileText(folder.Write("empty", ""), 0));
}

TEST(ReadFileText, ReadsFilesThatSayTheyHaveNoSize) {
  EXPECT_NE("", ReadFileText("/proc/self/status", 65536));
}

TEST(ReadFileText, StopsAtTheLimitOfAFileWithoutEnd) {
  const test_support::TemporaryFolder folder;
  const std::string path = folder.Write("sparse", "");
  ASSERT_EQ(0, truncate(path.c_str(), off_t(1) << 40));
  EXPECT_EQ(std::nullopt, ReadFileText(path, 1 << 20));
}

TEST(ReadFileText, WhatIsNoOrdinaryFileIsNotRead) {
  const test_support::TemporaryFolder folder;
  const std::string pipe = folder.PathOf("pipe");
  ASSERT_EQ(0, mkfifo(pipe.c_str(), 0600));
  EXPECT_EQ(std::nullopt, ReadFileText(pipe, 10));
  EXPECT_EQ(std::nullopt, ReadFileText(folder.Path(), 10));
  EXPECT_EQ(std::nullopt, ReadFileText("/dev/zero", 10));
  EXPECT_EQ(std::nullopt, ReadFileText(folder.PathOf("nothing"), 10));
}

TEST(ReadLinkText, GivesWhatTheLinkSays) {
  const test_support::TemporaryFolder folder;
  const std::string link = folder.PathOf("link");
  ASSERT_EQ(0, symlink("../no/such place", link.c_str()));
  EXPECT_EQ("../no/such place", ReadLinkText(link));
  EXPECT_EQ(std::nullopt, ReadLinkText(folder.Path()));
  EXPECT_EQ(std::nullopt, ReadLinkText(folder.PathOf("nothing")));
}

TEST(NamesIn, AreSortedAndWithoutDots) {
  const test_support::TemporaryFolder folder;
  folder.Write("b", "");
  folder.Write("a\xFF", "");
  folder.Write(".hidden", "");
  EXPECT_THAT(NamesIn(folder.Path()), ElementsAre("a\xFF", "b"));
  EXPECT_THAT(NamesIn(folder.PathOf("nothing")), IsEmpty());
  EXPECT_THAT(NamesIn(folder.PathOf("b")), IsEmpty());
}

TEST(IsThere, FollowsLinks) {
  const test_support::TemporaryFolder folder;
  ASSERT_EQ(0, symlink("nothing", folder.PathOf("broken").c_str()));
  EXPECT_TRUE(IsThere(folder.Path()));
  EXPECT_FALSE(IsThere(folder.PathOf("broken")));
}

}  // namespace

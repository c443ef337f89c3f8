#include <plugins/machine/MountTable.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using machine::FindLocalMounts;
using machine::HasOption;
using machine::LocalMount;
using machine::Mount;
using machine::ParseMount;
using machine::WithoutOctalEscapes;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(ParseMount, ReadsAllFields) {
  const std::optional<Mount> mount = ParseMount(
      "36 35 98:7 /a\\040b /mnt\\011x rw,noatime master:1 propagate_from:2 - ext3 /dev/a\\134b "
      "ro,errors=continue");
  ASSERT_TRUE(mount.has_value());
  EXPECT_EQ(36u, mount->id);
  EXPECT_EQ(35u, mount->parent);
  EXPECT_EQ(98u, mount->majorNumber);
  EXPECT_EQ(7u, mount->minorNumber);
  EXPECT_EQ("/a b", mount->root);
  EXPECT_EQ("/mnt\tx", mount->point);
  EXPECT_EQ("rw,noatime", mount->options);
  EXPECT_EQ("ext3", mount->type);
  EXPECT_EQ("/dev/a\\b", mount->source);
  EXPECT_EQ("ro,errors=continue", mount->superOptions);
}

TEST(ParseMount, AnEmptySourceIsASource) {
  const std::optional<Mount> mount = ParseMount("1 2 0:3 / /x rw - tmpfs  rw");
  ASSERT_TRUE(mount.has_value());
  EXPECT_EQ("", mount->source);
}

TEST(ParseMount, KeepsBytesThatAreNoText) {
  EXPECT_EQ("/\xFF\xC3\x28", ParseMount("1 2 0:3 / /\xFF\\303\x28 rw - tmpfs a rw")->point);
}

TEST(ParseMount, AHyphenInAFieldIsNoSeparator) {
  EXPECT_EQ("/-", ParseMount("1 2 0:3 - /- rw - tmpfs - rw")->point);
}

class NoMount : public testing::TestWithParam<std::string> {};

TEST_P(NoMount, IsPassedOver) { EXPECT_EQ(std::nullopt, ParseMount(GetParam())); }

INSTANTIATE_TEST_SUITE_P(
    Lines, NoMount,
    testing::Values("", " ", "1", "1 2 8:1 / /x rw ext4 /dev/a rw", "1 2 8:1 / /x rw - ext4 /dev/a",
                    "1 2 8:1 / /x rw - ext4 /dev/a rw more", "x 2 8:1 / /x rw - ext4 /dev/a rw",
                    "1 x 8:1 / /x rw - ext4 /dev/a rw", "1 2 8 / /x rw - ext4 /dev/a rw",
                    "1 2 8:1:2 / /x rw - ext4 /dev/a rw", "1 2 8:x / /x rw - ext4 /dev/a rw",
                    "-1 2 8:1 / /x rw - ext4 /dev/a rw", "1 2 8:1 / x rw - ext4 /dev/a rw",
                    "1 2 8:1 /  rw - ext4 /dev/a rw", "4294967296 2 8:1 / /x rw - ext4 /dev/a rw",
                    "1 2 8:1 / /x\\000y rw - ext4 /dev/a rw"));

TEST(WithoutOctalEscapes, ReplacesWholeEscapesOnly) {
  EXPECT_EQ("a b", WithoutOctalEscapes("a\\040b"));
  EXPECT_EQ("\\040", WithoutOctalEscapes("\\134040"));
  EXPECT_EQ("\xFF", WithoutOctalEscapes("\\377"));
  EXPECT_EQ(std::string(1, '\0'), WithoutOctalEscapes("\\000"));
  for (const char* text : {"\\", "\\0", "\\04", "\\400", "\\08 ", "\\x41", "a\\"}) {
    EXPECT_EQ(text, WithoutOctalEscapes(text));
  }
}

TEST(HasOption, LooksForWholeWords) {
  EXPECT_TRUE(HasOption("rw,ro", "ro"));
  EXPECT_TRUE(HasOption("ro", "ro"));
  EXPECT_FALSE(HasOption("errors=remount-ro,rox,xro", "ro"));
  EXPECT_FALSE(HasOption("", "ro"));
}

// The mount points that count; with "?" behind those that are not to be asked.
std::vector<std::string> PointsOf(const std::string& table) {
  std::vector<std::string> points;
  for (const LocalMount& local : FindLocalMounts(table)) {
    points.push_back(local.mount.point + (local.mayBeAsked ? "" : "?"));
  }
  return points;
}

const char kRoot[] = "1 0 8:1 / / rw - ext4 /dev/sda1 rw\n";

TEST(FindLocalMounts, TakesBlockDevicesAndTheTypesThatHideTheirs) {
  EXPECT_THAT(PointsOf(std::string(kRoot) + "2 1 8:2 / /b rw - xfs /dev/sda2 rw\n"
                                            "3 1 0:33 / /c rw - btrfs /dev/sdb rw\n"
                                            "4 1 0:34 / /d rw - zfs pool/d rw\n"
                                            "5 1 7:0 / /e ro - squashfs /dev/loop0 ro\n"),
              ElementsAre("/", "/b", "/c", "/d", "/e"));
}

TEST(FindLocalMounts, LeavesOutServersProcessesAndWhatTheKernelMakesUp) {
  std::string table = kRoot;
  int id = 10;
  for (const char* type :
       {"nfs", "nfs4", "cifs", "smb3", "9p", "ceph", "afs", "lustre", "glusterfs", "autofs", "fuse",
        "fuse.sshfs", "virtiofs", "proc", "sysfs", "tmpfs", "devtmpfs", "cgroup2", "overlay"}) {
    const std::string number = std::to_string(++id);
    table += number + " 1 0:" + number + " / /m" + number + " rw - " + type + " source rw\n";
  }
  table += "50 1 8:5 / /ntfs rw - fuseblk /dev/sda5 rw\n51 1 8:6 / /o rw - ocfs2 /dev/sda6 rw\n";
  EXPECT_THAT(PointsOf(table), ElementsAre("/"));
}

TEST(FindLocalMounts, TakesAnOverlayThatSaysWhatItIsWrittenTo) {
  EXPECT_THAT(PointsOf("1 0 0:50 / / rw - overlay overlay rw,lowerdir=/l,upperdir=/u,workdir=/w\n"),
              ElementsAre("/"));
}

TEST(FindLocalMounts, WhatStandsBehindAServerIsNotAsked) {
  EXPECT_THAT(PointsOf(std::string(kRoot) + "2 1 0:40 / /net rw - nfs s:/x rw\n"
                                            "3 2 8:2 / /net/disk rw - ext4 /dev/sda2 rw\n"
                                            "4 1 0:41 / /run rw - tmpfs tmpfs rw\n"
                                            "5 4 8:3 / /run/disk rw - ext4 /dev/sda3 rw\n"
                                            "6 1 8:4 / /network rw - ext4 /dev/sda4 rw\n"),
              ElementsAre("/", "/net/disk?", "/run/disk", "/network"));
}

TEST(FindLocalMounts, AFileSystemOfUnknownKindOnTheWayIsNotTrusted) {
  EXPECT_THAT(PointsOf(std::string(kRoot) + "2 1 0:40 / /new rw - newfs x rw\n"
                                            "3 2 8:2 / /new/disk rw - ext4 /dev/sda2 rw\n"),
              ElementsAre("/", "/new/disk?"));
}

TEST(FindLocalMounts, WhatIsHiddenDoesNotCount) {
  // One upon another, and one below a folder that another covers.
  EXPECT_THAT(PointsOf(std::string(kRoot) + "2 1 8:2 / /b rw - ext4 /dev/sda2 rw\n"
                                            "3 2 8:3 / /b rw - ext4 /dev/sda3 rw\n"
                                            "4 1 8:4 / /c/d rw - ext4 /dev/sda4 rw\n"
                                            "5 1 8:5 / /c rw - ext4 /dev/sda5 rw\n"
                                            "6 1 8:6 / /e rw - ext4 /dev/sda6 rw\n"
                                            "7 6 0:40 / /e rw - nfs s:/x rw\n"),
              ElementsAre("/", "/b", "/c"));
  EXPECT_EQ(3u, FindLocalMounts(std::string(kRoot) + "2 1 8:2 / /b rw - ext4 /dev/sda2 rw\n"
                                                     "3 2 8:3 / /b rw - ext4 /dev/sda3 rw\n")[1]
                    .mount.id);
}

TEST(FindLocalMounts, ARootUponARootCounts) {
  EXPECT_THAT(PointsOf("1 1 0:2 / / rw - rootfs rootfs rw\n2 1 8:1 / / rw - ext4 /dev/sda1 rw\n"
                       "3 2 8:2 / /b rw - ext4 /dev/sda2 rw\n"),
              ElementsAre("/", "/b"));
}

TEST(FindLocalMounts, ATableWithoutARootIsThatOfAChangedRoot) {
  EXPECT_THAT(PointsOf("5 4 8:2 / /b rw - ext4 /dev/sda2 rw\n6 5 8:3 / /b/c rw - xfs /dev/b rw\n"),
              ElementsAre("/b", "/b/c"));
}

TEST(FindLocalMounts, AFileSystemAtSeveralPlacesCountsOnce) {
  EXPECT_THAT(PointsOf(std::string(kRoot) + "2 1 8:2 /sub /b rw - ext4 /dev/sda2 rw\n"
                                            "3 1 8:2 / /c rw - ext4 /dev/sda2 rw\n"
                                            "4 1 8:2 / /d rw - ext4 /dev/sda2 rw\n"
                                            "5 1 8:1 /etc /e rw - ext4 /dev/sda1 rw\n"
                                            "6 1 8:3 /x /f rw - ext4 /dev/sda3 rw\n"
                                            "7 1 8:3 /y /g rw - ext4 /dev/sda3 rw\n"),
              ElementsAre("/", "/c", "/f"));
}

TEST(FindLocalMounts, ReadOnlyIsWhatTheMountOrTheFileSystemSays) {
  const std::vector<LocalMount> found = FindLocalMounts(
      "1 0 8:1 / / rw - ext4 a rw\n2 1 8:2 / /b ro,nosuid - ext4 b rw\n"
      "3 1 8:3 / /c rw - iso9660 c ro,relatime\n");
  ASSERT_EQ(3u, found.size());
  EXPECT_FALSE(found[0].isReadOnly);
  EXPECT_TRUE(found[1].isReadOnly);
  EXPECT_TRUE(found[2].isReadOnly);
}

TEST(FindLocalMounts, OddNamesStayWhole) {
  EXPECT_THAT(PointsOf(std::string(kRoot) + "2 1 8:2 / /a\\040b\\012c\\134 rw - ext4 x rw\n"
                                            "3 1 8:3 / /\xFF rw - ext4 y rw\n"),
              ElementsAre("/", "/a b\nc\\", "/\xFF"));
}

TEST(FindLocalMounts, BadLinesArePassedOver) {
  EXPECT_THAT(PointsOf("\n\nx\n" + std::string(kRoot) + "2 1 8:2 / /b rw ext4\n"),
              ElementsAre("/"));
  EXPECT_THAT(PointsOf(""), IsEmpty());
}

TEST(FindLocalMounts, ParentsInACircleEnd) {
  // No mount has such a table; the walk must end all the same.
  FindLocalMounts(
      "1 2 8:1 / / rw - ext4 a rw\n2 1 8:2 / / rw - ext4 b rw\n"
      "3 4 8:3 / /c rw - ext4 c rw\n4 3 8:4 / /c rw - ext4 d rw\n"
      "5 5 8:5 / /e rw - ext4 e rw\n");
}

TEST(FindLocalMounts, ManyMountsTakeNoSquareOfTheirNumber) {
  // 20,000 in one folder, and 2,000 one in the other: a walk over all for each would take minutes.
  std::string table = kRoot;
  for (int number = 2; number < 20000; ++number) {
    const std::string text = std::to_string(number);
    table += text + " 1 8:" + text + " / /m" + text + " rw - ext4 /dev/x rw\n";
  }
  EXPECT_EQ(19999u, FindLocalMounts(table).size());
  table = kRoot;
  for (int number = 2; number < 2000; ++number) {
    const std::string text = std::to_string(number);
    table += text + " " + std::to_string(number - 1) + " 8:" + text + " / / rw - ext4 /dev/x rw\n";
  }
  EXPECT_THAT(PointsOf(table), ElementsAre("/"));
}

}  // namespace

// This very machine, against what findmnt, df and lsblk say.

#include <plugins/machine/host/FileSystems.h>

#include <algorithm>
#include <cmath>

#include <gtest/gtest.h>

#include <plugins/machine/FileSystemFacts.h>
#include <tests/machine/posix/HostPrograms.h>
#include <tests/support/TemporaryFolder.h>

namespace {

using machine::FileSystemFacts;
using machine::ReadFileSystemFacts;
using machine_test::JsonOf;
using machine_test::OutputOf;
using machine_test::Quoted;

TEST(TheseFileSystems, AreWhatFindmntTells) {
  SKIP_WITHOUT("findmnt");
  for (const FileSystemFacts& facts : ReadFileSystemFacts()) {
    // Of several at one place findmnt tells the one on top last.
    const nlohmann::json rows =
        JsonOf("findmnt -J -b -l -o TARGET,FSTYPE,OPTIONS,VFS-OPTIONS,FS-OPTIONS -M " +
               Quoted(facts.root))["filesystems"];
    ASSERT_FALSE(rows.empty()) << facts.root;
    const nlohmann::json& row = rows.back();
    EXPECT_EQ(row["fstype"], facts.fileSystemType);
    const std::string options = "," + row["vfs-options"].get<std::string>() + "," +
                                row["fs-options"].get<std::string>() + ",";
    EXPECT_EQ(options.find(",ro,") != std::string::npos, facts.readOnly) << facts.root;
  }
}

TEST(TheseFileSystems, HaveTheSizeThatDfTells) {
  for (const FileSystemFacts& facts : ReadFileSystemFacts()) {
    const std::string command = "df -B1 --output=size,avail " + Quoted(facts.root) + " | tail -n 1";
    unsigned long long size = 0;
    unsigned long long available = 0;
    if (!facts.fileSystemSize ||
        sscanf(OutputOf(command).c_str(), "%llu %llu", &size, &available) != 2) {
      continue;
    }
    EXPECT_EQ(size, facts.fileSystemSize) << facts.root;
    // Others write and delete meanwhile.
    ASSERT_TRUE(facts.availableSpace.has_value());
    EXPECT_NEAR(static_cast<double>(available), static_cast<double>(*facts.availableSpace),
                static_cast<double>(size) * 0.05)
        << facts.root;
  }
}

TEST(TheseFileSystems, LieOnTheDriveThatLsblkTells) {
  SKIP_WITHOUT("lsblk");
  SKIP_WITHOUT("findmnt");
  for (const FileSystemFacts& facts : ReadFileSystemFacts()) {
    if (facts.drive.empty()) {
      continue;
    }
    const std::string device = OutputOf("findmnt -n -o MAJ:MIN -M " + Quoted(facts.root));
    const std::string names = OutputOf("lsblk -n -l -o MAJ:MIN /dev/" + Quoted(facts.drive));
    EXPECT_NE(std::string::npos, names.find(device.substr(device.find_first_not_of(' '))))
        << facts.root << " on " << facts.drive;
  }
}

TEST(TheseFileSystems, HaveTheRootWhenItIsOnADrive) {
  SKIP_WITHOUT("findmnt");
  if (OutputOf("findmnt -n -o SOURCE -M /").rfind("/dev/", 0) != 0) {
    GTEST_SKIP() << "the root of this machine is on no device";
  }
  const std::vector<FileSystemFacts> found = ReadFileSystemFacts();
  EXPECT_TRUE(std::any_of(found.begin(), found.end(),
                          [](const FileSystemFacts& facts) { return facts.root == "/"; }));
}

TEST(ReadUsage, IsAbsentForAPathThatIsNotThere) {
  const test_support::TemporaryFolder folder;
  EXPECT_TRUE(machine::host::ReadUsage(folder.Path()).has_value());
  EXPECT_FALSE(machine::host::ReadUsage(folder.PathOf("nothing")).has_value());
}

TEST(ReadBlockDevicePath, IsAbsentForNumbersThatNoDeviceHas) {
  EXPECT_EQ(std::nullopt, machine::host::ReadBlockDevicePath(4000000000u, 7));
}

}  // namespace

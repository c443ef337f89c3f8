// This very machine, against what lsblk says; and folders laid out like /sys/block.

#include <plugins/machine/host/Disks.h>

#include <sys/stat.h>
#include <unistd.h>

#include <map>

#include <gtest/gtest.h>

#include <plugins/machine/DiskFacts.h>
#include <plugins/machine/HostText.h>
#include <plugins/machine/host/posix/SysBlock.h>
#include <tests/machine/posix/HostPrograms.h>
#include <tests/support/TemporaryFolder.h>

namespace {

using machine::DiskFacts;
using machine::DriveKind;
using machine::UnderstandDisks;
using machine::host::ReadDisks;
using machine::host::ReadDisksIn;
using machine_test::JsonOf;

std::map<std::string, nlohmann::json> FromLsblk() {
  std::map<std::string, nlohmann::json> told;
  const nlohmann::json all =
      JsonOf("lsblk -J -b -d -o NAME,SIZE,RO,RM,TYPE,LOG-SEC,MODEL,SERIAL,SUBSYSTEMS");
  for (const nlohmann::json& row : all["blockdevices"]) {
    told[row["name"]] = row;
  }
  return told;
}

// lsblk's blanks may stand for what udev made of them.
std::string Told(const nlohmann::json& row, const char* name) {
  return row[name].is_string() ? std::string(machine::Trimmed(row[name].get<std::string>())) : "";
}

TEST(TheseDisks, AreWhatLsblkTells) {
  SKIP_WITHOUT("lsblk");
  std::map<std::string, nlohmann::json> told = FromLsblk();
  for (const DiskFacts& facts : UnderstandDisks(ReadDisks())) {
    if (told.count(facts.deviceId) == 0) {
      // lsblk shows no drives without a medium.
      EXPECT_EQ(std::nullopt, facts.numberOfBlocks) << facts.deviceId;
      continue;
    }
    const nlohmann::json& row = told[facts.deviceId];
    EXPECT_EQ(row["type"] == "rom", facts.kind == DriveKind::kCdrom) << facts.deviceId;
    ASSERT_TRUE(facts.blockSize.has_value());
    EXPECT_EQ(row["log-sec"], *facts.blockSize);
    EXPECT_EQ(row["size"], facts.numberOfBlocks.value_or(0) * *facts.blockSize);
    EXPECT_EQ(row["ro"], facts.readOnly);
    EXPECT_EQ(row["rm"], facts.removable);
    // The name that ATA drives tell SCSI is cut to 16 characters.
    if (facts.model) {
      EXPECT_EQ(0u, Told(row, "model").find(*facts.model)) << row;
    } else {
      EXPECT_EQ("", Told(row, "model"));
    }
    if (facts.serialNumber && !Told(row, "serial").empty()) {
      EXPECT_EQ(Told(row, "serial"), facts.serialNumber);
    }
  }
}

TEST(TheseDisks, MissNoneThatHasADeviceForLsblk) {
  SKIP_WITHOUT("lsblk");
  std::map<std::string, DiskFacts> found;
  for (const DiskFacts& facts : UnderstandDisks(ReadDisks())) {
    found[facts.deviceId] = facts;
  }
  for (const auto& row : FromLsblk()) {
    const std::string subsystems =
        row.second["subsystems"].is_string() ? row.second["subsystems"].get<std::string>() : "";
    const bool hasDevice = subsystems.find(':') != std::string::npos;
    EXPECT_EQ(hasDevice, found.count(row.first) == 1) << row.second;
  }
}

TEST(ReadDisksIn, ReadsEachFile) {
  const test_support::TemporaryFolder folder;
  folder.Write("sda/size", "16\n");
  folder.Write("sda/queue/logical_block_size", "512\n");
  folder.Write("sda/queue/rotational", "0\n");
  folder.Write("sda/removable", "1\n");
  folder.Write("sda/ro", "1\n");
  folder.Write("sda/hidden", "0\n");
  folder.Write("sda/device/type", "0\n");
  folder.Write("sda/device/vendor", "MAKER   \n");
  folder.Write("sda/device/model", "MODEL\n");
  folder.Write("sda/device/rev", "1.0\n");
  folder.Write("sda/device/vpd_pg80", std::string("\0\x80\0\4 S1 ", 8));
  folder.Write("nvme0n1/device/serial", "S2\n");
  folder.Write("nvme0n1/device/firmware_rev", "2.0\n");
  folder.Write("vdb/serial", "S3");
  folder.MakeFolder("vdb/device");
  folder.Write("loop0/size", "16\n");
  const std::vector<DiskFacts> found = UnderstandDisks(ReadDisksIn(folder.Path()));
  ASSERT_EQ(3u, found.size());
  EXPECT_EQ("nvme0n1", found[0].deviceId);
  EXPECT_EQ("S2", found[0].serialNumber);
  EXPECT_EQ("2.0", found[0].version);
  EXPECT_EQ("sda", found[1].deviceId);
  EXPECT_EQ(16u, found[1].numberOfBlocks);
  EXPECT_EQ(512u, found[1].blockSize);
  EXPECT_EQ(3, found[1].diskType);
  EXPECT_EQ(true, found[1].removable);
  EXPECT_EQ(true, found[1].readOnly);
  EXPECT_EQ("MAKER", found[1].manufacturer);
  EXPECT_EQ("MODEL", found[1].model);
  EXPECT_EQ("1.0", found[1].version);
  EXPECT_EQ("S1", found[1].serialNumber);
  EXPECT_EQ("S3", found[2].serialNumber);
}

TEST(ReadDisksIn, OddFilesInTheirPlaceAreAbsentFacts) {
  const test_support::TemporaryFolder folder;
  folder.MakeFolder("s\xFF d a/device");
  folder.MakeFolder("s\xFF d a/size");
  ASSERT_EQ(0, mkfifo(folder.PathOf("s\xFF d a/ro").c_str(), 0600));
  const std::string large = folder.Write("s\xFF d a/device/model", "");
  ASSERT_EQ(0, truncate(large.c_str(), off_t(1) << 40));
  const std::vector<DiskFacts> found = UnderstandDisks(ReadDisksIn(folder.Path()));
  ASSERT_EQ(1u, found.size());
  EXPECT_EQ("s\xFF d a", found[0].deviceId);
  EXPECT_EQ(std::nullopt, found[0].numberOfBlocks);
  EXPECT_EQ(std::nullopt, found[0].readOnly);
  EXPECT_EQ(std::nullopt, found[0].model);
  EXPECT_TRUE(ReadDisksIn(folder.PathOf("nothing")).empty());
}

}  // namespace

#include <plugins/machine/FileSystemFacts.h>

#include <gtest/gtest.h>

namespace {

using machine::DriveIn;
using machine::FileSystemFacts;
using machine::LocalMount;
using machine::UnderstandMount;
using machine::UnderstandVolume;
using machine::host::FileSystemUsage;
using machine::host::VolumeReading;

LocalMount RootMount() {
  LocalMount local;
  local.mount.point = "/";
  local.mount.type = "ext4";
  return local;
}

TEST(UnderstandMount, ReadsAMount) {
  const FileSystemFacts facts =
      UnderstandMount(RootMount(), FileSystemUsage{4096, 1000, 250, 255},
                      std::string("../../devices/pci0000:00/0000:00:1f.2/ata1/host0/target0:0:0/"
                                  "0:0:0:0/block/sda/sda1"));
  EXPECT_EQ("/", facts.root);
  EXPECT_EQ("ext4", facts.fileSystemType);
  EXPECT_EQ(4096u, facts.blockSize);
  EXPECT_EQ(4096000u, facts.fileSystemSize);
  EXPECT_EQ(1024000u, facts.availableSpace);
  EXPECT_EQ(false, facts.readOnly);
  EXPECT_EQ(255u, facts.maxFileNameLength);
  EXPECT_EQ(2, facts.persistenceType);
  EXPECT_EQ("sda", facts.drive);
  EXPECT_EQ(std::nullopt, facts.caseSensitive);
  EXPECT_EQ(std::nullopt, facts.casePreserved);
}

TEST(UnderstandMount, WhatIsNotAskedHasNoSizes) {
  LocalMount local = RootMount();
  local.isReadOnly = true;
  const FileSystemFacts facts = UnderstandMount(local, std::nullopt, std::nullopt);
  EXPECT_EQ(std::nullopt, facts.blockSize);
  EXPECT_EQ(std::nullopt, facts.fileSystemSize);
  EXPECT_EQ(std::nullopt, facts.availableSpace);
  EXPECT_EQ(std::nullopt, facts.maxFileNameLength);
  EXPECT_EQ(true, facts.readOnly);
  EXPECT_EQ("", facts.drive);
}

TEST(UnderstandMount, SizesThatMakeNoSenseAreAbsent) {
  const FileSystemFacts none =
      UnderstandMount(RootMount(), FileSystemUsage{0, 0, 0, 0}, std::nullopt);
  EXPECT_EQ(std::nullopt, none.blockSize);
  EXPECT_EQ(std::nullopt, none.fileSystemSize);
  EXPECT_EQ(std::nullopt, none.maxFileNameLength);
  const FileSystemFacts huge =
      UnderstandMount(RootMount(), FileSystemUsage{4096, UINT64_MAX, 1, UINT64_MAX}, std::nullopt);
  EXPECT_EQ(std::nullopt, huge.fileSystemSize);
  EXPECT_EQ(4096u, huge.availableSpace);
  EXPECT_EQ(std::nullopt, huge.maxFileNameLength);
}

TEST(UnderstandMount, AFullFileSystemHasNoSpaceLeft) {
  EXPECT_EQ(
      0u, UnderstandMount(RootMount(), FileSystemUsage{1, 9, 0, 255}, std::nullopt).availableSpace);
}

TEST(UnderstandMount, HowLongAnOverlayLastsIsNotKnown) {
  LocalMount local = RootMount();
  local.mount.type = "overlay";
  EXPECT_EQ(std::nullopt, UnderstandMount(local, std::nullopt, std::nullopt).persistenceType);
}

TEST(DriveIn, IsTheFolderOfTheDrive) {
  const struct {
    const char* path;
    const char* drive;
  } rows[] = {{"../../devices/pci0/0000:00:04.0/virtio3/block/vda", "vda"},
              {"../../devices/pci0/block/sda/sda1", "sda"},
              {"../../devices/pci0/nvme/nvme0/nvme0n1/nvme0n1p2", ""},
              {"../../devices/pci0/nvme/nvme0/block/nvme0n1/nvme0n1p2", "nvme0n1"},
              {"../../devices/virtual/block/dm-0", ""},
              {"../../devices/virtual/block/loop0/loop0p1", ""},
              {"/block/", ""},
              {"block", ""},
              {"", ""}};
  for (const auto& row : rows) {
    EXPECT_EQ(row.drive, DriveIn(row.path)) << row.path;
  }
}

TEST(UnderstandVolume, ReadsAVolume) {
  VolumeReading volume;
  volume.root = "C:\\";
  volume.fileSystem = "NTFS";
  volume.flags = 0x00000006;
  volume.mostNameUnits = 255;
  volume.clusterBytes = 4096;
  volume.bytes = 1000000;
  volume.availableBytes = 0;
  volume.driveNumber = 1;
  const FileSystemFacts facts = UnderstandVolume(volume);
  EXPECT_EQ("C:\\", facts.root);
  EXPECT_EQ("NTFS", facts.fileSystemType);
  EXPECT_EQ(false, facts.caseSensitive);
  EXPECT_EQ(true, facts.casePreserved);
  EXPECT_EQ(false, facts.readOnly);
  EXPECT_EQ(4096u, facts.blockSize);
  EXPECT_EQ(1000000u, facts.fileSystemSize);
  EXPECT_EQ(0u, facts.availableSpace);
  EXPECT_EQ(255u, facts.maxFileNameLength);
  EXPECT_EQ(std::nullopt, facts.persistenceType);
  EXPECT_EQ("PhysicalDrive1", facts.drive);
  volume.flags = 0x00080001;
  EXPECT_EQ(true, UnderstandVolume(volume).readOnly);
  EXPECT_EQ(true, UnderstandVolume(volume).caseSensitive);
  EXPECT_EQ(false, UnderstandVolume(volume).casePreserved);
}

TEST(UnderstandVolume, WhatCouldNotBeReadIsAbsent) {
  VolumeReading volume;
  volume.root = "D:\\";
  volume.clusterBytes = 0;
  const FileSystemFacts facts = UnderstandVolume(volume);
  EXPECT_EQ(std::nullopt, facts.fileSystemType);
  EXPECT_EQ(std::nullopt, facts.readOnly);
  EXPECT_EQ(std::nullopt, facts.caseSensitive);
  EXPECT_EQ(std::nullopt, facts.blockSize);
  EXPECT_EQ("", facts.drive);
}

}  // namespace

#include <plugins/machine/FileSystemFacts.h>

#include <cstddef>

#include <plugins/machine/HostText.h>

namespace machine {

namespace {

const std::uint16_t kPersistent = 2;  // CIM_FileSystem.PersistenceType

// GetVolumeInformationW's flags.
const std::uint32_t kCaseSensitiveSearch = 0x00000001;
const std::uint32_t kCasePreservedNames = 0x00000002;
const std::uint32_t kReadOnlyVolume = 0x00080000;

// Nothing takes longer names; a larger number is no length.
const std::uint64_t kLongestName = 65535;

void UnderstandUsage(const host::FileSystemUsage& usage, FileSystemFacts* facts) {
  // File systems that have no blocks to count say 0.
  if (usage.blockSize == 0 || usage.blocks == 0) {
    return;
  }
  facts->blockSize = usage.blockSize;
  facts->fileSystemSize = Product(usage.blocks, usage.blockSize);
  facts->availableSpace = Product(usage.availableBlocks, usage.blockSize);
}

std::vector<FileSystemFacts> ReadMounts(const std::string& table) {
  std::vector<FileSystemFacts> found;
  for (const LocalMount& local : FindLocalMounts(table)) {
    const Mount& mount = local.mount;
    found.push_back(UnderstandMount(
        local, local.mayBeAsked ? host::ReadUsage(mount.point) : std::nullopt,
        mount.majorNumber != 0 ? host::ReadBlockDevicePath(mount.majorNumber, mount.minorNumber)
                               : std::nullopt));
  }
  return found;
}

}  // namespace

std::string DriveIn(std::string_view devicePath) {
  const std::string_view mark = "/block/";
  const std::size_t at = devicePath.rfind(mark);
  if (at == std::string_view::npos ||
      devicePath.find("/devices/virtual/") != std::string_view::npos) {
    return "";
  }
  const std::string_view name = devicePath.substr(at + mark.size());
  return std::string(name.substr(0, name.find('/')));
}

FileSystemFacts UnderstandMount(const LocalMount& mount,
                                const std::optional<host::FileSystemUsage>& usage,
                                const std::optional<std::string>& devicePath) {
  FileSystemFacts facts;
  facts.root = mount.mount.point;
  facts.fileSystemType = mount.mount.type;
  facts.readOnly = mount.isReadOnly;
  // An overlay is as lasting as what it lies on, which is not told.
  if (mount.mount.type != "overlay") {
    facts.persistenceType = kPersistent;
  }
  if (usage) {
    UnderstandUsage(*usage, &facts);
    if (usage->mostNameBytes != 0 && usage->mostNameBytes <= kLongestName) {
      facts.maxFileNameLength = static_cast<std::uint32_t>(usage->mostNameBytes);
    }
  }
  if (devicePath) {
    facts.drive = DriveIn(*devicePath);
  }
  return facts;
}

FileSystemFacts UnderstandVolume(const host::VolumeReading& volume) {
  FileSystemFacts facts;
  facts.root = volume.root;
  facts.fileSystemType = NameIn(volume.fileSystem);
  facts.blockSize = volume.clusterBytes;
  if (facts.blockSize == 0u) {
    facts.blockSize.reset();
  }
  facts.fileSystemSize = volume.bytes;
  facts.availableSpace = volume.availableBytes;
  if (volume.fileSystem) {
    facts.readOnly = (volume.flags & kReadOnlyVolume) != 0;
    facts.caseSensitive = (volume.flags & kCaseSensitiveSearch) != 0;
    facts.casePreserved = (volume.flags & kCasePreservedNames) != 0;
    if (volume.mostNameUnits != 0) {
      facts.maxFileNameLength = volume.mostNameUnits;
    }
  }
  if (volume.driveNumber) {
    facts.drive = "PhysicalDrive" + std::to_string(*volume.driveNumber);
  }
  return facts;
}

std::vector<FileSystemFacts> ReadFileSystemFacts() {
  if (const std::optional<std::string> table = host::ReadMountTable()) {
    return ReadMounts(*table);
  }
  std::vector<FileSystemFacts> found;
  for (const host::VolumeReading& volume : host::ReadVolumes()) {
    found.push_back(UnderstandVolume(volume));
  }
  return found;
}

}  // namespace machine

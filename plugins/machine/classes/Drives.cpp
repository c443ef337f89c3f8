// Drives as the operating system sees them: the drive that a medium is put into or built into
// (CIM_MediaAccessDevice), the medium as an extent of blocks (CIM_StorageExtent), and the thing
// that can be touched, with its maker's texts (CIM_PhysicalPackage).

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include <plugins/machine/HostText.h>
#include <plugins/machine/classes/BaseClasses.h>
#include <plugins/machine/classes/Families.h>

namespace machine {

namespace {

const PropertyRow kMediaAccessDeviceProperties[] = {
    {"Capabilities", ArrayOf(kUint16)}, {"MaxMediaSize", kUint64}, {"DefaultBlockSize", kUint64}};
const ClassRow kMediaAccessDevice("CIM_MediaAccessDevice", &kLogicalDevice,
                                  kMediaAccessDeviceProperties);
const PropertyRow kDiskDriveProperties[] = {{"DiskType", kUint16}};
const ClassRow kDiskDrive("CIM_DiskDrive", &kMediaAccessDevice, kDiskDriveProperties);
const ClassRow kCdromDrive("CIM_CDROMDrive", &kMediaAccessDevice);
const ClassRow kDisketteDrive("CIM_DisketteDrive", &kMediaAccessDevice);

const AssociationRow kMediaPresent = {
    "CIM_MediaPresent", {"Antecedent", &kMediaAccessDevice}, {"Dependent", &kStorageExtent}};

// CIM_MediaAccessDevice.Capabilities.
const std::uint16_t kRandomAccess = 3;
const std::uint16_t kSupportsWriting = 4;
const std::uint16_t kRemovableMedia = 7;

// CIM_PhysicalPackage.PackageType: Storage Media Package.
const std::uint16_t kStoragePackage = 15;

// CIM_MediaAccessDevice.MaxMediaSize counts thousands of bytes, by its description.
const std::uint64_t kBytesPerUnit = 1000;

const ClassRow& RowOf(DriveKind kind) {
  switch (kind) {
    case DriveKind::kDisk:
      return kDiskDrive;
    case DriveKind::kCdrom:
      return kCdromDrive;
    case DriveKind::kDiskette:
      return kDisketteDrive;
    case DriveKind::kOther:
      break;
  }
  return kMediaAccessDevice;
}

std::vector<std::uint16_t> CapabilitiesOf(const DiskFacts& disk) {
  std::vector<std::uint16_t> numbers;
  if (disk.kind != DriveKind::kOther) {
    numbers.push_back(kRandomAccess);
  }
  if (disk.kind == DriveKind::kDisk && disk.readOnly == false) {
    numbers.push_back(kSupportsWriting);
  }
  if (disk.removable == true) {
    numbers.push_back(kRemovableMedia);
  }
  return numbers;
}

// Of a drive whose medium can be changed, how large that may be is not known.
std::optional<std::uint64_t> MaxMediaSize(const DiskFacts& disk) {
  const std::optional<std::uint64_t> bytes = Product(disk.numberOfBlocks, disk.blockSize);
  return bytes && disk.kind == DriveKind::kDisk && disk.removable == false
             ? std::optional<std::uint64_t>(*bytes / kBytesPerUnit)
             : std::nullopt;
}

Object AddDrive(NamespaceBuilder& builder, const MachineFacts& facts, const DiskFacts& disk) {
  NewObject drive = CreateDevice(builder, RowOf(disk.kind), facts, disk.deviceId);
  drive.Set("ElementName", disk.model ? *disk.model : disk.deviceId)
      .Array("Capabilities", kUint16, CapabilitiesOf(disk))
      .Set("MaxMediaSize", MaxMediaSize(disk))
      .Set("DefaultBlockSize", disk.blockSize);
  if (disk.kind == DriveKind::kDisk) {
    drive.Set("DiskType", disk.diskType);
  }
  return PublishDevice(builder, drive);
}

Object AddExtent(NamespaceBuilder& builder, const MachineFacts& facts, const DiskFacts& disk) {
  NewObject extent = CreateDevice(builder, kStorageExtent, facts, disk.deviceId);
  extent.Set("ElementName", disk.deviceId)
      .Set("BlockSize", disk.blockSize)
      .Set("NumberOfBlocks", disk.numberOfBlocks);
  return PublishDevice(builder, extent);
}

// Nothing for a drive that tells no maker's text: most are virtual, with nothing to touch.
void AddPackage(NamespaceBuilder& builder, const DiskFacts& disk, const Object& drive) {
  if (!disk.manufacturer && !disk.model && !disk.serialNumber) {
    return;
  }
  const Object package = CreatePhysical(builder, kPhysicalPackage, "Drive " + disk.deviceId)
                             .Set("ElementName", disk.model)
                             .Set("Manufacturer", disk.manufacturer)
                             .Set("Model", disk.model)
                             .Set("SerialNumber", disk.serialNumber)
                             .Set("Version", disk.version)
                             .Set("PackageType", kStoragePackage)
                             .Publish();
  builder.Associate(kRealizes, package, drive);
}

}  // namespace

void AddDrives(NamespaceBuilder& builder, const MachineFacts& facts) {
  for (const ClassRow* row :
       {&kDiskDrive, &kCdromDrive, &kDisketteDrive, &kStorageExtent, &kPhysicalPackage}) {
    builder.Declare(*row);
  }
  builder.Declare(kMediaPresent);
  builder.Declare(kRealizes);
  std::uint32_t number = 0;
  for (const DiskFacts& disk : facts.host.disks) {
    const Object drive = AddDrive(builder, facts, disk);
    if (disk.numberOfBlocks) {
      const Object extent = AddExtent(builder, facts, disk);
      builder.Associate(kMediaPresent, drive, extent);
      builder.Keep(kExtentRole, number, extent);
    }
    AddPackage(builder, disk, drive);
    ++number;
  }
}

}  // namespace machine

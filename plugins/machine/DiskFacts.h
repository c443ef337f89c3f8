// What is known about the drives. Pure; property names are those of CIM_DiskDrive,
// CIM_StorageExtent and CIM_PhysicalPackage (DMTF CIM Schema 2.49).

#ifndef PLUGINS_MACHINE_DISKFACTS_H
#define PLUGINS_MACHINE_DISKFACTS_H

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <plugins/machine/host/Disks.h>

namespace machine {

enum class DriveKind { kDisk, kCdrom, kDiskette, kOther };

// A fact that could not be read is absent. Texts are without the blanks that pad them.
struct DiskFacts {
  std::string deviceId;  // "sda", "PhysicalDrive0"
  DriveKind kind = DriveKind::kDisk;
  std::optional<std::string> manufacturer;
  std::optional<std::string> model;
  std::optional<std::string> serialNumber;
  std::optional<std::string> version;           // of the firmware
  std::optional<std::uint64_t> blockSize;       // bytes
  std::optional<std::uint64_t> numberOfBlocks;  // of the medium in the drive
  std::optional<bool> removable;
  std::optional<bool> readOnly;
  // CIM_DiskDrive.DiskType; absent when it is not known to be a solid state drive: that a
  // kernel calls a drive rotational is what it says of any that does not tell.
  std::optional<std::uint16_t> diskType;
};

// Drives that another entry stands for are left out, and so are those without a name.
std::vector<DiskFacts> UnderstandDisks(const std::vector<host::DiskReading>& readings);

// The serial number of a SCSI "Unit Serial Number" page (SPC-4, 7.8.15): page 80h, its length,
// ASCII. Absent when `page` is no such page, is cut short, or holds blanks only.
std::optional<std::string> SerialNumberIn(std::string_view page);

// The texts of a STORAGE_DEVICE_DESCRIPTOR of Windows: offsets, from its start, of texts that
// end in NUL. A text that lies outside `bytes`, or does not end, is absent.
void UnderstandDescriptor(std::string_view bytes, DiskFacts* facts);

}  // namespace machine

#endif

// The seam to the host: what it says about its drives, raw. Nothing here throws anything but
// std::bad_alloc, logs or decides.

#ifndef PLUGINS_MACHINE_HOST_DISKS_H
#define PLUGINS_MACHINE_HOST_DISKS_H

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace machine {
namespace host {

// One drive. What could not be read, or what this kind of host does not have, is absent.
struct DiskReading {
  std::string name;  // "sda", "PhysicalDrive0"

  // Linux: the text of these files of /sys/block/NAME.
  std::optional<std::string> size;              // in units of 512 bytes, whatever the drive has
  std::optional<std::string> logicalBlockSize;  // queue/logical_block_size, in bytes
  std::optional<std::string> removable;
  std::optional<std::string> readOnly;    // ro
  std::optional<std::string> rotational;  // queue/rotational
  std::optional<std::string> hidden;      // one path of several to a drive that has its own entry
  std::optional<std::string> deviceType;  // device/type: SCSI's peripheral device type
  std::optional<std::string> vendor;      // device/vendor
  std::optional<std::string> model;       // device/model
  std::optional<std::string> revision;    // device/rev or device/firmware_rev
  std::optional<std::string> serial;      // device/serial, or serial of a virtual drive
  std::optional<std::string> serialPage;  // device/vpd_pg80, bytes

  // Windows: size and sector size in bytes, and the STORAGE_DEVICE_DESCRIPTOR.
  std::optional<std::uint64_t> bytes;
  std::optional<std::uint32_t> sectorBytes;
  std::optional<std::string> descriptor;
};

// Drives that have a device of their own, not what is made of others or of memory. No drive is
// read from or woken.
std::vector<DiskReading> ReadDisks();

}  // namespace host
}  // namespace machine

#endif

// The seam to the host: what it says about file systems, raw. Nothing here throws anything but
// std::bad_alloc, logs or decides.

#ifndef PLUGINS_MACHINE_HOST_FILESYSTEMS_H
#define PLUGINS_MACHINE_HOST_FILESYSTEMS_H

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace machine {
namespace host {

// Linux: the text of /proc/self/mountinfo (proc(5)). Reading it asks no file system. Absent on
// other hosts.
std::optional<std::string> ReadMountTable();

// Linux: how full the file system mounted at `path` is. Asks it, and every file system on the
// way to it: a server that does not answer blocks the caller for as long as it likes.
struct FileSystemUsage {
  std::uint64_t blockSize;  // bytes; the unit of the next two
  std::uint64_t blocks;
  std::uint64_t availableBlocks;  // to an ordinary user
  std::uint64_t mostNameBytes;
};
std::optional<FileSystemUsage> ReadUsage(const std::string& path);

// Linux: where the block device of these numbers stands in /sys ("../../devices/.../block/sda/
// sda1"). Asks no device.
std::optional<std::string> ReadBlockDevicePath(std::uint32_t majorNumber,
                                               std::uint32_t minorNumber);

// Windows: a drive letter of this machine, with a medium in it. Drives that are on the network
// are not asked. What could not be read is absent.
struct VolumeReading {
  std::string root;  // "C:\"
  std::optional<std::string> fileSystem;
  std::uint32_t flags = 0;  // FILE_..., as GetVolumeInformation has them
  std::uint32_t mostNameUnits = 0;
  std::optional<std::uint64_t> clusterBytes;
  std::optional<std::uint64_t> bytes;
  std::optional<std::uint64_t> availableBytes;
  std::optional<std::uint32_t> driveNumber;  // N of PhysicalDriveN, when it lies on one only
};

// Empty on other hosts.
std::vector<VolumeReading> ReadVolumes();

}  // namespace host
}  // namespace machine

#endif

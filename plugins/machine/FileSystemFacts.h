// What is known about the local file systems. Property names are those of CIM_LocalFileSystem
// (DMTF CIM Schema 2.49).

#ifndef PLUGINS_MACHINE_FILESYSTEMFACTS_H
#define PLUGINS_MACHINE_FILESYSTEMFACTS_H

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <plugins/machine/MountTable.h>
#include <plugins/machine/host/FileSystems.h>

namespace machine {

// A fact that could not be read is absent.
struct FileSystemFacts {
  std::string root;  // the mount point, or "C:\"; what tells one from another
  std::optional<std::string> fileSystemType;
  std::optional<std::uint64_t> blockSize;       // bytes
  std::optional<std::uint64_t> fileSystemSize;  // bytes
  std::optional<std::uint64_t> availableSpace;  // bytes, to an ordinary user
  std::optional<bool> readOnly;
  std::optional<bool> caseSensitive;
  std::optional<bool> casePreserved;
  std::optional<std::uint32_t> maxFileNameLength;
  std::optional<std::uint16_t> persistenceType;
  std::string drive;  // the drive that it lies on ("sda"); empty when it is not known, or not one
};

// Reads them. No file system that could block is asked (see FindLocalMounts); one that is local
// but stands behind such a one has no sizes.
std::vector<FileSystemFacts> ReadFileSystemFacts();

// Pure. `usage` is absent when it is not asked; `devicePath` is ReadBlockDevicePath's.
FileSystemFacts UnderstandMount(const LocalMount& mount,
                                const std::optional<host::FileSystemUsage>& usage,
                                const std::optional<std::string>& devicePath);

// Pure.
FileSystemFacts UnderstandVolume(const host::VolumeReading& volume);

// The drive of a device path of /sys: "sda" for ".../block/sda/sda1" and ".../block/sda". Empty
// when it is no drive with a device of its own, such as ".../virtual/block/dm-0".
std::string DriveIn(std::string_view devicePath);

}  // namespace machine

#endif

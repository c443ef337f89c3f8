#include <plugins/machine/host/FileSystems.h>

#include <sys/statvfs.h>

#include <plugins/machine/host/posix/TextFile.h>

namespace machine {
namespace host {

namespace {

// Kernels limit a namespace to 100,000 mounts, of some 200 bytes each.
const std::size_t kMostBytes = 64 * 1024 * 1024;

}  // namespace

std::optional<std::string> ReadMountTable() {
  return ReadFileText("/proc/self/mountinfo", kMostBytes);
}

std::optional<FileSystemUsage> ReadUsage(const std::string& path) {
  struct statvfs facts;
  if (statvfs(path.c_str(), &facts) != 0) {
    return std::nullopt;
  }
  return FileSystemUsage{facts.f_frsize, facts.f_blocks, facts.f_bavail, facts.f_namemax};
}

std::optional<std::string> ReadBlockDevicePath(std::uint32_t majorNumber,
                                               std::uint32_t minorNumber) {
  return ReadLinkText("/sys/dev/block/" + std::to_string(majorNumber) + ":" +
                      std::to_string(minorNumber));
}

std::vector<VolumeReading> ReadVolumes() { return {}; }

}  // namespace host
}  // namespace machine

// The seam to the host: memory, limits and the time of the last boot, raw. Nothing here throws
// anything but std::bad_alloc, logs or decides.

#ifndef PLUGINS_MACHINE_HOST_RESOURCES_H
#define PLUGINS_MACHINE_HOST_RESOURCES_H

#include <cstdint>
#include <optional>
#include <string>

namespace machine {
namespace host {

// What could not be read, or what this kind of host does not have, is absent.
struct ResourceReading {
  // Linux: the text of these files of /proc (proc(5)).
  std::optional<std::string> memoryText;       // meminfo
  std::optional<std::string> mostThreadsText;  // sys/kernel/threads-max
  std::optional<std::string> endOfPidsText;    // sys/kernel/pid_max
  // Windows, in bytes: physical memory, the limit of what may be committed, and the size of a
  // process's address space, as GlobalMemoryStatusEx tells them.
  std::optional<std::uint64_t> physicalBytes;
  std::optional<std::uint64_t> commitBytes;
  std::optional<std::uint64_t> processBytes;
  // When the system was started, in microseconds since the start of 1970, UTC.
  std::optional<std::int64_t> bootMicroseconds;
};

ResourceReading ReadResources();

}  // namespace host
}  // namespace machine

#endif

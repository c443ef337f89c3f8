// What is known about memory, limits and the last boot: the properties of CIM_OperatingSystem
// (DMTF CIM Schema 2.49) that stay the same while the system runs. Pure.

#ifndef PLUGINS_MACHINE_RESOURCEFACTS_H
#define PLUGINS_MACHINE_RESOURCEFACTS_H

#include <cstdint>
#include <optional>
#include <string_view>

#include <plugins/machine/host/Resources.h>

namespace machine {

// A fact that could not be read is absent. Sizes are in KiB, DMTF's "KiloBytes".
struct ResourceFacts {
  std::optional<std::uint64_t> totalVisibleMemorySize;
  std::optional<std::uint64_t> totalVirtualMemorySize;
  std::optional<std::uint64_t> sizeStoredInPagingFiles;
  std::optional<std::uint64_t> maxProcessMemorySize;
  std::optional<std::uint32_t> maxNumberOfProcesses;
  // In whole seconds since the start of 1970, UTC.
  std::optional<std::int64_t> lastBootSeconds;
};

// Linux: MemTotal of meminfo, and SwapTotal as the size of the paging files: the kernel swaps
// pages, never whole processes, so CIM_OperatingSystem.TotalSwapSpaceSize has nothing to tell
// apart. Virtual memory is the sum of both, as the property's description has it. Each process
// takes a process number below pid_max, and a share of threads-max.
//
// Windows: the three sizes as the host tells them; the others are absent.
ResourceFacts UnderstandResources(const host::ResourceReading& reading);

// The number of KiB on the line "NAME:  NUMBER kB" of a /proc/meminfo text; of several the
// first. Absent when there is none.
std::optional<std::uint64_t> FindInMemoryText(std::string_view text, std::string_view name);

}  // namespace machine

#endif

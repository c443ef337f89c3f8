// The seam to the host: what the operating system says about the processors it runs on, raw.
// Nothing here throws anything but std::bad_alloc, logs or decides.

#ifndef PLUGINS_MACHINE_HOST_PROCESSORS_H
#define PLUGINS_MACHINE_HOST_PROCESSORS_H

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace machine {
namespace host {

// Windows: one processor, that is one socket. What could not be read is absent.
struct PackageReading {
  std::optional<std::string> name;         // "ProcessorNameString" of the registry
  std::optional<std::string> identifier;   // "Identifier": "Intel64 Family 6 Model 85 Stepping 4"
  std::optional<std::uint32_t> megahertz;  // "~MHz"
  std::uint32_t cores;
  std::uint32_t threads;
};

// What could not be read, or what this kind of host does not have, is absent.
struct ProcessorReading {
  // Linux: the text of /proc/cpuinfo, and of cpufreq/cpuinfo_max_freq (in kHz) of each logical
  // processor of it that has one: `maxKilohertzTexts[N]` is that of the processor number N.
  std::optional<std::string> cpuInfoText;
  std::vector<std::optional<std::string> > maxKilohertzTexts;
  std::vector<PackageReading> packages;
};

// Dear on a machine of many processors: the kernel makes some 1.5 KB of text for each.
ProcessorReading ReadProcessors();

}  // namespace host
}  // namespace machine

#endif

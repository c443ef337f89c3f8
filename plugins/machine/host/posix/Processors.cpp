#include <plugins/machine/host/Processors.h>

#include <plugins/machine/host/posix/TextFile.h>

namespace machine {
namespace host {

namespace {

// Some 1.5 KB for each logical processor, and room for more of them than kernels run on.
const std::size_t kMostCpuInfo = 16 * 1024 * 1024;

const std::size_t kMostProcessors = 65536;

}  // namespace

ProcessorReading ReadProcessors() {
  ProcessorReading reading;
  reading.cpuInfoText = ReadFileText("/proc/cpuinfo", kMostCpuInfo);
  // Machines that have no cpufreq have it for no processor.
  while (reading.maxKilohertzTexts.size() < kMostProcessors) {
    const std::string number = std::to_string(reading.maxKilohertzTexts.size());
    const std::optional<std::string> text =
        ReadSysText("/sys/devices/system/cpu/cpu" + number, "cpufreq/cpuinfo_max_freq");
    if (!text) {
      break;
    }
    reading.maxKilohertzTexts.push_back(text);
  }
  return reading;
}

}  // namespace host
}  // namespace machine

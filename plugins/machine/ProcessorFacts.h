// What the operating system knows about the processors. Of use where the firmware's table has
// none. Pure; property names are those of CIM_Processor (DMTF CIM Schema 2.49).

#ifndef PLUGINS_MACHINE_PROCESSORFACTS_H
#define PLUGINS_MACHINE_PROCESSORFACTS_H

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <plugins/machine/host/Processors.h>

namespace machine {

// A fact that could not be read is absent.
struct ProcessorFacts {
  std::string deviceId;  // "CPU0"; the number is the socket's, as the system counts
  std::optional<std::string> name;
  std::optional<std::string> stepping;
  std::optional<std::uint32_t> maxClockSpeed;      // MHz
  std::optional<std::uint32_t> currentClockSpeed;  // MHz; when the facts were read
  // Of the registers and addresses that the processor can work with, in bits.
  std::optional<std::uint16_t> dataWidth;
  std::optional<std::uint16_t> addressWidth;
  // Numbers of the value map of CIM_Processor.Characteristics, ascending; empty when unknown.
  std::vector<std::uint16_t> characteristics;
  std::optional<std::uint16_t> cores;    // that the system runs on
  std::optional<std::uint16_t> threads;  // logical processors, likewise
};

// One entry a socket ("physical id"), in the order of the first logical processor of each. A
// text of a machine that does not number its sockets has one for each logical processor.
std::vector<ProcessorFacts> UnderstandProcessors(const host::ProcessorReading& reading);

// The Linux half: `text` is that of /proc/cpuinfo on x86, `maxKilohertzTexts` as in the reading.
std::vector<ProcessorFacts> UnderstandCpuInfo(
    std::string_view text, const std::vector<std::optional<std::string> >& maxKilohertzTexts);

// The whole number of MHz nearest to a text such as "2499.998"; absent when it is no such
// number, or above the range.
std::optional<std::uint32_t> RoundedMegahertz(std::string_view text);

}  // namespace machine

#endif

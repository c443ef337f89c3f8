// What is known about the operating system: the meaning of what the host says. Pure; the same
// on every platform, so that a reading of one system can be understood on another.

#ifndef PLUGINS_MACHINE_OPERATINGSYSTEMFACTS_H
#define PLUGINS_MACHINE_OPERATINGSYSTEMFACTS_H

#include <cstdint>
#include <optional>
#include <string>

#include <plugins/machine/host/OperatingSystem.h>

namespace machine {

// A fact that could not be read is absent; none is ever guessed.
struct OperatingSystemFacts {
  std::optional<std::string> hostName;
  std::optional<std::string> name;     // "Debian GNU/Linux", "Windows 10 Pro"
  std::optional<std::string> version;  // "12", "10.0.19045"
  // A number of the value map of CIM_OperatingSystem.OSType (DMTF CIM Schema 2.49).
  std::optional<std::uint16_t> type;
};

// Linux: NAME of os-release, or else the kernel's name; VERSION_ID of os-release, which a
// distribution without versions does not have; type 36.
//
// Windows: the product name, in which "Windows 10" reads "Windows 11" from build 22000 of a
// client on, because the registry still has the old name there; major, minor and build number;
// the type by version, 64-bit, and 18 (WINNT) for versions that the map has no number for.
OperatingSystemFacts UnderstandReading(const host::Reading& reading);

}  // namespace machine

#endif

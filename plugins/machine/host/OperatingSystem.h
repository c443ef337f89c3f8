// The seam to the host: what it says about itself, raw. Nothing here throws anything but
// std::bad_alloc, logs or decides; what a reading means is settled above.

#ifndef PLUGINS_MACHINE_HOST_OPERATINGSYSTEM_H
#define PLUGINS_MACHINE_HOST_OPERATINGSYSTEM_H

#include <optional>
#include <string>

namespace machine {
namespace host {

struct WindowsVersion {
  unsigned long majorNumber;
  unsigned long minorNumber;
  unsigned long buildNumber;
  bool isServer;
};

// What could not be read, or what this kind of host does not have, is absent. The texts are as
// the host gives them, on Windows in UTF-8.
struct Reading {
  std::optional<std::string> hostName;
  // Linux: what uname calls the kernel ("Linux"), and the text of os-release(5).
  std::optional<std::string> kernelName;
  std::optional<std::string> releaseText;
  // Windows: the product name in the registry, and the version of the running system.
  std::optional<std::string> productName;
  std::optional<WindowsVersion> windowsVersion;
};

Reading ReadOperatingSystem();

// An environment variable's text; empty when it is not set.
std::string ReadVariable(const char* name);

}  // namespace host
}  // namespace machine

#endif

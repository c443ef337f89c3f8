#include <plugins/machine/host/OperatingSystem.h>

#include <stdlib.h>
#include <sys/utsname.h>
#include <unistd.h>

#include <plugins/machine/host/posix/TextFile.h>

namespace machine {
namespace host {

namespace {

// Far more than any distribution writes; what is larger is not an os-release file.
const std::size_t kMostBytes = 65536;

// os-release(5): the second is read when the first is not there.
std::optional<std::string> ReadReleaseText() {
  std::optional<std::string> text = ReadFileText("/etc/os-release", kMostBytes);
  return text ? text : ReadFileText("/usr/lib/os-release", kMostBytes);
}

std::optional<std::string> ReadHostName() {
  // The byte more than the call is told of stays 0: a name that is cut has no NUL of its own.
  char name[257] = {};
  if (gethostname(name, sizeof name - 1) != 0) {
    return std::nullopt;
  }
  return std::string(name);
}

}  // namespace

Reading ReadOperatingSystem() {
  Reading reading;
  reading.hostName = ReadHostName();
  struct utsname kernel;
  if (uname(&kernel) == 0) {
    reading.kernelName = kernel.sysname;
  }
  reading.releaseText = ReadReleaseText();
  return reading;
}

std::string ReadVariable(const char* name) {
  const char* value = getenv(name);
  return value ? value : "";
}

}  // namespace host
}  // namespace machine

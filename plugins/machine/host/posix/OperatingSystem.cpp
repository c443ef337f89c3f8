#include <plugins/machine/host/OperatingSystem.h>

#include <fcntl.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <sys/utsname.h>
#include <unistd.h>

namespace machine {
namespace host {

namespace {

// Far more than any distribution writes; what is larger is not an os-release file.
const std::size_t kMostBytes = 65536;

class Descriptor {
 public:
  explicit Descriptor(int number) : fNumber(number) {}
  ~Descriptor() {
    if (fNumber >= 0) {
      close(fNumber);
    }
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;

  int Get() const { return fNumber; }

 private:
  const int fNumber;
};

std::optional<std::string> ReadFileText(const char* path) {
  // Not blocking, so that a pipe in the file's place cannot hold us up.
  const Descriptor file(open(path, O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  struct stat facts;
  if (file.Get() < 0 || fstat(file.Get(), &facts) != 0 || !S_ISREG(facts.st_mode)) {
    return std::nullopt;
  }
  std::string text;
  char block[4096];
  for (;;) {
    const ssize_t count = read(file.Get(), block, sizeof block);
    if (count == 0) {
      return text;
    }
    if (count < 0 || text.size() + static_cast<std::size_t>(count) > kMostBytes) {
      return std::nullopt;
    }
    text.append(block, static_cast<std::size_t>(count));
  }
}

// os-release(5): the second is read when the first is not there.
std::optional<std::string> ReadReleaseText() {
  std::optional<std::string> text = ReadFileText("/etc/os-release");
  return text ? text : ReadFileText("/usr/lib/os-release");
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

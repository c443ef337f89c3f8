#include <smbios/host/FirmwareTable.h>

#include <cerrno>
#include <cstdlib>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace smbios {
namespace host {

namespace {

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

  int Number() const { return fNumber; }

 private:
  const int fNumber;
};

Situation SituationOf(int error) {
  switch (error) {
    case ENOENT:
    case ENOTDIR:
      return Situation::kNotThere;
    case EACCES:
    case EPERM:
      return Situation::kDenied;
    default:
      return Situation::kOther;
  }
}

// The size that the system states is not asked for: some files state none.
Situation ReadToEnd(int descriptor, std::size_t mostBytes, std::vector<unsigned char>* bytes) {
  unsigned char block[16384];
  for (;;) {
    const ssize_t got = read(descriptor, block, sizeof block);
    if (got < 0) {
      if (errno == EINTR) {
        continue;
      }
      return SituationOf(errno);
    }
    if (got == 0) {
      return Situation::kDone;
    }
    if (static_cast<std::size_t>(got) > mostBytes - bytes->size()) {
      return Situation::kOther;
    }
    bytes->insert(bytes->end(), block, block + got);
  }
}

}  // namespace

std::string SystemFirmwareTable::ReadVariable(const char* name) {
  const char* const value = std::getenv(name);
  return value == nullptr ? std::string() : std::string(value);
}

Situation SystemFirmwareTable::ReadFileBytes(const std::string& path, std::size_t mostBytes,
                                             std::vector<unsigned char>* bytes) {
  bytes->clear();
  struct stat facts;
  // Asked before the open too, because opening a device can set it going.
  if (stat(path.c_str(), &facts) != 0) {
    return SituationOf(errno);
  }
  if (!S_ISREG(facts.st_mode)) {
    return Situation::kOther;
  }
  // Not to wait for a pipe that has come into the file's place since.
  const Descriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK));
  if (file.Number() < 0) {
    return SituationOf(errno);
  }
  if (fstat(file.Number(), &facts) != 0 || !S_ISREG(facts.st_mode)) {
    return Situation::kOther;
  }
  const Situation situation = ReadToEnd(file.Number(), mostBytes, bytes);
  if (situation != Situation::kDone) {
    bytes->clear();
  }
  return situation;
}

Situation SystemFirmwareTable::ReadFirmware(std::size_t mostBytes,
                                            std::vector<unsigned char>* header,
                                            std::vector<unsigned char>* table) {
  header->clear();
  const Situation situation = ReadFileBytes("/sys/firmware/dmi/tables/DMI", mostBytes, table);
  if (situation == Situation::kDone) {
    // Not looked at: the table can be read without its entry point.
    ReadFileBytes("/sys/firmware/dmi/tables/smbios_entry_point", mostBytes, header);
  }
  return situation;
}

}  // namespace host
}  // namespace smbios

// The seam to the host: the one environment variable, the dump file and the
// firmware's table. It knows no status and does not look at the bytes it reads.
// Abstract, so that a test can stand in for the machine. The operations throw
// nothing but std::bad_alloc, and keep nothing open behind them.

#ifndef SMBIOS_HOST_FIRMWARETABLE_H
#define SMBIOS_HOST_FIRMWARETABLE_H

#include <cstddef>
#include <string>
#include <vector>

namespace smbios {
namespace host {

enum class Situation {
  kDone,
  kNotThere,
  kDenied,
  kOther,  // no ordinary file, too large, or a read that failed
};

class FirmwareTable {
 public:
  virtual ~FirmwareTable();

  // The variable's text; empty when it is not set. On Windows in UTF-8.
  virtual std::string ReadVariable(const char* name) = 0;

  // Stores all bytes of the ordinary file at `path` (UTF-8 on Windows), opened for
  // reading only. Folders, devices and pipes are kOther, as is a file of more than
  // `mostBytes`. `*bytes` is empty on anything but kDone.
  virtual Situation ReadFileBytes(const std::string& path, std::size_t mostBytes,
                                  std::vector<unsigned char>* bytes) = 0;

  // Stores the structure table of this machine, and in `*header` what the system keeps
  // beside it: the entry point on Linux (empty when it cannot be read), the 8 bytes in
  // front of the table in the RawSMBIOSData block on Windows. kNotThere: no table.
  virtual Situation ReadFirmware(std::size_t mostBytes, std::vector<unsigned char>* header,
                                 std::vector<unsigned char>* table) = 0;
};

// The machine that the process runs on.
class SystemFirmwareTable : public FirmwareTable {
 public:
  std::string ReadVariable(const char* name) override;
  Situation ReadFileBytes(const std::string& path, std::size_t mostBytes,
                          std::vector<unsigned char>* bytes) override;
  Situation ReadFirmware(std::size_t mostBytes, std::vector<unsigned char>* header,
                         std::vector<unsigned char>* table) override;
};

}  // namespace host
}  // namespace smbios

#endif

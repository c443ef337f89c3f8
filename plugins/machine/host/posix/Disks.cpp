#include <plugins/machine/host/Disks.h>

#include <plugins/machine/host/posix/SysBlock.h>
#include <plugins/machine/host/posix/TextFile.h>

namespace machine {
namespace host {

namespace {

// sysfs files are of one page; a SCSI page has up to 64 KiB and its header.
const std::size_t kMostText = 4096;
const std::size_t kMostPage = 65536 + 4;

DiskReading ReadDisk(const std::string& folder, const std::string& name) {
  const auto read = [&folder](const char* file) {
    return ReadFileText(folder + "/" + file, kMostText);
  };
  DiskReading reading;
  reading.name = name;
  reading.size = read("size");
  reading.logicalBlockSize = read("queue/logical_block_size");
  reading.removable = read("removable");
  reading.readOnly = read("ro");
  reading.rotational = read("queue/rotational");
  reading.hidden = read("hidden");
  reading.deviceType = read("device/type");
  reading.vendor = read("device/vendor");
  reading.model = read("device/model");
  reading.revision = read("device/rev");
  if (!reading.revision) {
    reading.revision = read("device/firmware_rev");
  }
  reading.serial = read("device/serial");
  if (!reading.serial) {
    reading.serial = read("serial");
  }
  // The kernel's copy of the page, made when it found the drive.
  reading.serialPage = ReadFileText(folder + "/device/vpd_pg80", kMostPage);
  return reading;
}

}  // namespace

std::vector<DiskReading> ReadDisksIn(const std::string& folder) {
  std::vector<DiskReading> disks;
  for (const std::string& name : NamesIn(folder)) {
    const std::string path = folder + "/" + name;
    if (IsThere(path + "/device")) {
      disks.push_back(ReadDisk(path, name));
    }
  }
  return disks;
}

std::vector<DiskReading> ReadDisks() { return ReadDisksIn("/sys/block"); }

}  // namespace host
}  // namespace machine

#include <plugins/machine/host/Disks.h>

#include <plugins/machine/host/posix/SysBlock.h>
#include <plugins/machine/host/posix/TextFile.h>

namespace machine {
namespace host {

namespace {

// A SCSI page has up to 64 KiB and its header.
const std::size_t kMostPage = 65536 + 4;

DiskReading ReadDisk(const std::string& folder, const std::string& name) {
  DiskReading reading;
  reading.name = name;
  reading.size = ReadSysText(folder, "size");
  reading.logicalBlockSize = ReadSysText(folder, "queue/logical_block_size");
  reading.removable = ReadSysText(folder, "removable");
  reading.readOnly = ReadSysText(folder, "ro");
  reading.rotational = ReadSysText(folder, "queue/rotational");
  reading.hidden = ReadSysText(folder, "hidden");
  reading.deviceType = ReadSysText(folder, "device/type");
  reading.vendor = ReadSysText(folder, "device/vendor");
  reading.model = ReadSysText(folder, "device/model");
  reading.revision = ReadSysText(folder, "device/rev");
  if (!reading.revision) {
    reading.revision = ReadSysText(folder, "device/firmware_rev");
  }
  reading.serial = ReadSysText(folder, "device/serial");
  if (!reading.serial) {
    reading.serial = ReadSysText(folder, "serial");
  }
  // The kernel's copy of the page, made when it found the drive.
  reading.serialPage = ReadFileText(folder + "/device/vpd_pg80", kMostPage);
  return reading;
}

}  // namespace

std::vector<DiskReading> ReadDisksIn(const std::string& folder) {
  std::vector<DiskReading> disks;
  for (const std::string& name : NamesOfDevicesIn(folder)) {
    disks.push_back(ReadDisk(folder + "/" + name, name));
  }
  return disks;
}

std::vector<DiskReading> ReadDisks() { return ReadDisksIn("/sys/block"); }

}  // namespace host
}  // namespace machine

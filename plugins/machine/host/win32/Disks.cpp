#include <plugins/machine/host/Disks.h>

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
#include <winioctl.h>

#include <cstddef>

#include <plugins/machine/host/win32/Handle.h>

namespace machine {
namespace host {

namespace {

// Drives are numbered from 0, with gaps where one has been taken out.
const unsigned int kMostGap = 16;
const unsigned int kMostDrives = 4096;

void ReadSize(HANDLE drive, DiskReading* reading) {
  // Both the size and the sector size, without a right to read the drive.
  alignas(DISK_GEOMETRY_EX) unsigned char bytes[512] = {};
  DWORD count = 0;
  if (DeviceIoControl(drive, IOCTL_DISK_GET_DRIVE_GEOMETRY_EX, nullptr, 0, bytes, sizeof bytes,
                      &count, nullptr) &&
      count >= offsetof(DISK_GEOMETRY_EX, Data)) {
    const DISK_GEOMETRY_EX* geometry = reinterpret_cast<const DISK_GEOMETRY_EX*>(bytes);
    reading->bytes = static_cast<std::uint64_t>(geometry->DiskSize.QuadPart);
    reading->sectorBytes = geometry->Geometry.BytesPerSector;
  }
}

void ReadDescriptor(HANDLE drive, DiskReading* reading) {
  STORAGE_PROPERTY_QUERY query = {};
  query.PropertyId = StorageDeviceProperty;
  query.QueryType = PropertyStandardQuery;
  char bytes[4096];
  DWORD count = 0;
  if (DeviceIoControl(drive, IOCTL_STORAGE_QUERY_PROPERTY, &query, sizeof query, bytes,
                      sizeof bytes, &count, nullptr)) {
    reading->descriptor = std::string(bytes, count);
  }
}

}  // namespace

std::vector<DiskReading> ReadDisks() {
  std::vector<DiskReading> disks;
  unsigned int gap = 0;
  for (unsigned int number = 0; number < kMostDrives && gap < kMostGap; ++number) {
    const std::string name = "PhysicalDrive" + std::to_string(number);
    const Handle drive(CreateFileA(("\\\\.\\" + name).c_str(), 0,
                                   FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0,
                                   nullptr));
    if (!drive.IsOpen()) {
      ++gap;
      continue;
    }
    gap = 0;
    DiskReading reading;
    reading.name = name;
    ReadSize(drive.Get(), &reading);
    ReadDescriptor(drive.Get(), &reading);
    disks.push_back(reading);
  }
  return disks;
}

}  // namespace host
}  // namespace machine

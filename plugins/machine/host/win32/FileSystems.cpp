#include <plugins/machine/host/FileSystems.h>

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
#include <winioctl.h>

#include <plugins/machine/host/win32/Handle.h>
#include <plugins/machine/host/win32/Text.h>

namespace machine {
namespace host {

namespace {

// No box on the screen that asks for a medium.
class NoErrorBoxes {
 public:
  NoErrorBoxes() { SetThreadErrorMode(SEM_FAILCRITICALERRORS, &fBefore); }
  ~NoErrorBoxes() { SetThreadErrorMode(fBefore, nullptr); }
  NoErrorBoxes(const NoErrorBoxes&) = delete;
  NoErrorBoxes& operator=(const NoErrorBoxes&) = delete;

 private:
  DWORD fBefore = 0;
};

bool IsLocal(const wchar_t* root) {
  switch (GetDriveTypeW(root)) {
    case DRIVE_FIXED:
    case DRIVE_REMOVABLE:
    case DRIVE_CDROM:
    case DRIVE_RAMDISK:
      return true;
    default:
      return false;
  }
}

std::optional<std::uint32_t> ReadDriveNumber(wchar_t letter) {
  const std::wstring path = std::wstring(L"\\\\.\\") + letter + L":";
  const Handle volume(CreateFileW(path.c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                  OPEN_EXISTING, 0, nullptr));
  VOLUME_DISK_EXTENTS extents = {};
  DWORD count = 0;
  // With more than one extent the call fails: there is no room for them.
  if (!volume.IsOpen() ||
      !DeviceIoControl(volume.Get(), IOCTL_VOLUME_GET_VOLUME_DISK_EXTENTS, nullptr, 0, &extents,
                       sizeof extents, &count, nullptr) ||
      count < sizeof extents || extents.NumberOfDiskExtents != 1) {
    return std::nullopt;
  }
  return static_cast<std::uint32_t>(extents.Extents[0].DiskNumber);
}

std::optional<VolumeReading> ReadVolume(wchar_t letter) {
  const wchar_t root[] = {letter, L':', L'\\', L'\0'};
  if (!IsLocal(root)) {
    return std::nullopt;
  }
  VolumeReading reading;
  reading.root = FromWide(root);
  wchar_t name[MAX_PATH + 1] = {};
  DWORD mostName = 0;
  DWORD flags = 0;
  // By its root folder: asked by its name, Wine opens the device and complains on standard error.
  const Handle folder(CreateFileW(root, 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                  nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
  if (!folder.IsOpen() || !GetVolumeInformationByHandleW(folder.Get(), nullptr, 0, nullptr,
                                                         &mostName, &flags, name, MAX_PATH + 1)) {
    return std::nullopt;
  }
  reading.fileSystem = FromWide(name);
  reading.flags = flags;
  reading.mostNameUnits = mostName;
  DWORD sectors = 0;
  DWORD sectorBytes = 0;
  DWORD unused = 0;
  if (GetDiskFreeSpaceW(root, &sectors, &sectorBytes, &unused, &unused)) {
    reading.clusterBytes = static_cast<std::uint64_t>(sectors) * sectorBytes;
  }
  ULARGE_INTEGER available = {};
  ULARGE_INTEGER total = {};
  if (GetDiskFreeSpaceExW(root, &available, &total, nullptr)) {
    reading.bytes = total.QuadPart;
    reading.availableBytes = available.QuadPart;
  }
  reading.driveNumber = ReadDriveNumber(letter);
  return reading;
}

}  // namespace

std::optional<std::string> ReadMountTable() { return std::nullopt; }

std::optional<FileSystemUsage> ReadUsage(const std::string&) { return std::nullopt; }

std::optional<std::string> ReadBlockDevicePath(std::uint32_t, std::uint32_t) {
  return std::nullopt;
}

std::vector<VolumeReading> ReadVolumes() {
  const NoErrorBoxes noErrorBoxes;
  std::vector<VolumeReading> volumes;
  const DWORD letters = GetLogicalDrives();
  for (wchar_t number = 0; number < 26; ++number) {
    if ((letters >> number & 1) == 0) {
      continue;
    }
    if (std::optional<VolumeReading> volume = ReadVolume(static_cast<wchar_t>(L'A' + number))) {
      volumes.push_back(*volume);
    }
  }
  return volumes;
}

}  // namespace host
}  // namespace machine

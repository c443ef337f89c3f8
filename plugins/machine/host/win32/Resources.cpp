#include <plugins/machine/host/Resources.h>

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

namespace machine {
namespace host {

namespace {

// SYSTEM_TIMEOFDAY_INFORMATION: the kernel's own word on when it was started. The time since
// then (GetTickCount64) subtracted from now would be another number at each reading.
struct TimeOfDay {
  LARGE_INTEGER bootTime;
  LARGE_INTEGER currentTime;
  LARGE_INTEGER timeZoneBias;
  ULONG timeZoneId;
  ULONG reserved;
};

const int kSystemTimeOfDayInformation = 3;

// From the start of 1601 to the start of 1970, in units of 100 ns.
const std::int64_t kUnixEpoch = 116444736000000000;

std::optional<std::int64_t> ReadBootTime() {
  typedef LONG(WINAPI * Query)(int, void*, ULONG, ULONG*);
  const HMODULE module = GetModuleHandleW(L"ntdll.dll");
  const Query query = module ? reinterpret_cast<Query>(reinterpret_cast<void*>(
                                   GetProcAddress(module, "NtQuerySystemInformation")))
                             : nullptr;
  TimeOfDay time = {};
  ULONG size = 0;
  if (!query || query(kSystemTimeOfDayInformation, &time, sizeof time, &size) != 0 ||
      time.bootTime.QuadPart < kUnixEpoch) {
    return std::nullopt;
  }
  return (time.bootTime.QuadPart - kUnixEpoch) / 10;
}

}  // namespace

ResourceReading ReadResources() {
  ResourceReading reading;
  MEMORYSTATUSEX memory = {};
  memory.dwLength = sizeof memory;
  if (GlobalMemoryStatusEx(&memory)) {
    reading.physicalBytes = memory.ullTotalPhys;
    reading.commitBytes = memory.ullTotalPageFile;
    reading.processBytes = memory.ullTotalVirtual;
  }
  reading.bootMicroseconds = ReadBootTime();
  return reading;
}

}  // namespace host
}  // namespace machine

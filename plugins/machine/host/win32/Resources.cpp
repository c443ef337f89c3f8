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

// From the start of 1601 to the start of 1970, in units of 100 ns.
const std::int64_t kUnixEpoch = 116444736000000000;

// Not the kernel's own word (SystemTimeOfDayInformation), which under Wine is the time when its
// server was started. The price is that two readings may differ by the clock's tick.
std::int64_t ReadBootTime() {
  FILETIME now = {};
  GetSystemTimeAsFileTime(&now);
  const std::int64_t running = static_cast<std::int64_t>(GetTickCount64());
  const std::int64_t units =
      static_cast<std::int64_t>(now.dwHighDateTime) << 32 | now.dwLowDateTime;
  return (units - kUnixEpoch) / 10 - running * 1000;
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

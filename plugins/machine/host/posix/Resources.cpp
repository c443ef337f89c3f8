#include <plugins/machine/host/Resources.h>

#include <time.h>

#include <plugins/machine/host/posix/TextFile.h>

namespace machine {
namespace host {

namespace {

// Far more than any kernel writes.
const std::size_t kMostBytes = 65536;

std::int64_t InMicroseconds(const struct timespec& time) {
  return static_cast<std::int64_t>(time.tv_sec) * 1000000 + time.tv_nsec / 1000;
}

// Not btime of /proc/stat, which is the same difference: on a machine of many processors that
// file costs more than all others together.
std::optional<std::int64_t> ReadBootTime() {
  struct timespec now;
  struct timespec running;
  if (clock_gettime(CLOCK_REALTIME, &now) != 0 || clock_gettime(CLOCK_BOOTTIME, &running) != 0) {
    return std::nullopt;
  }
  return InMicroseconds(now) - InMicroseconds(running);
}

}  // namespace

ResourceReading ReadResources() {
  ResourceReading reading;
  reading.memoryText = ReadFileText("/proc/meminfo", kMostBytes);
  reading.mostThreadsText = ReadFileText("/proc/sys/kernel/threads-max", kMostBytes);
  reading.endOfPidsText = ReadFileText("/proc/sys/kernel/pid_max", kMostBytes);
  reading.bootMicroseconds = ReadBootTime();
  return reading;
}

}  // namespace host
}  // namespace machine

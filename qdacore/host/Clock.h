// The host's clock and time zone. Nothing here throws.

#ifndef QDACORE_HOST_CLOCK_H
#define QDACORE_HOST_CLOCK_H

#include <cstdint>

namespace NZRVQDA20 {
namespace host {

// Seconds since 1970-01-01 00:00:00 UTC that a clock of any host may tell: up to the end of
// the year 3000, in UTC.
const std::int64_t kLastSecond = 32535215999;

// A date and time as a local calendar and clock show it. Month and day count from 1.
struct LocalReading {
  int year;
  int month;
  int day;
  int hour;
  int minute;
  int second;
  // Daylight saving is in force.
  bool daylight;
};

struct LocalNow {
  LocalReading reading;
  int millisecond;
  // East of UTC, daylight saving included.
  int offsetMinutes;
};

class Clock {
 public:
  // The second now.
  virtual std::int64_t Now() = 0;

  // The local time now. False when the host cannot tell.
  virtual bool ReadLocalNow(LocalNow& now) = 0;

  // The local reading of a second. False when it lies outside 0 to kLastSecond. The time zone's
  // standard offset of today counts for all years; only daylight saving changes it.
  virtual bool ReadLocal(std::int64_t second, LocalReading& reading) = 0;

  // The second that a local clock without daylight saving shows as `civilSecond`, which counts
  // like a UTC second. -1 when it lies outside 0 to kLastSecond.
  virtual std::int64_t SecondFromStandardTime(std::int64_t civilSecond) = 0;

 protected:
  // Never deleted through this: the objects are static, and need no end.
  ~Clock() = default;
};

Clock& HostClock();

}  // namespace host
}  // namespace NZRVQDA20

#endif

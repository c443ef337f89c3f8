#include <time.h>

#include <algorithm>

#include <qdacore/host/HostServices.h>

namespace NZRVQDA20 {
namespace host {
namespace {

const std::int64_t kDaylightSeconds = 3600;

LocalReading ReadingFromTm(const struct tm& fields, bool daylight) {
  return {fields.tm_year + 1900, fields.tm_mon + 1, fields.tm_mday, fields.tm_hour,
          fields.tm_min,         fields.tm_sec,     daylight};
}

// Seconds east of UTC at a moment, daylight saving included.
std::int64_t OffsetAt(std::int64_t second) {
  const time_t moment = static_cast<time_t>(second);
  struct tm fields;
  return localtime_r(&moment, &fields) ? fields.tm_gmtoff : 0;
}

// The zone's offset without daylight saving, as it is now: the smallest one of the year to come.
// (The flag of the tables is no guide: there are zones that call winter time their daylight time.)
std::int64_t StandardOffset() {
  const std::int64_t quarter = 91 * 86400;
  const std::int64_t now = static_cast<std::int64_t>(time(nullptr));
  std::int64_t smallest = OffsetAt(now);
  for (int ahead = 1; ahead < 4; ++ahead) {
    smallest = std::min(smallest, OffsetAt(now + ahead * quarter));
  }
  return smallest;
}

bool InRange(std::int64_t second) { return second >= 0 && second <= kLastSecond; }

class PosixClock final : public Clock {
 public:
  std::int64_t Now() override { return static_cast<std::int64_t>(time(nullptr)); }

  bool ReadLocalNow(LocalNow& now) override {
    struct timespec moment;
    struct tm fields;
    // localtime_r does not look at the time zone's file again, which localtime does each time.
    if (clock_gettime(CLOCK_REALTIME, &moment) != 0 || !localtime_r(&moment.tv_sec, &fields)) {
      return false;
    }
    now.reading = ReadingFromTm(fields, fields.tm_isdst > 0);
    now.millisecond = static_cast<int>(moment.tv_nsec / 1000000);
    now.offsetMinutes = static_cast<int>(fields.tm_gmtoff / 60);
    return true;
  }

  bool ReadLocal(std::int64_t second, LocalReading& reading) override {
    if (!InRange(second)) {
      return false;
    }
    // The offset of our day counts for all years, as it does on the other host; from the tables
    // comes only whether clocks were ahead of it.
    const std::int64_t standard = StandardOffset();
    const time_t moment = static_cast<time_t>(second);
    struct tm fields;
    if (!localtime_r(&moment, &fields)) {
      return false;
    }
    const bool daylight = fields.tm_gmtoff > standard;
    const time_t shown = static_cast<time_t>(second + standard + (daylight ? kDaylightSeconds : 0));
    if (!gmtime_r(&shown, &fields)) {
      return false;
    }
    reading = ReadingFromTm(fields, daylight);
    return true;
  }

  std::int64_t SecondFromStandardTime(std::int64_t civilSecond) override {
    const std::int64_t second = civilSecond - StandardOffset();
    return InRange(second) ? second : -1;
  }
};

}  // namespace

Clock& SystemClock() {
  static PosixClock clock;
  return clock;
}

}  // namespace host
}  // namespace NZRVQDA20

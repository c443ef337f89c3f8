#include <sys/timeb.h>
#include <time.h>

#include <qdacore/host/HostServices.h>

namespace NZRVQDA20 {
namespace host {
namespace {

const std::int64_t kSecondsADay = 86400;

LocalReading ReadingFromTm(const struct tm& fields) {
  return {fields.tm_year + 1900, fields.tm_mon + 1, fields.tm_mday,     fields.tm_hour,
          fields.tm_min,         fields.tm_sec,     fields.tm_isdst > 0};
}

bool InRange(std::int64_t second) { return second >= 0 && second <= kLastSecond; }

class WindowsClock final : public Clock {
 public:
  std::int64_t Now() override { return _time64(nullptr); }

  bool ReadLocalNow(LocalNow& now) override {
    struct __timeb64 moment;
    _ftime64(&moment);
    const struct tm* fields = _localtime64(&moment.time);
    if (!fields) {
      return false;
    }
    now.reading = ReadingFromTm(*fields);
    now.millisecond = moment.millitm;
    now.offsetMinutes = -moment.timezone + (moment.dstflag ? 60 : 0);
    return true;
  }

  bool ReadLocal(std::int64_t second, LocalReading& reading) override {
    // The runtime's own limit differs between its versions.
    if (!InRange(second)) {
      return false;
    }
    const __time64_t moment = second;
    const struct tm* fields = _localtime64(&moment);
    if (!fields) {
      return false;
    }
    reading = ReadingFromTm(*fields);
    return true;
  }

  std::int64_t SecondFromStandardTime(std::int64_t civilSecond) override {
    // No time zone is a year wide; this keeps the day count within an int.
    const std::int64_t margin = 366 * kSecondsADay;
    if (civilSecond < -margin || civilSecond > kLastSecond + margin) {
      return -1;
    }
    // All is put into days and seconds of the day from 1970 on, because some runtimes test the
    // year before they normalise.
    std::int64_t day = civilSecond / kSecondsADay;
    std::int64_t rest = civilSecond % kSecondsADay;
    if (rest < 0) {
      day -= 1;
      rest += kSecondsADay;
    }
    struct tm fields = {};
    fields.tm_year = 70;
    fields.tm_mday = static_cast<int>(1 + day);
    fields.tm_hour = static_cast<int>(rest / 3600);
    fields.tm_min = static_cast<int>(rest / 60 % 60);
    fields.tm_sec = static_cast<int>(rest % 60);
    fields.tm_isdst = 0;
    const std::int64_t second = _mktime64(&fields);
    return InRange(second) ? second : -1;
  }
};

}  // namespace

Clock& SystemClock() {
  static WindowsClock clock;
  return clock;
}

}  // namespace host
}  // namespace NZRVQDA20

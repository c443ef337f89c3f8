// The seconds behind a timestamp: its fields read as local time without daylight saving, and
// only between 1970 and 3000, in UTC.

#ifndef QDACORE_CIM_VALUE_INTERNAL_LOCALTIMEBASE_H
#define QDACORE_CIM_VALUE_INTERNAL_LOCALTIMEBASE_H

#include <cstdint>

#include <qdacore/cim/value/TCIMDateTimeImpl.h>

namespace NZRVQDA20 {

class LocalTimeBase {
 public:
  // Whether the fields lie so far inside the range that no minute, offset or time zone can take
  // them out of it: true of any ordinary date, at the cost of a few comparisons.
  static bool IsPlainlyValid(std::uint16_t year, std::uint16_t month, std::uint32_t day) {
    // 65535 hours are less than eight years.
    return year >= 1972 && year < 2990 && month <= 12 && day <= 31;
  }

  // `minute` stands in for the fields' own minute.
  LocalTimeBase(const TCIMDateTimeImpl& fields, std::int64_t minute);

  // Within the range, or on the day 1970-01-01, which always is.
  bool IsValid() const;

  // Seconds since 1970 in UTC; 0 for a day 1970-01-01 that lies outside. Throws
  // kQDAStatusInvalidDateTime for anything else outside. Asks the host for its time zone.
  std::int64_t Seconds() const;

  // Whether `left` and `right` are equal, or `left` is earlier. Throw as Seconds does. The time
  // zone is the same on both sides, so it is asked only near the ends of the range.
  static bool Equal(const LocalTimeBase& left, const LocalTimeBase& right);
  static bool Less(const LocalTimeBase& left, const LocalTimeBase& right);

 private:
  bool IsFarFromLimits() const;
  bool IsFirstDay() const;

  const TCIMDateTimeImpl& fFields;
  std::int64_t fCivilSecond;
};

}  // namespace NZRVQDA20

#endif

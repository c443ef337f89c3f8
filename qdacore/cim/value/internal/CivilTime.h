// Days and seconds of the Gregorian calendar, counted from 1970-01-01 as if every day had 86,400
// seconds. No time zone.

#ifndef QDACORE_CIM_VALUE_INTERNAL_CIVILTIME_H
#define QDACORE_CIM_VALUE_INTERNAL_CIVILTIME_H

#include <cstdint>

namespace NZRVQDA20 {

// Any month and day count on: month 13 is January of the next year, month 0 December of the one
// before, day 31 of February a day of March.
std::int64_t CivilDay(std::int64_t year, std::int64_t month, std::int64_t day);

inline std::int64_t CivilSecond(std::int64_t day, std::int64_t hour, std::int64_t minute,
                                std::int64_t second) {
  return ((day * 24 + hour) * 60 + minute) * 60 + second;
}

}  // namespace NZRVQDA20

#endif

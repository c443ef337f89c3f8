#include <qdacore/cim/value/internal/CivilTime.h>

namespace NZRVQDA20 {

namespace {

// Days of the year before the first of each month, in a year that is no leap year.
const int kDaysBeforeMonth[] = {0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334};

// From the first day of the year -399, which begins a cycle of 400 years.
const std::int64_t kDaysBefore1970 = 865259;

bool IsLeapYear(std::int64_t year) { return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0); }

}  // namespace

std::int64_t CivilDay(std::int64_t year, std::int64_t month, std::int64_t day) {
  std::int64_t monthsOn = month - 1;
  std::int64_t yearsOn = monthsOn / 12;
  monthsOn %= 12;
  if (monthsOn < 0) {
    monthsOn += 12;
    yearsOn -= 1;
  }
  year += yearsOn;
  // Whole years since the year -399. Earlier ones do not occur, so that no division truncates the
  // wrong way.
  const std::int64_t before = year + 399;
  std::int64_t days = before * 365 + before / 4 - before / 100 + before / 400;
  days += kDaysBeforeMonth[monthsOn];
  if (monthsOn > 1 && IsLeapYear(year)) {
    days += 1;
  }
  return days - kDaysBefore1970 + day - 1;
}

}  // namespace NZRVQDA20

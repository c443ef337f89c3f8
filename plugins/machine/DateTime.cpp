#include <plugins/machine/DateTime.h>

namespace machine {

namespace {

const std::int64_t kSecondsPerDay = 86400;
const int kFirstYear = 1970;
const int kEndYear = 3000;

bool IsLeap(int year) { return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0); }

int DaysIn(int year, int month) {
  static const int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  return kDays[month - 1] + (month == 2 && IsLeap(year) ? 1 : 0);
}

}  // namespace

std::optional<NZRVQDA20::TCIMDateTime> DateTimeAt(std::int64_t seconds) {
  if (seconds < 0) {
    return std::nullopt;
  }
  std::int64_t day = seconds / kSecondsPerDay;
  const int second = static_cast<int>(seconds % kSecondsPerDay);
  int year = kFirstYear;
  for (; year < kEndYear && day >= (IsLeap(year) ? 366 : 365); ++year) {
    day -= IsLeap(year) ? 366 : 365;
  }
  if (year == kEndYear) {
    return std::nullopt;
  }
  int month = 1;
  for (; day >= DaysIn(year, month); ++month) {
    day -= DaysIn(year, month);
  }
  return NZRVQDA20::TCIMDateTime(
      static_cast<unsigned short>(year), static_cast<unsigned short>(month),
      static_cast<unsigned int>(day + 1), static_cast<unsigned short>(second / 3600),
      static_cast<unsigned short>(second / 60 % 60), static_cast<unsigned short>(second % 60), 0,
      0);
}

}  // namespace machine

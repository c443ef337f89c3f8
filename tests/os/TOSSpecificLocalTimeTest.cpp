// The time that log lines are stamped with.

#include <cstdio>
#include <cstdlib>
#include <ctime>

#include <gtest/gtest.h>

#include <qdacore/os/TOSSpecific.h>
#include <tests/support/ChildProcess.h>

namespace {

using namespace NZRVQDA20;
using namespace test_support;

// Days from the start of 1970, by counting.
long long DaysTo(int year, int month, int day) {
  const int lengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  const auto isLeap = [](int y) { return (y % 4 == 0 && y % 100 != 0) || y % 400 == 0; };
  long long days = day - 1;
  for (int y = 1970; y < year; ++y) {
    days += isLeap(y) ? 366 : 365;
  }
  for (int m = 1; m < month; ++m) {
    days += lengths[m - 1] + (m == 2 && isLeap(year) ? 1 : 0);
  }
  return days;
}

// The UTC second that a timestamp tells.
long long SecondOf(const TCIMDateTime& time) {
  const int offset = static_cast<short>(time.GetUTCOffset());
  return DaysTo(time.GetYear(), time.GetMonth(), static_cast<int>(time.GetDay())) * 86400 +
         time.GetHour() * 3600 + time.GetMinute() * 60 + time.GetSecond() - offset * 60;
}

QDACORE_CHILD(TellsItsTime) {
  const long long before = std::time(nullptr);
  const TCIMDateTime now = TOSSpecific::GetLocalTime();
  const long long after = std::time(nullptr);
  const long long told = SecondOf(now);
  // The clock that counts seconds may lag a little behind the one that counts milliseconds.
  std::printf("%d, %s", static_cast<short>(now.GetUTCOffset()),
              before - 1 <= told && told <= after + 1 ? "now" : now.ToString().c_str());
  return 0;
}

struct ZoneRow {
  const char* zone;
  const char* expected;
};

TEST(GetLocalTime, OffsetIsThatOfTheTimeZone) {
  const ZoneRow rows[] = {
      {"UTC0", "0, now"},       {"XYZ-5:30", "330, now"}, {"ABC3", "-180, now"},
      {"ABC3:30", "-210, now"}, {"XYZ-14", "840, now"},   {"ABC12", "-720, now"},
  };
  for (const ZoneRow& row : rows) {
    EXPECT_EQ(row.expected, RunChild("TellsItsTime", {{"TZ", row.zone}}).output) << row.zone;
  }
}

// All the year is summer there: the clock is an hour ahead of standard time.
TEST(GetLocalTime, OffsetCountsDaylightSaving) {
#if defined(_WIN32)
  GTEST_SKIP() << "the variable TZ has no rules of its own on this host";
#endif
  EXPECT_EQ("60, now", RunChild("TellsItsTime", {{"TZ", "AAA0BBB,0/0,J365/25"}}).output);
  EXPECT_EQ("-240, now", RunChild("TellsItsTime", {{"TZ", "AAA5BBB,0/0,J365/25"}}).output);
}

TEST(GetLocalTime, IsATimestampToTheMillisecond) {
  const TCIMDateTime now = TOSSpecific::GetLocalTime();
  EXPECT_FALSE(now.IsNull());
  EXPECT_FALSE(now.IsInterval());
  EXPECT_EQ(0u, now.GetMicroSeconds() % 1000);
  EXPECT_GT(1000000u, now.GetMicroSeconds());
}

}  // namespace

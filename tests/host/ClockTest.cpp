// The host's own clock, in time zones that the test chooses: each in a process of its own.

#include <cinttypes>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <ctime>

#include <gtest/gtest.h>

#include <qdacore/host/HostServices.h>
#include <tests/support/ChildProcess.h>

namespace {

using namespace NZRVQDA20::host;
using namespace test_support;

QDACORE_CHILD(ReadsSeconds) {
  for (const std::string& argument : arguments) {
    LocalReading reading;
    if (SystemClock().ReadLocal(std::strtoll(argument.c_str(), nullptr, 10), reading)) {
      std::printf("%d-%d-%d %d:%d:%d%s\n", reading.year, reading.month, reading.day, reading.hour,
                  reading.minute, reading.second, reading.daylight ? " daylight" : "");
    } else {
      std::puts("none");
    }
  }
  return 0;
}

const char kLimits[] = "32535215999";

struct ReadingRow {
  const char* zone;
  std::vector<std::string> seconds;
  const char* expected;
};

TEST(SystemClock, ReadsLocalTimeFrom1970To3000) {
  const ReadingRow rows[] = {
      {"UTC0",
       {"0", "-1", "951825600", kLimits, "32535216000", "9223372036854775807",
        "-9223372036854775808"},
       "1970-1-1 0:0:0\nnone\n2000-2-29 12:0:0\n3000-12-31 23:59:59\nnone\nnone\nnone\n"},
      {"XYZ-5:30",
       {"0", "-1", "951825600", kLimits, "32535216000"},
       "1970-1-1 5:30:0\nnone\n2000-2-29 17:30:0\n3001-1-1 5:29:59\nnone\n"},
      {"ABC3",
       {"0", "-1", "951825600", kLimits, "32535216000"},
       "1969-12-31 21:0:0\nnone\n2000-2-29 9:0:0\n3000-12-31 20:59:59\nnone\n"},
  };
  for (const ReadingRow& row : rows) {
    EXPECT_EQ(row.expected, RunChild("ReadsSeconds", {{"TZ", row.zone}}, row.seconds).output)
        << row.zone;
  }
}

QDACORE_CHILD(FindsSeconds) {
  for (const std::string& argument : arguments) {
    std::printf("%" PRId64 "\n",
                SystemClock().SecondFromStandardTime(std::strtoll(argument.c_str(), nullptr, 10)));
  }
  return 0;
}

TEST(SystemClock, FindsTheSecondThatAStandardClockShows) {
  const ReadingRow rows[] = {
      {"UTC0",
       {"0", "-1", "951825600", "32535215999", "32535216000"},
       "0\n-1\n951825600\n32535215999\n-1\n"},
      {"XYZ-5:30",
       {"19800", "19799", "951845400", "32535235799", "32535235800"},
       "0\n-1\n951825600\n32535215999\n-1\n"},
      {"ABC3",
       {"-10800", "-10801", "951814800", "32535205199", "32535205200"},
       "0\n-1\n951825600\n32535215999\n-1\n"},
      {"XYZ-14", {"50400", "50399"}, "0\n-1\n"},
      {"ABC12", {"-43200", "-43201"}, "0\n-1\n"},
      {"UTC0",
       {"9223372036854775807", "-9223372036854775808", "-100000000000", "100000000000"},
       "-1\n-1\n-1\n-1\n"},
  };
  for (const ReadingRow& row : rows) {
    EXPECT_EQ(row.expected, RunChild("FindsSeconds", {{"TZ", row.zone}}, row.seconds).output)
        << row.zone;
  }
}

// Days before the start of 1970 and behind, without the C library.
std::int64_t CivilSecond(const LocalReading& reading) {
  const auto leapsBefore = [](int year) {
    const std::int64_t y = year - 1;
    return y / 4 - y / 100 + y / 400;
  };
  const int starts[] = {0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334};
  const std::int64_t leapDay = leapsBefore(reading.year + 1) - leapsBefore(reading.year);
  const std::int64_t days = (reading.year - 1970) * std::int64_t(365) + leapsBefore(reading.year) -
                            leapsBefore(1970) + starts[reading.month - 1] +
                            (reading.month > 2 ? leapDay : 0) + reading.day - 1;
  return ((days * 24 + reading.hour) * 60 + reading.minute) * 60 + reading.second;
}

QDACORE_CHILD(GoesThereAndBack) {
  int wrong = 0;
  int daylight = 0;
  // Some nine days at a time, at all hours of the day.
  for (std::int64_t second = 0; second <= kLastSecond; second += 777 * 1013 + 1) {
    LocalReading reading;
    if (!SystemClock().ReadLocal(second, reading)) {
      ++wrong;
      continue;
    }
    daylight += reading.daylight;
    const std::int64_t standard = CivilSecond(reading) - (reading.daylight ? 3600 : 0);
    wrong += SystemClock().SecondFromStandardTime(standard) != second;
  }
  std::printf("%d wrong, %s daylight", wrong, daylight ? "some" : "no");
  return 0;
}

TEST(SystemClock, ReadingLeadsBackToItsSecond) {
  for (const char* zone : {"UTC0", "XYZ-5:30", "ABC3"}) {
    EXPECT_EQ("0 wrong, no daylight", RunChild("GoesThereAndBack", {{"TZ", zone}}).output) << zone;
  }
  EXPECT_EQ("0 wrong, some daylight", RunChild("GoesThereAndBack", {{"TZ", "EST5EDT"}}).output);
}

TEST(SystemClock, NowIsNow) {
  const std::int64_t before = std::time(nullptr);
  const std::int64_t now = SystemClock().Now();
  const std::int64_t after = std::time(nullptr);
  EXPECT_LE(before, now);
  EXPECT_GE(after, now);

  LocalNow local;
  ASSERT_TRUE(SystemClock().ReadLocalNow(local));
  const std::int64_t utc = CivilSecond(local.reading) - local.offsetMinutes * 60;
  // The clock that counts seconds may lag a little behind the one that counts milliseconds.
  EXPECT_LE(before - 1, utc);
  EXPECT_GE(std::time(nullptr) + std::int64_t(1), utc);
  EXPECT_LE(0, local.millisecond);
  EXPECT_GT(1000, local.millisecond);
}

}  // namespace

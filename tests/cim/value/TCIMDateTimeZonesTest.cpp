// Timestamps under time zones: each zone is a child process of its own.
//
// The fields of a timestamp are read as local time without daylight saving, so that nearly all
// results are the same in every zone. What is not, are the ends of the range, which are in UTC,
// and the hour after daylight saving begins.

#include <algorithm>
#include <cstdio>
#include <random>
#include <sstream>

#include <gtest/gtest.h>

#include <tests/cim/value/DateTimeCalculation.h>
#include <tests/cim/value/DateTimeRows.h>
#include <tests/support/ChildProcess.h>
#include <tests/support/TemporaryFolder.h>

namespace {

using namespace NZRVQDA20;
using namespace cim_test;
using test_support::ChildResult;
using test_support::RunChild;

struct Zone {
  const char* name;
  // Null: the variable is not set.
  const char* variable;
  std::vector<DateTimeRow> rows;
};

void PrintTo(const Zone& zone, std::ostream* out) { *out << zone.name; }

std::vector<DateTimeRow> Joined(const std::vector<std::vector<DateTimeRow>>& tables) {
  std::vector<DateTimeRow> rows;
  for (const std::vector<DateTimeRow>& table : tables) {
    rows.insert(rows.end(), table.begin(), table.end());
  }
  return rows;
}

std::vector<Zone> Zones() {
  std::vector<Zone> zones = {{"NoVariable", nullptr, {}}, {"UTC", "UTC0", UtcRows()}};
#if defined(_WIN32)
  // The runtime takes a zone's name, of three letters, and its offset from the variable, and the
  // days on which daylight saving begins and ends from the United States, whatever the zone.
  zones.push_back(
      {"CentralEurope", "CET-1CES", Joined({OneHourEastRows(), UnitedStatesDaylightRows()})});
  zones.push_back(
      {"EasternAustralia", "AES-10AED",
       Joined({TenHoursEastRows(), TenHoursEastStandardRows(), UnitedStatesDaylightRows()})});
  zones.push_back({"EasternUnitedStates", "EST5EDT",
                   Joined({FiveHoursWestRows(), UnitedStatesDaylightRows()})});
  zones.push_back({"Nepal", "NPT-5:45", NepalRows()});
#else
  const std::vector<DateTimeRow> europe = Joined({OneHourEastRows(), CentralEuropeDaylightRows()});
  zones.push_back({"CentralEurope", "Europe/Berlin", europe});
  zones.push_back({"CentralEuropeByRule", "CET-1CEST,M3.5.0,M10.5.0/3", europe});
  zones.push_back(
      {"EasternAustralia", "Australia/Sydney",
       Joined({TenHoursEastRows(), TenHoursEastStandardRows(), EasternAustraliaDaylightRows()})});
  // A rule holds for all years, the first included.
  zones.push_back(
      {"EasternAustraliaByRule", "AEST-10AEDT,M10.1.0,M4.1.0/3",
       Joined({TenHoursEastRows(), TenHoursEastDaylightRows(), EasternAustraliaDaylightRows()})});
  zones.push_back({"EasternUnitedStates", "America/New_York",
                   Joined({FiveHoursWestRows(), UnitedStatesDaylightRows()})});
  zones.push_back({"Nepal", "Asia/Kathmandu", NepalRows()});
#endif
  return zones;
}

// Three arguments a row; a line of output for each.
QDACORE_CHILD(CalculatesDateTimes) {
  for (std::size_t at = 0; at + 2 < arguments.size(); at += 3) {
    std::printf("%s\n", Calculate(arguments[at], arguments[at + 1], arguments[at + 2]).c_str());
  }
  return 0;
}

class TCIMDateTimeZones : public testing::TestWithParam<Zone> {
 protected:
  void SetUp() override {
    const std::string variable = GetParam().variable ? GetParam().variable : "";
    const bool isFile =
        variable.find('/') != std::string::npos && variable.find(',') == std::string::npos;
    if (isFile && !test_support::PathExists("/usr/share/zoneinfo/" + variable)) {
      GTEST_SKIP() << "no time zone data for " << variable;
    }
  }

  ChildResult Run(const std::string& child, const std::vector<std::string>& arguments) {
    return RunChild(child, {{"TZ", GetParam().variable}}, arguments);
  }

  void ExpectResults(const std::vector<DateTimeRow>& rows) {
    std::vector<std::string> arguments;
    for (const DateTimeRow& row : rows) {
      arguments.insert(arguments.end(), {row.left, row.operation, row.right});
    }
    const ChildResult result = Run("CalculatesDateTimes", arguments);
    EXPECT_EQ(0, result.exitCode) << result.error;
    std::istringstream output(result.output);
    for (const DateTimeRow& row : rows) {
      std::string line;
      std::getline(output, line);
      EXPECT_EQ(row.result, line) << row.what << ": " << row.left << " " << row.operation << " "
                                  << row.right;
    }
  }
};

INSTANTIATE_TEST_SUITE_P(Zones, TCIMDateTimeZones, testing::ValuesIn(Zones()),
                         [](const testing::TestParamInfo<Zone>& zone) {
                           return std::string(zone.param.name);
                         });

TEST_P(TCIMDateTimeZones, ComparisonsAwayFromTheEnds) { ExpectResults(ComparisonRows()); }

TEST_P(TCIMDateTimeZones, ArithmeticAwayFromTheEnds) { ExpectResults(ArithmeticRows()); }

TEST_P(TCIMDateTimeZones, WhatTheZoneDecides) { ExpectResults(GetParam().rows); }

// Days since 1970-01-01 turned into a date by counting years and months one by one.
std::string TimestampText(long long second) {
  const auto isLeap = [](int year) {
    return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
  };
  long long day = second / 86400;
  const int rest = static_cast<int>(second % 86400);
  int year = 1970;
  for (; day >= (isLeap(year) ? 366 : 365); ++year) {
    day -= isLeap(year) ? 366 : 365;
  }
  const int lengths[] = {31, isLeap(year) ? 29 : 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  int month = 0;
  for (; day >= lengths[month]; ++month) {
    day -= lengths[month];
  }
  char text[64];
  std::snprintf(text, sizeof text, "%04d%02d%02d%02d%02d%02d.000000+000", year, month + 1,
                static_cast<int>(day) + 1, rest / 3600, rest / 60 % 60, rest % 60);
  return text;
}

// The hour in which daylight saving begins, in all zones tried here.
bool IsSpecialHour(long long second) { return second % 86400 / 3600 == 2; }

QDACORE_CHILD(AddsRandomIntervals) {
  std::mt19937 random(19700101);
  const long long year = 366 * 86400ll;
  for (int round = 0; round < 3000; ++round) {
    const long long second = year + random() % (900 * 365) * 86400ll + random() % 86400;
    const long long less = std::min<long long>(second - year, random() % 4294967296u);
    const long long more = second + less;
    if (more > 1029 * 365ll * 86400 || IsSpecialHour(second) || IsSpecialHour(more)) {
      continue;
    }
    char interval[64];
    std::snprintf(interval, sizeof interval, "%08lld%02lld%02lld%02lld.000000:000", less / 86400,
                  less / 3600 % 24, less / 60 % 60, less % 60);
    const std::string from = TimestampText(second);
    const std::string to = TimestampText(more);
    if (Calculate(from, "+", interval) != to || Calculate(interval, "+", from) != to ||
        Calculate(to, "-", interval) != from || Calculate(to, "-", from) != interval ||
        Calculate(from, "-", to) != interval ||
        Calculate(from, "<", to) != (less ? "true" : "false")) {
      std::printf("%s + %s = %s gave %s, %s, %s\n", from.c_str(), interval, to.c_str(),
                  Calculate(from, "+", interval).c_str(), Calculate(to, "-", interval).c_str(),
                  Calculate(to, "-", from).c_str());
      return 1;
    }
  }
  return 0;
}

TEST_P(TCIMDateTimeZones, RandomSumsFollowTheCalendar) {
  const ChildResult result = Run("AddsRandomIntervals", {});
  EXPECT_EQ(0, result.exitCode) << result.output << result.error;
  EXPECT_EQ("", result.output);
}

}  // namespace

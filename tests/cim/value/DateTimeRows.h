// Tables of comparisons and sums of timestamps: what holds in every time zone, and what holds in
// some.

#ifndef TESTS_CIM_VALUE_DATETIMEROWS_H
#define TESTS_CIM_VALUE_DATETIMEROWS_H

#include <vector>

namespace cim_test {

// For Calculate of DateTimeCalculation.h.
struct DateTimeRow {
  const char* what;
  const char* left;
  const char* operation;
  const char* right;
  const char* result;
};

std::vector<DateTimeRow> ComparisonRows();
std::vector<DateTimeRow> ArithmeticRows();

// The ends of the range, by the zone's standard offset.
std::vector<DateTimeRow> UtcRows();
std::vector<DateTimeRow> OneHourEastRows();
std::vector<DateTimeRow> TenHoursEastRows();
std::vector<DateTimeRow> TenHoursEastStandardRows();
std::vector<DateTimeRow> TenHoursEastDaylightRows();
std::vector<DateTimeRow> FiveHoursWestRows();
std::vector<DateTimeRow> NepalRows();

// The hours in which daylight saving of 2024 begins and ends.
std::vector<DateTimeRow> CentralEuropeDaylightRows();
std::vector<DateTimeRow> EasternAustraliaDaylightRows();
std::vector<DateTimeRow> UnitedStatesDaylightRows();

}  // namespace cim_test

#endif

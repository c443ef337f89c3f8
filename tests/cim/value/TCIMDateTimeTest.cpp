// The date-time: its fields, what Set accepts and keeps, copies and the end after Clear.

#include <gtest/gtest.h>

#include <qdacore/cim/value/TCIMDateTime.h>
#include <tests/support/ExpectStatus.h>
#include <tests/support/ScopedEnvironment.h>

namespace {

using namespace NZRVQDA20;

// All fields in one line, so that a test can say what changed.
std::string Fields(const TCIMDateTime& value) {
  return std::to_string(value.GetYear()) + "-" + std::to_string(value.GetMonth()) + "-" +
         std::to_string(value.GetDay()) + " " + std::to_string(value.GetHour()) + ":" +
         std::to_string(value.GetMinute()) + ":" + std::to_string(value.GetSecond()) + "." +
         std::to_string(value.GetMicroSeconds()) + " " + std::to_string(value.GetUTCOffset()) +
         (value.IsInterval() ? " interval" : "") + (value.IsNull() ? " null" : "") +
         (value.GetPrecision() ? " precise" : "");
}

TEST(TCIMDateTime, DefaultIsNullWithFieldsOfZero) {
  EXPECT_EQ("0-0-0 0:0:0.0 0 null", Fields(TCIMDateTime()));
}

TEST(TCIMDateTime, TimestampKeepsItsFields) {
  const TCIMDateTime value(2024, 1, 2, 3, 4, 5, 6, 60);
  EXPECT_EQ("2024-1-2 3:4:5.6 60", Fields(value));
}

TEST(TCIMDateTime, IntervalKeepsItsFields) {
  EXPECT_EQ("0-0-1 2:3:4.5 0 interval", Fields(TCIMDateTime(1, 2, 3, 4, 5)));
  EXPECT_EQ("0-0-4294967295 23:59:59.999999 0 interval",
            Fields(TCIMDateTime(4294967295u, 23, 59, 59, 999999)));
}

TEST(TCIMDateTime, NumericMicrosecondsAndDaysAreNotReduced) {
  EXPECT_EQ("2024-1-2 3:4:5.123456 0", Fields(TCIMDateTime(2024, 1, 2, 3, 4, 5, 123456, 0)));
  EXPECT_EQ("0-0-70000 0:0:0.123456 0 interval", Fields(TCIMDateTime(70000, 0, 0, 0, 123456)));
  // Nor is there a limit for a timestamp.
  EXPECT_EQ(4294967295u, TCIMDateTime(2024, 1, 2, 3, 4, 5, 4294967295u, 0).GetMicroSeconds());
}

TEST(TCIMDateTime, OffsetIsReadWithoutItsSign) {
  EXPECT_EQ(65476, TCIMDateTime(2024, 1, 2, 3, 4, 5, 6, -60).GetUTCOffset());
  EXPECT_EQ(32768, TCIMDateTime(2024, 6, 2, 3, 4, 5, 6, -32768).GetUTCOffset());
  EXPECT_EQ(32767, TCIMDateTime(2024, 6, 2, 3, 4, 5, 6, 32767).GetUTCOffset());
}

TEST(TCIMDateTime, TimestampFieldsAreNotNormalised) {
  EXPECT_EQ("2024-2-31 0:0:0.0 0", Fields(TCIMDateTime(2024, 2, 31, 0, 0, 0, 0, 0)));
  EXPECT_EQ("2024-13-0 24:60:99.0 0", Fields(TCIMDateTime(2024, 13, 0, 24, 60, 99, 0, 0)));
  EXPECT_EQ("2024-0-1 0:0:0.0 0", Fields(TCIMDateTime(2024, 0, 1, 0, 0, 0, 0, 0)));
  EXPECT_EQ("2024-1-1000 65535:65535:65535.0 0",
            Fields(TCIMDateTime(2024, 1, 1000, 65535, 65535, 65535, 0, 0)));
}

TEST(TCIMDateTime, YearsOutsideTheRangeAreInvalid) {
  EXPECT_STATUS(kQDAStatusInvalidDateTime, TCIMDateTime(1969, 6, 1, 0, 0, 0, 0, 0));
  EXPECT_STATUS(kQDAStatusInvalidDateTime, TCIMDateTime(3001, 6, 1, 0, 0, 0, 0, 0));
  EXPECT_STATUS(kQDAStatusInvalidDateTime, TCIMDateTime(0, 1, 1, 0, 0, 0, 0, 0));
  EXPECT_STATUS(kQDAStatusInvalidDateTime, TCIMDateTime(65535, 1, 1, 0, 0, 0, 0, 0));
  EXPECT_STATUS(kQDAStatusInvalidDateTime, TCIMDateTime(3000, 65535, 1, 0, 0, 0, 0, 0));
  EXPECT_STATUS(kQDAStatusInvalidDateTime, TCIMDateTime(2024, 65535, 1, 0, 0, 0, 0, 0));
  EXPECT_STATUS(kQDAStatusInvalidDateTime, TCIMDateTime(2024, 1, 1000000, 0, 0, 0, 0, 0));
}

TEST(TCIMDateTime, OtherFieldsMayReachAcrossTheEndOfTheRange) {
  EXPECT_EQ("3001-0-1 0:0:0.0 0", Fields(TCIMDateTime(3001, 0, 1, 0, 0, 0, 0, 0)));
  EXPECT_EQ("1969-14-1 0:0:0.0 0", Fields(TCIMDateTime(1969, 14, 1, 0, 0, 0, 0, 0)));
  EXPECT_STATUS(kQDAStatusInvalidDateTime, TCIMDateTime(3000, 14, 1, 0, 0, 0, 0, 0));
  EXPECT_STATUS(kQDAStatusInvalidDateTime, TCIMDateTime(1970, 0, 1, 0, 0, 0, 0, 0));
}

TEST(TCIMDateTime, FirstDayIsAlwaysValid) {
  EXPECT_EQ("1970-1-1 0:0:0.0 32767", Fields(TCIMDateTime(1970, 1, 1, 0, 0, 0, 0, 32767)));
  EXPECT_EQ("1970-1-1 0:0:0.0 32768", Fields(TCIMDateTime(1970, 1, 1, 0, 0, 0, 0, -32768)));
}

TEST(TCIMDateTime, IntervalLimits) {
  EXPECT_STATUS(kQDAStatusInvalidDateTime, TCIMDateTime(0, 24, 0, 0, 0));
  EXPECT_STATUS(kQDAStatusInvalidDateTime, TCIMDateTime(0, 0, 60, 0, 0));
  EXPECT_STATUS(kQDAStatusInvalidDateTime, TCIMDateTime(0, 0, 0, 60, 0));
  EXPECT_STATUS(kQDAStatusInvalidDateTime, TCIMDateTime(0, 0, 0, 0, 1000000));
  EXPECT_STATUS(kQDAStatusInvalidDateTime, TCIMDateTime(0, 65535, 0, 0, 0));
  EXPECT_NO_THROW(TCIMDateTime(0, 23, 59, 59, 999999));
}

TEST(TCIMDateTime, IntervalOverATimestampKeepsYearMonthAndOffset) {
  TCIMDateTime value(2024, 1, 2, 3, 4, 5, 6, -60);
  value.Set(9, 8, 7, 6, 5);
  EXPECT_EQ("2024-1-9 8:7:6.5 65476 interval", Fields(value));
  value.Set("00000001020304.000005:000");
  EXPECT_EQ("2024-1-1 2:3:4.5 65476 interval", Fields(value));
}

TEST(TCIMDateTime, TimestampOverAnIntervalWritesEverything) {
  TCIMDateTime value(9, 8, 7, 6, 5);
  value.Set(2024, 1, 2, 3, 4, 5, 6, 60);
  EXPECT_EQ("2024-1-2 3:4:5.6 60", Fields(value));
}

TEST(TCIMDateTime, SetFillsANullOne) {
  TCIMDateTime timestamp;
  timestamp.Set(2024, 1, 2, 3, 4, 5, 6, 60);
  EXPECT_FALSE(timestamp.IsNull());
  TCIMDateTime interval;
  interval.Set(1, 0, 0, 0, 0);
  EXPECT_EQ("0-0-1 0:0:0.0 0 interval", Fields(interval));
  TCIMDateTime text;
  text.Set("20240102030405.000006-060");
  EXPECT_EQ("2024-1-2 3:4:5.6 65476", Fields(text));
}

TEST(TCIMDateTime, FailedSetChangesNothing) {
  for (TCIMDateTime value :
       {TCIMDateTime(2024, 1, 2, 3, 4, 5, 6, 60), TCIMDateTime(1, 2, 3, 4, 5), TCIMDateTime()}) {
    value.SetPrecision(true);
    const std::string before = Fields(value);
    EXPECT_STATUS(kQDAStatusInvalidDateTime, value.Set(3001, 6, 1, 0, 0, 0, 0, 0));
    EXPECT_EQ(before, Fields(value));
    EXPECT_STATUS(kQDAStatusInvalidDateTime, value.Set(7, 24, 0, 0, 0));
    EXPECT_EQ(before, Fields(value));
    EXPECT_STATUS(kQDAStatusInvalidDateTime, value.Set("19690601000000.000000+000"));
    EXPECT_EQ(before, Fields(value));
    EXPECT_STATUS(kQDAStatusInvalidDateTime, value.Set("00000007240000.000000:000"));
    EXPECT_EQ(before, Fields(value));
    EXPECT_STATUS(kQDAStatusInvalidDateTime, value.Set("nonsense"));
    EXPECT_EQ(before, Fields(value));
  }
}

TEST(TCIMDateTime, PrecisionIsABitWithoutEffect) {
  TCIMDateTime value(2024, 1, 2, 3, 4, 5, 6, 60);
  EXPECT_FALSE(value.GetPrecision());
  value.SetPrecision(true);
  EXPECT_TRUE(value.GetPrecision());
  EXPECT_EQ("20240102030405.000006+060", value.ToString());
  EXPECT_TRUE(value == TCIMDateTime(2024, 1, 2, 3, 4, 5, 6, 60));
  value.Set(2024, 1, 2, 3, 4, 5, 7, 60);
  EXPECT_TRUE(value.GetPrecision());
  value.Set(1, 2, 3, 4, 5);
  EXPECT_TRUE(value.GetPrecision());
  value.SetPrecision(false);
  EXPECT_FALSE(value.GetPrecision());
}

TEST(TCIMDateTime, CopiesDoNotCarryThePrecision) {
  TCIMDateTime source(1, 2, 3, 4, 5);
  source.SetPrecision(true);
  EXPECT_FALSE(TCIMDateTime(source).GetPrecision());
  TCIMDateTime assigned;
  assigned.SetPrecision(true);
  EXPECT_EQ(&assigned, &(assigned = source));
  EXPECT_FALSE(assigned.GetPrecision());
  EXPECT_EQ("0-0-1 2:3:4.5 0 interval", Fields(assigned));
}

TEST(TCIMDateTime, CopiesHaveBodiesOfTheirOwn) {
  TCIMDateTime source(1, 2, 3, 4, 5);
  TCIMDateTime copy(source);
  TCIMDateTime assigned;
  assigned = source;
  source.Set(2, 0, 0, 0, 0);
  EXPECT_EQ(1u, copy.GetDay());
  EXPECT_EQ(1u, assigned.GetDay());
  TCIMDateTime& same = source;
  source = same;
  EXPECT_EQ(2u, source.GetDay());
}

TEST(TCIMDateTime, CopyOfANullIsNull) {
  EXPECT_TRUE(TCIMDateTime(TCIMDateTime()).IsNull());
  TCIMDateTime value(1, 0, 0, 0, 0);
  value = TCIMDateTime();
  EXPECT_EQ("0-0-0 0:0:0.0 0 null", Fields(value));
}

class ClearedDateTime : public testing::Test {
 protected:
  ClearedDateTime() : policy("QDA_BOOST_ASSERT", nullptr), value(2024, 1, 2, 3, 4, 5, 6, 60) {
    value.Clear();
  }

  const test_support::ScopedEnvironment policy;
  TCIMDateTime value;
};

TEST_F(ClearedDateTime, EveryAccessorIsAFailedAssertion) {
  EXPECT_STATUS(kQDAStatusFail, value.IsNull());
  EXPECT_STATUS(kQDAStatusFail, value.IsInterval());
  EXPECT_STATUS(kQDAStatusFail, value.GetYear());
  EXPECT_STATUS(kQDAStatusFail, value.GetMonth());
  EXPECT_STATUS(kQDAStatusFail, value.GetDay());
  EXPECT_STATUS(kQDAStatusFail, value.GetHour());
  EXPECT_STATUS(kQDAStatusFail, value.GetMinute());
  EXPECT_STATUS(kQDAStatusFail, value.GetSecond());
  EXPECT_STATUS(kQDAStatusFail, value.GetMicroSeconds());
  EXPECT_STATUS(kQDAStatusFail, value.GetUTCOffset());
  EXPECT_STATUS(kQDAStatusFail, value.GetPrecision());
  EXPECT_STATUS(kQDAStatusFail, value.SetPrecision(true));
}

TEST_F(ClearedDateTime, EveryOperationIsAFailedAssertion) {
  const TCIMDateTime day(1, 0, 0, 0, 0);
  EXPECT_STATUS(kQDAStatusFail, value.Clear());
  EXPECT_STATUS(kQDAStatusFail, value.Set(2024, 1, 2, 3, 4, 5, 6, 60));
  EXPECT_STATUS(kQDAStatusFail, value.Set(1, 2, 3, 4, 5));
  EXPECT_STATUS(kQDAStatusFail, value.Set("20240102030405.000006+060"));
  EXPECT_STATUS(kQDAStatusFail, value.ToString());
  EXPECT_STATUS(kQDAStatusFail, value.ToUIString());
  EXPECT_STATUS(kQDAStatusFail, value == day);
  EXPECT_STATUS(kQDAStatusFail, day == value);
  EXPECT_STATUS(kQDAStatusFail, value < day);
  EXPECT_STATUS(kQDAStatusFail, day < value);
  EXPECT_STATUS(kQDAStatusFail, value + day);
  EXPECT_STATUS(kQDAStatusFail, day + value);
  EXPECT_STATUS(kQDAStatusFail, value - day);
  EXPECT_STATUS(kQDAStatusFail, day - value);
}

TEST_F(ClearedDateTime, CannotBeCopied) {
  EXPECT_STATUS(kQDAStatusFail, TCIMDateTime(value));
  TCIMDateTime target(1, 0, 0, 0, 0);
  EXPECT_STATUS(kQDAStatusFail, target = value);
  EXPECT_EQ(1u, target.GetDay());
}

TEST_F(ClearedDateTime, CanBeAssignedTo) {
  value = TCIMDateTime();
  EXPECT_TRUE(value.IsNull());
  value.Clear();
  value = TCIMDateTime(1, 2, 3, 4, 5);
  EXPECT_EQ("00000001020304.000005:000", value.ToString());
}

}  // namespace

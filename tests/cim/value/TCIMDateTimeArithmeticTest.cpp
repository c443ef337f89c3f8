// Comparison and arithmetic of date-times as far as no time zone plays a part. What holds in
// several zones is in TCIMDateTimeZonesTest.cpp.

#include <gtest/gtest.h>

#include <tests/cim/value/DateTimeCalculation.h>
#include <tests/support/ExpectStatus.h>

namespace {

using namespace NZRVQDA20;
using cim_test::Calculate;
using cim_test::MakeDateTime;

const char kTimestamp[] = "20240102120000.000006+060";
const char kInterval[] = "00000001020304.000005:000";
const char kInvalid[] = "kQDAStatusInvalidDateTime";

TEST(TCIMDateTimeArithmetic, NullOnEitherSideThrows) {
  for (const char* operation : {"==", "<", "+", "-"}) {
    SCOPED_TRACE(operation);
    EXPECT_EQ(kInvalid, Calculate("", operation, ""));
    for (const char* other : {kTimestamp, kInterval}) {
      EXPECT_EQ(kInvalid, Calculate("", operation, other));
      EXPECT_EQ(kInvalid, Calculate(other, operation, ""));
    }
  }
}

TEST(TCIMDateTimeArithmetic, TwoKindsCannotBeCompared) {
  EXPECT_EQ(kInvalid, Calculate(kTimestamp, "==", kInterval));
  EXPECT_EQ(kInvalid, Calculate(kInterval, "==", kTimestamp));
  EXPECT_EQ(kInvalid, Calculate(kTimestamp, "<", kInterval));
  EXPECT_EQ(kInvalid, Calculate(kInterval, "<", kTimestamp));
}

TEST(TCIMDateTimeArithmetic, TimestampsCannotBeAdded) {
  EXPECT_EQ(kInvalid, Calculate(kTimestamp, "+", kTimestamp));
}

struct Row {
  const char* what;
  const char* left;
  const char* operation;
  const char* right;
  const char* result;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.what; }

class IntervalArithmetic : public testing::TestWithParam<Row> {};

TEST_P(IntervalArithmetic, Gives) {
  const Row& row = GetParam();
  EXPECT_EQ(row.result, Calculate(row.left, row.operation, row.right));
}

INSTANTIATE_TEST_SUITE_P(
    Sums, IntervalArithmetic,
    testing::Values(Row{"each part", kInterval, "+", "00000010030201.000010:000",
                        "00000011050505.000015:000"},
                    Row{"carries into a day", "00000000235959.999999:000", "+",
                        "00000000000000.000001:000", "00000001000000.000000:000"},
                    Row{"nothing and nothing", "00000000000000.000000:000", "+",
                        "00000000000000.000000:000", "00000000000000.000000:000"},
                    Row{"twice the greatest parts", "00000000235959.999999:000", "+",
                        "00000000235959.999999:000", "00000001235959.999998:000"},
                    Row{"the last days that do not wrap", "00049710062815.000000:000", "+",
                        "00049710062815.000000:000", "00099420125630.000000:000"},
                    // 49710 days, 6:28:16 are 2^32 seconds.
                    Row{"wraps at 32 bits of seconds", "00049710062816.000007:000", "+",
                        "00000000000000.000000:000", "00000000000000.000007:000"},
                    Row{"wraps from day 49711", "00049711000000.000000:000", "+",
                        "00000000000000.000000:000", "00000000173144.000000:000"},
                    Row{"wraps many times", "00400000000000.000000:000", "+",
                        "00000000000000.000000:000", "00002317201352.000000:000"}));

INSTANTIATE_TEST_SUITE_P(
    Differences, IntervalArithmetic,
    testing::Values(
        Row{"each part", "00000011050505.000015:000", "-", kInterval, "00000010030201.000010:000"},
        Row{"borrows from a day", "00000001000000.000000:000", "-", "00000000000000.000001:000",
            "00000000235959.999999:000"},
        Row{"is absolute", "00000000000000.000001:000", "-", "00000001000000.000000:000",
            "00000000235959.999999:000"},
        Row{"of equals is nothing", kInterval, "-", kInterval, "00000000000000.000000:000"},
        Row{"wraps first", "00049711000000.000000:000", "-", "00000000173144.000000:000",
            "00000000000000.000000:000"}));

INSTANTIATE_TEST_SUITE_P(
    Equality, IntervalArithmetic,
    testing::Values(Row{"same", kInterval, "==", kInterval, "true"},
                    Row{"other second", kInterval, "==", "00000001020305.000005:000", "false"},
                    Row{"other microsecond", kInterval, "==", "00000001020304.000006:000", "false"},
                    Row{"wrapped", "00049710062816.000001:000", "==", "00000000000000.000001:000",
                        "true"},
                    Row{"not wrapped", "00049710062815.000001:000",
                        "==", "00000000000000.000001:000", "false"}));

INSTANTIATE_TEST_SUITE_P(
    Order, IntervalArithmetic,
    testing::Values(
        Row{"by seconds", "00000000000001.000000:000", "<", "00000000000002.000000:000", "true"},
        Row{"seconds before microseconds", "00000000000001.999999:000", "<",
            "00000000000002.000000:000", "true"},
        Row{"by microseconds", "00000000000001.000001:000", "<", "00000000000001.000002:000",
            "true"},
        Row{"not of equals", kInterval, "<", kInterval, "false"},
        Row{"greater", "00000001000000.000000:000", "<", "00000000235959.999999:000", "false"},
        Row{"has no sign", "00000000000001.000000:000", "<", "00049710000000.000000:000", "true"},
        Row{"wrapped", "00049711000000.000000:000", "<", "00000001000000.000000:000", "true"}));

TEST(TCIMDateTimeArithmetic, IntervalsLeaveTheirOperandsAlone) {
  const TCIMDateTime left = MakeDateTime(kInterval);
  const TCIMDateTime right = MakeDateTime(kInterval);
  static_cast<void>(left + right);
  static_cast<void>(left - right);
  EXPECT_EQ(kInterval, left.ToString());
  EXPECT_EQ(kInterval, right.ToString());
}

TEST(TCIMDateTimeArithmetic, ResultMayReplaceAnOperand) {
  TCIMDateTime sum = MakeDateTime(kInterval);
  sum = sum + sum;
  EXPECT_EQ("00000002040608.000010:000", sum.ToString());
  sum = sum - sum;
  EXPECT_EQ("00000000000000.000000:000", sum.ToString());
}

TEST(TCIMDateTimeArithmetic, YearMonthAndOffsetOfAnIntervalDoNotCount) {
  TCIMDateTime overATimestamp = MakeDateTime(kTimestamp);
  overATimestamp.Set(1, 2, 3, 4, 5);
  EXPECT_TRUE(overATimestamp == MakeDateTime(kInterval));
  EXPECT_FALSE(overATimestamp < MakeDateTime(kInterval));
  EXPECT_EQ("00000002040608.000010:000", (overATimestamp + MakeDateTime(kInterval)).ToString());
}

TEST(TCIMDateTimeArithmetic, DifferenceFunctionIsNotImplemented) {
  TCIMDateTime timestamp = MakeDateTime(kTimestamp);
  TCIMDateTime interval = MakeDateTime(kInterval);
  TCIMDateTime null;
  TCIMDateTime cleared;
  cleared.Clear();
  EXPECT_STATUS(kQDAStatusNotImplemented, TCIMDateTime::GetDifference(timestamp, timestamp));
  EXPECT_STATUS(kQDAStatusNotImplemented, TCIMDateTime::GetDifference(interval, timestamp));
  EXPECT_STATUS(kQDAStatusNotImplemented, TCIMDateTime::GetDifference(null, null));
  EXPECT_STATUS(kQDAStatusNotImplemented, TCIMDateTime::GetDifference(cleared, cleared));
}

}  // namespace

// The seconds behind a timestamp, and what date-times ask of the clock, with a clock that is
// made up.

#include <qdacore/cim/value/internal/LocalTimeBase.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <qdacore/cim/value/TCIMDateTime.h>
#include <qdacore/host/HostServices.h>
#include <tests/support/ExpectStatus.h>

namespace {

using namespace NZRVQDA20;
using testing::ElementsAre;
using testing::IsEmpty;

// Tells seconds as it is told to, and writes down what it is asked.
class MadeUpClock final : public host::Clock {
 public:
  std::int64_t Now() override {
    calls.push_back("Now");
    return 0;
  }

  bool ReadLocalNow(host::LocalNow&) override {
    calls.push_back("ReadLocalNow");
    return false;
  }

  bool ReadLocal(std::int64_t second, host::LocalReading& reading) override {
    calls.push_back("ReadLocal " + std::to_string(second));
    if (second == failsAt) {
      return false;
    }
    const int day = static_cast<int>(second / 86400);
    const int rest = static_cast<int>(second % 86400);
    reading = {2024, 5, 1 + day, rest / 3600, rest / 60 % 60, rest % 60, daylight};
    return true;
  }

  std::int64_t SecondFromStandardTime(std::int64_t civilSecond) override {
    calls.push_back("Second " + std::to_string(civilSecond));
    return fixedSecond;
  }

  std::vector<std::string> TakeCalls() {
    std::vector<std::string> taken;
    taken.swap(calls);
    return taken;
  }

  std::int64_t fixedSecond = 0;
  std::int64_t failsAt = -1;
  bool daylight = false;
  std::vector<std::string> calls;
};

class LocalTimeBaseTest : public testing::Test {
 protected:
  LocalTimeBaseTest() { host::replacements.clock = &clock; }
  ~LocalTimeBaseTest() { host::replacements.clock = nullptr; }

  static TCIMDateTimeImpl Fields(unsigned year, unsigned month, unsigned day, unsigned hour) {
    TCIMDateTimeImpl fields;
    fields.fIsNull = 0;
    fields.fYear = static_cast<std::uint16_t>(year);
    fields.fMonth = static_cast<std::uint16_t>(month);
    fields.fDay = day;
    fields.fHour = static_cast<std::uint16_t>(hour);
    return fields;
  }

  MadeUpClock clock;
};

TEST_F(LocalTimeBaseTest, MiddleOfTheRangeIsValidWithoutAsking) {
  clock.fixedSecond = -1;
  for (const TCIMDateTimeImpl& fields :
       {Fields(1971, 1, 1, 0), Fields(2024, 2, 31, 99), Fields(2999, 12, 31, 23)}) {
    EXPECT_TRUE(LocalTimeBase(fields, 0).IsValid());
  }
  EXPECT_THAT(clock.TakeCalls(), IsEmpty());
}

TEST_F(LocalTimeBaseTest, WhatIsPlainlyValidIsValidWithAnyMinuteAndHour) {
  clock.fixedSecond = -1;
  TCIMDateTimeImpl last = Fields(2989, 12, 31, 65535);
  last.fSecond = 65535;
  const TCIMDateTimeImpl first = Fields(1972, 0, 0, 0);
  ASSERT_TRUE(LocalTimeBase::IsPlainlyValid(first.fYear, first.fMonth, first.fDay));
  ASSERT_TRUE(LocalTimeBase::IsPlainlyValid(last.fYear, last.fMonth, last.fDay));
  EXPECT_TRUE(LocalTimeBase(first, -32767).IsValid());
  EXPECT_TRUE(LocalTimeBase(last, 65535 + 32768).IsValid());
  EXPECT_THAT(clock.TakeCalls(), IsEmpty());
  for (const TCIMDateTimeImpl& fields :
       {Fields(1969, 1, 1, 0), Fields(1970, 1, 1, 0), Fields(3000, 1, 1, 0), Fields(2024, 13, 1, 0),
        Fields(2024, 1, 4294967295u, 0)}) {
    EXPECT_FALSE(LocalTimeBase::IsPlainlyValid(fields.fYear, fields.fMonth, fields.fDay));
  }
}

TEST_F(LocalTimeBaseTest, NearTheEndsTheClockDecides) {
  const TCIMDateTimeImpl second = Fields(1970, 1, 2, 0);
  const TCIMDateTimeImpl last = Fields(3000, 12, 31, 0);
  clock.fixedSecond = 5;
  EXPECT_TRUE(LocalTimeBase(second, 1).IsValid());
  EXPECT_TRUE(LocalTimeBase(last, 0).IsValid());
  EXPECT_THAT(clock.TakeCalls(), ElementsAre("Second 86460", "Second 32535129600"));
  clock.fixedSecond = -1;
  EXPECT_FALSE(LocalTimeBase(second, 0).IsValid());
  EXPECT_FALSE(LocalTimeBase(last, 0).IsValid());
}

TEST_F(LocalTimeBaseTest, FirstDayIsValidWithoutAsking) {
  clock.fixedSecond = -1;
  const TCIMDateTimeImpl fields = Fields(1970, 1, 1, 0);
  EXPECT_TRUE(LocalTimeBase(fields, -999).IsValid());
  EXPECT_THAT(clock.TakeCalls(), IsEmpty());
}

TEST_F(LocalTimeBaseTest, SecondsAreTheClocks) {
  clock.fixedSecond = 1234;
  const TCIMDateTimeImpl middle = Fields(2024, 1, 1, 0);
  EXPECT_EQ(1234, LocalTimeBase(middle, 1).Seconds());
  EXPECT_THAT(clock.TakeCalls(), ElementsAre("Second 1704067260"));
  // On the first day too, as long as it has one.
  const TCIMDateTimeImpl first = Fields(1970, 1, 1, 0);
  EXPECT_EQ(1234, LocalTimeBase(first, -1).Seconds());
  EXPECT_THAT(clock.TakeCalls(), ElementsAre("Second -60"));
}

TEST_F(LocalTimeBaseTest, WithoutSecondsTheFirstDayIsZeroAndOthersThrow) {
  clock.fixedSecond = -1;
  const TCIMDateTimeImpl first = Fields(1970, 1, 1, 0);
  EXPECT_EQ(0, LocalTimeBase(first, 0).Seconds());
  const TCIMDateTimeImpl second = Fields(1970, 1, 2, 0);
  EXPECT_STATUS(kQDAStatusInvalidDateTime, LocalTimeBase(second, 0).Seconds());
  const TCIMDateTimeImpl middle = Fields(2024, 1, 1, 0);
  EXPECT_STATUS(kQDAStatusInvalidDateTime, LocalTimeBase(middle, 0).Seconds());
}

TEST_F(LocalTimeBaseTest, ComparisonInTheMiddleAsksNobody) {
  const TCIMDateTimeImpl early = Fields(2024, 1, 1, 0);
  const TCIMDateTimeImpl late = Fields(2024, 1, 1, 1);
  EXPECT_TRUE(LocalTimeBase::Equal(LocalTimeBase(early, 60), LocalTimeBase(late, 0)));
  EXPECT_TRUE(LocalTimeBase::Less(LocalTimeBase(early, 0), LocalTimeBase(late, 0)));
  EXPECT_FALSE(LocalTimeBase::Less(LocalTimeBase(late, 0), LocalTimeBase(early, 0)));
  EXPECT_THAT(clock.TakeCalls(), IsEmpty());
}

TEST_F(LocalTimeBaseTest, ComparisonNearAnEndAsksForBoth) {
  const TCIMDateTimeImpl first = Fields(1970, 1, 1, 0);
  const TCIMDateTimeImpl middle = Fields(2024, 1, 1, 0);
  clock.fixedSecond = 7;
  EXPECT_TRUE(LocalTimeBase::Equal(LocalTimeBase(first, 0), LocalTimeBase(middle, 0)));
  EXPECT_THAT(clock.TakeCalls(), ElementsAre("Second 0", "Second 1704067200"));
  EXPECT_FALSE(LocalTimeBase::Less(LocalTimeBase(middle, 0), LocalTimeBase(first, 0)));
  EXPECT_THAT(clock.TakeCalls(), ElementsAre("Second 1704067200", "Second 0"));
}

class DateTimeAndClock : public LocalTimeBaseTest {
 protected:
  DateTimeAndClock() : timestamp(2024, 1, 1, 0, 0, 0, 7, 0), day(1, 0, 0, 0, 0) {
    clock.fixedSecond = 100000;
  }

  const TCIMDateTime timestamp;
  const TCIMDateTime day;
};

TEST_F(DateTimeAndClock, SumIsReadOnce) {
  EXPECT_EQ("20240503034640.000007+000", (timestamp + day).ToString());
  EXPECT_THAT(clock.TakeCalls(), ElementsAre("Second 1704067200", "ReadLocal 186400"));
}

TEST_F(DateTimeAndClock, DaylightSavingIsTakenOutByAnHour) {
  clock.daylight = true;
  EXPECT_EQ("20240503024640.000007+000", (timestamp + day).ToString());
  EXPECT_THAT(clock.TakeCalls(),
              ElementsAre("Second 1704067200", "ReadLocal 186400", "ReadLocal 182800"));
  EXPECT_EQ("20240501024640.000007+000", (timestamp - day).ToString());
  EXPECT_THAT(clock.TakeCalls(),
              ElementsAre("Second 1704067200", "ReadLocal 13600", "ReadLocal 10000"));
}

TEST_F(DateTimeAndClock, SecondThatCannotBeReadThrows) {
  clock.failsAt = 186400;
  EXPECT_STATUS(kQDAStatusInvalidDateTime, timestamp + day);
  clock.daylight = true;
  clock.failsAt = 182800;
  EXPECT_STATUS(kQDAStatusInvalidDateTime, timestamp + day);
  EXPECT_STATUS(kQDAStatusInvalidDateTime, day + timestamp);
}

TEST_F(DateTimeAndClock, TimestampWithoutSecondsThrows) {
  clock.fixedSecond = -1;
  EXPECT_STATUS(kQDAStatusInvalidDateTime, timestamp + day);
  EXPECT_STATUS(kQDAStatusInvalidDateTime, timestamp - day);
  EXPECT_STATUS(kQDAStatusInvalidDateTime, day - timestamp);
  EXPECT_STATUS(kQDAStatusInvalidDateTime, timestamp - timestamp);
}

TEST_F(DateTimeAndClock, NegativeTotalBecomesPositive) {
  clock.fixedSecond = 80000;
  // 80000 s and 7 us less 86400 s are -6399.999993 s.
  EXPECT_EQ("20240501014639.999993+000", (timestamp - day).ToString());
  EXPECT_THAT(clock.TakeCalls(), ElementsAre("Second 1704067200", "ReadLocal 6399"));
}

TEST_F(DateTimeAndClock, DifferenceBeginsWithTheTimeNow) {
  EXPECT_EQ("00000000000000.000000:000", (timestamp - timestamp).ToString());
  EXPECT_THAT(clock.TakeCalls(), ElementsAre("Now", "Second 1704067200", "Second 1704067200"));
}

TEST_F(DateTimeAndClock, IntervalsAskNobody) {
  EXPECT_EQ("00000002000000.000000:000", (day + day).ToString());
  EXPECT_EQ("00000000000000.000000:000", (day - day).ToString());
  EXPECT_TRUE(day == day);
  EXPECT_FALSE(day < day);
  EXPECT_THAT(clock.TakeCalls(), IsEmpty());
}

}  // namespace

// The calendar of days.

#include <qdacore/cim/value/internal/CivilTime.h>

#include <gtest/gtest.h>

namespace {

using namespace NZRVQDA20;

TEST(CivilTime, KnownDays) {
  struct Row {
    int year, month, day;
    std::int64_t number;
  };
  const Row rows[] = {
      {1970, 1, 1, 0},        {1970, 1, 2, 1},       {1969, 12, 31, -1},        {1972, 2, 29, 789},
      {1972, 3, 1, 790},      {2000, 2, 29, 11016},  {2000, 3, 1, 11017},       {2024, 1, 1, 19723},
      {2024, 2, 29, 19782},   {2024, 12, 31, 20088}, {2100, 2, 28, 47540},      {2100, 3, 1, 47541},
      {3000, 12, 31, 376564}, {1, 1, 1, -719162},    {0, 1, 1, -719528},        {0, 0, 1, -719559},
      {0, 12, 31, -719163},   {0, 3, 1, -719468},    {65535, 12, 31, 23217003},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(row.number, CivilDay(row.year, row.month, row.day))
        << row.year << "-" << row.month << "-" << row.day;
  }
}

TEST(CivilTime, MonthsCountOn) {
  EXPECT_EQ(20089, CivilDay(2024, 13, 1));
  EXPECT_EQ(19692, CivilDay(2024, 0, 1));
  EXPECT_EQ(20485, CivilDay(2024, 26, 1));
  EXPECT_EQ(19327, CivilDay(2024, -12, 1));
  EXPECT_EQ(2014372, CivilDay(2024, 65535, 1));
}

TEST(CivilTime, DaysCountOn) {
  EXPECT_EQ(19784, CivilDay(2024, 2, 31));
  EXPECT_EQ(19753, CivilDay(2024, 2, 0));
  EXPECT_EQ(4294987017ll, CivilDay(2024, 1, 4294967295ll));
}

TEST(CivilTime, EveryDayOfEightCenturiesFollowsTheOneBefore) {
  const int lengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  std::int64_t next = CivilDay(1900, 1, 1);
  EXPECT_EQ(-25567, next);
  for (int year = 1900; year < 2700; ++year) {
    const bool leap = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
    for (int month = 1; month <= 12; ++month) {
      const int length = lengths[month - 1] + (leap && month == 2 ? 1 : 0);
      for (int day = 1; day <= length; ++day) {
        ASSERT_EQ(next, CivilDay(year, month, day)) << year << "-" << month << "-" << day;
        ++next;
      }
    }
  }
}

TEST(CivilTime, Seconds) {
  EXPECT_EQ(0, CivilSecond(0, 0, 0, 0));
  EXPECT_EQ(93784, CivilSecond(1, 2, 3, 4));
  EXPECT_EQ(-1, CivilSecond(0, 0, 0, -1));
  EXPECT_EQ(-3600, CivilSecond(0, 0, -60, 0));
  EXPECT_EQ(32535215999ll, CivilSecond(CivilDay(3000, 12, 31), 23, 59, 59));
}

}  // namespace

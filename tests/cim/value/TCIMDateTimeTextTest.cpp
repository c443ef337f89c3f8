// The two texts of a date-time.

#include <cstdio>
#include <random>

#include <gtest/gtest.h>

#include <qdacore/cim/value/TCIMDateTime.h>
#include <tests/support/ExpectStatus.h>

namespace {

using namespace NZRVQDA20;

TEST(TCIMDateTimeText, TimestampGoesInAndOut) {
  const TCIMDateTime value("20240102030405.000006+060");
  EXPECT_FALSE(value.IsNull());
  EXPECT_FALSE(value.IsInterval());
  EXPECT_EQ(2024, value.GetYear());
  EXPECT_EQ(1, value.GetMonth());
  EXPECT_EQ(2u, value.GetDay());
  EXPECT_EQ(3, value.GetHour());
  EXPECT_EQ(4, value.GetMinute());
  EXPECT_EQ(5, value.GetSecond());
  EXPECT_EQ(6u, value.GetMicroSeconds());
  EXPECT_EQ(60, value.GetUTCOffset());
  EXPECT_EQ("20240102030405.000006+060", value.ToString());
}

TEST(TCIMDateTimeText, IntervalGoesInAndOut) {
  const TCIMDateTime value("00000001020304.000005:000");
  EXPECT_TRUE(value.IsInterval());
  EXPECT_EQ(1u, value.GetDay());
  EXPECT_EQ(2, value.GetHour());
  EXPECT_EQ(3, value.GetMinute());
  EXPECT_EQ(4, value.GetSecond());
  EXPECT_EQ(5u, value.GetMicroSeconds());
  EXPECT_EQ("00000001020304.000005:000", value.ToString());
}

TEST(TCIMDateTimeText, NegativeOffsetReads65476) {
  const TCIMDateTime value("20240102030405.000006-060");
  EXPECT_EQ(65476, value.GetUTCOffset());
  EXPECT_EQ("20240102030405.000006-060", value.ToString());
}

TEST(TCIMDateTimeText, NegativeZeroOffsetBecomesPositive) {
  EXPECT_EQ("20240102030405.000006+000", TCIMDateTime("20240102030405.000006-000").ToString());
}

TEST(TCIMDateTimeText, AcceptedTexts) {
  // As ToString gives them back.
  const char* const rows[][2] = {
      {"19700101000000.000000+000", "19700101000000.000000+000"},
      {"19700101000000.000000+999", "19700101000000.000000+999"},
      {"20240101240000.000000+000", "20240101240000.000000+000"},
      {"20240101006099.000000+000", "20240101006099.000000+000"},
      {"20240231000000.000000+000", "20240231000000.000000+000"},
      {"20241301000000.000000+000", "20241301000000.000000+000"},
      {"20240001000000.000000+000", "20240001000000.000000+000"},
      {"20240100000000.000000+000", "20240100000000.000000+000"},
      {"20240102030405.000006-999", "20240102030405.000006-999"},
      // Microseconds and the days of an interval are kept modulo 65536.
      {"20240101000000.065535+000", "20240101000000.065535+000"},
      {"20240101000000.065536+000", "20240101000000.000000+000"},
      {"20240101000000.123456+000", "20240101000000.057920+000"},
      {"20240101000000.999999+000", "20240101000000.016959+000"},
      {"00000001020304.999999:000", "00000001020304.016959:000"},
      {"00065535000000.000000:000", "00065535000000.000000:000"},
      {"00065536000000.000000:000", "00000000000000.000000:000"},
      {"00070000000000.000000:000", "00004464000000.000000:000"},
      {"99999999235959.000000:000", "00057599235959.000000:000"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row[0]);
    EXPECT_EQ(row[1], TCIMDateTime(row[0]).ToString());
  }
}

TEST(TCIMDateTimeText, RefusedTexts) {
  const char* const rows[] = {
      "",
      "20240102030405.000006+06",    // 24 characters
      "20240102030405.000006+0600",  // 26 characters
      "20240102030405,000006+060",   // no point
      "20240102030405 000006+060",   //
      "2024010203040.5000006+060",   // the point elsewhere
      "2024****030405.000006+060",   // asterisks
      "20240102030405.******+060",   //
      "20240102030405.000006+***",   //
      "*0240102030405.000006+060",   //
      "20240102030405.000006 060",   // no kind
      "20240102030405.0000060060",   //
      "20240102030405.000006*060",   //
      "20240102030405.000006+06a",   // no digit
      "2024 102030405.000006+060",   //
      "+0240102030405.000006+060",   //
      "20240102030405.-00006+060",   //
      " 20240102030405.00006+060",   //
      "00000001020304.000005:001",   // an interval with an offset
      "00000001020304.000005:100",   //
      "00000001020304.000005:   ",   //
      "00000001240000.000000:000",   // beyond the limits of an interval
      "00000001006000.000000:000",   //
      "00000001000060.000000:000",   //
      "19690601000000.000000+000",   // outside the years
      "30010601000000.000000+000",   //
      "00000601000000.000000+000",   //
      "99990601000000.000000+000",   //
  };
  for (const char* row : rows) {
    SCOPED_TRACE(row);
    EXPECT_STATUS(kQDAStatusInvalidDateTime, TCIMDateTime(std::string(row)));
  }
  EXPECT_STATUS(kQDAStatusInvalidDateTime,
                TCIMDateTime(std::string("2024010203040\0.000006+060", 25)));
  EXPECT_STATUS(kQDAStatusInvalidDateTime, TCIMDateTime(std::string(25, '\xB2')));
}

TEST(TCIMDateTimeText, EveryPositionIsChecked) {
  for (const std::string text : {"20240102030405.000006+060", "00000001020304.000005:000"}) {
    for (std::size_t at = 0; at < text.size(); ++at) {
      SCOPED_TRACE(at);
      // The neighbours of the digits are the likeliest to slip through.
      for (const char character : {'x', '/', ':', ' ', '\0', '\xB0'}) {
        if (text[at] != ':' || character != ':') {
          std::string wrong = text;
          wrong[at] = character;
          EXPECT_STATUS(kQDAStatusInvalidDateTime, TCIMDateTime(wrong));
        }
      }
    }
  }
}

TEST(TCIMDateTimeText, WidthIsAMinimum) {
  const TCIMDateTime longest(4294967295u, 23, 59, 59, 999999);
  EXPECT_EQ("4294967295235959.999999:000", longest.ToString());
  EXPECT_STATUS(kQDAStatusInvalidDateTime, TCIMDateTime(longest.ToString()));
  EXPECT_EQ("100000000000000.000000:000", TCIMDateTime(100000000, 0, 0, 0, 0).ToString());
  EXPECT_EQ("99999999000000.000000:000", TCIMDateTime(99999999, 0, 0, 0, 0).ToString());
  EXPECT_EQ("2024011000655356553565535.4294967295-32768",
            TCIMDateTime(2024, 1, 1000, 65535, 65535, 65535, 4294967295u, -32768).ToString());
}

TEST(TCIMDateTimeText, NullHasNone) {
  EXPECT_STATUS(kQDAStatusInvalidDateTime, TCIMDateTime().ToString());
  EXPECT_STATUS(kQDAStatusInvalidDateTime, TCIMDateTime().ToUIString());
}

TEST(TCIMDateTimeText, TimestampForPeople) {
  EXPECT_EQ("01/02/2024 03:04:05", TCIMDateTime(2024, 1, 2, 3, 4, 5, 999999, -60).ToUIString());
  EXPECT_EQ("12/31/2999 23:59:59", TCIMDateTime(2999, 12, 31, 23, 59, 59, 0, 0).ToUIString());
  EXPECT_EQ("02/100/2024 00:120:00", TCIMDateTime(2024, 2, 100, 0, 120, 0, 0, 0).ToUIString());
}

TEST(TCIMDateTimeText, IntervalForPeople) {
  struct Row {
    TCIMDateTime value;
    const char* text;
  };
  const Row rows[] = {
      {TCIMDateTime(1, 2, 3, 4, 5), "1 day 2 hours 3 minutes 4 seconds 5 microseconds "},
      {TCIMDateTime(0, 0, 0, 0, 0), ""},
      {TCIMDateTime(0, 0, 0, 0, 1500), "1 millisecond 500 microseconds "},
      {TCIMDateTime(2, 1, 1, 1, 1001),
       "2 days 1 hour 1 minute 1 second 1 millisecond 1 microsecond "},
      {TCIMDateTime(0, 1, 0, 0, 0), "1 hour "},
      {TCIMDateTime(0, 0, 1, 0, 0), "1 minute "},
      {TCIMDateTime(0, 0, 0, 1, 0), "1 second "},
      {TCIMDateTime(0, 0, 0, 0, 2000), "2 milliseconds "},
      {TCIMDateTime(0, 23, 59, 59, 999999),
       "23 hours 59 minutes 59 seconds 999 milliseconds 999 microseconds "},
      {TCIMDateTime(4294967295u, 0, 0, 0, 0), "4294967295 days "},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(row.text, row.value.ToUIString());
  }
}

TEST(TCIMDateTimeText, RandomTextsComeBackUnchanged) {
  std::mt19937 random(20240102);
  const auto number = [&random](unsigned limit) { return static_cast<unsigned>(random() % limit); };
  for (int round = 0; round < 20000; ++round) {
    char text[64];
    if (round % 2) {
      const int offset = static_cast<int>(number(1999)) - 999;
      std::snprintf(text, sizeof text, "%04u%02u%02u%02u%02u%02u.%06u%c%03d", 1971 + number(1029),
                    number(13), number(100), number(100), number(100), number(100), number(65536),
                    offset < 0 ? '-' : '+', offset < 0 ? -offset : offset);
    } else {
      std::snprintf(text, sizeof text, "%08u%02u%02u%02u.%06u:000", number(65536), number(24),
                    number(60), number(60), number(65536));
    }
    ASSERT_EQ(text, TCIMDateTime(std::string(text)).ToString()) << round;
  }
}

}  // namespace

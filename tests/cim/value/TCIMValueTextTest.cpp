// The text of values in each base.

#include <limits>
#include <vector>

#include <gtest/gtest.h>

#include <tests/cim/value/SampleValues.h>
#include <tests/support/ExpectStatus.h>

namespace {

using namespace NZRVQDA20;
using cim_test::SampleValues;
using cim_test::TypeFromNumber;

// In the place of a text: the call throws kQDAStatusNotSupported.
const char kRefused[] = "(refused)";

struct Row {
  TCIMValue value;
  const char* decimal;
  const char* hexadecimal;
  const char* octal;
};

void ExpectText(const char* text, const TCIMValue& value, unsigned char base) {
  SCOPED_TRACE(static_cast<int>(base));
  if (text == kRefused) {
    EXPECT_STATUS(kQDAStatusNotSupported, value.ToString(base));
  } else {
    EXPECT_EQ(text, value.ToString(base));
  }
}

TEST(TCIMValueText, OfNumbersInEachBase) {
  typedef unsigned char Uint8;
  typedef signed char Sint8;
  typedef unsigned short Uint16;
  const Row rows[] = {
      {TCIMValue(true), "true", "true", "true"},
      {TCIMValue(false), "false", "false", "false"},
      {TCIMValue(Uint8{10}), "10", "0A", "12"},
      {TCIMValue(Uint8{65}), "65", "41", "101"},
      {TCIMValue(Uint8{0}), "0", "00", "0"},
      {TCIMValue(Uint8{255}), "255", "FF", "377"},
      {TCIMValue(Uint16{10}), "10", "000A", "12"},
      {TCIMValue(Uint16{65535}), "65535", "FFFF", "177777"},
      {TCIMValue(8u), "8", "00000008", "10"},
      {TCIMValue(255u), "255", "000000FF", "377"},
      {TCIMValue(3735928559u), "3735928559", "DEADBEEF", "33653337357"},
      {TCIMValue(1ull), "1", "0000000000000001", "1"},
      {TCIMValue(18446744073709551615ull), "18446744073709551615", "FFFFFFFFFFFFFFFF",
       "1777777777777777777777"},
      {TCIMValue(Sint8{-1}), "-1", kRefused, kRefused},
      {TCIMValue(Sint8{-128}), "-128", kRefused, kRefused},
      {TCIMValue(Sint8{65}), "65", kRefused, kRefused},
      {TCIMValue(static_cast<short>(-32768)), "-32768", kRefused, kRefused},
      {TCIMValue(1), "1", kRefused, kRefused},
      {TCIMValue(std::numeric_limits<int>::min()), "-2147483648", kRefused, kRefused},
      {TCIMValue(std::numeric_limits<long long>::min()), "-9223372036854775808", kRefused,
       kRefused},
      {TCIMValue(1.5f), "1.5", kRefused, kRefused},
      {TCIMValue(0.1f), "0.1", kRefused, kRefused},
      {TCIMValue(-0.0), "-0", kRefused, kRefused},
      {TCIMValue(3.14159265358979), "3.14159", kRefused, kRefused},
      {TCIMValue(2.0), "2", kRefused, kRefused},
      {TCIMValue(100000.0), "100000", kRefused, kRefused},
      {TCIMValue(1234567.0), "1.23457e+06", kRefused, kRefused},
      {TCIMValue(1e100), "1e+100", kRefused, kRefused},
      {TCIMValue(0.0001), "0.0001", kRefused, kRefused},
      {TCIMValue(0.00001), "1e-05", kRefused, kRefused},
      {TCIMValue(-1.7976931348623157e308), "-1.79769e+308", kRefused, kRefused},
      {TCIMValue(std::numeric_limits<float>::max()), "3.40282e+38", kRefused, kRefused},
      {TCIMValue(std::numeric_limits<double>::infinity()), "inf", kRefused, kRefused},
      {TCIMValue(-std::numeric_limits<float>::infinity()), "-inf", kRefused, kRefused},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.decimal);
    ExpectText(row.decimal, row.value, 10);
    ExpectText(row.hexadecimal, row.value, 16);
    ExpectText(row.octal, row.value, 8);
  }
}

TEST(TCIMValueText, BaseIsTenWhenNoneIsGiven) { EXPECT_EQ("255", TCIMValue(255u).ToString()); }

TEST(TCIMValueText, OtherBasesAreRefusedForEveryNumericType) {
  const SampleValues samples;
  for (int type = 1; type <= 11; ++type) {
    SCOPED_TRACE(type);
    for (const unsigned char base : {0, 1, 2, 7, 9, 11, 15, 17, 36, 255}) {
      EXPECT_STATUS(kQDAStatusNotSupported, samples.scalars[type - 1].ToString(base));
    }
  }
}

TEST(TCIMValueText, BaseIsIgnoredWhereThereAreNoNumbers) {
  const SampleValues samples;
  for (const unsigned char base : {0, 2, 8, 10, 16, 255}) {
    SCOPED_TRACE(static_cast<int>(base));
    EXPECT_EQ("12", samples.scalars[11].ToString(base));
    EXPECT_EQ("thirteen", samples.scalars[12].ToString(base));
    EXPECT_EQ("00000014000000.000000:000", samples.scalars[13].ToString(base));
    EXPECT_EQ("Disk", samples.scalars[14].ToString(base));
  }
}

TEST(TCIMValueText, NullHasNone) {
  EXPECT_STATUS(kQDAStatusValueIsNULL, TCIMValue().ToString(10));
  for (int type = 1; type <= 31; ++type) {
    EXPECT_STATUS(kQDAStatusValueIsNULL, TCIMValue(TypeFromNumber(type), 0).ToString(10));
    EXPECT_STATUS(kQDAStatusValueIsNULL, TCIMValue(TypeFromNumber(type), 0).ToString(2));
  }
}

TEST(TCIMValueText, ArrayHandsItsBaseOn) {
  typedef unsigned char Uint8;
  const TCIMValue bytes(TypeFromNumber(2), 0, {TCIMValue(Uint8{1}), TCIMValue(Uint8{2})});
  EXPECT_EQ("{ 1, 2 }", bytes.ToString(10));
  EXPECT_EQ("{ 01, 02 }", bytes.ToString(16));
  EXPECT_EQ("{ 1, 2 }", bytes.ToString(8));
  EXPECT_STATUS(kQDAStatusNotSupported, bytes.ToString(2));
  const TCIMValue numbers(TypeFromNumber(7), 0, {TCIMValue(1)});
  EXPECT_STATUS(kQDAStatusNotSupported, numbers.ToString(16));
}

TEST(TCIMValueText, ArrayOfAnyCount) {
  EXPECT_EQ("{  }", TCIMValue(TypeFromNumber(7), 0, {}).ToString(10));
  EXPECT_EQ("{  }", TCIMValue(TypeFromNumber(7), 0, {}).ToString(2));
  EXPECT_EQ("{ 1 }", TCIMValue(TypeFromNumber(7), 0, {TCIMValue(1)}).ToString(10));
  EXPECT_EQ(
      "{ 1, 2, 3 }",
      TCIMValue(TypeFromNumber(7), 0, {TCIMValue(1), TCIMValue(2), TCIMValue(3)}).ToString(10));
}

TEST(TCIMValueText, StringsInAnArrayStandUnquoted) {
  EXPECT_EQ("{ a\"b, , c, d }",
            TCIMValue(TypeFromNumber(13), 0, {TCIMValue("a\"b"), TCIMValue(""), TCIMValue("c, d")})
                .ToString(10));
}

TEST(TCIMValueText, NullElementFailsTheWholeArray) {
  const TCIMValue value(TypeFromNumber(7), 0, {TCIMValue(1), TCIMValue(TypeFromNumber(7), 0)});
  EXPECT_STATUS(kQDAStatusValueIsNULL, value.ToString(10));
}

TEST(TCIMValueText, WhatTheMemberThrowsPasses) {
  EXPECT_STATUS(kQDAStatusInvalidDateTime, TCIMValue{TCIMDateTime()}.ToString());
  EXPECT_STATUS(kQDAStatusInvalidDateTime, TCIMValue{TCIMChar16("A")}.ToString());
}

}  // namespace

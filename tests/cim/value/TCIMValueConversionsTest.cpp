// What each value gives out, and that it gives out nothing else.

#include <functional>
#include <limits>

#include <gtest/gtest.h>

#include <qdacore/cim/value/TCIMReference.h>
#include <tests/cim/value/SampleValues.h>
#include <tests/support/ExpectStatus.h>

namespace {

using namespace NZRVQDA20;
using cim_test::SampleValues;
using cim_test::TypeFromNumber;
using cim_test::Word;

struct Conversion {
  const char* name;
  // The word that it serves; 16 stands for any array.
  int word;
  // The text of what comes out.
  std::function<std::string(const TCIMValue&)> convert;
};

template <class Number>
std::string NumberText(const TCIMValue& value) {
  return std::to_string(value.operator Number());
}

std::vector<Conversion> AllConversions() {
  return {{"bool", 1, NumberText<bool>},
          {"unsigned char", 2, NumberText<unsigned char>},
          {"signed char", 3, NumberText<signed char>},
          {"unsigned short", 4, NumberText<unsigned short>},
          {"short", 5, NumberText<short>},
          {"unsigned int", 6, NumberText<unsigned int>},
          {"int", 7, NumberText<int>},
          {"unsigned long long", 8, NumberText<unsigned long long>},
          {"long long", 9, NumberText<long long>},
          {"float", 10, NumberText<float>},
          {"double", 11, NumberText<double>},
          {"string", 13, [](const TCIMValue& value) { return value.operator std::string(); }},
          {"TCIMDateTime", 14,
           [](const TCIMValue& value) { return value.operator TCIMDateTime().ToString(); }},
          {"TCIMReference", 15,
           [](const TCIMValue& value) { return value.operator TCIMReference().GetPath(); }},
          {"vector", 16, [](const TCIMValue& value) {
             return std::to_string(value.operator std::vector<TCIMValue>&().size());
           }}};
}

TEST(TCIMValueConversions, GiveOutExactlyTheTypeHeld) {
  const char* const texts[] = {
      "1",   "2",  "-3",        "4",         "-5", "6",        "-7",
      "8",   "-9", "10.500000", "11.500000", "",   "thirteen", "00000014000000.000000:000",
      "Disk"};
  const SampleValues samples;
  for (const Conversion& conversion : AllConversions()) {
    SCOPED_TRACE(conversion.name);
    for (int type = 1; type <= 15; ++type) {
      SCOPED_TRACE(type);
      const TCIMValue& value = samples.scalars[type - 1];
      if (conversion.word == type) {
        EXPECT_EQ(texts[type - 1], conversion.convert(value));
      } else {
        EXPECT_STATUS(kQDAStatusTypeMismatch, conversion.convert(value));
      }
    }
  }
}

TEST(TCIMValueConversions, ArrayGivesOutItsVectorAndNothingElse) {
  const SampleValues samples;
  for (const Conversion& conversion : AllConversions()) {
    SCOPED_TRACE(conversion.name);
    for (int type = 1; type <= 15; ++type) {
      SCOPED_TRACE(type);
      const TCIMValue value = samples.ArrayOf(type);
      if (conversion.word == 16) {
        EXPECT_EQ("2", conversion.convert(value));
      } else {
        EXPECT_STATUS(kQDAStatusTypeMismatch, conversion.convert(value));
      }
    }
  }
}

TEST(TCIMValueConversions, NullIsTestedBeforeTheType) {
  for (const Conversion& conversion : AllConversions()) {
    SCOPED_TRACE(conversion.name);
    EXPECT_STATUS(kQDAStatusValueIsNULL, conversion.convert(TCIMValue()));
    for (int word = 1; word <= 31; ++word) {
      SCOPED_TRACE(word);
      EXPECT_STATUS(kQDAStatusValueIsNULL, conversion.convert(TCIMValue(TypeFromNumber(word), 0)));
    }
  }
}

TEST(TCIMValueConversions, SignDoesNotPass) {
  const TCIMValue value(1);
  EXPECT_EQ(1, value.operator int());
  EXPECT_STATUS(kQDAStatusTypeMismatch, value.operator unsigned int());
}

template <class Number>
void ExpectLimitsPass() {
  const Number lowest = std::numeric_limits<Number>::lowest();
  const Number highest = std::numeric_limits<Number>::max();
  EXPECT_EQ(lowest, TCIMValue(lowest).operator Number());
  EXPECT_EQ(highest, TCIMValue(highest).operator Number());
}

TEST(TCIMValueConversions, LimitsPassUnchanged) {
  ExpectLimitsPass<bool>();
  ExpectLimitsPass<unsigned char>();
  ExpectLimitsPass<signed char>();
  ExpectLimitsPass<unsigned short>();
  ExpectLimitsPass<short>();
  ExpectLimitsPass<unsigned int>();
  ExpectLimitsPass<int>();
  ExpectLimitsPass<unsigned long long>();
  ExpectLimitsPass<long long>();
  ExpectLimitsPass<float>();
  ExpectLimitsPass<double>();
}

TEST(TCIMValueConversions, VectorIsTheOneInside) {
  const TCIMValue array(TypeFromNumber(7), 0, {TCIMValue(1), TCIMValue(2)});
  std::vector<TCIMValue>& elements = array;
  std::vector<TCIMValue>& again = array;
  EXPECT_EQ(&elements, &again);
  elements.push_back(TCIMValue(3));
  elements[0].Set("changed");
  EXPECT_EQ("{ changed, 2, 3 }", array.ToString(10));
}

TEST(TCIMValueConversions, DateTimeComesOutAsACopy) {
  const TCIMValue value(TCIMDateTime(1, 0, 0, 0, 0));
  TCIMDateTime out = value;
  out.Set(2, 0, 0, 0, 0);
  EXPECT_EQ("00000001000000.000000:000", value.ToString());
}

TEST(TCIMValueConversions, NullDateTimeInsideAValueIsAValue) {
  const TCIMValue value{TCIMDateTime()};
  EXPECT_FALSE(value.IsNull());
  EXPECT_TRUE(value.operator TCIMDateTime().IsNull());
  EXPECT_STATUS(kQDAStatusInvalidDateTime, value.ToString());
}

}  // namespace

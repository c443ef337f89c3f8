// The body of numbers, called directly.

#include <limits>

#include <gtest/gtest.h>

#include <qdacore/cim/value/TCIMNumericValueImpl.h>
#include <tests/support/ExpectStatus.h>

namespace {

using namespace NZRVQDA20;

template <class Number>
class TCIMNumericValueImplOf : public testing::Test {};

typedef testing::Types<bool, unsigned char, signed char, unsigned short, short, unsigned int, int,
                       unsigned long long, long long, float, double>
    AllNumbers;
TYPED_TEST_SUITE(TCIMNumericValueImplOf, AllNumbers, );

TYPED_TEST(TCIMNumericValueImplOf, GivesBackItsLimits) {
  const TypeParam lowest = std::numeric_limits<TypeParam>::lowest();
  const TypeParam highest = std::numeric_limits<TypeParam>::max();
  EXPECT_EQ(lowest, TCIMNumericValueImpl(lowest).operator TypeParam());
  EXPECT_EQ(highest, TCIMNumericValueImpl(highest).operator TypeParam());
}

TYPED_TEST(TCIMNumericValueImplOf, CopyIsTheSame) {
  const TypeParam highest = std::numeric_limits<TypeParam>::max();
  const TCIMNumericValueImpl body(highest);
  const TCIMNumericValueImpl copy(body);
  EXPECT_EQ(highest, copy.operator TypeParam());
  EXPECT_TRUE(copy == TCIMValue(highest));
}

TYPED_TEST(TCIMNumericValueImplOf, SortsByItsOwnSign) {
  const TypeParam lowest = std::numeric_limits<TypeParam>::lowest();
  const TypeParam highest = std::numeric_limits<TypeParam>::max();
  EXPECT_TRUE(TCIMNumericValueImpl(lowest) < TCIMValue(highest));
  EXPECT_FALSE(TCIMNumericValueImpl(highest) < TCIMValue(lowest));
  EXPECT_FALSE(TCIMNumericValueImpl(highest) < TCIMValue(highest));
  EXPECT_TRUE(TCIMNumericValueImpl(highest) == TCIMValue(highest));
  EXPECT_FALSE(TCIMNumericValueImpl(highest) == TCIMValue(lowest));
}

TEST(TCIMNumericValueImpl, OneOfTwoTypesIsNeitherEqualNorLess) {
  const TCIMNumericValueImpl byte(static_cast<unsigned char>(1));
  EXPECT_FALSE(byte == TCIMValue(1u));
  EXPECT_FALSE(byte < TCIMValue(2u));
  EXPECT_FALSE(byte == TCIMValue(true));
}

TEST(TCIMNumericValueImpl, BooleanIsAsStrictAsTheOthers) {
  EXPECT_STATUS(kQDAStatusTypeMismatch,
                TCIMNumericValueImpl(static_cast<unsigned char>(1)).operator bool());
  EXPECT_STATUS(kQDAStatusTypeMismatch, TCIMNumericValueImpl(true).operator unsigned char());
}

TEST(TCIMNumericValueImpl, NothingIsWidened) {
  EXPECT_STATUS(kQDAStatusTypeMismatch, TCIMNumericValueImpl(1.5f).operator double());
  EXPECT_STATUS(kQDAStatusTypeMismatch, TCIMNumericValueImpl(1.0).operator int());
  EXPECT_STATUS(kQDAStatusTypeMismatch, TCIMNumericValueImpl(1).operator long long());
}

TEST(TCIMNumericValueImpl, NaNIsNeitherEqualNorLess) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_FALSE(TCIMNumericValueImpl(nan) == TCIMValue(nan));
  EXPECT_FALSE(TCIMNumericValueImpl(nan) < TCIMValue(nan));
  EXPECT_FALSE(TCIMNumericValueImpl(1.0) < TCIMValue(nan));
}

TEST(TCIMNumericValueImpl, BaseIsTestedBeforeTheType) {
  EXPECT_STATUS(kQDAStatusNotSupported, TCIMNumericValueImpl(true).ToString(2));
  EXPECT_EQ("true", TCIMNumericValueImpl(true).ToString(16));
  EXPECT_EQ("false", TCIMNumericValueImpl(false).ToString(8));
  EXPECT_EQ("0A", TCIMNumericValueImpl(static_cast<unsigned char>(10)).ToString(16));
}

}  // namespace

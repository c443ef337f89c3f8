// The six comparisons of the handle.

#include <limits>

#include <gtest/gtest.h>

#include <tests/cim/value/SampleValues.h>
#include <tests/support/ExpectStatus.h>

namespace {

using namespace NZRVQDA20;
using cim_test::SampleValues;
using cim_test::TypeFromNumber;

enum Relation { kEqual, kLess, kGreater };

// All six operators, both ways round.
void ExpectRelation(const TCIMValue& left, const TCIMValue& right, Relation relation) {
  EXPECT_EQ(relation == kEqual, left == right);
  EXPECT_EQ(relation != kEqual, left != right);
  EXPECT_EQ(relation == kLess, left < right);
  EXPECT_EQ(relation == kGreater, left > right);
  EXPECT_EQ(relation != kGreater, left <= right);
  EXPECT_EQ(relation != kLess, left >= right);
  if (relation == kGreater) {
    ExpectRelation(right, left, kLess);
  } else if (relation == kEqual && &left != &right) {
    EXPECT_TRUE(right == left);
    EXPECT_FALSE(right < left);
  }
}

TEST(TCIMValueComparison, UnsetHandlesAreEqual) {
  ExpectRelation(TCIMValue(), TCIMValue(), kEqual);
}

template <class Number>
void ExpectNumericOrder(Number low, Number high) {
  ExpectRelation(TCIMValue(low), TCIMValue(low), kEqual);
  ExpectRelation(TCIMValue(high), TCIMValue(low), kGreater);
}

TEST(TCIMValueComparison, NumbersOfATypeSortBySignAndSize) {
  ExpectNumericOrder(false, true);
  ExpectNumericOrder<unsigned char>(127, 128);
  ExpectNumericOrder<signed char>(-128, 127);
  ExpectNumericOrder<signed char>(-1, 0);
  ExpectNumericOrder<unsigned short>(32767, 32768);
  ExpectNumericOrder<short>(-1, 0);
  ExpectNumericOrder<unsigned int>(2147483647u, 2147483648u);
  ExpectNumericOrder<int>(-1, 0);
  ExpectNumericOrder<unsigned long long>(9223372036854775807ull, 9223372036854775808ull);
  ExpectNumericOrder<long long>(-1, 0);
  ExpectNumericOrder<long long>(4294967295ll, 4294967296ll);
  ExpectNumericOrder<float>(-1.5f, 1.25f);
  ExpectNumericOrder<double>(-1.5, 1.25);
}

TEST(TCIMValueComparison, SignsOfZeroAreEqual) {
  ExpectRelation(TCIMValue(0.0), TCIMValue(-0.0), kEqual);
  ExpectRelation(TCIMValue(0.0f), TCIMValue(-0.0f), kEqual);
}

TEST(TCIMValueComparison, TextSortsByBytesAndCaseCounts) {
  ExpectRelation(TCIMValue("a"), TCIMValue("A"), kGreater);
  ExpectRelation(TCIMValue("ab"), TCIMValue("a"), kGreater);
  ExpectRelation(TCIMValue("a"), TCIMValue(""), kGreater);
  ExpectRelation(TCIMValue("\xFF"), TCIMValue("z"), kGreater);
  ExpectRelation(TCIMValue("same"), TCIMValue(std::string("same")), kEqual);
  ExpectRelation(TCIMValue(std::string("a\0b", 3)), TCIMValue("a"), kGreater);
}

template <class Real>
void ExpectNaNIsUnordered() {
  const TCIMValue left(std::numeric_limits<Real>::quiet_NaN());
  for (const TCIMValue& right :
       {TCIMValue(std::numeric_limits<Real>::quiet_NaN()), TCIMValue(static_cast<Real>(1))}) {
    EXPECT_FALSE(left == right);
    EXPECT_TRUE(left != right);
    EXPECT_FALSE(left < right);
    EXPECT_TRUE(left > right);
    EXPECT_TRUE(left >= right);
    EXPECT_FALSE(left <= right);
    EXPECT_FALSE(right < left);
  }
  EXPECT_FALSE(left == left);
}

TEST(TCIMValueComparison, NaNIsNeitherEqualNorLess) {
  ExpectNaNIsUnordered<float>();
  ExpectNaNIsUnordered<double>();
}

TEST(TCIMValueComparison, TypesSortByTheirNumbersWhateverTheValues) {
  ExpectRelation(TCIMValue(1), TCIMValue(1u), kGreater);
  ExpectRelation(TCIMValue(1), TCIMValue(5u), kGreater);
  const SampleValues samples;
  for (int left = 1; left <= 15; ++left) {
    for (int right = 1; right < left; ++right) {
      SCOPED_TRACE(testing::Message() << left << " and " << right);
      ExpectRelation(samples.scalars[left - 1], samples.scalars[right - 1], kGreater);
      ExpectRelation(samples.ArrayOf(left), samples.ArrayOf(right), kGreater);
    }
  }
}

TEST(TCIMValueComparison, EveryArraySortsAfterEveryScalar) {
  const SampleValues samples;
  for (int array = 1; array <= 15; ++array) {
    for (int scalar = 1; scalar <= 15; ++scalar) {
      SCOPED_TRACE(testing::Message() << array << " and " << scalar);
      ExpectRelation(samples.ArrayOf(array), samples.scalars[scalar - 1], kGreater);
    }
  }
}

TEST(TCIMValueComparison, NullSortsBeforeEveryValue) {
  const SampleValues samples;
  for (int null = 0; null <= 31; ++null) {
    const TCIMValue left(TypeFromNumber(null), 0);
    for (int type = 1; type <= 15; ++type) {
      SCOPED_TRACE(testing::Message() << null << " and " << type);
      ExpectRelation(samples.scalars[type - 1], left, kGreater);
      ExpectRelation(samples.ArrayOf(type), left, kGreater);
    }
  }
}

// Not equal, and neither less than the other.
void ExpectNullsDiffer(const TCIMValue& left, const TCIMValue& right) {
  EXPECT_FALSE(left == right);
  EXPECT_TRUE(left != right);
  EXPECT_FALSE(left < right);
  EXPECT_FALSE(right < left);
  EXPECT_TRUE(left > right);
  EXPECT_TRUE(left >= right);
  EXPECT_FALSE(left <= right);
}

TEST(TCIMValueComparison, NullsAreEqualWhenTheirTypesAre) {
  for (int type = 0; type <= 31; ++type) {
    SCOPED_TRACE(type);
    const TCIMValue null(TypeFromNumber(type), 0);
    ExpectRelation(null, TCIMValue(TypeFromNumber(type), 0), kEqual);
    ExpectNullsDiffer(null, TCIMValue(TypeFromNumber((type + 1) % 32), 0));
  }
}

TEST(TCIMValueComparison, NullArraysCompareTheirMaxima) {
  ExpectRelation(TCIMValue(TypeFromNumber(7), 5), TCIMValue(TypeFromNumber(23), 5), kEqual);
  ExpectNullsDiffer(TCIMValue(TypeFromNumber(7), 5), TCIMValue(TypeFromNumber(7), 6));
  ExpectNullsDiffer(TCIMValue(TypeFromNumber(23), 0), TCIMValue(TypeFromNumber(7), 6));
}

TEST(TCIMValueComparison, OldMaximumOfANullScalarDoesNotCount) {
  TCIMValue left(TypeFromNumber(7), 5);
  left.SetNullValue(TypeFromNumber(7), 0);
  ASSERT_EQ(5u, left.GetMaxArraySize());
  ExpectRelation(left, TCIMValue(TypeFromNumber(7), 0), kEqual);
}

TEST(TCIMValueComparison, NullReferencesCompareTheirClasses) {
  SampleValues samples;
  samples.ns->Declare("Fan");
  TCIMValue disk(TypeFromNumber(15), 0);
  disk.SetReferencedClass(samples.ns->Class("Disk"));
  TCIMValue fan(TypeFromNumber(15), 0);
  fan.SetReferencedClass(samples.ns->Class("Fan"));
  TCIMValue disk2(TypeFromNumber(15), 0);
  disk2.SetReferencedClass(samples.ns->Class("Disk"));
  ExpectRelation(disk, disk2, kEqual);
  ExpectNullsDiffer(disk, fan);
  ExpectNullsDiffer(disk, TCIMValue(TypeFromNumber(15), 0));
}

TEST(TCIMValueComparison, ClassesOfOtherNullsDoNotCount) {
  SampleValues samples;
  for (const int type : {7, 13, 31}) {
    TCIMValue value(TypeFromNumber(type), 0);
    value.SetReferencedClass(samples.ns->Class("Disk"));
    ExpectRelation(value, TCIMValue(TypeFromNumber(type), 0), kEqual);
  }
}

TEST(TCIMValueComparison, ReferencesCompareByTheirPathsAlone) {
  SampleValues samples;
  TCIMReference reference(samples.ns);
  reference.SetClass(samples.ns->Class("Disk"));
  const TCIMValue plain(reference);
  // With an old maximum, which a reference does not use.
  TCIMValue withMaximum(TypeFromNumber(15), 5);
  withMaximum.Set(reference);
  ASSERT_EQ(5u, withMaximum.GetMaxArraySize());
  ExpectRelation(plain, withMaximum, kEqual);
}

TEST(TCIMValueComparison, Char16ValuesAreAllEqualAndLess) {
  const TCIMValue one{TCIMChar16(1)};
  const TCIMValue two{TCIMChar16(2)};
  EXPECT_TRUE(one == two);
  EXPECT_TRUE(one < two);
  EXPECT_TRUE(two < one);
  EXPECT_FALSE(one > two);
  EXPECT_TRUE(one <= two);
  EXPECT_FALSE(one >= two);
  EXPECT_FALSE(one != two);
}

TEST(TCIMValueComparison, WhatTheMemberThrowsPasses) {
  const TCIMValue null{TCIMChar16("A")};
  const TCIMValue one{TCIMChar16(1)};
  EXPECT_STATUS(kQDAStatusInvalidDateTime, null == one);
  EXPECT_STATUS(kQDAStatusInvalidDateTime, one < null);
  const TCIMValue interval(TCIMDateTime(1, 0, 0, 0, 0));
  const TCIMValue timestamp(TCIMDateTime(2024, 1, 1, 0, 0, 0, 0, 0));
  EXPECT_STATUS(kQDAStatusInvalidDateTime, interval == timestamp);
  EXPECT_STATUS(kQDAStatusInvalidDateTime, interval < timestamp);
  EXPECT_STATUS(kQDAStatusInvalidDateTime, interval == TCIMValue{TCIMDateTime()});
  EXPECT_STATUS(kQDAStatusInvalidDateTime, TCIMValue{TCIMDateTime()} == interval);
}

}  // namespace

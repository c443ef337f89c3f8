// Copying one handle over another, with all that is odd about it.

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include <tests/cim/value/SampleValues.h>
#include <tests/support/ExpectStatus.h>

namespace {

using namespace NZRVQDA20;
using cim_test::SampleValues;
using cim_test::TypeFromNumber;
using cim_test::Word;

TEST(TCIMValueCopy, EveryKindArrivesInAFreshHandle) {
  const char* const texts[] = {
      "true", "2",  "-3",   "4",    "-5", "6",        "-7",
      "8",    "-9", "10.5", "11.5", "12", "thirteen", "00000014000000.000000:000",
      "Disk"};
  const SampleValues samples;
  for (int type = 1; type <= 15; ++type) {
    SCOPED_TRACE(type);
    const TCIMValue copy(samples.scalars[type - 1]);
    EXPECT_EQ(type, Word(copy));
    EXPECT_EQ(texts[type - 1], copy.ToString(10));
    EXPECT_EQ(samples.scalars[type - 1].GetReferencedClass(), copy.GetReferencedClass());

    const TCIMValue array(samples.ArrayOf(type));
    EXPECT_EQ(type + 16, Word(array));
    EXPECT_EQ("{ " + std::string(texts[type - 1]) + ", " + texts[type - 1] + " }",
              array.ToString(10));
  }
}

TEST(TCIMValueCopy, EveryKindReplacesEveryOther) {
  const SampleValues samples;
  for (int from = 1; from <= 15; ++from) {
    for (int to = 1; to <= 15; ++to) {
      SCOPED_TRACE(testing::Message() << from << " over " << to);
      TCIMValue scalar = samples.scalars[to - 1];
      EXPECT_EQ(&scalar, &(scalar = samples.scalars[from - 1]));
      EXPECT_EQ(from, Word(scalar));
      EXPECT_TRUE(scalar == samples.scalars[from - 1]);
      // Two characters are always equal, so the text is looked at as well; only a char16 over a
      // char16 keeps its own.
      EXPECT_EQ(samples.scalars[from - 1].ToString(), scalar.ToString());
      TCIMValue array = samples.ArrayOf(to);
      array.Set(samples.scalars[from - 1]);
      EXPECT_EQ(from, Word(array));
      EXPECT_TRUE(array == samples.scalars[from - 1]);
      EXPECT_EQ(samples.scalars[from - 1].ToString(), array.ToString());
      scalar.Set(samples.ArrayOf(from));
      EXPECT_EQ(from + 16, Word(scalar));
      EXPECT_TRUE(scalar == samples.ArrayOf(from));
    }
  }
}

// The type, and the maximum of an array, are stored before anything is copied.
TEST(TCIMValueCopy, FailedSetLeavesANullOfTheNewType) {
  TCIMValue odd;
  odd.SetNullValue(static_cast<TCIMValue::TCIMType::ECIMType>(33), 0);
  TCIMDateTime cleared;
  cleared.Clear();
  TCIMValue value("old");
  EXPECT_STATUS(kQDAStatusFail, value.Set(cleared));
  EXPECT_TRUE(value.IsNull());
  EXPECT_EQ(14, Word(value));
  std::vector<TCIMValue> elements(1);
  elements[0].SetNullValue(static_cast<TCIMValue::TCIMType::ECIMType>(33), 0);
  value.Set("old");
  EXPECT_STATUS(kQDAStatusTypeMismatch,
                value.Set(TCIMValue::TCIMType(TCIMValue::TCIMType::kCIMTypeSint32), 4, elements));
  EXPECT_TRUE(value.IsNull());
  EXPECT_EQ(23, Word(value));
  EXPECT_EQ(4u, value.GetMaxArraySize());
  value.Set("old");
  EXPECT_STATUS(kQDAStatusTypeMismatch, value = odd);
  EXPECT_TRUE(value.IsNull());
  EXPECT_EQ(33, Word(value));
}

TEST(TCIMValueCopy, HandlesNeverShareAValue) {
  const TCIMValue source(TypeFromNumber(7), 0, {TCIMValue(1)});
  const TCIMValue copy(source);
  copy.operator std::vector<TCIMValue>&()[0].Set(2);
  EXPECT_EQ("{ 1 }", source.ToString());
  EXPECT_EQ("{ 2 }", copy.ToString());
}

TEST(TCIMValueCopy, NullOverAValueIsATypedNull) {
  const SampleValues samples;
  for (int type = 1; type <= 31; ++type) {
    SCOPED_TRACE(type);
    TCIMValue target("text");
    target = TCIMValue(TypeFromNumber(type), 0);
    EXPECT_TRUE(target.IsNull());
    EXPECT_EQ(type, Word(target));
    EXPECT_STATUS(kQDAStatusValueIsNULL, target.ToString());
    target.Set(1);
    EXPECT_EQ(1, target.operator int());
  }
}

TEST(TCIMValueCopy, UnsetFitsIntoAFreshHandle) {
  const TCIMValue unset;
  const TCIMValue copy(unset);
  EXPECT_EQ(0, Word(copy));
  EXPECT_TRUE(copy.IsNull());
  TCIMValue target;
  target = unset;
  EXPECT_TRUE(target.IsNull());
}

TEST(TCIMValueCopy, UnsetOverAnythingElseThrowsAfterTheValueIsLost) {
  const SampleValues samples;
  for (int type = 1; type <= 15; ++type) {
    SCOPED_TRACE(type);
    for (TCIMValue target :
         {samples.scalars[type - 1], samples.ArrayOf(type), TCIMValue(TypeFromNumber(type), 0)}) {
      EXPECT_STATUS(kQDAStatusTypeMismatch, target = TCIMValue());
      EXPECT_TRUE(target.IsNull());
      EXPECT_EQ(0, Word(target));
      // The two are equal now, so this one passes.
      EXPECT_NO_THROW(target = TCIMValue());
    }
  }
}

TEST(TCIMValueCopy, TypeWithoutValuesCannotBeCopied) {
  // The last two have no array flag either: -32 and -17 are words with that bit clear.
  for (const int type : {32, 33, 1 << 20, -32, -17}) {
    SCOPED_TRACE(type);
    const TCIMValue source(TypeFromNumber(type), 0);
    TCIMValue target(1);
    EXPECT_STATUS(kQDAStatusTypeMismatch, target = source);
    EXPECT_TRUE(target.IsNull());
    EXPECT_EQ(type, Word(target));
    EXPECT_STATUS(kQDAStatusTypeMismatch, TCIMValue(source).IsNull());
  }
}

TEST(TCIMValueCopy, BareArrayFlagIsAnArrayAndCanBeCopied) {
  TCIMValue target(1);
  target = TCIMValue(TypeFromNumber(16), 4);
  EXPECT_EQ(16, Word(target));
  EXPECT_EQ(4u, target.GetMaxArraySize());
  EXPECT_TRUE(target.IsNull());
}

TEST(TCIMValueCopy, ScalarKeepsTheOldMaximumAndAnArrayBringsItsOwn) {
  TCIMValue target(TypeFromNumber(7), 5);
  target = TCIMValue("text");
  EXPECT_EQ(5u, target.GetMaxArraySize());
  EXPECT_EQ("text", target.ToString());
  target = TCIMValue(TypeFromNumber(7), 3, {TCIMValue(1)});
  EXPECT_EQ(3u, target.GetMaxArraySize());
  target = TCIMValue(TypeFromNumber(22), 0);
  EXPECT_EQ(0u, target.GetMaxArraySize());
}

TEST(TCIMValueCopy, EqualArrayKeepsTheMaximumOfTheTarget) {
  TCIMValue target(TypeFromNumber(7), 5, {TCIMValue(1)});
  target = TCIMValue(TypeFromNumber(7), 3, {TCIMValue(1)});
  EXPECT_EQ(5u, target.GetMaxArraySize());
}

TEST(TCIMValueCopy, EqualValueKeepsTheReferencedClass) {
  SampleValues samples;
  TCIMValue target(TypeFromNumber(7), 0);
  target.SetReferencedClass(samples.ns->Class("Disk"));
  target.Set(1);
  target = TCIMValue(1);
  EXPECT_EQ(samples.ns->Class("Disk"), target.GetReferencedClass());
}

TEST(TCIMValueCopy, OnlyAScalarReferenceCarriesItsClass) {
  SampleValues samples;
  const boost::shared_ptr<ICIMClass> disk = samples.ns->Class("Disk");
  TCIMValue nullReference(TypeFromNumber(15), 0);
  nullReference.SetReferencedClass(disk);
  EXPECT_EQ(disk, TCIMValue(nullReference).GetReferencedClass());
  EXPECT_EQ(disk, TCIMValue(samples.scalars[14]).GetReferencedClass());

  TCIMValue nullArray(TypeFromNumber(31), 0);
  nullArray.SetReferencedClass(disk);
  EXPECT_FALSE(TCIMValue(nullArray).GetReferencedClass());
  TCIMValue array(nullArray);
  array.SetReferencedClass(disk);
  array.Set(TypeFromNumber(15), 0, {samples.scalars[14]});
  ASSERT_EQ(disk, array.GetReferencedClass());
  EXPECT_FALSE(TCIMValue(array).GetReferencedClass());
  EXPECT_EQ(disk, TCIMValue(array).operator std::vector<TCIMValue>&()[0].GetReferencedClass());

  TCIMValue number(TypeFromNumber(7), 0);
  number.SetReferencedClass(disk);
  number.Set(1);
  EXPECT_FALSE(TCIMValue(number).GetReferencedClass());
}

TEST(TCIMValueCopy, OtherTypesLeaveTheTargetsClassAlone) {
  SampleValues samples;
  TCIMValue target(TypeFromNumber(15), 0);
  target.SetReferencedClass(samples.ns->Class("Disk"));
  target = TCIMValue("text");
  EXPECT_EQ(samples.ns->Class("Disk"), target.GetReferencedClass());
  target = TCIMValue(TypeFromNumber(15), 0);
  EXPECT_FALSE(target.GetReferencedClass());
}

TEST(TCIMValueCopy, Char16OverChar16ChangesNothing) {
  TCIMValue target{TCIMChar16(1)};
  target = TCIMValue(TCIMChar16(2));
  EXPECT_EQ("1", target.ToString());
}

TEST(TCIMValueCopy, NullChar16CannotBeCopiedOverOne) {
  TCIMValue target{TCIMChar16(1)};
  EXPECT_STATUS(kQDAStatusInvalidDateTime, target = TCIMValue(TCIMChar16("A")));
  EXPECT_EQ("1", target.ToString());
}

TEST(TCIMValueCopy, DateTimesOfTwoKindsThrowAndLeaveTheTarget) {
  const TCIMValue timestamp(TCIMDateTime(2024, 1, 2, 3, 4, 5, 6, 60));
  const TCIMValue interval(TCIMDateTime(1, 2, 3, 4, 5));
  TCIMValue target = interval;
  EXPECT_STATUS(kQDAStatusInvalidDateTime, target = timestamp);
  EXPECT_EQ("00000001020304.000005:000", target.ToString());
  target.Set("");
  target = timestamp;
  EXPECT_STATUS(kQDAStatusInvalidDateTime, target = interval);
  EXPECT_EQ("20240102030405.000006+060", target.ToString());
}

TEST(TCIMValueCopy, NullDateTimeThrowsOnEitherSide) {
  const TCIMValue null{TCIMDateTime()};
  const TCIMValue interval(TCIMDateTime(1, 0, 0, 0, 0));
  TCIMValue target = interval;
  EXPECT_STATUS(kQDAStatusInvalidDateTime, target = null);
  EXPECT_EQ("00000001000000.000000:000", target.ToString());
  TCIMValue nullTarget = null;
  EXPECT_STATUS(kQDAStatusInvalidDateTime, nullTarget = interval);
  EXPECT_TRUE(nullTarget.operator TCIMDateTime().IsNull());
}

TEST(TCIMValueCopy, EqualInstantKeepsTheTargetsOffset) {
  TCIMValue target(TCIMDateTime(2024, 1, 1, 12, 0, 0, 0, 60));
  target = TCIMValue(TCIMDateTime(2024, 1, 1, 11, 0, 0, 0, 0));
  EXPECT_EQ("20240101120000.000000+060", target.ToString());
}

TEST(TCIMValueCopy, NaNIsCopied) {
  TCIMValue target(1.0);
  target = TCIMValue(std::numeric_limits<double>::quiet_NaN());
  EXPECT_EQ(11, Word(target));
  EXPECT_FALSE(target == target);
}

// Not equal to itself, so its value is gone before it could be copied.
TEST(TCIMValueCopy, NaNOverItselfIsATypedNull) {
  TCIMValue value(std::numeric_limits<double>::quiet_NaN());
  TCIMValue& same = value;
  value = same;
  EXPECT_TRUE(value.IsNull());
  EXPECT_EQ(11, Word(value));
}

TEST(TCIMValueCopy, ArrayWithANaNOverItselfIsATypedNull) {
  TCIMValue value(TCIMValue::TCIMType(TCIMValue::TCIMType::kCIMTypeReal64), 3,
                  {TCIMValue(std::numeric_limits<double>::quiet_NaN())});
  TCIMValue& same = value;
  value = same;
  EXPECT_TRUE(value.IsNull());
  EXPECT_EQ(27, Word(value));
  EXPECT_EQ(3u, value.GetMaxArraySize());
}

TEST(TCIMValueCopy, SelfAssignmentChangesNothing) {
  SampleValues samples;
  for (int type = 1; type <= 15; ++type) {
    SCOPED_TRACE(type);
    for (TCIMValue value : {samples.scalars[type - 1], samples.ArrayOf(type)}) {
      const TCIMValue before(value);
      TCIMValue& same = value;
      value = same;
      EXPECT_EQ(before.ToString(), value.ToString());
    }
  }
}

TEST(TCIMValueCopy, ElementOfTheTargetsOwnArray) {
  TCIMValue target(TypeFromNumber(13), 4, {TCIMValue("first"), TCIMValue("second")});
  target = target.operator std::vector<TCIMValue>&()[1];
  EXPECT_EQ(13, Word(target));
  EXPECT_EQ("second", target.ToString());
  EXPECT_EQ(4u, target.GetMaxArraySize());
}

TEST(TCIMValueCopy, NullElementOfTheTargetsOwnArray) {
  TCIMValue target(TypeFromNumber(13), 0, {TCIMValue(TypeFromNumber(13), 0)});
  target = target.operator std::vector<TCIMValue>&()[0];
  EXPECT_TRUE(target.IsNull());
  EXPECT_EQ(13, Word(target));
}

TEST(TCIMValueCopy, ArrayIntoItsOwnElement) {
  TCIMValue array(TypeFromNumber(7), 3, {TCIMValue(1), TCIMValue(2)});
  std::vector<TCIMValue>& elements = array;
  elements[0] = array;
  // The element had lost its value before the array was copied.
  const std::vector<TCIMValue>& inner = elements[0];
  ASSERT_EQ(2u, inner.size());
  EXPECT_TRUE(inner[0].IsNull());
  EXPECT_EQ(23, Word(inner[0]));
  EXPECT_EQ(2, inner[1].operator int());
}

}  // namespace

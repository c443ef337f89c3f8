// The 16-bit character: its null state and its comparisons, which never look at it.

#include <gtest/gtest.h>

#include <qdacore/cim/value/TCIMChar16.h>
#include <tests/support/ExpectStatus.h>

namespace {

using namespace NZRVQDA20;

TEST(TCIMChar16, HoldsItsCodeUnit) {
  EXPECT_EQ(65, TCIMChar16(65).GetValue());
  EXPECT_EQ(0, TCIMChar16(static_cast<unsigned short>(0)).GetValue());
  EXPECT_EQ(65535, TCIMChar16(65535).GetValue());
}

TEST(TCIMChar16, TextIsTheDecimalNumber) {
  EXPECT_EQ("65", TCIMChar16(65).ToString());
  EXPECT_EQ("0", TCIMChar16(static_cast<unsigned short>(0)).ToString());
  EXPECT_EQ("65535", TCIMChar16(65535).ToString());
}

TEST(TCIMChar16, DefaultIsZeroAndNotNull) {
  EXPECT_EQ(0, TCIMChar16().GetValue());
  EXPECT_EQ("0", TCIMChar16().ToString());
  EXPECT_TRUE(TCIMChar16() == TCIMChar16(1));
}

TEST(TCIMChar16, FromTextIsNullWhateverTheText) {
  for (const char* text : {"A", "", "65", "more than one"}) {
    SCOPED_TRACE(text);
    EXPECT_STATUS(kQDAStatusInvalidDateTime, TCIMChar16(std::string(text)).ToString());
    EXPECT_EQ(0, TCIMChar16(std::string(text)).GetValue());
  }
  EXPECT_STATUS(kQDAStatusInvalidDateTime, TCIMChar16("A").ToString());
}

TEST(TCIMChar16, AnyTwoAreEqualAndEachIsLess) {
  EXPECT_TRUE(TCIMChar16(1) == TCIMChar16(2));
  EXPECT_TRUE(TCIMChar16(1) < TCIMChar16(2));
  EXPECT_TRUE(TCIMChar16(2) < TCIMChar16(1));
  EXPECT_TRUE(TCIMChar16(1) < TCIMChar16(1));
}

TEST(TCIMChar16, NullOnEitherSideCannotBeCompared) {
  const TCIMChar16 null("A");
  const TCIMChar16 one(1);
  EXPECT_STATUS(kQDAStatusInvalidDateTime, null == one);
  EXPECT_STATUS(kQDAStatusInvalidDateTime, one == null);
  EXPECT_STATUS(kQDAStatusInvalidDateTime, null == null);
  EXPECT_STATUS(kQDAStatusInvalidDateTime, null < one);
  EXPECT_STATUS(kQDAStatusInvalidDateTime, one < null);
  EXPECT_STATUS(kQDAStatusInvalidDateTime, null < null);
}

TEST(TCIMChar16, CopyCarriesBothMembers) {
  EXPECT_EQ(7, TCIMChar16(TCIMChar16(7)).GetValue());
  const TCIMChar16 null("A");
  const TCIMChar16 copy(null);
  EXPECT_STATUS(kQDAStatusInvalidDateTime, copy.ToString());
}

TEST(TCIMChar16, AssignmentOutlivesItsSource) {
  TCIMChar16 target(1);
  {
    const TCIMChar16 source(2);
    EXPECT_EQ(&target, &(target = source));
  }
  EXPECT_EQ(2, target.GetValue());
  target = TCIMChar16("A");
  EXPECT_STATUS(kQDAStatusInvalidDateTime, target.ToString());
  const TCIMChar16& same = target;
  target = same;
  EXPECT_EQ(0, target.GetValue());
}

TEST(TCIMChar16, AssigningOneOfTwoSharersLeavesTheOther) {
  TCIMChar16 first(1);
  TCIMChar16 second(2);
  second = first;
  first = TCIMChar16(3);
  EXPECT_EQ(1, second.GetValue());
  EXPECT_EQ(3, first.GetValue());
}

}  // namespace

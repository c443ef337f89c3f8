// Array values: how they are set, checked and compared.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <qdacore/frame/TRootObject.h>
#include <tests/cim/value/SampleValues.h>
#include <tests/support/ExpectStatus.h>
#include <tests/support/LogCapture.h>

namespace {

using namespace NZRVQDA20;
using cim_test::SampleValues;
using cim_test::TypeFromNumber;
using cim_test::Word;
using test_support::LogCapture;
using testing::ElementsAre;
using testing::IsEmpty;

const char kWrongElement[] =
    "[Error] Core: ERROR: Attempting to create array of type string, but element is of type "
    "sint32.";

TEST(TCIMValueArray, SetAndConstructorForceTheFlag) {
  const SampleValues samples;
  for (int type = 1; type <= 15; ++type) {
    SCOPED_TRACE(type);
    const TCIMValue& element = samples.scalars[type - 1];
    for (const int given : {type, type + 16}) {
      const TCIMValue made(TypeFromNumber(given), 9, {element});
      TCIMValue set;
      set.Set(TypeFromNumber(given), 9, {element});
      for (const TCIMValue* value : {&made, static_cast<const TCIMValue*>(&set)}) {
        EXPECT_EQ(type + 16, Word(*value));
        EXPECT_TRUE(value->IsArray());
        EXPECT_FALSE(value->IsNull());
        EXPECT_FALSE(value->IsReference());
        EXPECT_EQ(9u, value->GetMaxArraySize());
        EXPECT_EQ(1u, value->operator std::vector<TCIMValue>&().size());
      }
    }
  }
}

TEST(TCIMValueArray, MaximumIsNeverEnforced) {
  LogCapture log;
  const TCIMValue value(TypeFromNumber(7), 1, {TCIMValue(1), TCIMValue(2), TCIMValue(3)});
  EXPECT_EQ(1u, value.GetMaxArraySize());
  EXPECT_EQ("{ 1, 2, 3 }", value.ToString(10));
  EXPECT_THAT(log.Lines(), IsEmpty());
}

TEST(TCIMValueArray, EmptyArrayIsNotNull) {
  const TCIMValue value(TypeFromNumber(7), 0, {});
  EXPECT_FALSE(value.IsNull());
  EXPECT_TRUE(value.operator std::vector<TCIMValue>&().empty());
}

TEST(TCIMValueArray, ElementsAreCopies) {
  std::vector<TCIMValue> elements = {TCIMValue(1)};
  const TCIMValue value(TypeFromNumber(7), 0, elements);
  elements[0].Set(2);
  EXPECT_EQ("{ 1 }", value.ToString(10));
}

TEST(TCIMValueArray, WrongElementIsLoggedAndThrownAndStays) {
  LogCapture log;
  TCIMValue value(1);
  EXPECT_STATUS(kQDAStatusInvalidProperty,
                value.Set(TypeFromNumber(13), 4, {TCIMValue("a"), TCIMValue(1), TCIMValue(2u)}));
  EXPECT_THAT(log.Lines(), ElementsAre(kWrongElement));
  EXPECT_EQ(29, Word(value));
  EXPECT_EQ(4u, value.GetMaxArraySize());
  EXPECT_EQ("{ a, 1, 2 }", value.ToString(10));
}

TEST(TCIMValueArray, WrongElementFailsTheConstructor) {
  LogCapture log;
  EXPECT_STATUS(kQDAStatusInvalidProperty, TCIMValue(TypeFromNumber(29), 0, {TCIMValue(1)}));
  EXPECT_THAT(log.Lines(), ElementsAre(kWrongElement));
}

TEST(TCIMValueArray, WrongElementWithoutALoggerThrowsAllTheSame) {
  ASSERT_EQ(nullptr, TRootObject::GetCoreLogger());
  EXPECT_STATUS(kQDAStatusInvalidProperty, TCIMValue(TypeFromNumber(13), 0, {TCIMValue(1)}));
}

TEST(TCIMValueArray, OfANullElementOnlyTheTypeCounts) {
  const TCIMValue typedNull(TypeFromNumber(7), 0);
  const TCIMValue value(TypeFromNumber(7), 0, {TCIMValue(1), typedNull});
  EXPECT_EQ(2u, value.operator std::vector<TCIMValue>&().size());
  EXPECT_STATUS(kQDAStatusInvalidProperty, TCIMValue(TypeFromNumber(6), 0, {typedNull}));
}

TEST(TCIMValueArray, ArrayIsNoElement) {
  LogCapture log;
  const TCIMValue inner(TypeFromNumber(7), 0, {TCIMValue(1)});
  EXPECT_STATUS(kQDAStatusInvalidProperty, TCIMValue(TypeFromNumber(7), 0, {inner}));
  EXPECT_STATUS(kQDAStatusInvalidProperty, TCIMValue(TypeFromNumber(23), 0, {inner}));
  EXPECT_THAT(log.Lines(), ElementsAre("[Error] Core: ERROR: Attempting to create array of type "
                                       "sint32, but element is of type sint32.",
                                       "[Error] Core: ERROR: Attempting to create array of type "
                                       "sint32, but element is of type sint32."));
}

TEST(TCIMValueArray, MessageThatCannotBeSpelledIsItsOwnFailure) {
  LogCapture log;
  TCIMValue value(1);
  EXPECT_STATUS(kQDAStatusTypeMismatch, value.Set(TypeFromNumber(7), 2, {TCIMValue()}));
  EXPECT_EQ(23, Word(value));
  EXPECT_EQ(2u, value.GetMaxArraySize());
  EXPECT_EQ(1u, value.operator std::vector<TCIMValue>&().size());
  EXPECT_STATUS(kQDAStatusTypeMismatch, TCIMValue(TypeFromNumber(0), 0, {TCIMValue(1)}));
  EXPECT_THAT(log.Lines(), IsEmpty());
}

TEST(TCIMValueArray, SetKeepsTheReferencedClass) {
  const SampleValues samples;
  TCIMValue value;
  value.SetReferencedClass(samples.ns->Class("Disk"));
  value.Set(TypeFromNumber(7), 0, {TCIMValue(1)});
  EXPECT_EQ(samples.ns->Class("Disk"), value.GetReferencedClass());
}

TEST(TCIMValueArray, CanBeSetToItsOwnElements) {
  TCIMValue value(TypeFromNumber(7), 3, {TCIMValue(1), TCIMValue(2)});
  const std::vector<TCIMValue>& own = value;
  value.Set(TypeFromNumber(7), 5, own);
  EXPECT_EQ("{ 1, 2 }", value.ToString(10));
  EXPECT_EQ(5u, value.GetMaxArraySize());
}

TEST(TCIMValueArray, EqualElementsAreEqualWhateverTheMaximum) {
  const TCIMValue left(TypeFromNumber(7), 3, {TCIMValue(1), TCIMValue(2)});
  const TCIMValue right(TypeFromNumber(7), 8, {TCIMValue(1), TCIMValue(2)});
  EXPECT_TRUE(left == right);
  EXPECT_FALSE(left != right);
}

TEST(TCIMValueArray, CountAndOrderMatterToEquality) {
  const TCIMValue one(TypeFromNumber(7), 0, {TCIMValue(1)});
  const TCIMValue oneTwo(TypeFromNumber(7), 0, {TCIMValue(1), TCIMValue(2)});
  const TCIMValue twoOne(TypeFromNumber(7), 0, {TCIMValue(2), TCIMValue(1)});
  EXPECT_FALSE(one == oneTwo);
  EXPECT_FALSE(oneTwo == twoOne);
  EXPECT_FALSE(TCIMValue(TypeFromNumber(6), 0, {}) == TCIMValue(TypeFromNumber(7), 0, {}));
}

TEST(TCIMValueArray, ComparisonStopsAtTheFirstInequality) {
  const TCIMValue timestamp(TCIMDateTime(2024, 1, 1, 0, 0, 0, 0, 0));
  const TCIMValue day(TCIMDateTime(1, 0, 0, 0, 0));
  const TCIMValue twoDays(TCIMDateTime(2, 0, 0, 0, 0));
  const TCIMValue left(TypeFromNumber(14), 0, {day, timestamp});
  EXPECT_FALSE(left == TCIMValue(TypeFromNumber(14), 0, {twoDays, day}));
  EXPECT_STATUS(kQDAStatusInvalidDateTime, left == TCIMValue(TypeFromNumber(14), 0, {day, day}));
}

TEST(TCIMValueArray, HaveNoOrder) {
  const TCIMValue left(TypeFromNumber(7), 0, {TCIMValue(1)});
  const TCIMValue right(TypeFromNumber(7), 0, {TCIMValue(2)});
  EXPECT_STATUS(kQDAStatusNotImplemented, left < right);
  EXPECT_STATUS(kQDAStatusNotImplemented, left > right);
  EXPECT_STATUS(kQDAStatusNotImplemented, left <= right);
  EXPECT_STATUS(kQDAStatusNotImplemented, left >= right);
  EXPECT_STATUS(kQDAStatusNotImplemented, left < left);
  EXPECT_STATUS(kQDAStatusNotImplemented, left >= left);
}

TEST(TCIMValueArray, EqualArraysAnswerWhereEqualityIsTestedFirst) {
  const TCIMValue left(TypeFromNumber(7), 0, {TCIMValue(1)});
  const TCIMValue right(TypeFromNumber(7), 6, {TCIMValue(1)});
  EXPECT_FALSE(left > right);
  EXPECT_TRUE(left <= right);
}

TEST(TCIMValueArray, OfDifferentTypesSortByTheirNumbers) {
  const TCIMValue numbers(TypeFromNumber(7), 0, {TCIMValue(9)});
  const TCIMValue texts(TypeFromNumber(13), 0, {TCIMValue("a")});
  EXPECT_TRUE(numbers < texts);
  EXPECT_FALSE(texts < numbers);
}

}  // namespace

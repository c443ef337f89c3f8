// The value handle: how it is made and set, and what it says of itself.

#include <cstdint>
#include <type_traits>

#include <gtest/gtest.h>

#include <qdacore/cim/value/TCIMChar16.h>
#include <qdacore/cim/value/TCIMDateTime.h>
#include <qdacore/cim/value/TCIMValue.h>
#include <tests/cim/RecordingNamespace.h>
#include <tests/support/ExpectStatus.h>

namespace {

using namespace NZRVQDA20;
using cim_test::RecordingNamespace;

typedef TCIMValue::TCIMType TType;

int Word(const TCIMValue& value) { return static_cast<TType::ECIMType>(value.GetType()); }

TType FromNumber(int number) { return TType(static_cast<TType::ECIMType>(number)); }

// Made and set of `argument`, the handle has this type and text.
template <class Argument>
void ExpectTypeAndText(const Argument& argument, int word, const std::string& text) {
  SCOPED_TRACE(text);
  const TCIMValue made(argument);
  TCIMValue set(FromNumber(13), 0);
  set.Set(argument);
  for (const TCIMValue* value : {&made, static_cast<const TCIMValue*>(&set)}) {
    EXPECT_EQ(word, Word(*value));
    EXPECT_FALSE(value->IsNull());
    EXPECT_FALSE(value->IsArray());
    EXPECT_FALSE(value->IsReference());
    EXPECT_EQ(0u, value->GetMaxArraySize());
    EXPECT_FALSE(value->GetReferencedClass());
    EXPECT_EQ(text, value->ToString(10));
  }
}

TEST(TCIMValue, EachArgumentHasItsType) {
  ExpectTypeAndText(true, 1, "true");
  ExpectTypeAndText(static_cast<unsigned char>(200), 2, "200");
  ExpectTypeAndText(static_cast<signed char>(-100), 3, "-100");
  ExpectTypeAndText(static_cast<unsigned short>(60000), 4, "60000");
  ExpectTypeAndText(static_cast<short>(-30000), 5, "-30000");
  ExpectTypeAndText(4000000000u, 6, "4000000000");
  ExpectTypeAndText(-2000000000, 7, "-2000000000");
  ExpectTypeAndText(18446744073709551615ull, 8, "18446744073709551615");
  ExpectTypeAndText(-9223372036854775807ll, 9, "-9223372036854775807");
  ExpectTypeAndText(1.5f, 10, "1.5");
  ExpectTypeAndText(-2.25, 11, "-2.25");
  ExpectTypeAndText(TCIMChar16(65), 12, "65");
  ExpectTypeAndText(std::string("text"), 13, "text");
  ExpectTypeAndText(static_cast<const char*>("chars"), 13, "chars");
  ExpectTypeAndText(TCIMDateTime(2024, 1, 2, 3, 4, 5, 6, 60), 14, "20240102030405.000006+060");
}

TEST(TCIMValue, FixedWidthIntegersWorkOnEveryPlatform) {
  ExpectTypeAndText(std::int64_t{-5}, 9, "-5");
  ExpectTypeAndText(std::uint64_t{5}, 8, "5");
  ExpectTypeAndText(std::int32_t{-5}, 7, "-5");
  ExpectTypeAndText(std::uint32_t{5}, 6, "5");
  const TCIMValue negative(std::int64_t{-5});
  const std::int64_t number = negative;
  EXPECT_EQ(-5, number);
  const TCIMValue positive(std::uint64_t{18446744073709551615ull});
  const std::uint64_t unsignedNumber = positive;
  EXPECT_EQ(18446744073709551615ull, unsignedNumber);
}

#if LONG_MAX > INT_MAX
TEST(TCIMValue, LongStandsForSixtyFourBits) {
  ExpectTypeAndText(-5l, 9, "-5");
  ExpectTypeAndText(5ul, 8, "5");
  const TCIMValue value(LONG_MIN);
  EXPECT_EQ(LONG_MIN, value.operator long());
  EXPECT_EQ(LONG_MIN, value.operator long long());
  EXPECT_EQ(ULONG_MAX, TCIMValue(ULONG_MAX).operator unsigned long());
  EXPECT_EQ(ULLONG_MAX, TCIMValue(ULONG_MAX).operator unsigned long long());
}
#endif

TEST(TCIMValue, NullCharactersAreEmptyText) {
  const char* nothing = nullptr;
  EXPECT_EQ("", TCIMValue(nothing).ToString());
}

TEST(TCIMValue, TextMayHoldAnyBytes) {
  const std::string bytes("\0a\xFF\n\"", 5);
  EXPECT_EQ(bytes, TCIMValue(bytes).ToString());
  EXPECT_EQ(bytes, TCIMValue(bytes).operator std::string());
}

TEST(TCIMValue, DefaultHasNoTypeAndIsNull) {
  const TCIMValue value;
  EXPECT_EQ(0, Word(value));
  EXPECT_TRUE(value.IsNull());
  EXPECT_FALSE(value.IsArray());
  EXPECT_FALSE(value.IsReference());
  EXPECT_EQ(0u, value.GetMaxArraySize());
  EXPECT_FALSE(value.GetReferencedClass());
}

TEST(TCIMValue, TypedNullWithoutMaximumKeepsTheTypeAsGiven) {
  const TCIMValue scalar(FromNumber(7), 0);
  EXPECT_TRUE(scalar.IsNull());
  EXPECT_EQ(7, Word(scalar));
  EXPECT_FALSE(scalar.IsArray());
  EXPECT_FALSE(scalar == TCIMValue());

  const TCIMValue array(FromNumber(23), 0);
  EXPECT_TRUE(array.IsNull());
  EXPECT_EQ(23, Word(array));
  EXPECT_TRUE(array.IsArray());
  EXPECT_EQ(0u, array.GetMaxArraySize());
}

TEST(TCIMValue, TypedNullWithMaximumIsAnArray) {
  for (const int type : {7, 23}) {
    const TCIMValue value(FromNumber(type), 5);
    EXPECT_TRUE(value.IsNull());
    EXPECT_TRUE(value.IsArray());
    EXPECT_EQ(5u, value.GetMaxArraySize());
    EXPECT_EQ(23, Word(value));
  }
  EXPECT_EQ(4294967295u, TCIMValue(FromNumber(7), 4294967295u).GetMaxArraySize());
}

TEST(TCIMValue, IsReferenceMeansAScalarReference) {
  EXPECT_TRUE(TCIMValue(FromNumber(15), 0).IsReference());
  EXPECT_FALSE(TCIMValue(FromNumber(31), 0).IsReference());
  EXPECT_FALSE(TCIMValue(FromNumber(15), 3).IsReference());
  EXPECT_FALSE(TCIMValue("Disk").IsReference());
}

TEST(TCIMValue, SetReplacesWhatWasHeld) {
  TCIMValue value(1);
  value.Set("text");
  EXPECT_EQ("text", value.operator std::string());
  value.Set(true);
  EXPECT_TRUE(value.operator bool());
  EXPECT_EQ(1, Word(value));
}

TEST(TCIMValue, SetNullValueKeepsTheReferencedClassAndAScalarKeepsTheMaximum) {
  const boost::shared_ptr<RecordingNamespace> ns = RecordingNamespace::Create();
  ns->Declare("Disk");
  TCIMValue value;
  value.SetReferencedClass(ns->Class("Disk"));
  value.SetNullValue(FromNumber(22), 7);
  EXPECT_EQ(22, Word(value));
  EXPECT_EQ(7u, value.GetMaxArraySize());
  EXPECT_EQ(ns->Class("Disk"), value.GetReferencedClass());

  value.SetNullValue(TType::kCIMTypeUint32, 9);
  EXPECT_EQ(6, Word(value));
  EXPECT_EQ(7u, value.GetMaxArraySize());
  EXPECT_FALSE(value.IsArray());
  EXPECT_EQ(ns->Class("Disk"), value.GetReferencedClass());

  value.SetNullValue(FromNumber(22), 0);
  EXPECT_EQ(0u, value.GetMaxArraySize());
  EXPECT_EQ(ns->Class("Disk"), value.GetReferencedClass());
}

TEST(TCIMValue, SetNullValueDropsTheValue) {
  TCIMValue value(5);
  value.SetNullValue(TType::kCIMTypeSint32, 0);
  EXPECT_TRUE(value.IsNull());
  EXPECT_STATUS(kQDAStatusValueIsNULL, value.operator int());
  EXPECT_TRUE(value == TCIMValue(FromNumber(7), 0));
  value.Set(6);
  EXPECT_EQ(6, value.operator int());
}

TEST(TCIMValue, ReferencedClassCanBeSetOnlyWhileNull) {
  const boost::shared_ptr<RecordingNamespace> ns = RecordingNamespace::Create();
  ns->Declare("Disk");
  ns->Declare("Fan");
  TCIMValue unset;
  unset.SetReferencedClass(ns->Class("Disk"));
  EXPECT_EQ(ns->Class("Disk"), unset.GetReferencedClass());

  TCIMValue value(FromNumber(15), 0);
  value.SetReferencedClass(ns->Class("Disk"));
  value.SetReferencedClass(ns->Class("Fan"));
  EXPECT_EQ(ns->Class("Fan"), value.GetReferencedClass());

  value.Set(1);
  EXPECT_STATUS(kQDAStatusInvalidOpSequence, value.SetReferencedClass(ns->Class("Disk")));
  EXPECT_EQ(ns->Class("Fan"), value.GetReferencedClass());
  EXPECT_EQ(1, value.operator int());

  value.SetNullValue(TType::kCIMTypeReference, 0);
  value.SetReferencedClass(boost::shared_ptr<ICIMClass>());
  EXPECT_FALSE(value.GetReferencedClass());
}

TEST(TCIMValue, ScalarSetKeepsMaximumAndReferencedClass) {
  const boost::shared_ptr<RecordingNamespace> ns = RecordingNamespace::Create();
  ns->Declare("Disk");
  TCIMValue value(FromNumber(7), 5);
  value.SetReferencedClass(ns->Class("Disk"));
  value.Set(static_cast<unsigned char>(1));
  EXPECT_EQ(2, Word(value));
  EXPECT_FALSE(value.IsArray());
  EXPECT_EQ(5u, value.GetMaxArraySize());
  EXPECT_EQ(ns->Class("Disk"), value.GetReferencedClass());
}

TEST(TCIMValue, HoldsItsReferencedClassAlive) {
  boost::weak_ptr<ICIMClass> watch;
  TCIMValue value(FromNumber(15), 0);
  {
    const boost::shared_ptr<RecordingNamespace> ns = RecordingNamespace::Create();
    ns->Declare("Disk");
    watch = ns->Class("Disk");
    value.SetReferencedClass(ns->Class("Disk"));
  }
  EXPECT_FALSE(watch.expired());
  value = TCIMValue(FromNumber(15), 0);
  EXPECT_TRUE(watch.expired());
}

TEST(TCIMValue, ReleasesItsReferencedClassAtItsEnd) {
  boost::weak_ptr<ICIMClass> watch;
  {
    TCIMValue value(FromNumber(15), 0);
    {
      const boost::shared_ptr<RecordingNamespace> ns = RecordingNamespace::Create();
      ns->Declare("Disk");
      watch = ns->Class("Disk");
      value.SetReferencedClass(ns->Class("Disk"));
    }
    EXPECT_FALSE(watch.expired());
  }
  EXPECT_TRUE(watch.expired());
}

TEST(TCIMValue, ThereIsNoConversionToChar16) {
  EXPECT_FALSE((std::is_convertible<TCIMValue, TCIMChar16>::value));
  EXPECT_EQ("65", TCIMValue(TCIMChar16(65)).ToString());
}

TEST(TCIMValue, HasNoTableOfOperations) { EXPECT_FALSE(std::is_polymorphic<TCIMValue>::value); }

}  // namespace

// Bodies of values that stand in a room: nothing of it shows, and everything ends once.

#include <cstdint>
#include <cstring>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <qdacore/cim/value/TCIMRoom.h>
#include <qdacore/cim/value/TCIMValueImpl.h>
#include <tests/cim/value/SampleValues.h>
#include <tests/support/ExpectStatus.h>

namespace {

using namespace NZRVQDA20;
using cim_test::SampleValues;
using cim_test::TypeFromNumber;

// Bodies are shown to what derives from them.
class Bodies : private TCIMValueImpl {
 public:
  static const TCIMValueImpl* Of(const TCIMValue& value) { return BodyOf(value); }
};

bool StandsInARoom(const TCIMValue& value) { return TCIMRoom::IsIn(Bodies::Of(value)); }

// Char16 values are equal whatever they hold, so the text counts too.
void ExpectSame(const TCIMValue& expected, const TCIMValue& value) {
  EXPECT_EQ(expected, value);
  EXPECT_EQ(expected.GetType(), value.GetType());
  EXPECT_EQ(expected.GetMaxArraySize(), value.GetMaxArraySize());
  EXPECT_EQ(expected.GetReferencedClass(), value.GetReferencedClass());
  if (!expected.IsNull()) {
    EXPECT_EQ(expected.ToString(10), value.ToString(10));
  }
}

TEST(TCIMRoom, AScalarOtherThanAReferenceStandsInIt) {
  const SampleValues samples;
  TCIMRoom room;
  for (int type = 1; type <= 15; ++type) {
    SCOPED_TRACE(type);
    const TCIMValue value(samples.scalars[type - 1], room);
    ExpectSame(samples.scalars[type - 1], value);
    EXPECT_EQ(type != 15, StandsInARoom(value));
  }
}

TEST(TCIMRoom, ArraysReferencesAndNullsAreAsWithoutIt) {
  const SampleValues samples;
  TCIMRoom room;
  for (int type = 1; type <= 15; ++type) {
    SCOPED_TRACE(type);
    const TCIMValue array(samples.ArrayOf(type), room);
    ExpectSame(samples.ArrayOf(type), array);
    EXPECT_FALSE(StandsInARoom(array));
    ExpectSame(TCIMValue(TypeFromNumber(type), 0),
               TCIMValue(TCIMValue(TypeFromNumber(type), 0), room));
    ExpectSame(TCIMValue(TypeFromNumber(type), 7),
               TCIMValue(TCIMValue(TypeFromNumber(type), 7), room));
  }
  EXPECT_EQ(TCIMValue(), TCIMValue(TCIMValue(), room));
  // A type word that nothing checks, with the flag of an array in it.
  for (const int word : {-1, std::numeric_limits<int>::min() + 16}) {
    const TCIMValue strange(TypeFromNumber(word), 0, std::vector<TCIMValue>());
    EXPECT_EQ("{  }", TCIMValue(strange, room).ToString(10));
  }
}

TEST(TCIMRoom, AValueOfNoKnownTypeIsRefusedAsByAnyCopy) {
  TCIMRoom room;
  const TCIMValue strange(TypeFromNumber(99), 0);
  EXPECT_STATUS(kQDAStatusTypeMismatch, TCIMValue(strange, room));
}

TEST(TCIMRoom, ItsValuesDependOnNothingElse) {
  TCIMRoom room;
  const std::string text(100, 'x');
  std::unique_ptr<TCIMValue> source(new TCIMValue(text));
  const TCIMValue value(*source, room);
  source.reset();
  EXPECT_EQ(text, value.ToString(10));
}

TEST(TCIMRoom, ACopyOfItsValueOutlivesIt) {
  const SampleValues samples;
  std::vector<TCIMValue> copies;
  {
    TCIMRoom room;
    for (const TCIMValue& sample : samples.scalars) {
      const TCIMValue value(sample, room);
      copies.push_back(value);
    }
  }
  for (std::size_t at = 0; at < copies.size(); ++at) {
    ExpectSame(samples.scalars[at], copies[at]);
    EXPECT_FALSE(StandsInARoom(copies[at]));
  }
}

TEST(TCIMRoom, ItsValueCanBeSetAnewAndMadeNull) {
  const SampleValues samples;
  TCIMRoom room;
  for (int from = 1; from <= 14; ++from) {
    for (int to = 1; to <= 14; ++to) {
      SCOPED_TRACE(std::to_string(from) + " to " + std::to_string(to));
      TCIMValue value(samples.scalars[from - 1], room);
      value.SetNullValue(value.GetType(), 0);
      EXPECT_TRUE(value.IsNull());
      value.Set(samples.scalars[to - 1]);
      ExpectSame(samples.scalars[to - 1], value);
      EXPECT_FALSE(StandsInARoom(value));
    }
    TCIMValue value(samples.scalars[from - 1], room);
    value = TCIMValue("another");
    EXPECT_EQ("another", value.ToString(10));
  }
}

TEST(TCIMRoom, HasPlaceForAnyNumber) {
  TCIMRoom room;
  std::vector<std::unique_ptr<TCIMValue>> values;
  for (unsigned int number = 0; number < 500; ++number) {
    values.emplace_back(new TCIMValue(TCIMValue(number), room));
    values.emplace_back(new TCIMValue(TCIMValue("text " + std::to_string(number)), room));
  }
  for (unsigned int number = 0; number < 500; ++number) {
    EXPECT_EQ(TCIMValue(number), *values[2 * number]);
    EXPECT_EQ(TCIMValue("text " + std::to_string(number)), *values[2 * number + 1]);
  }
}

TEST(TCIMRoom, PlacesOfEverySizeLieApartAndAreToldFromBlocksOfTheHeap) {
  TCIMRoom room;
  std::vector<unsigned char*> places;
  for (int round = 0; round < 3; ++round) {
    for (std::size_t size = 1; size <= TCIMRoom::kMost; ++size) {
      unsigned char* const place = static_cast<unsigned char*>(room.Take(size));
      EXPECT_EQ(0u, reinterpret_cast<std::uintptr_t>(place) % sizeof(void*));
      EXPECT_TRUE(TCIMRoom::IsIn(place));
      std::memset(place, static_cast<int>(size), size);
      places.push_back(place);
    }
  }
  for (std::size_t at = 0; at < places.size(); ++at) {
    const std::size_t size = at % TCIMRoom::kMost + 1;
    EXPECT_EQ(size, places[at][0]);
    EXPECT_EQ(size, places[at][size - 1]);
  }
  for (std::size_t size = 1; size < 200; ++size) {
    const std::unique_ptr<char[]> block(new char[size]);
    EXPECT_FALSE(TCIMRoom::IsIn(block.get()));
  }
}

}  // namespace

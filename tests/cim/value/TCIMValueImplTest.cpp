// The bodies called directly, behind the checks of the handle: each serves its own conversion
// and compares with its own type only.

#include <functional>
#include <memory>

#include <gtest/gtest.h>

#include <qdacore/cim/value/TCIMArrayValueImpl.h>
#include <qdacore/cim/value/TCIMChar16ValueImpl.h>
#include <qdacore/cim/value/TCIMDateTimeValueImpl.h>
#include <qdacore/cim/value/TCIMNumericValueImpl.h>
#include <qdacore/cim/value/TCIMReferenceValueImpl.h>
#include <qdacore/cim/value/TCIMStringValueImpl.h>
#include <tests/cim/value/SampleValues.h>
#include <tests/support/ExpectStatus.h>

namespace {

using namespace NZRVQDA20;
using cim_test::SampleValues;
using cim_test::TypeFromNumber;

template <class Result>
void Convert(const TCIMValueImpl& body) {
  static_cast<void>(body.operator Result());
}

// In the order of the table of operations, the first at 1.
const std::vector<std::function<void(const TCIMValueImpl&)>> kConversions = {
    Convert<bool>,          Convert<unsigned char>,
    Convert<signed char>,   Convert<unsigned short>,
    Convert<short>,         Convert<unsigned int>,
    Convert<int>,           Convert<unsigned long long>,
    Convert<long long>,     Convert<float>,
    Convert<double>,        Convert<std::string>,
    Convert<TCIMChar16>,    Convert<TCIMDateTime>,
    Convert<TCIMReference>, Convert<std::vector<TCIMValue>&>};

struct Body {
  const char* name;
  // The one conversion that it serves, and its type.
  std::size_t served;
  int type;
  std::shared_ptr<TCIMValueImpl> body;
};

std::vector<Body> AllBodies(const SampleValues& samples) {
  typedef TCIMNumericValueImpl Numeric;
  const TCIMReference reference = samples.scalars[14];
  return {
      {"bool", 1, 1, std::make_shared<Numeric>(true)},
      {"uint8", 2, 2, std::make_shared<Numeric>(static_cast<unsigned char>(2))},
      {"sint8", 3, 3, std::make_shared<Numeric>(static_cast<signed char>(-3))},
      {"uint16", 4, 4, std::make_shared<Numeric>(static_cast<unsigned short>(4))},
      {"sint16", 5, 5, std::make_shared<Numeric>(static_cast<short>(-5))},
      {"uint32", 6, 6, std::make_shared<Numeric>(6u)},
      {"sint32", 7, 7, std::make_shared<Numeric>(-7)},
      {"uint64", 8, 8, std::make_shared<Numeric>(8ull)},
      {"sint64", 9, 9, std::make_shared<Numeric>(-9ll)},
      {"real32", 10, 10, std::make_shared<Numeric>(10.5f)},
      {"real64", 11, 11, std::make_shared<Numeric>(11.5)},
      {"char16", 13, 12, std::make_shared<TCIMChar16ValueImpl>(TCIMChar16(12))},
      {"string", 12, 13, std::make_shared<TCIMStringValueImpl>("thirteen")},
      {"datetime", 14, 14, std::make_shared<TCIMDateTimeValueImpl>(TCIMDateTime(14, 0, 0, 0, 0))},
      {"reference", 15, 15, std::make_shared<TCIMReferenceValueImpl>(reference)},
      {"array", 16, 29,
       std::make_shared<TCIMArrayValueImpl>(
           std::vector<TCIMValue>{samples.scalars[12], samples.scalars[12]})}};
}

TEST(TCIMValueImpl, EachBodyServesOneConversion) {
  const SampleValues samples;
  for (const Body& body : AllBodies(samples)) {
    SCOPED_TRACE(body.name);
    for (std::size_t at = 1; at <= kConversions.size(); ++at) {
      SCOPED_TRACE(at);
      if (at == body.served) {
        EXPECT_NO_THROW(kConversions[at - 1](*body.body));
      } else {
        EXPECT_STATUS(kQDAStatusTypeMismatch, kConversions[at - 1](*body.body));
      }
    }
  }
}

TEST(TCIMValueImpl, BodyAgainstAHandleOfItsOwnValueIsEqual) {
  const SampleValues samples;
  for (const Body& body : AllBodies(samples)) {
    SCOPED_TRACE(body.name);
    const TCIMValue same = body.type == 29 ? samples.ArrayOf(13) : samples.scalars[body.type - 1];
    EXPECT_TRUE(*body.body == same);
    if (body.type == 29) {
      EXPECT_STATUS(kQDAStatusNotImplemented, *body.body < same);
    } else {
      // Each char16 is also less than any other.
      EXPECT_EQ(body.type == 12, *body.body < same);
    }
  }
}

TEST(TCIMValueImpl, HandleOfAnotherTypeIsNeitherEqualNorLess) {
  const SampleValues samples;
  for (const Body& body : AllBodies(samples)) {
    SCOPED_TRACE(body.name);
    std::vector<TCIMValue> handles = samples.scalars;
    for (int type = 1; type <= 15; ++type) {
      handles.push_back(samples.ArrayOf(type));
    }
    handles.push_back(TCIMValue());
    for (const TCIMValue& handle : handles) {
      if (cim_test::Word(handle) == body.type) {
        continue;
      }
      SCOPED_TRACE(cim_test::Word(handle));
      EXPECT_FALSE(*body.body == handle);
      if (body.type == 29) {
        EXPECT_STATUS(kQDAStatusNotImplemented, *body.body < handle);
      } else {
        EXPECT_FALSE(*body.body < handle);
      }
    }
  }
}

TEST(TCIMValueImpl, NullHandleOfItsTypeIsNeitherEqualNorLess) {
  const SampleValues samples;
  for (const Body& body : AllBodies(samples)) {
    SCOPED_TRACE(body.name);
    const TCIMValue null(TypeFromNumber(body.type), 0);
    EXPECT_FALSE(*body.body == null);
    if (body.type != 29) {
      EXPECT_FALSE(*body.body < null);
    }
  }
}

TEST(TCIMValueImpl, Char16BodyGivesOutItsCharacter) {
  const TCIMChar16ValueImpl body(TCIMChar16(65));
  EXPECT_EQ(65, body.operator TCIMChar16().GetValue());
  const TCIMChar16ValueImpl copy(body);
  EXPECT_EQ(65, copy.operator TCIMChar16().GetValue());
  EXPECT_EQ("65", copy.ToString(16));
}

TEST(TCIMValueImpl, StringBodyIsBuiltFromEitherKindOfText) {
  EXPECT_EQ("text", TCIMStringValueImpl("text").operator std::string());
  EXPECT_EQ("text", TCIMStringValueImpl(std::string("text")).operator std::string());
  const TCIMStringValueImpl body("b");
  EXPECT_EQ("b", TCIMStringValueImpl(body).ToString(2));
  EXPECT_TRUE(body < TCIMValue("c"));
  EXPECT_FALSE(body < TCIMValue("B"));
}

TEST(TCIMValueImpl, DateTimeBodyComparesAsItsMember) {
  const TCIMDateTimeValueImpl body(TCIMDateTime(1, 0, 0, 0, 0));
  EXPECT_TRUE(body < TCIMValue(TCIMDateTime(2, 0, 0, 0, 0)));
  EXPECT_STATUS(kQDAStatusInvalidDateTime,
                body == TCIMValue(TCIMDateTime(2024, 1, 1, 0, 0, 0, 0, 0)));
  EXPECT_STATUS(kQDAStatusInvalidDateTime, body < TCIMValue{TCIMDateTime()});
  EXPECT_EQ("00000001000000.000000:000", TCIMDateTimeValueImpl(body).ToString(2));
}

TEST(TCIMValueImpl, ArrayBodyGivesOutTheVectorInside) {
  const TCIMArrayValueImpl body(std::vector<TCIMValue>{TCIMValue(1)});
  body.operator std::vector<TCIMValue>&().push_back(TCIMValue("two"));
  EXPECT_EQ("{ 1, two }", body.ToString(10));
  const TCIMArrayValueImpl copy(body);
  copy.operator std::vector<TCIMValue>&().clear();
  EXPECT_EQ("{  }", copy.ToString(10));
  EXPECT_EQ("{ 1, two }", body.ToString(10));
}

TEST(TCIMValueImpl, ArrayBodyComparesElementsWhateverTheArraysType) {
  const TCIMArrayValueImpl body(std::vector<TCIMValue>{});
  EXPECT_TRUE(body == TCIMValue(TypeFromNumber(7), 0, {}));
  EXPECT_TRUE(body == TCIMValue(TypeFromNumber(13), 4, {}));
  EXPECT_FALSE(body == TCIMValue(TypeFromNumber(7), 0, {TCIMValue(1)}));
}

}  // namespace

#include <gtest/gtest.h>

#include <qdacore/identity/TCIMSchemaHelper.h>
#include <tests/identity/StubNamespace.h>
#include <tests/support/ExpectStatus.h>
#include <tests/support/ScopedEnvironment.h>

namespace {

using namespace NZRVQDA20;
using namespace identity_stub;

struct SerialNumberRow {
  const char* property;
  const char* expected;
};

const SerialNumberRow kSerialNumbers[] = {
    {"KD12345", "KD12345"},
    {"KD12345   ", "KD12345"},
    {"  KD 123 ", "  KD 123"},
    {"KD12345\t ", "KD12345\t"},
    {"    ", ""},
    {"", ""},
};

TEST(GetSerialNumber, IsThePropertyWithoutTrailingSpaces) {
  for (const SerialNumberRow& row : kSerialNumbers) {
    SCOPED_TRACE(row.property);
    OneClass ns("ZRVSG_ComputerSystem", {{{"SerialNumber", TCIMValue(row.property)}}});
    EXPECT_EQ(row.expected, TCIMSchemaHelper::GetSerialNumber(ns));
    EXPECT_EQ(row.property, TCIMSchemaHelper::GetRawSerialNumberString(ns));
  }
}

TEST(GetSerialNumber, FailsAsThePlainQueriesDo) {
  const char kClass[] = "ZRVSG_ComputerSystem";
  OneClass none(kClass, {});
  EXPECT_STATUS(kQDAStatusNotFound, TCIMSchemaHelper::GetSerialNumber(none));
  OneClass two(kClass, {{{"SerialNumber", TCIMValue("A")}}, {{"SerialNumber", TCIMValue("A")}}});
  EXPECT_STATUS(kQDAStatusNotFound, TCIMSchemaHelper::GetSerialNumber(two));
  OneClass noProperty(kClass, {{}});
  EXPECT_STATUS(kQDAStatusNotFound, TCIMSchemaHelper::GetSerialNumber(noProperty));
  OneClass null(kClass, {{{"SerialNumber", TCIMValue(TCIMValue::TCIMType::kCIMTypeString, 0)}}});
  EXPECT_STATUS(kQDAStatusValueIsNULL, TCIMSchemaHelper::GetSerialNumber(null));
  OneClass number(kClass, {{{"SerialNumber", TCIMValue(1)}}});
  EXPECT_STATUS(kQDAStatusTypeMismatch, TCIMSchemaHelper::GetSerialNumber(number));
  test_support::ScopedEnvironment policy("QDA_BOOST_ASSERT", nullptr);
  EXPECT_STATUS(kQDAStatusFail,
                TCIMSchemaHelper::GetSerialNumber(boost::shared_ptr<ICIMNamespace>()));
}

}  // namespace

// The product name that the machine type is read from, and the log line of each failure.

#include <stdexcept>
#include <typeinfo>

#include <gtest/gtest.h>

#include <qdacore/frame/TRootObject.h>
#include <qdacore/identity/TCIMSchemaHelper.h>
#include <qdacore/logging/ILogger.h>
#include <tests/identity/StubNamespace.h>
#include <tests/support/ExpectStatus.h>
#include <tests/support/LogCapture.h>
#include <tests/support/ScopedEnvironment.h>

namespace {

using namespace NZRVQDA20;
using namespace identity_stub;
using namespace test_support;

typedef std::vector<std::string> Lines;

const char kClass[] = "ZRVSG_ComputerSystem";

Properties ProductName(const TCIMValue& value) { return {{"ProductName", value}}; }

TEST(GetRawMTMString, IsTheProductNameUntouched) {
  LogCapture log;
  OneClass ns(kClass, {ProductName(TCIMValue("  any text at all  "))});
  EXPECT_EQ("  any text at all  ", TCIMSchemaHelper::GetRawMTMString(ns));
  EXPECT_EQ((Lines{"GetClass ZRVSG_ComputerSystem {nspID=plugin}", "EnumerateInstances deep {}",
                   "GetProperty ProductName {nspID=plugin}", "GetValue {}"}),
            ns.GetData().calls);
  EXPECT_EQ(Lines(), log.Lines());
}

struct FailureRow {
  const char* what;
  const char* className;
  std::vector<Properties> instances;
  Failure Data::*step;
  TQDAStatusCode::EQDAStatusCode thrown;
  const char* expected;
  Lines lines;
};

TEST(GetRawMTMString, EachFailureHasItsStatusAndItsLine) {
  const TCIMValue text("1234AC1");
  const TCIMValue null(TCIMValue::TCIMType::kCIMTypeString, 0);
  const TCIMValue nullNumber(TCIMValue::TCIMType::kCIMTypeUint32, 0);
  const TCIMValue array(TCIMValue::TCIMType::kCIMTypeString, 0, std::vector<TCIMValue>{text});
  const std::vector<Properties> good = {ProductName(text)};
  const TQDAStatusCode::EQDAStatusCode notFound = TQDAStatusCode::kQDAStatusNotFound;
  const TQDAStatusCode::EQDAStatusCode denied = TQDAStatusCode::kQDAStatusAccessDenied;
  const FailureRow rows[] = {
      {"no class",
       "ZRVSG_Other",
       {},
       nullptr,
       notFound,
       "kQDAStatusNotFound",
       {"[Debug] TCIMSchemaHelper: no computer system"}},
      {"class not found",
       kClass,
       good,
       &Data::getClass,
       notFound,
       "kQDAStatusNotFound",
       {"[Debug] TCIMSchemaHelper: no computer system"}},
      {"class fails otherwise",
       kClass,
       good,
       &Data::getClass,
       denied,
       "kQDAStatusAccessDenied",
       {}},
      {"instances not found",
       kClass,
       good,
       &Data::enumerateInstances,
       notFound,
       "kQDAStatusNotFound",
       {}},
      {"instances fail",
       kClass,
       good,
       &Data::enumerateInstances,
       denied,
       "kQDAStatusAccessDenied",
       {}},
      {"no instance",
       kClass,
       {},
       nullptr,
       notFound,
       "kQDAStatusNotFound",
       {"[Debug] TCIMSchemaHelper: computer system instances != 1"}},
      {"two that agree",
       kClass,
       {ProductName(text), ProductName(text)},
       nullptr,
       notFound,
       "kQDAStatusNotFound",
       {"[Debug] TCIMSchemaHelper: computer system instances != 1"}},
      {"no property",
       kClass,
       {{}},
       nullptr,
       notFound,
       "kQDAStatusNotFound",
       {"[Debug] TCIMSchemaHelper: didn't find ProductName property"}},
      {"property not found",
       kClass,
       good,
       &Data::getProperty,
       notFound,
       "kQDAStatusNotFound",
       {"[Debug] TCIMSchemaHelper: didn't find ProductName property"}},
      {"property fails otherwise",
       kClass,
       good,
       &Data::getProperty,
       denied,
       "kQDAStatusAccessDenied",
       {}},
      {"value fails", kClass, good, &Data::getValue, notFound, "kQDAStatusNotFound", {}},
      {"null",
       kClass,
       {ProductName(null)},
       nullptr,
       notFound,
       "kQDAStatusNotFound",
       {"[Debug] TCIMSchemaHelper: ProductName is NULL"}},
      {"null of another type",
       kClass,
       {ProductName(nullNumber)},
       nullptr,
       notFound,
       "kQDAStatusNotFound",
       {"[Debug] TCIMSchemaHelper: ProductName is NULL"}},
      {"a number",
       kClass,
       {ProductName(TCIMValue(1234))},
       nullptr,
       notFound,
       "kQDAStatusNotFound",
       {"[Debug] TCIMSchemaHelper: ProductName wasn't a string"}},
      {"an array of strings",
       kClass,
       {ProductName(array)},
       nullptr,
       notFound,
       "kQDAStatusNotFound",
       {"[Debug] TCIMSchemaHelper: ProductName wasn't a string"}},
  };
  for (const FailureRow& row : rows) {
    SCOPED_TRACE(row.what);
    LogCapture log;
    OneClass ns(row.className, row.instances);
    if (row.step) {
      ns.GetData().*row.step = Throws(row.thrown);
    }
    EXPECT_EQ(row.expected, ThrownStatus([&] { TCIMSchemaHelper::GetRawMTMString(ns); }));
    EXPECT_EQ(row.lines, log.Lines());
    // Debug lines are written and never kept.
    EXPECT_TRUE(TRootObject::GetCoreLogger()->GetLogEntries().empty());
  }
}

// A copy of the status; the provider's own object ends here, unlike in the plain queries.
TEST(GetRawMTMString, FailureIsThrownAnewWhereItIsLookedAt) {
  for (Failure Data::*step : {&Data::getClass, &Data::getProperty}) {
    OneClass ns(kClass, {ProductName(TCIMValue("1234AC1"))});
    ns.GetData().*step = Throws(TQDAStatusCode::kQDAStatusAccessDenied);
    try {
      TCIMSchemaHelper::GetRawMTMString(ns);
      FAIL() << "nothing thrown";
    } catch (const TQDAException& failure) {
      EXPECT_EQ(typeid(TQDAException), typeid(failure));
      EXPECT_STREQ("kQDAStatusAccessDenied", failure.what());
    }
  }
}

TEST(GetRawMTMString, OtherExceptionsPass) {
  for (Failure Data::*step :
       {&Data::getClass, &Data::enumerateInstances, &Data::getProperty, &Data::getValue}) {
    OneClass ns(kClass, {ProductName(TCIMValue("1234AC1"))});
    ns.GetData().*step = [] { throw std::length_error("too long"); };
    EXPECT_THROW(TCIMSchemaHelper::GetRawMTMString(ns), std::length_error);
  }
}

TEST(GetRawMTMString, NullNamespaceIsAFailedAssertion) {
  ScopedEnvironment policy("QDA_BOOST_ASSERT", nullptr);
  LogCapture log;
  EXPECT_STATUS(kQDAStatusFail,
                TCIMSchemaHelper::GetRawMTMString(boost::shared_ptr<ICIMNamespace>()));
  EXPECT_EQ(Lines(), log.Lines());
}

TEST(GetRawMTMString, NeedsNoLogger) {
  ASSERT_EQ(nullptr, TRootObject::GetCoreLogger());
  OneClass none(kClass, {});
  EXPECT_STATUS(kQDAStatusNotFound, TCIMSchemaHelper::GetRawMTMString(none));
}

}  // namespace

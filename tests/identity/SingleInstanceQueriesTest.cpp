// The plain queries: one property of the one instance of a class.

#include <stdexcept>

#include <gtest/gtest.h>

#include <qdacore/frame/TRootObject.h>
#include <qdacore/identity/TCIMSchemaHelper.h>
#include <tests/identity/StubNamespace.h>
#include <tests/support/ExpectStatus.h>
#include <tests/support/LogCapture.h>
#include <tests/support/ScopedEnvironment.h>

namespace {

using namespace NZRVQDA20;
using namespace identity_stub;
using namespace test_support;

typedef boost::shared_ptr<ICIMNamespace> Namespace;
typedef std::vector<std::string> Calls;

struct QueryRow {
  const char* name;
  std::string (*query)(Namespace);
  const char* className;
  const char* property;
};

const QueryRow kQueries[] = {
    {"GetSystemName", TCIMSchemaHelper::GetSystemName, "ZRVSG_ComputerSystem", "Name"},
    {"GetSystemProductName", TCIMSchemaHelper::GetSystemProductName, "ZRVSG_ComputerSystem",
     "ProductName"},
    {"GetOperatingSystemName", TCIMSchemaHelper::GetOperatingSystemName, "ZRVSG_OperatingSystem",
     "Name"},
    {"GetOperatingSystemVersion", TCIMSchemaHelper::GetOperatingSystemVersion,
     "ZRVSG_OperatingSystem", "Version"},
    {"GetRawSerialNumberString", TCIMSchemaHelper::GetRawSerialNumberString, "ZRVSG_ComputerSystem",
     "SerialNumber"},
};

TEST(SingleInstanceQueries, AskForOnePropertyOfOneInstance) {
  for (const QueryRow& row : kQueries) {
    SCOPED_TRACE(row.name);
    OneClass ns(row.className, {{{row.property, TCIMValue("  the value ")}}});
    EXPECT_EQ("  the value ", row.query(ns));
    EXPECT_EQ(
        (Calls{std::string("GetClass ") + row.className + " {nspID=plugin}",
               "EnumerateInstances deep {}",
               std::string("GetProperty ") + row.property + " {nspID=plugin}", "GetValue {}"}),
        ns.GetData().calls);
  }
}

TEST(SingleInstanceQueries, NoInstanceOrSeveralIsNotFound) {
  for (const QueryRow& row : kQueries) {
    SCOPED_TRACE(row.name);
    const Properties instance = {{row.property, TCIMValue("x")}};
    OneClass none(row.className, {});
    EXPECT_STATUS(kQDAStatusNotFound, row.query(none));
    OneClass two(row.className, {instance, instance});
    EXPECT_STATUS(kQDAStatusNotFound, row.query(two));
    EXPECT_EQ(2u, two.GetData().calls.size());
  }
}

TEST(SingleInstanceQueries, ValueThatIsNoStringFailsAsItsConversionDoes) {
  for (const QueryRow& row : kQueries) {
    SCOPED_TRACE(row.name);
    OneClass null(row.className,
                  {{{row.property, TCIMValue(TCIMValue::TCIMType::kCIMTypeString, 0)}}});
    EXPECT_STATUS(kQDAStatusValueIsNULL, row.query(null));
    OneClass number(row.className, {{{row.property, TCIMValue(7)}}});
    EXPECT_STATUS(kQDAStatusTypeMismatch, row.query(number));
  }
}

TEST(SingleInstanceQueries, AbsentClassOrPropertyIsNotFound) {
  for (const QueryRow& row : kQueries) {
    SCOPED_TRACE(row.name);
    OneClass otherClass("ZRVSG_Other", {{{row.property, TCIMValue("x")}}});
    EXPECT_STATUS(kQDAStatusNotFound, row.query(otherClass));
    OneClass otherProperty(row.className, {{{"Other", TCIMValue("x")}}});
    EXPECT_STATUS(kQDAStatusNotFound, row.query(otherProperty));
  }
}

// The very object, with its own type, and whatever the status.
TEST(SingleInstanceQueries, ProvidersFailurePassesUnchanged) {
  for (const QueryRow& row : kQueries) {
    for (Failure Data::*step :
         {&Data::getClass, &Data::enumerateInstances, &Data::getProperty, &Data::getValue}) {
      SCOPED_TRACE(row.name);
      OneClass ns(row.className, {{{row.property, TCIMValue("x")}}});
      ns.GetData().*step = Throws(TQDAStatusCode::kQDAStatusConnectionFailed);
      EXPECT_THROW(row.query(ns), ProviderFailure);
      EXPECT_STATUS(kQDAStatusConnectionFailed, row.query(ns));
      ns.GetData().*step = [] { throw std::length_error("too long"); };
      EXPECT_THROW(row.query(ns), std::length_error);
    }
  }
}

TEST(SingleInstanceQueries, NullNamespaceIsAFailedAssertion) {
  ScopedEnvironment policy("QDA_BOOST_ASSERT", nullptr);
  for (const QueryRow& row : kQueries) {
    SCOPED_TRACE(row.name);
    EXPECT_STATUS(kQDAStatusFail, row.query(Namespace()));
  }
  EXPECT_STATUS(kQDAStatusFail, TCIMSchemaHelper::GetOperatingSystemType(Namespace()));
}

TEST(SingleInstanceQueries, LogNothing) {
  LogCapture log;
  for (const QueryRow& row : kQueries) {
    OneClass none(row.className, {});
    EXPECT_STATUS(kQDAStatusNotFound, row.query(none));
    OneClass noProperty(row.className, {{}});
    EXPECT_STATUS(kQDAStatusNotFound, row.query(noProperty));
    OneClass noClass("ZRVSG_Other", {});
    EXPECT_STATUS(kQDAStatusNotFound, row.query(noClass));
  }
  EXPECT_EQ(Calls(), log.Lines());
}

TEST(GetOperatingSystemType, IsTheNumberAsItStands) {
  for (const unsigned short type : {0, 1, 36, 110, 65535}) {
    OneClass ns("ZRVSG_OperatingSystem", {{{"OSType", TCIMValue(type)}}});
    EXPECT_EQ(type, TCIMSchemaHelper::GetOperatingSystemType(ns));
    EXPECT_EQ((Calls{"GetClass ZRVSG_OperatingSystem {nspID=plugin}", "EnumerateInstances deep {}",
                     "GetProperty OSType {nspID=plugin}", "GetValue {}"}),
              ns.GetData().calls);
  }
}

TEST(GetOperatingSystemType, FailsLikeTheOthers) {
  const char kClass[] = "ZRVSG_OperatingSystem";
  OneClass none(kClass, {});
  EXPECT_STATUS(kQDAStatusNotFound, TCIMSchemaHelper::GetOperatingSystemType(none));
  OneClass two(kClass, {{}, {}});
  EXPECT_STATUS(kQDAStatusNotFound, TCIMSchemaHelper::GetOperatingSystemType(two));
  OneClass wide(kClass, {{{"OSType", TCIMValue(36)}}});
  EXPECT_STATUS(kQDAStatusTypeMismatch, TCIMSchemaHelper::GetOperatingSystemType(wide));
  OneClass null(kClass, {{{"OSType", TCIMValue(TCIMValue::TCIMType::kCIMTypeUint16, 0)}}});
  EXPECT_STATUS(kQDAStatusValueIsNULL, TCIMSchemaHelper::GetOperatingSystemType(null));
}

TEST(CreationClassNames, AreConstantsThatNeedNoNamespace) {
  EXPECT_EQ("ZRVSG_ComputerSystem", TCIMSchemaHelper::GetSystemCreationClassName(Namespace()));
  EXPECT_EQ("ZRVSG_OperatingSystem",
            TCIMSchemaHelper::GetOperatingSystemCreationClassName(Namespace()));
  OneClass ns("ZRVSG_ComputerSystem", {});
  EXPECT_EQ("ZRVSG_ComputerSystem", TCIMSchemaHelper::GetSystemCreationClassName(ns));
  EXPECT_EQ("ZRVSG_OperatingSystem", TCIMSchemaHelper::GetOperatingSystemCreationClassName(ns));
  EXPECT_EQ(Calls(), ns.GetData().calls);
}

}  // namespace

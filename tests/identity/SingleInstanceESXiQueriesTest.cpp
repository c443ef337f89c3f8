// The queries for a VMware ESXi host: the first instance that can tell, or "Unknown".

#include <stdexcept>

#include <gtest/gtest.h>

#include <qdacore/frame/TBoostAssertException.h>
#include <qdacore/identity/TCIMSchemaHelper.h>
#include <tests/identity/StubNamespace.h>
#include <tests/support/LogCapture.h>
#include <tests/support/ScopedEnvironment.h>

namespace {

using namespace NZRVQDA20;
using namespace identity_stub;
using namespace test_support;

typedef boost::shared_ptr<ICIMNamespace> Namespace;
typedef std::vector<std::string> Calls;

Properties Model(const char* text) { return {{"Model", TCIMValue(text)}}; }

const TCIMValue kNullString(TCIMValue::TCIMType::kCIMTypeString, 0);

struct ModelRow {
  const char* what;
  std::vector<Properties> instances;
  const char* expected;
};

TEST(GetSystemProductNameESXi, IsTheFirstModelWithBothBrackets) {
  const ModelRow rows[] = {
      {"later one, whole", {Model("M2"), Model("M1 -[1357AC1]- X")}, "M1 -[1357AC1]- X"},
      {"first of two", {Model("-[A]-"), Model("-[B]-")}, "-[A]-"},
      {"only an opening one", {Model("x -[A")}, "Unknown"},
      {"only a closing one", {Model("A]- x")}, "Unknown"},
      {"in either order", {Model("]- and -[")}, "]- and -["},
      {"sharing a character", {Model("]-[")}, "]-["},
      {"apart in two instances", {Model("-["), Model("]-")}, "Unknown"},
      {"null is passed over", {{{"Model", kNullString}}, Model("-[A]-")}, "-[A]-"},
      {"no such property is passed over", {{}, Model("-[A]-")}, "-[A]-"},
      {"no instance", {}, "Unknown"},
      {"only a number", {{{"Model", TCIMValue(7)}}}, "Unknown"},
      {"spaces stay", {Model("  -[A]-  ")}, "  -[A]-  "},
  };
  for (const ModelRow& row : rows) {
    SCOPED_TRACE(row.what);
    OneClass ns("CIM_PhysicalElement", row.instances);
    EXPECT_EQ(row.expected, TCIMSchemaHelper::GetSystemProductName_vmwesxi(ns));
  }
}

struct FirstTextRow {
  const char* name;
  std::string (*query)(Namespace);
  const char* className;
  const char* property;
};

const FirstTextRow kFirstTexts[] = {
    {"operating system", TCIMSchemaHelper::GetOperatingSystemName_vmwesxi,
     "VMware_HypervisorSoftwareIdentity", "LargeBuildNumber"},
    {"serial number", TCIMSchemaHelper::GetSerialNumber_vmwesxi, "OMC_Chassis", "SerialNumber"},
};

TEST(ESXiQueries, TakeTheTextOfTheFirstInstanceThatHasIt) {
  for (const FirstTextRow& row : kFirstTexts) {
    SCOPED_TRACE(row.name);
    const TCIMValue big(18446744073709551615ULL);
    OneClass ns(row.className, {{},
                                {{row.property, kNullString}},
                                {{row.property, big}},
                                {{row.property, TCIMValue("later")}}});
    EXPECT_EQ("18446744073709551615", row.query(ns));
    // No test of the text.
    OneClass empty(row.className,
                   {{{row.property, TCIMValue("")}}, {{row.property, TCIMValue("later")}}});
    EXPECT_EQ("", row.query(empty));
    OneClass none(row.className, {});
    EXPECT_EQ("Unknown", row.query(none));
    OneClass withoutProperty(row.className, {{}, {}});
    EXPECT_EQ("Unknown", row.query(withoutProperty));
  }
}

TEST(ESXiQueries, AskInOrderAndStopAtTheFirstAnswer) {
  OneClass models("CIM_PhysicalElement", {Model("M2"), {}, Model("-[A]-"), Model("-[B]-")});
  TCIMSchemaHelper::GetSystemProductName_vmwesxi(models);
  EXPECT_EQ(
      (Calls{"GetClass CIM_PhysicalElement {nspID=plugin}", "EnumerateInstances deep {}",
             "GetProperty Model {nspID=plugin}", "ToString", "GetProperty Model {nspID=plugin}",
             "GetProperty Model {nspID=plugin}", "ToString"}),
      models.GetData().calls);

  for (const FirstTextRow& row : kFirstTexts) {
    SCOPED_TRACE(row.name);
    const Properties instance = {{row.property, TCIMValue("text")}};
    OneClass ns(row.className, {instance, instance});
    EXPECT_EQ("text", row.query(ns));
    EXPECT_EQ((Calls{std::string("GetClass ") + row.className + " {nspID=plugin}",
                     "EnumerateInstances deep {}",
                     std::string("GetProperty ") + row.property + " {nspID=plugin}", "ToString"}),
              ns.GetData().calls);
  }
}

std::vector<FirstTextRow> AllQueries() {
  return {{"product name", TCIMSchemaHelper::GetSystemProductName_vmwesxi, "CIM_PhysicalElement",
           "Model"},
          kFirstTexts[0],
          kFirstTexts[1]};
}

TEST(ESXiQueries, EveryFailureReadsUnknownAndLogsNothing) {
  LogCapture log;
  for (const FirstTextRow& row : AllQueries()) {
    SCOPED_TRACE(row.name);
    OneClass noClass("CIM_Other", {});
    EXPECT_EQ("Unknown", row.query(noClass));
    for (Failure Data::*step : {&Data::getClass, &Data::enumerateInstances, &Data::getProperty}) {
      OneClass ns(row.className, {{{row.property, TCIMValue("-[A]-")}}});
      ns.GetData().*step = Throws(TQDAStatusCode::kQDAStatusConnectionFailed);
      EXPECT_EQ("Unknown", row.query(ns));
    }
  }
  EXPECT_EQ(Calls(), log.Lines());
}

// A failed assertion is a status too, unless it was asked to be something else.
TEST(ESXiQueries, NullNamespaceIsUnknownUnderTheDefaultPolicy) {
  for (const FirstTextRow& row : AllQueries()) {
    SCOPED_TRACE(row.name);
    {
      ScopedEnvironment policy("QDA_BOOST_ASSERT", nullptr);
      EXPECT_EQ("Unknown", row.query(Namespace()));
    }
    ScopedEnvironment policy("QDA_BOOST_ASSERT", "throwboost");
    EXPECT_THROW(row.query(Namespace()), TBoostAssertException);
  }
}

TEST(ESXiQueries, OtherExceptionsPass) {
  for (const FirstTextRow& row : AllQueries()) {
    for (Failure Data::*step : {&Data::getClass, &Data::enumerateInstances, &Data::getProperty}) {
      SCOPED_TRACE(row.name);
      OneClass ns(row.className, {{{row.property, TCIMValue("-[A]-")}}});
      ns.GetData().*step = [] { throw std::length_error("too long"); };
      EXPECT_THROW(row.query(ns), std::length_error);
    }
  }
}

}  // namespace

// The version of what made a namespace.

#include <stdexcept>

#include <gtest/gtest.h>

#include <qdacore/frame/TBoostAssertException.h>
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
typedef std::map<std::string, TCIMValue> Context;

const char kProduct[] = "ZRVSG_QDAProduct";
const char kMajorLine[] = "[Debug] TCIMSchemaHelper::GetDataSourceMajorVersion - Throwing";

// Given to the questions, to see what becomes of it.
Context Caller() { return {{"nspID", TCIMValue("cmpi")}, {"own", TCIMValue("1")}}; }

struct Splitter {
  const char* name;
  std::string (*ask)(Namespace);
};

const Splitter kMajor = {"major", [](Namespace ns) {
                           return TCIMSchemaHelper::GetDataSourceMajorVersion(ns, Context());
                         }};
const Splitter kMinor = {"minor", [](Namespace ns) {
                           return TCIMSchemaHelper::GetDataSourceMinorVersion(ns, Context());
                         }};
const Splitter kBuildVersion = {
    "build version", [](Namespace ns) { return TCIMSchemaHelper::GetDataSourceBuildVersion(ns); }};

// A null expectation is kQDAStatusNotFound.
struct VersionRow {
  const char* version;
  const char* major;
  const char* minor;
  const char* buildVersion;
};

const VersionRow kVersions[] = {
    {"2.05.9", "2", "05", "9"},
    {"2.05", "2", nullptr, "05"},
    {"2", nullptr, nullptr, nullptr},
    {"1.2.3.4", "1", "2", "4"},
    {"", nullptr, nullptr, nullptr},
    {".", "", nullptr, ""},
    {"..", "", "", ""},
    {"7.", "7", nullptr, ""},
    {"1..2", "1", "", "2"},
    {"a b.c d.e", "a b", "c d", "e"},
};

void ExpectField(const Splitter& splitter, const VersionRow& row, const char* expected) {
  SCOPED_TRACE(std::string(splitter.name) + " of \"" + row.version + "\"");
  OneClass ns(kProduct, {{{"Version", TCIMValue(row.version)}}});
  if (expected) {
    EXPECT_EQ(expected, splitter.ask(ns));
  } else {
    EXPECT_STATUS(kQDAStatusNotFound, splitter.ask(ns));
  }
}

TEST(DataSourceVersion, FieldsAreTextBetweenDots) {
  for (const VersionRow& row : kVersions) {
    ExpectField(kMajor, row, row.major);
    ExpectField(kMinor, row, row.minor);
    ExpectField(kBuildVersion, row, row.buildVersion);
  }
}

TEST(DataSourceVersion, OnlyTheMajorFieldLogsAMissingDot) {
  OneClass ns(kProduct, {{{"Version", TCIMValue("2")}}});
  {
    LogCapture log;
    EXPECT_STATUS(kQDAStatusNotFound, kMinor.ask(ns));
    EXPECT_STATUS(kQDAStatusNotFound, kBuildVersion.ask(ns));
    EXPECT_EQ(Calls(), log.Lines());
    EXPECT_STATUS(kQDAStatusNotFound, kMajor.ask(ns));
    EXPECT_EQ(Calls{kMajorLine}, log.Lines());
  }
  LogCapture log;
  OneClass empty(kProduct, {});
  EXPECT_STATUS(kQDAStatusNotFound, kMajor.ask(empty));
  EXPECT_EQ(Calls(), log.Lines());
}

TEST(DataSourceVersion, LastOfSeveralRecordsCounts) {
  OneClass ns(kProduct, {{{"Version", TCIMValue("1.0")}}, {{"Version", TCIMValue("2.0")}}});
  EXPECT_EQ("2.0", TCIMSchemaHelper::GetDataSourceVersion(ns, Context()));
}

TEST(DataSourceVersion, NamesThePluginProviderInTheContextItIsGiven) {
  OneClass ns(kProduct, {{{"Version", TCIMValue("1.0")}}});
  TCIMSchemaHelper::GetDataSourceVersion(ns, Caller());
  EXPECT_EQ((Calls{"GetClass ZRVSG_QDAProduct {nspID=pluginown=1}", "EnumerateInstances deep {}",
                   "GetProperty Version {nspID=pluginown=1}", "GetValue {}"}),
            ns.GetData().calls);
}

TEST(DataSourceVersion, BuildVersionHasNoContextOfTheCallers) {
  OneClass ns(kProduct, {{{"Version", TCIMValue("1.0")}}});
  EXPECT_EQ("0", TCIMSchemaHelper::GetDataSourceBuildVersion(ns));
  EXPECT_EQ("GetClass ZRVSG_QDAProduct {nspID=plugin}", ns.GetData().calls.at(0));
}

TEST(DataSourceVersion, MajorAndMinorHandTheContextOn) {
  OneClass ns(kProduct, {{{"Version", TCIMValue("1.2.3")}}});
  TCIMSchemaHelper::GetDataSourceMajorVersion(ns, Caller());
  TCIMSchemaHelper::GetDataSourceMinorVersion(ns, Caller());
  ASSERT_EQ(8u, ns.GetData().calls.size());
  for (const std::size_t call : {0, 4}) {
    EXPECT_EQ("GetClass ZRVSG_QDAProduct {nspID=pluginown=1}", ns.GetData().calls[call]);
  }
}

TEST(DataSourceVersion, AbsenceIsNotFound) {
  OneClass noClass("ZRVSG_Other", {});
  OneClass noInstance(kProduct, {});
  OneClass noProperty(kProduct, {{}});
  for (OneClass* ns : {&noClass, &noInstance, &noProperty}) {
    EXPECT_STATUS(kQDAStatusNotFound, TCIMSchemaHelper::GetDataSourceVersion(*ns, Context()));
    for (const Splitter& splitter : {kMajor, kMinor, kBuildVersion}) {
      EXPECT_STATUS(kQDAStatusNotFound, splitter.ask(*ns));
    }
  }
}

TEST(DataSourceVersion, ValueThatIsNoStringFailsAsItsConversionDoes) {
  OneClass null(kProduct, {{{"Version", TCIMValue(TCIMValue::TCIMType::kCIMTypeString, 0)}}});
  EXPECT_STATUS(kQDAStatusValueIsNULL, TCIMSchemaHelper::GetDataSourceVersion(null, Context()));
  OneClass number(kProduct, {{{"Version", TCIMValue(2)}}});
  EXPECT_STATUS(kQDAStatusTypeMismatch, TCIMSchemaHelper::GetDataSourceVersion(number, Context()));
}

TEST(DataSourceVersion, ProvidersFailurePassesUnchanged) {
  for (Failure Data::*step :
       {&Data::getClass, &Data::enumerateInstances, &Data::getProperty, &Data::getValue}) {
    OneClass ns(kProduct, {{{"Version", TCIMValue("1.2.3")}}});
    ns.GetData().*step = Throws(TQDAStatusCode::kQDAStatusConnectionFailed);
    EXPECT_THROW(TCIMSchemaHelper::GetDataSourceVersion(ns, Context()), ProviderFailure);
    for (const Splitter& splitter : {kMajor, kMinor, kBuildVersion}) {
      EXPECT_THROW(splitter.ask(ns), ProviderFailure);
    }
  }
}

TEST(DataSourceBuild, FirstRecordThatHasOneAnswers) {
  OneClass ns(kProduct, {{{"Version", TCIMValue("1")}},
                         {{"Build", TCIMValue(static_cast<unsigned int>(4711))}},
                         {{"Build", TCIMValue(static_cast<unsigned int>(4712))}}});
  EXPECT_EQ("4711", TCIMSchemaHelper::GetDataSourceBuild(ns, Context()));
}

TEST(DataSourceBuild, NumberIsDecimalWhateverItsType) {
  const TCIMValue builds[] = {TCIMValue(static_cast<unsigned char>(77)),
                              TCIMValue(static_cast<signed char>(77)),
                              TCIMValue(static_cast<unsigned short>(77)),
                              TCIMValue(static_cast<short>(77)),
                              TCIMValue(77u),
                              TCIMValue(77),
                              TCIMValue(77ull),
                              TCIMValue(77ll),
                              TCIMValue("77")};
  for (const TCIMValue& build : builds) {
    OneClass ns(kProduct, {{{"Build", build}}});
    EXPECT_EQ("77", TCIMSchemaHelper::GetDataSourceBuild(ns, Context()));
  }
}

TEST(DataSourceBuild, ContextIsUsedAsGiven) {
  OneClass ns(kProduct, {{{"Build", TCIMValue(1u)}}});
  TCIMSchemaHelper::GetDataSourceBuild(ns, Caller());
  EXPECT_EQ((Calls{"GetClass ZRVSG_QDAProduct {nspID=cmpiown=1}", "EnumerateInstances deep {}",
                   "GetProperty Build {nspID=cmpiown=1}", "GetValue {}"}),
            ns.GetData().calls);
}

TEST(DataSourceBuild, AbsenceIsAnEmptyText) {
  OneClass noClass("ZRVSG_Other", {});
  OneClass noInstance(kProduct, {});
  OneClass noProperty(kProduct, {{}, {}});
  OneClass null(kProduct, {{{"Build", TCIMValue(TCIMValue::TCIMType::kCIMTypeUint32, 0)}}});
  for (OneClass* ns : {&noClass, &noInstance, &noProperty, &null}) {
    EXPECT_EQ("", TCIMSchemaHelper::GetDataSourceBuild(*ns, Context()));
  }
}

TEST(DataSourceBuild, NoFailureOfTheProviderLeavesIt) {
  for (Failure Data::*step : {&Data::enumerateInstances, &Data::getProperty, &Data::getValue}) {
    OneClass ns(kProduct, {{{"Build", TCIMValue(1u)}}});
    ns.GetData().*step = Throws(TQDAStatusCode::kQDAStatusConnectionFailed);
    EXPECT_EQ("", TCIMSchemaHelper::GetDataSourceBuild(ns, Context()));
  }
}

// What is no failure of the library's kind is not held back.
TEST(DataSourceBuild, OtherExceptionsPass) {
  for (Failure Data::*step :
       {&Data::getClass, &Data::enumerateInstances, &Data::getProperty, &Data::getValue}) {
    OneClass ns(kProduct, {{{"Build", TCIMValue(1u)}}});
    ns.GetData().*step = [] { throw std::length_error("too long"); };
    EXPECT_THROW(TCIMSchemaHelper::GetDataSourceBuild(ns, Context()), std::length_error);
  }
}

TEST(DataSourceBuild, ClassThatFailsOtherwiseIsAFailedAssertion) {
  OneClass ns(kProduct, {{{"Build", TCIMValue(1u)}}});
  ns.GetData().getClass = Throws(TQDAStatusCode::kQDAStatusConnectionFailed);
  {
    ScopedEnvironment policy("QDA_BOOST_ASSERT", nullptr);
    EXPECT_EQ("", TCIMSchemaHelper::GetDataSourceBuild(ns, Context()));
  }
  ScopedEnvironment policy("QDA_BOOST_ASSERT", "throwboost");
  EXPECT_THROW(TCIMSchemaHelper::GetDataSourceBuild(ns, Context()), TBoostAssertException);
}

TEST(DataSource, NullNamespaceIsAFailedAssertion) {
  ScopedEnvironment policy("QDA_BOOST_ASSERT", "throwboost");
  EXPECT_THROW(TCIMSchemaHelper::GetDataSourceVersion(Namespace(), Context()),
               TBoostAssertException);
  EXPECT_THROW(TCIMSchemaHelper::GetDataSourceBuild(Namespace(), Context()), TBoostAssertException);
}

}  // namespace

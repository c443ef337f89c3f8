// The smaller parser, for the model text of a VMware ESXi host.

#include <gtest/gtest.h>

#include <qdacore/identity/TCIMSchemaHelper.h>
#include <tests/identity/StubNamespace.h>
#include <tests/support/LogCapture.h>

namespace {

using namespace NZRVQDA20;
using namespace identity_stub;
using namespace test_support;

struct ESXiRow {
  const char* model;
  const char* expected;
};

// A text without both brackets never comes as far as the parser: the query before it gives
// "Unknown" then.
const ESXiRow kModels[] = {
    {"M1 -[1357AC1]- X", "1357AC1"},
    {"-[1357AC1]-", "1357AC1"},
    {"-[any text, unchecked]-", "any text, unchecked"},
    {"-[ ]-", " "},
    {"-[]-", "Unknown"},
    {"]- -[1357AC1", "Unknown"},
    {"]- -[1357AC1]-", "Unknown"},
    {"]-[1357AC1", "Unknown"},
    {"-[A]- -[B]-", "A"},
    {"-[-[A]-", "-[A"},
    {"x-[A]-]-", "A"},
    {"no brackets", "Unknown"},
    {"-[1357AC1]", "Unknown"},
    {"1357AC1]-", "Unknown"},
    {"", "Unknown"},
};

TEST(GetMTMESXi, IsWhatStandsBetweenTheBrackets) {
  LogCapture log;
  for (const ESXiRow& row : kModels) {
    SCOPED_TRACE(row.model);
    OneClass ns("CIM_PhysicalElement", {{{"Model", TCIMValue(row.model)}}});
    EXPECT_EQ(row.expected, TCIMSchemaHelper::GetMTM_vmwesxi(ns));
  }
  EXPECT_TRUE(log.Lines().empty());
}

TEST(GetMTMESXi, NamespaceWithoutTheClassIsUnknown) {
  OneClass ns("ZRVSG_ComputerSystem", {{{"ProductName", TCIMValue("1234AC1")}}});
  EXPECT_EQ("Unknown", TCIMSchemaHelper::GetMTM_vmwesxi(ns));
  EXPECT_EQ("Unknown", TCIMSchemaHelper::GetMTM_vmwesxi(boost::shared_ptr<ICIMNamespace>()));
}

}  // namespace

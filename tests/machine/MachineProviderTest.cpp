#include <plugins/machine/MachineProvider.h>

#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <boost/function.hpp>

#include <qdacore/cim/object/ICIMClass.h>
#include <qdacore/cim/object/ICIMNamespace.h>
#include <qdacore/identity/TCIMSchemaHelper.h>
#include <smbios/SmbiosFields.h>
#include <smbios/sample/TableBuilder.h>
#include <smbios/smbios.h>
#include <tests/support/ExpectStatus.h>
#include <tests/support/LogCapture.h>
#include <tests/support/ScopedEnvironment.h>
#include <tests/support/TemporaryFolder.h>

namespace {

using machine::MachineProvider;
using smbios::sample::Bytes;
using smbios::sample::StructureBuilder;
using smbios::sample::TableBuilder;
using test_support::LogCapture;
using test_support::ScopedEnvironment;
using test_support::TemporaryFolder;
using test_support::ThrownStatus;
using namespace NZRVQDA20;

typedef std::map<std::string, TCIMValue> Context;
typedef std::vector<std::string> Lines;

const char kVariable[] = "QDA_SMBIOS_DUMP";

std::string TextOf(const Bytes& bytes) { return std::string(bytes.begin(), bytes.end()); }

TEST(MachineProviderTest, IsCalledMachine) {
  EXPECT_EQ("machine", MachineProvider().GetName(Context()));
}

TEST(MachineProviderTest, ServesWhatTheTableSays) {
  const LogCapture log;
  const ScopedEnvironment dump(kVariable, SMBIOS_SAMPLE_FILE);
  const boost::shared_ptr<ICIMNamespace> ns = MachineProvider().GetNamespace(Context());
  EXPECT_EQ("1234AC1", TCIMSchemaHelper::GetMTM(ns));
  EXPECT_EQ("KD7Z042", TCIMSchemaHelper::GetSerialNumber(ns));
  EXPECT_EQ("ZRV Tserver k7265-[1234AC1]", TCIMSchemaHelper::GetSystemProductName(ns));
  EXPECT_EQ((Lines{"[Debug] TCIMSchemaHelper- Detected MTM 1234AC1"}), log.Lines());
}

TEST(MachineProviderTest, ReadsItsFactsOnce) {
  MachineProvider provider;
  boost::shared_ptr<ICIMNamespace> first;
  {
    const ScopedEnvironment dump(kVariable, SMBIOS_SAMPLE_FILE);
    first = provider.GetNamespace(Context());
  }
  const ScopedEnvironment dump(kVariable, "there is no such file");
  EXPECT_EQ(first, provider.GetNamespace(Context()));
}

Context Scoped(const TCIMValue& scope) {
  Context context;
  context["scope"] = scope;
  return context;
}

std::vector<std::string> ClassesOf(const boost::shared_ptr<ICIMNamespace>& ns) {
  std::vector<std::string> names;
  boost::function<bool(boost::shared_ptr<ICIMClass>)> collect =
      [&names](boost::shared_ptr<ICIMClass> cls) {
        names.push_back(cls->GetName(Context()));
        return true;
      };
  ns->EnumerateClasses(collect, Context());
  return names;
}

TEST(MachineProviderScope, OfTheSystemIsTheIdentityAndNothingElse) {
  const ScopedEnvironment dump(kVariable, SMBIOS_SAMPLE_FILE);
  MachineProvider provider;
  const boost::shared_ptr<ICIMNamespace> ns = provider.GetNamespace(Scoped(TCIMValue("system")));
  EXPECT_EQ("1234AC1", TCIMSchemaHelper::GetMTM(ns));
  EXPECT_EQ((std::vector<std::string>{"CIM_ManagedElement"}), ClassesOf(ns));
  EXPECT_STATUS(kQDAStatusNotFound, ns->GetClass("CIM_Chassis", Context()));
  EXPECT_STATUS(kQDAStatusNotFound, ns->GetClass("CIM_SystemDevice", Context()));
}

TEST(MachineProviderScope, IsKeptApartFromTheWhole) {
  const ScopedEnvironment dump(kVariable, SMBIOS_SAMPLE_FILE);
  MachineProvider provider;
  const boost::shared_ptr<ICIMNamespace> system =
      provider.GetNamespace(Scoped(TCIMValue("system")));
  EXPECT_EQ(system, provider.GetNamespace(Scoped(TCIMValue("system"))));
  const boost::shared_ptr<ICIMNamespace> whole = provider.GetNamespace(Context());
  EXPECT_NE(system, whole);
  EXPECT_EQ(whole, provider.GetNamespace(Context()));
  // The whole has the system too.
  EXPECT_EQ(whole, provider.GetNamespace(Scoped(TCIMValue("system"))));
}

TEST(MachineProviderScope, ThatIsNotKnownIsTheWhole) {
  const ScopedEnvironment dump(kVariable, SMBIOS_SAMPLE_FILE);
  for (const TCIMValue& scope :
       {TCIMValue("System"), TCIMValue(""), TCIMValue(1), TCIMValue(),
        TCIMValue(TCIMValue::TCIMType(TCIMValue::TCIMType::kCIMTypeString), 0)}) {
    MachineProvider provider;
    const boost::shared_ptr<ICIMNamespace> ns = provider.GetNamespace(Scoped(scope));
    EXPECT_EQ(ns, provider.GetNamespace(Context()));
  }
}

TEST(MachineProviderTest, ReadsAnewAfterAFailure) {
  MachineProvider provider;
  {
    const ScopedEnvironment dump(kVariable, "there is no such file");
    EXPECT_STATUS(kQDAStatusFileNotFound, provider.GetNamespace(Context()));
  }
  const ScopedEnvironment dump(kVariable, SMBIOS_SAMPLE_FILE);
  EXPECT_EQ("1234AC1", TCIMSchemaHelper::GetMTM(provider.GetNamespace(Context())));
}

TEST(MachineProviderTest, NeedsNoLogger) {
  const ScopedEnvironment dump(kVariable, "there is no such file");
  EXPECT_STATUS(kQDAStatusFileNotFound, MachineProvider().GetNamespace(Context()));
}

TEST(MachineProviderTest, ADumpThatIsNotThereIsAFailureThatNamesIt) {
  const LogCapture log;
  const TemporaryFolder folder;
  const std::string path = folder.PathOf("none.smbios");
  const ScopedEnvironment dump(kVariable, path.c_str());
  EXPECT_STATUS(kQDAStatusFileNotFound, MachineProvider().GetNamespace(Context()));
  EXPECT_EQ(
      (Lines{"[Error] the SMBIOS dump \"" + path + "\" cannot be read (kQDAStatusFileNotFound)"}),
      log.Lines());
}

TEST(MachineProviderTest, ADumpThatIsNoTableIsAFailureThatNamesIt) {
  const LogCapture log;
  const TemporaryFolder folder;
  const std::string path = folder.Write("text.smbios", "this is no SMBIOS table at all\n");
  const ScopedEnvironment dump(kVariable, path.c_str());
  EXPECT_STATUS(kQDAStatusFail, MachineProvider().GetNamespace(Context()));
  EXPECT_EQ((Lines{"[Error] the SMBIOS dump \"" + path + "\" cannot be read (kQDAStatusFail)"}),
            log.Lines());
}

TEST(MachineProviderTest, ATableWithoutSystemInformationLeavesNullsAndAWarning) {
  const LogCapture log;
  const TemporaryFolder folder;
  TableBuilder table;
  table.Add(StructureBuilder(127, 1));
  const std::string path = folder.Write("end.smbios", TextOf(table.Dump64(3, 0)));
  const ScopedEnvironment dump(kVariable, path.c_str());
  const boost::shared_ptr<ICIMNamespace> ns = MachineProvider().GetNamespace(Context());
  EXPECT_STATUS(kQDAStatusValueIsNULL, TCIMSchemaHelper::GetSystemProductName(ns));
  EXPECT_EQ((Lines{"[Warning] the SMBIOS table's System Information cannot be read "
                   "(kQDAStatusNoMoreItems)"}),
            log.Lines());
}

TEST(MachineProviderTest, SystemInformationBeyondTheBufferLeavesNullsAndAWarning) {
  const LogCapture log;
  const TemporaryFolder folder;
  TableBuilder table;
  table.Add(StructureBuilder(1, 1).Text(std::string(70000, 'x')).Text("P"));
  table.Add(StructureBuilder(127, 2));
  const std::string path = folder.Write("large.smbios", TextOf(table.Dump64(3, 0)));
  const ScopedEnvironment dump(kVariable, path.c_str());
  const boost::shared_ptr<ICIMNamespace> ns = MachineProvider().GetNamespace(Context());
  EXPECT_STATUS(kQDAStatusValueIsNULL, TCIMSchemaHelper::GetSystemProductName(ns));
  EXPECT_EQ((Lines{"[Warning] the SMBIOS table's System Information cannot be read "
                   "(kQDAStatusFail)"}),
            log.Lines());
}

// What this very machine has differs from one to the next: the table, no table, or no right to
// read it. Each has its own outcome, and none is a failure.
TEST(MachineProviderTest, TheFirmwaresTableIsNoFailureWhateverItIs) {
  const LogCapture log;
  const ScopedEnvironment dump(kVariable, nullptr);
  void* handle = nullptr;
  TQDAStatusCode status = smBiosLoad(nullptr, &handle);
  const boost::shared_ptr<ICIMNamespace> ns = MachineProvider().GetNamespace(Context());
  if (status.GetStatusCode() == TQDAStatusCode::kQDAStatusAccessDenied) {
    EXPECT_EQ((Lines{"[Warning] the firmware's SMBIOS table cannot be read "
                     "(kQDAStatusAccessDenied), which takes administrator rights"}),
              log.Lines());
    EXPECT_STATUS(kQDAStatusValueIsNULL, TCIMSchemaHelper::GetSystemProductName(ns));
  } else if (status.GetStatusCode() != TQDAStatusCode::kQDAStatusOK) {
    EXPECT_EQ((Lines{"[Warning] the firmware's SMBIOS table cannot be read (" +
                     status.TranslateStatusCode() + ")"}),
              log.Lines());
    EXPECT_STATUS(kQDAStatusValueIsNULL, TCIMSchemaHelper::GetSystemProductName(ns));
  } else if (!handle) {
    EXPECT_EQ((Lines{"[Warning] this machine has no SMBIOS table"}), log.Lines());
    EXPECT_STATUS(kQDAStatusValueIsNULL, TCIMSchemaHelper::GetSystemProductName(ns));
  } else {
    Bytes system(65536);
    int size = static_cast<int>(system.size());
    EXPECT_EQ("kQDAStatusOK",
              smBiosGetFirst(handle, 1, system.data(), &size).TranslateStatusCode());
    const std::string product(
        smbios::StringField(system.data(), static_cast<std::size_t>(size), 5));
    EXPECT_EQ(product.empty() ? "kQDAStatusValueIsNULL" : "nothing", ThrownStatus([&] {
                EXPECT_EQ(product, TCIMSchemaHelper::GetSystemProductName(ns));
              }));
    EXPECT_EQ(Lines(), log.Lines());
  }
  smBiosClose(&handle);
}

}  // namespace

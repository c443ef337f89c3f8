// The loading of modules in a host of the test's own: what it is asked, and each of its failures.

#include <memory>

#include <gtest/gtest.h>

#include <qdacore/os/TOSSpecific.h>
#include <qdacore/plugin/INamespaceConsumer.h>
#include <tests/host/HostFakes.h>
#include <tests/support/ExpectStatus.h>
#include <tests/support/LogCapture.h>

namespace {

using namespace NZRVQDA20;
using namespace host_fakes;
using test_support::LogCapture;

typedef std::vector<std::string> Lines;

INamespaceConsumer* const kConsumer = reinterpret_cast<INamespaceConsumer*>(0x1000);

INamespaceConsumer* MakeConsumer() { return kConsumer; }
INamespaceConsumer* MakeNothing() { return nullptr; }

class FakeLoader : public testing::Test {
 protected:
  FakeLoader() : fHost({nullptr, nullptr, nullptr, &fModules}) {
    fModules.SetProgram(HostPath({"root", "program"}));
  }

  FakeModules fModules;
  ScopedHost fHost;
  LogCapture fLog;
};

TEST_F(FakeLoader, ProviderIsLoadedFromTheRootAndAskedForNothing) {
  TOSSpecific::LoadNSPLibrary("disk");
  EXPECT_EQ((Lines{"load " + HostPath({"root", "disk.nsp.dll"})}), fModules.calls);
  EXPECT_EQ(Lines(), fLog.Lines());
}

TEST_F(FakeLoader, ProvidersFailureIsLoggedWithTheHostsNumber) {
  for (const unsigned long number : {2ul, 5ul, 126ul, 193ul, 4294967295ul}) {
    fModules.loading = {host::Situation::kOther, number};
    EXPECT_STATUS(kQDAStatusFileSystemError, TOSSpecific::LoadNSPLibrary("a b"));
  }
  EXPECT_EQ(
      (Lines{"[Error] Couldn't load NSP: a b error: 2", "[Error] Couldn't load NSP: a b error: 5",
             "[Error] Couldn't load NSP: a b error: 126",
             "[Error] Couldn't load NSP: a b error: 193",
             "[Error] Couldn't load NSP: a b error: 4294967295"}),
      fLog.Lines());
}

TEST_F(FakeLoader, ConsumerIsMadeByTheFactoryOfItsModule) {
  fModules.symbol = reinterpret_cast<host::Modules::Symbol>(MakeConsumer);
  EXPECT_EQ(kConsumer, TOSSpecific::LoadNSCLibrary("disk"));
  EXPECT_EQ(
      (Lines{"load " + HostPath({"root", "disk.nsc.dll"}), "find disk_CreateINamespaceConsumer"}),
      fModules.calls);
  fModules.symbol = reinterpret_cast<host::Modules::Symbol>(MakeNothing);
  EXPECT_EQ(nullptr, TOSSpecific::LoadNSCLibrary("disk"));
  EXPECT_EQ(Lines(), fLog.Lines());
}

TEST_F(FakeLoader, ConsumersFailuresAreLogged) {
  EXPECT_STATUS(kQDAStatusNotFound, TOSSpecific::LoadNSCLibrary("disk"));
  fModules.loading = {host::Situation::kOther, 193};
  EXPECT_STATUS(kQDAStatusFileSystemError, TOSSpecific::LoadNSCLibrary("disk"));
  EXPECT_EQ((Lines{"[Error] Couldn't find 'disk_CreateINamespaceConsumer' in " +
                       HostPath({"root", "disk.nsc.dll"}),
                   "[Error] Couldn't load NSC: disk"}),
            fLog.Lines());
  EXPECT_EQ(3u, fModules.calls.size());
}

TEST_F(FakeLoader, PlainPluginIsLoadedFromThePathAsItStands) {
  TOSSpecific::LoadPluginLibrary("any/path\\at all");
  EXPECT_EQ((Lines{"load any/path\\at all"}), fModules.calls);
  for (const host::Situation situation :
       {host::Situation::kNoFile, host::Situation::kNoPath, host::Situation::kDenied,
        host::Situation::kNotReady, host::Situation::kOther}) {
    fModules.loading = {situation, 5};
    EXPECT_STATUS(kQDAStatusFileSystemError, TOSSpecific::LoadPluginLibrary("x"));
  }
  EXPECT_EQ(Lines(), fLog.Lines());
}

}  // namespace

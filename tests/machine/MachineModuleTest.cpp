// The module machine.nsp.dll, found beside this program and loaded as a host does it.

#include <map>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <boost/function.hpp>
#include <boost/shared_ptr.hpp>

#include <qdacore/cim/object/ICIMNamespace.h>
#include <qdacore/frame/TRootObject.h>
#include <qdacore/identity/TCIMSchemaHelper.h>
#include <qdacore/logging/ILogger.h>
#include <qdacore/os/TOSSpecific.h>
#include <qdacore/plugin/INamespaceProviderManager.h>
#include <qdacore/plugin/INamespaceSource.h>
#include <tests/support/ChildProcess.h>
#include <tests/support/LogCapture.h>
#include <tests/support/ScopedEnvironment.h>

namespace {

using test_support::ChildResult;
using test_support::LogCapture;
using test_support::RunChild;
using test_support::ScopedEnvironment;
using namespace NZRVQDA20;

typedef std::map<std::string, TCIMValue> Context;

std::vector<std::string> Registered() {
  std::vector<std::string> names;
  boost::function<bool(boost::shared_ptr<INamespaceProvider>)> collect =
      [&names](boost::shared_ptr<INamespaceProvider> provider) {
        names.push_back(provider->GetName(Context()));
        return true;
      };
  TRootObject::GetNamespaceProviderManager()->EnumerateNamespaceProviders(collect);
  return names;
}

TEST(MachineModule, IsFoundUnderItsName) {
  EXPECT_THAT(TOSSpecific::FindNSPs(), testing::Contains("machine"));
}

// Each in a process of its own: a module stays loaded.

QDACORE_CHILD(LoadsTheModule) {
  const LogCapture log;
  EXPECT_EQ(std::vector<std::string>(), Registered());
  TOSSpecific::LoadNSPLibrary("machine");
  EXPECT_EQ(std::vector<std::string>{"machine"}, Registered());
  EXPECT_EQ(std::vector<std::string>(), log.Lines());
  return testing::Test::HasFailure() ? 1 : 0;
}

TEST(MachineModule, RegistersItsProviderAndSaysNothing) {
  const ChildResult child = RunChild("LoadsTheModule");
  EXPECT_EQ(0, child.exitCode) << child.output << child.error;
  EXPECT_EQ("", child.error);
}

TEST(MachineModule, ReadsNothingWhileItIsLoaded) {
  const ChildResult child = RunChild("LoadsTheModule", {{"QDA_SMBIOS_DUMP", "no such file"}});
  EXPECT_EQ(0, child.exitCode) << child.output << child.error;
}

QDACORE_CHILD(LoadsTheModuleWithoutALogger) {
  TOSSpecific::LoadNSPLibrary("machine");
  EXPECT_EQ(std::vector<std::string>{"machine"}, Registered());
  EXPECT_EQ(nullptr, TRootObject::GetCoreLogger());
  return testing::Test::HasFailure() ? 1 : 0;
}

TEST(MachineModule, LoadsBeforeThereIsALogger) {
  const ChildResult child = RunChild("LoadsTheModuleWithoutALogger");
  EXPECT_EQ(0, child.exitCode) << child.output << child.error;
  EXPECT_EQ("", child.error);
}

QDACORE_CHILD(LoadsTheModuleTwice) {
  TOSSpecific::LoadNSPLibrary("machine");
  TOSSpecific::LoadNSPLibrary("machine");
  EXPECT_EQ(std::vector<std::string>{"machine"}, Registered());
  return testing::Test::HasFailure() ? 1 : 0;
}

TEST(MachineModule, LoadedTwiceIsRegisteredOnce) {
  const ChildResult child = RunChild("LoadsTheModuleTwice");
  EXPECT_EQ(0, child.exitCode) << child.output << child.error;
}

// The cast works across the modules, and the end of the process does too: the registry lets the
// provider go after the module's own end.
QDACORE_CHILD(ReadsTheModulesNamespace) {
  TOSSpecific::LoadNSPLibrary("machine");
  const boost::shared_ptr<INamespaceSource> source = boost::dynamic_pointer_cast<INamespaceSource>(
      TRootObject::GetNamespaceProviderManager()->GetNamespaceProvider("machine"));
  EXPECT_TRUE(static_cast<bool>(source));
  const boost::shared_ptr<ICIMNamespace> ns = source->GetNamespace(Context());
  EXPECT_EQ("1234AC1", TCIMSchemaHelper::GetMTM(ns));
  return testing::Test::HasFailure() ? 1 : 0;
}

TEST(MachineModule, ServesANamespaceThatTheCoreLibraryReads) {
  const ChildResult child =
      RunChild("ReadsTheModulesNamespace", {{"QDA_SMBIOS_DUMP", SMBIOS_SAMPLE_FILE}});
  EXPECT_EQ(0, child.exitCode) << child.output << child.error;
}

}  // namespace

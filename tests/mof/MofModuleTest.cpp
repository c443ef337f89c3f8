// The module mof.nsp.dll, found beside this program and loaded as a host does it.

#include <map>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <boost/shared_ptr.hpp>

#include <qdacore/cim/object/ICIMNamespace.h>
#include <qdacore/frame/TRootObject.h>
#include <qdacore/identity/TCIMSchemaHelper.h>
#include <qdacore/os/TOSSpecific.h>
#include <qdacore/plugin/INamespaceProviderManager.h>
#include <qdacore/plugin/INamespaceSource.h>
#include <tests/support/ChildProcess.h>
#include <tests/support/LogCapture.h>
#include <tests/support/TemporaryFolder.h>

namespace {

using namespace NZRVQDA20;
using test_support::ChildResult;
using test_support::LogCapture;
using test_support::RunChild;
using test_support::TemporaryFolder;

typedef std::map<std::string, TCIMValue> Context;

TEST(MofModule, IsFoundUnderItsName) {
  EXPECT_THAT(TOSSpecific::FindNSPs(), testing::Contains("mof"));
}

// In a process of its own: a module stays loaded.
QDACORE_CHILD(ReadsTheMofModulesNamespace) {
  const LogCapture log;
  TOSSpecific::LoadNSPLibrary("mof");
  EXPECT_EQ(std::vector<std::string>(), log.Lines());
  const boost::shared_ptr<INamespaceSource> source = boost::dynamic_pointer_cast<INamespaceSource>(
      TRootObject::GetNamespaceProviderManager()->GetNamespaceProvider("mof"));
  EXPECT_TRUE(source != nullptr);
  EXPECT_EQ("1234AC1", TCIMSchemaHelper::GetMTM(source->GetNamespace(Context())));
  return testing::Test::HasFailure() ? 1 : 0;
}

TEST(MofModule, ServesAnInventoryLikeALiveOne) {
  const TemporaryFolder folder;
  const std::string path =
      folder.Write("machine.mof",
                   "class ZRVSG_ComputerSystem { string ProductName; };\n"
                   "instance of ZRVSG_ComputerSystem { ProductName = \"x -[1234AC1]-\"; };\n");
  const ChildResult child =
      RunChild("ReadsTheMofModulesNamespace", {{"QDA_MOF_PATH", path.c_str()}});
  EXPECT_EQ(0, child.exitCode) << child.output << child.error;
}

}  // namespace

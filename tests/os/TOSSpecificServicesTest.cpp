// Account, machine, waiting, flags, and what is not there.

#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <qdacore/os/TOSSpecific.h>
#include <tests/os/ServiceAids.h>
#include <tests/support/ChildProcess.h>
#include <tests/support/ExpectStatus.h>
#include <tests/support/TemporaryFolder.h>

namespace {

using namespace NZRVQDA20;
using namespace test_support;

TEST(IsAdmin, SaysWhatTheHostSays) {
  EXPECT_EQ(service_aids::IsAdministrator(), TOSSpecific::IsAdmin());
  // Again, for what the first call may have left behind.
  EXPECT_EQ(service_aids::IsAdministrator(), TOSSpecific::IsAdmin());
}

TEST(GetMachineName, IsTheHostsOwnName) {
  EXPECT_EQ(service_aids::MachineName(), TOSSpecific::GetMachineName());
  EXPECT_NE("", TOSSpecific::GetMachineName());
}

TEST(GetOperatingSystemName, NamesTheMachine) {
  EXPECT_EQ(TOSSpecific::GetMachineName(), TOSSpecific::GetOperatingSystemName());
}

// A time limit only tells the units apart: a thousand seconds, or a thousandth of one.
TEST(USleep, CountsMilliseconds) {
  const auto begin = std::chrono::steady_clock::now();
  TOSSpecific::USleep(1000);
  const std::chrono::duration<double> slept = std::chrono::steady_clock::now() - begin;
  EXPECT_GE(slept.count(), 0.9);
  EXPECT_LT(slept.count(), 500);
}

TEST(USleep, OfNothingReturns) { TOSSpecific::USleep(0); }

TEST(Devices, AreNotImplemented) {
  for (const char* device : {"", "C:", "/dev/cdrom"}) {
    EXPECT_STATUS(kQDAStatusNotImplemented, TOSSpecific::MountDevice(device));
    EXPECT_STATUS(kQDAStatusNotImplemented, TOSSpecific::UnmountDevice(device, device));
  }
  EXPECT_STATUS(kQDAStatusNotImplemented,
                TOSSpecific::EnumerateRemovableMedia(boost::shared_ptr<ICIMNamespace>()));
}

TEST(GetxBMCVirtualDevices, LeavesTheVectorAsItIs) {
  std::vector<std::string> devices = {"one", "two"};
  for (const int kind : {-1, 0, 1, 2147483647}) {
    TOSSpecific::getxBMCVirtualDevices(kind, devices, true);
    TOSSpecific::getxBMCVirtualDevices(kind, devices, false);
    EXPECT_EQ((std::vector<std::string>{"one", "two"}), devices);
  }
}

QDACORE_CHILD(TellsItsBuildKind) {
  std::fputs(TOSSpecific::isOEMBuild() ? "OEM" : "plain", stdout);
  return 0;
}

std::string BuildKindIn(const TemporaryFolder& folder) {
  return RunProgram(OwnProgram(), {"--run-as-child", "TellsItsBuildKind"}, {}, folder.Path())
      .output;
}

TEST(IsOEMBuild, LooksForAFileFromTheCurrentDirectory) {
  const TemporaryFolder folder;
  EXPECT_EQ("plain", BuildKindIn(folder));
  folder.Write("oem_qda_preboot_readme.txt", "");
  EXPECT_EQ("plain", BuildKindIn(folder));
  folder.Write("docs/oem_qda_preboot_readme.txt", "");
  EXPECT_EQ("OEM", BuildKindIn(folder));
}

TEST(IsOEMBuild, FolderOfThatNameIsNoFile) {
  const TemporaryFolder folder;
  folder.MakeFolder("docs/oem_qda_preboot_readme.txt");
  EXPECT_EQ("plain", BuildKindIn(folder));
}

// In a process of its own, where nothing has set them.
QDACORE_CHILD(Flags) {
  if (TOSSpecific::getLuz() || TOSSpecific::isQDAParser()) {
    return 1;
  }
  TOSSpecific::setLuz(true);
  if (!TOSSpecific::getLuz() || TOSSpecific::isQDAParser()) {
    return 2;
  }
  TOSSpecific::setQDAParser(true);
  TOSSpecific::setLuz(false);
  if (TOSSpecific::getLuz() || !TOSSpecific::isQDAParser()) {
    return 3;
  }
  TOSSpecific::setQDAParser(false);
  return TOSSpecific::isQDAParser() ? 4 : 0;
}

TEST(Flags, AreFalseUntilSetAndStandForThemselves) { EXPECT_EQ(0, RunChild("Flags").exitCode); }

}  // namespace

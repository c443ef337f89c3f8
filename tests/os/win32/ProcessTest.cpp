// What only this host's children have: windows, and exit codes of 32 bits.

#include <windows.h>

#include <gtest/gtest.h>

#include <qdacore/os/TOSSpecific.h>
#include <tests/os/Children.h>
#include <tests/support/ChildProcess.h>

namespace {

using namespace NZRVQDA20;
using os_tests::ChildCommand;

QDACORE_CHILD(TellsItsWindow) {
  STARTUPINFOA startup = {};
  GetStartupInfoA(&startup);
  const bool asked = (startup.dwFlags & STARTF_USESHOWWINDOW) != 0;
  os_tests::WriteOutput(!asked                           ? "as it likes"
                        : startup.wShowWindow == SW_HIDE ? "hidden"
                                                         : "shown");
  return 0;
}

TEST(SpawnProcessOnWindows, OnlyTheExitCodeFormHidesTheWindow) {
  std::string output;
  TOSSpecific::SpawnProcess(ChildCommand("TellsItsWindow"), {}, output, 0);
  EXPECT_EQ("hidden", output);
  EXPECT_EQ("as it likes", TOSSpecific::SpawnProcess(ChildCommand("TellsItsWindow"), 0));
}

TEST(SpawnProcessOnWindows, ExitCodeHas32Bits) {
  std::string output;
  EXPECT_EQ(-1073741819,
            TOSSpecific::SpawnProcess(ChildCommand("EndsWith"), {"-1073741819"}, output, 0));
  EXPECT_EQ(2147483647,
            TOSSpecific::SpawnProcess(ChildCommand("EndsWith"), {"2147483647"}, output, 0));
  EXPECT_EQ(256, TOSSpecific::SpawnProcess(ChildCommand("EndsWith"), {"256"}, output, 0));
}

}  // namespace

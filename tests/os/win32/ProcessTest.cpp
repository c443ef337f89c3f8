// What only this host's children have: windows, inheritable handles, and exit codes of 32 bits.

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

const LONG kTheirs = 1234;

// Whether semaphores of that count stand behind the handles of these numbers.
QDACORE_CHILD(LooksForSemaphores) {
  std::string text;
  for (const std::string& argument : arguments) {
    const HANDLE handle = reinterpret_cast<HANDLE>(static_cast<UINT_PTR>(std::stoull(argument)));
    LONG count = 0;
    const bool inherited = ReleaseSemaphore(handle, 1, &count) && count >= kTheirs;
    text += inherited ? "inherited " : "private ";
  }
  os_tests::WriteOutput(text);
  return 0;
}

TEST(SpawnProcessOnWindows, ChildInheritsWhatIsInheritableAndNothingElse) {
  SECURITY_ATTRIBUTES inheritable = {sizeof inheritable, nullptr, TRUE};
  const HANDLE semaphores[] = {CreateSemaphoreA(&inheritable, kTheirs, 2 * kTheirs, nullptr),
                               CreateSemaphoreA(nullptr, kTheirs, 2 * kTheirs, nullptr)};
  std::vector<std::string> numbers;
  for (const HANDLE semaphore : semaphores) {
    numbers.push_back(std::to_string(reinterpret_cast<UINT_PTR>(semaphore)));
  }
  std::string output;
  TOSSpecific::SpawnProcess(ChildCommand("LooksForSemaphores"), numbers, output, 0);
  EXPECT_EQ("inherited private ", output);
  EXPECT_EQ("inherited private ",
            TOSSpecific::SpawnProcess(ChildCommand("LooksForSemaphores"), numbers, 0));
  for (const HANDLE semaphore : semaphores) {
    CloseHandle(semaphore);
  }
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

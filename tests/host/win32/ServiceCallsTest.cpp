// The calls behind the machine's name and the environment. The import table's entries are this
// program's own; they record while a test wants it, and pass on to the system.

#include <windows.h>

#include <string>

#include <gtest/gtest.h>

#include <qdacore/frame/TQDAException.h>
#include <qdacore/os/TOSSpecific.h>
#include <tests/support/ExpectStatus.h>

namespace {

DWORD nameSize = 0;
bool nameFails = false;
DWORD valueSize = 0;

template <class Function>
Function* System(const char* name) {
  return reinterpret_cast<Function*>(
      reinterpret_cast<void (*)()>(GetProcAddress(GetModuleHandleA("kernel32.dll"), name)));
}

BOOL WINAPI OwnGetComputerName(LPSTR buffer, LPDWORD size) {
  nameSize = *size;
  return !nameFails && System<decltype(GetComputerNameA)>("GetComputerNameA")(buffer, size);
}

DWORD WINAPI OwnGetEnvironmentVariable(LPCSTR name, LPSTR buffer, DWORD size) {
  valueSize = size;
  return System<decltype(GetEnvironmentVariableA)>("GetEnvironmentVariableA")(name, buffer, size);
}

}  // namespace

extern "C" {
extern void* const __imp_GetComputerNameA = reinterpret_cast<void*>(OwnGetComputerName);
extern void* const __imp_GetEnvironmentVariableA =
    reinterpret_cast<void*>(OwnGetEnvironmentVariable);
}

namespace {

using namespace NZRVQDA20;

TEST(ServiceCalls, MachineNameIsAskedForWithSixteenCharacters) {
  EXPECT_NE("", TOSSpecific::GetMachineName());
  EXPECT_EQ(16u, nameSize);
}

TEST(ServiceCalls, MachineNameThatIsNotToBeHadIsAFailure) {
  nameFails = true;
  EXPECT_STATUS(kQDAStatusFail, TOSSpecific::GetMachineName());
  nameFails = false;
}

TEST(ServiceCalls, VariableIsAskedForWithTheLongestBuffer) {
  ASSERT_TRUE(TOSSpecific::PutEnvironment("QDA_TEST_VARIABLE", "value"));
  EXPECT_EQ("value", TOSSpecific::GetEnvironment("QDA_TEST_VARIABLE"));
  EXPECT_EQ(32767u, valueSize);
  SetEnvironmentVariableA("QDA_TEST_VARIABLE", nullptr);
}

}  // namespace

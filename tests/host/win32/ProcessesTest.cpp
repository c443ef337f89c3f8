// What this host's pipes are made of.

#include <windows.h>

#include <gtest/gtest.h>

#include <qdacore/host/HostServices.h>

namespace {

using namespace NZRVQDA20::host;

DWORD FlagsOf(Processes::Handle handle) {
  DWORD flags = 99;
  GetHandleInformation(reinterpret_cast<HANDLE>(static_cast<INT_PTR>(handle)), &flags);
  return flags;
}

TEST(WindowsProcesses, EndsAreInheritableUntilTheyAreMadePrivate) {
  Processes& processes = SystemProcesses();
  Processes::Pipe pipe;
  ASSERT_TRUE(processes.MakePipe(pipe));
  EXPECT_EQ(DWORD{HANDLE_FLAG_INHERIT}, FlagsOf(pipe.readEnd));
  EXPECT_EQ(DWORD{HANDLE_FLAG_INHERIT}, FlagsOf(pipe.writeEnd));
  const Processes::Handle old = pipe.readEnd;
  ASSERT_TRUE(processes.MakePrivate(pipe.readEnd));
  EXPECT_NE(old, pipe.readEnd);
  EXPECT_EQ(0u, FlagsOf(pipe.readEnd));
  EXPECT_EQ(99u, FlagsOf(old));
  EXPECT_TRUE(processes.Close(pipe.readEnd));
  EXPECT_TRUE(processes.Close(pipe.writeEnd));
}

TEST(WindowsProcesses, EndThatCannotBeMadePrivateIsWhatItWas) {
  Processes::Handle none = 0x7FFFFFF0;
  EXPECT_FALSE(SystemProcesses().MakePrivate(none));
  EXPECT_EQ(0x7FFFFFF0, none);
}

}  // namespace

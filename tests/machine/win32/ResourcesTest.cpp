// This very machine, against what other calls and wmic say.

#include <plugins/machine/host/Resources.h>

#include <fstream>

#include <gtest/gtest.h>

#include <plugins/machine/ResourceFacts.h>
#include <tests/machine/win32/Wmic.h>

#include <windows.h>

namespace {

using machine::ResourceFacts;
using machine::UnderstandResources;
using machine::host::ReadResources;
using machine_test::AskWmic;

TEST(TheseResources, HaveTheMemoryThatWmicTells) {
  const std::vector<std::string> visible = AskWmic("os", "TotalVisibleMemorySize");
  const std::vector<std::string> whole = AskWmic("os", "TotalVirtualMemorySize");
  if (visible.empty() || whole.empty()) {
    GTEST_SKIP() << "wmic does not tell";
  }
  const ResourceFacts facts = UnderstandResources(ReadResources());
  ASSERT_TRUE(facts.totalVisibleMemorySize && facts.totalVirtualMemorySize);
  // Wine's program counts some pages less.
  EXPECT_NEAR(std::stod(visible[0]), static_cast<double>(*facts.totalVisibleMemorySize), 1024);
  EXPECT_NEAR(std::stod(whole[0]), static_cast<double>(*facts.totalVirtualMemorySize), 1024);
}

TEST(TheseResources, HaveTheAddressSpaceOfThisProcess) {
  SYSTEM_INFO told = {};
  GetSystemInfo(&told);
  const auto least = reinterpret_cast<std::uintptr_t>(told.lpMinimumApplicationAddress);
  const auto most = reinterpret_cast<std::uintptr_t>(told.lpMaximumApplicationAddress);
  const ResourceFacts facts = UnderstandResources(ReadResources());
  ASSERT_TRUE(facts.maxProcessMemorySize.has_value());
  // The two calls differ in whether the first and the last 64 KiB count.
  EXPECT_NEAR(static_cast<double>((most - least + 1) / 1024),
              static_cast<double>(*facts.maxProcessMemorySize), 128);
}

// Under Wine the kernel below it can be asked; wmic there tells the present time.
TEST(TheseResources, HaveTheBootTimeOfTheKernelBelowWine) {
  std::ifstream file("Z:\\proc\\stat");
  std::string word;
  long long told = 0;
  while (file >> word && word != "btime") {
  }
  if (!(file >> told)) {
    GTEST_SKIP() << "this is no Wine with a drive Z: that shows the system below it";
  }
  const ResourceFacts facts = UnderstandResources(ReadResources());
  ASSERT_TRUE(facts.lastBootSeconds.has_value());
  EXPECT_NEAR(static_cast<double>(told), static_cast<double>(*facts.lastBootSeconds), 2);
}

TEST(TheseResources, HaveNoLimitOfProcesses) {
  EXPECT_EQ(std::nullopt, UnderstandResources(ReadResources()).maxNumberOfProcesses);
}

}  // namespace

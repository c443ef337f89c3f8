// This very machine, against what other calls and files of the kernel say.

#include <plugins/machine/host/Resources.h>

#include <sys/sysinfo.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <plugins/machine/ResourceFacts.h>
#include <tests/machine/posix/HostPrograms.h>

namespace {

using machine::ResourceFacts;
using machine::UnderstandResources;
using machine::host::ReadResources;
using machine_test::OutputOf;

TEST(TheseResources, HaveTheMemoryThatSysinfoTells) {
  const ResourceFacts facts = UnderstandResources(ReadResources());
  struct sysinfo told = {};
  ASSERT_EQ(0, sysinfo(&told));
  EXPECT_EQ(std::uint64_t(told.totalram) * told.mem_unit / 1024, facts.totalVisibleMemorySize);
  EXPECT_EQ(std::uint64_t(told.totalswap) * told.mem_unit / 1024, facts.sizeStoredInPagingFiles);
  EXPECT_EQ((std::uint64_t(told.totalram) + told.totalswap) * told.mem_unit / 1024,
            facts.totalVirtualMemorySize);
}

TEST(TheseResources, HaveTheBootTimeOfTheKernel) {
  const ResourceFacts facts = UnderstandResources(ReadResources());
  const std::string told = OutputOf("awk '$1 == \"btime\" { print $2 }' /proc/stat");
  ASSERT_FALSE(told.empty());
  ASSERT_TRUE(facts.lastBootSeconds.has_value());
  // Each is the difference of two clocks, rounded down.
  EXPECT_NEAR(static_cast<double>(std::stoll(told)), static_cast<double>(*facts.lastBootSeconds),
              1);
}

TEST(TheseResources, HaveLimitsThatHoldTheseProcesses) {
  const ResourceFacts facts = UnderstandResources(ReadResources());
  ASSERT_TRUE(facts.maxNumberOfProcesses.has_value());
  EXPECT_LE(static_cast<std::uint32_t>(getpid()),
            std::stoul(OutputOf("cat /proc/sys/kernel/pid_max")));
  EXPECT_LT(*facts.maxNumberOfProcesses, std::stoul(OutputOf("cat /proc/sys/kernel/pid_max")));
  EXPECT_LE(*facts.maxNumberOfProcesses, std::stoul(OutputOf("cat /proc/sys/kernel/threads-max")));
}

}  // namespace

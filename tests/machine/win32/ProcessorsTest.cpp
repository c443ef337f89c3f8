// This very machine, against what its environment and wmic say.

#include <plugins/machine/host/Processors.h>

#include <cstdlib>

#include <gtest/gtest.h>

#include <plugins/machine/ProcessorFacts.h>
#include <tests/machine/win32/Wmic.h>

namespace {

using machine::ProcessorFacts;
using machine::UnderstandProcessors;
using machine::host::ReadProcessors;
using machine_test::AskWmic;

TEST(TheseProcessors, HaveAsManyThreadsAsTheEnvironmentTells) {
  const char* const told = std::getenv("NUMBER_OF_PROCESSORS");
  ASSERT_NE(nullptr, told);
  int threads = 0;
  for (const ProcessorFacts& facts : UnderstandProcessors(ReadProcessors())) {
    ASSERT_TRUE(facts.threads.has_value());
    threads += *facts.threads;
  }
  EXPECT_EQ(std::atoi(told), threads);
}

TEST(TheseProcessors, AreWhatWmicTells) {
  const std::vector<std::string> names = AskWmic("cpu", "Name");
  const std::vector<std::string> cores = AskWmic("cpu", "NumberOfCores");
  const std::vector<std::string> speeds = AskWmic("cpu", "MaxClockSpeed");
  const std::vector<ProcessorFacts> found = UnderstandProcessors(ReadProcessors());
  if (names.empty() || cores.size() != names.size() || speeds.size() != names.size()) {
    GTEST_SKIP() << "wmic does not tell";
  }
  ASSERT_EQ(names.size(), found.size());
  for (std::size_t at = 0; at < found.size(); ++at) {
    EXPECT_EQ(names[at], found[at].name);
    EXPECT_EQ(cores[at], std::to_string(found[at].cores.value_or(0)));
    ASSERT_TRUE(found[at].currentClockSpeed.has_value());
    // Wine measures it anew.
    EXPECT_NEAR(std::stod(speeds[at]), *found[at].currentClockSpeed, 50);
  }
}

}  // namespace

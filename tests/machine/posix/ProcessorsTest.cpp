// This very machine, against what lscpu says.

#include <plugins/machine/host/Processors.h>

#include <map>

#include <gtest/gtest.h>

#include <plugins/machine/ProcessorFacts.h>
#include <tests/machine/posix/HostPrograms.h>

namespace {

using machine::ProcessorFacts;
using machine::UnderstandProcessors;
using machine::host::ReadProcessors;
using machine_test::JsonOf;

// lscpu nests its fields in some versions and not in others.
void Collect(const nlohmann::json& fields, std::map<std::string, std::string>* told) {
  for (const nlohmann::json& field : fields) {
    if (field.contains("data") && field["data"].is_string()) {
      told->emplace(field["field"], field["data"]);
    }
    if (field.contains("children")) {
      Collect(field["children"], told);
    }
  }
}

TEST(TheseProcessors, AreWhatLscpuTells) {
  SKIP_WITHOUT("lscpu");
  std::map<std::string, std::string> told;
  Collect(JsonOf("lscpu -J")["lscpu"], &told);
  ASSERT_FALSE(told.empty());
  const std::vector<ProcessorFacts> found = UnderstandProcessors(ReadProcessors());
  ASSERT_FALSE(found.empty());
  EXPECT_EQ(told["Socket(s):"], std::to_string(found.size()));
  unsigned int threads = 0;
  for (const ProcessorFacts& facts : found) {
    EXPECT_EQ(told["Model name:"], facts.name);
    EXPECT_EQ(told["Stepping:"], facts.stepping);
    ASSERT_TRUE(facts.cores && facts.threads);
    EXPECT_EQ(told["Core(s) per socket:"], std::to_string(*facts.cores));
    EXPECT_EQ(told["Thread(s) per core:"], std::to_string(*facts.threads / *facts.cores));
    threads += *facts.threads;
    EXPECT_EQ(told["CPU op-mode(s):"].find("64-bit") != std::string::npos, facts.dataWidth == 64);
    EXPECT_EQ(told.count("CPU max MHz:") != 0, facts.maxClockSpeed.has_value());
    if (facts.maxClockSpeed && told.count("CPU max MHz:") != 0) {
      EXPECT_NEAR(std::stod(told["CPU max MHz:"]), *facts.maxClockSpeed, 1);
    }
  }
  EXPECT_EQ(told["CPU(s):"], std::to_string(threads));
}

}  // namespace

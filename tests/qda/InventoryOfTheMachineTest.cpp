// The inventory of the machine provider, over the sample table: what is listed can be asked for.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tests/qda/QdaProgram.h>

namespace {

using qda_test::ParseJson;
using qda_test::RunQda;
using qda_test::SampleFile;
using test_support::ChildResult;

// A process takes long to start under Wine, so there each class has to do with its first.
#if defined(_WIN32)
const std::size_t kMostOfAClass = 1;
#else
const std::size_t kMostOfAClass = 1000;
#endif

nlohmann::json Json(std::vector<std::string> arguments) {
  arguments.insert(arguments.end(), {"--smbios-dump", SampleFile(), "-o", "json"});
  const ChildResult run = RunQda(arguments);
  EXPECT_EQ(0, run.exitCode) << run.error;
  EXPECT_EQ("", run.error);
  return ParseJson(run.output);
}

TEST(InventoryOfTheMachine, HasTheComputerSystem) {
  const nlohmann::json list = Json({"instances", "CIM_ComputerSystem", "--deep"});
  ASSERT_LE(1u, list["instances"].size());
  const nlohmann::json& system = list["instances"][0];
  EXPECT_EQ("ZRVSG_ComputerSystem", system["class"]);
  EXPECT_EQ("KD7Z042", system["properties"]["SerialNumber"]["value"]);
  EXPECT_EQ("string", system["properties"]["SerialNumber"]["type"]);
}

// What changes while the test runs (sizes, times) is not compared.
std::vector<std::string> NamesIn(const nlohmann::json& instance) {
  std::vector<std::string> names;
  for (const auto& property : instance["properties"].items()) {
    names.push_back(property.key());
  }
  return names;
}

TEST(InventoryOfTheMachine, EveryPathOfEveryClassIsTakenBack) {
  std::size_t taken = 0;
  const nlohmann::json classes = Json({"classes"});
  for (const nlohmann::json& cls : classes["classes"]) {
    const nlohmann::json list = Json({"instances", cls["name"]});
    std::size_t ofThisClass = 0;
    for (const nlohmann::json& instance : list["instances"]) {
      if (instance["path"].is_null() || ofThisClass == kMostOfAClass) {
        continue;
      }
      SCOPED_TRACE(instance["path"]);
      const nlohmann::json again = Json({"get", instance["path"]});
      EXPECT_EQ(instance["path"], again["path"]);
      EXPECT_EQ(instance["class"], again["class"]);
      EXPECT_EQ(NamesIn(instance), NamesIn(again));
      ++ofThisClass;
      ++taken;
    }
  }
  // Computer system, operating system and product at least.
  EXPECT_LE(3u, taken);
}

}  // namespace

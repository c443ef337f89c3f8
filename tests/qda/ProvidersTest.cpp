// qda providers

#include <gtest/gtest.h>

#include <tests/qda/QdaProgram.h>

namespace {

using qda_test::Installation;
using qda_test::ParseJson;
using test_support::ChildResult;

TEST(Providers, AreListedWithTheirModules) {
  const Installation installation;
  installation.AddMachineModule();
  installation.AddOddModule();
  const ChildResult run = installation.Run({"providers"});
  EXPECT_EQ(0, run.exitCode);
  EXPECT_EQ("", run.error);
  EXPECT_EQ(
      "MODULE   LOADED  PROVIDERS\n"
      "machine  yes     machine\n"
      "odd      yes     empty, mistyped, mute, null, refusing\n",
      run.output);
}

TEST(Providers, AModuleThatDoesNotLoadIsListedWithTheReason) {
  const Installation installation;
  installation.AddMachineModule();
  installation.AddFile("broken.nsp.dll", "this is no module\n");
  const ChildResult run = installation.Run({"providers"});
  EXPECT_EQ(1, run.exitCode);
  EXPECT_EQ("", run.error);
  EXPECT_EQ(
      "MODULE   LOADED  PROVIDERS\n"
      "broken   no      Couldn't load NSP: broken error: 193 (kQDAStatusFileSystemError)\n"
      "machine  yes     machine\n",
      run.output);
}

TEST(Providers, AreListedInJson) {
  const Installation installation;
  installation.AddMachineModule();
  installation.AddFile("broken.nsp.dll", "");
  const ChildResult run = installation.Run({"providers", "-o", "json"});
  EXPECT_EQ(1, run.exitCode);
  const nlohmann::json json = ParseJson(run.output);
  EXPECT_EQ(installation.Path(), json["folder"]);
  ASSERT_EQ(2u, json["modules"].size());
  const nlohmann::json broken = json["modules"][0];
  EXPECT_EQ("broken", broken["name"]);
  EXPECT_EQ(false, broken["loaded"]);
  EXPECT_EQ("kQDAStatusFileSystemError", broken["status"]);
  EXPECT_EQ("Couldn't load NSP: broken error: 193", broken["failure"]);
  EXPECT_EQ(nlohmann::json::array(), broken["providers"]);
  const nlohmann::json machine = json["modules"][1];
  EXPECT_EQ("machine", machine["name"]);
  EXPECT_EQ(true, machine["loaded"]);
  EXPECT_TRUE(machine["status"].is_null());
  EXPECT_TRUE(machine["failure"].is_null());
  EXPECT_EQ(nlohmann::json({"machine"}), machine["providers"]);
}

TEST(Providers, WithoutAnyModuleTheFolderIsNamed) {
  const Installation installation;
  installation.AddFile("machine.nsc.dll", "a consumer is no provider\n");
  const ChildResult run = installation.Run({"providers"});
  EXPECT_EQ(0, run.exitCode);
  EXPECT_EQ("", run.error);
  EXPECT_EQ("No provider module (*.nsp.dll) stands in " + installation.Path() + "\n", run.output);
  const nlohmann::json json = ParseJson(installation.Run({"providers", "-o", "json"}).output);
  EXPECT_EQ(nlohmann::json::array(), json["modules"]);
}

TEST(Providers, AFolderWithAModulesNameIsOneThatDoesNotLoad) {
  const Installation installation;
  installation.AddFile("folder.nsp.dll/file", "");
  const ChildResult run = installation.Run({"providers", "-o", "json"});
  EXPECT_EQ(1, run.exitCode);
  const nlohmann::json json = ParseJson(run.output);
  ASSERT_EQ(1u, json["modules"].size());
  EXPECT_EQ("folder", json["modules"][0]["name"]);
  EXPECT_EQ(false, json["modules"][0]["loaded"]);
}

}  // namespace

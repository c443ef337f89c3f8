// The road end to end: qda loads the library and the module, the module reads a table and
// registers, and the answers come back out.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tests/qda/QdaProgram.h>

namespace {

using qda_test::DumpFile;
using qda_test::Installation;
using qda_test::ParseJson;
using qda_test::RunQda;
using qda_test::SampleFile;
using test_support::ChildResult;
using testing::HasSubstr;
using testing::StartsWith;

TEST(Identify, TellsWhatTheSampleTableSays) {
  const ChildResult run = RunQda({"identify", "--smbios-dump", SampleFile()});
  EXPECT_EQ(0, run.exitCode);
  EXPECT_EQ("", run.error);
  EXPECT_THAT(run.output, StartsWith("Machine type and model    1234AC1\n"
                                     "Machine type              1234\n"
                                     "Model                     AC1\n"
                                     "Serial number             KD7Z042\n"
                                     "Product name              ZRV Tserver k7265-[1234AC1]\n"
                                     "System name               "));
  EXPECT_THAT(run.output, HasSubstr("\nOperating system          "));
  EXPECT_THAT(run.output, HasSubstr("\nOperating system version  "));
  EXPECT_THAT(run.output, HasSubstr("\nOperating system type     "));
}

TEST(Identify, TellsTheSameInJson) {
  const ChildResult run = RunQda({"identify", "--smbios-dump", SampleFile(), "-o", "json"});
  EXPECT_EQ(0, run.exitCode);
  EXPECT_EQ("", run.error);
  const nlohmann::json json = ParseJson(run.output);
  EXPECT_EQ("machine", json["provider"]);
  EXPECT_EQ("1234AC1", json["machineTypeModel"]);
  EXPECT_EQ("1234", json["machineType"]);
  EXPECT_EQ("AC1", json["modelNumber"]);
  EXPECT_EQ("KD7Z042", json["serialNumber"]);
  EXPECT_EQ("ZRV Tserver k7265-[1234AC1]", json["productName"]);
  EXPECT_TRUE(json["systemName"].is_string());
  EXPECT_TRUE(json["operatingSystem"]["name"].is_string());
  EXPECT_TRUE(json["operatingSystem"]["type"].is_number_unsigned());
  EXPECT_EQ(8u, json.size());
  EXPECT_EQ(3u, json["operatingSystem"].size());
}

TEST(Identify, TableIsWhatIsPrintedWhenNothingElseIsAsked) {
  const ChildResult table = RunQda({"identify", "--smbios-dump", SampleFile(), "-o", "table"});
  EXPECT_EQ(0, table.exitCode);
  EXPECT_EQ(RunQda({"identify", "--smbios-dump", SampleFile()}).output, table.output);
}

TEST(Identify, AsksTheProviderOfTheGivenName) {
  const ChildResult run =
      RunQda({"identify", "--provider", "machine", "--smbios-dump", SampleFile()});
  EXPECT_EQ(0, run.exitCode);
  EXPECT_THAT(run.output, StartsWith("Machine type and model    1234AC1\n"));
}

TEST(Identify, TakesTheDumpFromTheEnvironmentToo) {
  const std::string sample = SampleFile();
  const ChildResult run = RunQda({"identify"}, {{"QDA_SMBIOS_DUMP", sample.c_str()}});
  EXPECT_EQ(0, run.exitCode);
  EXPECT_THAT(run.output, StartsWith("Machine type and model    1234AC1\n"));
}

TEST(Identify, TakesTheOptionBeforeTheEnvironment) {
  const ChildResult run = RunQda({"identify", "--smbios-dump", SampleFile()},
                                 {{"QDA_SMBIOS_DUMP", "there is no such file"}});
  EXPECT_EQ(0, run.exitCode);
  EXPECT_EQ("", run.error);
}

TEST(Identify, FindsItsModulesWhereverItStands) {
  const Installation installation;
  installation.AddMachineModule();
  const ChildResult run = installation.Run({"identify", "--smbios-dump", SampleFile()});
  EXPECT_EQ(0, run.exitCode);
  EXPECT_EQ("", run.error);
  EXPECT_THAT(run.output, StartsWith("Machine type and model    1234AC1\n"));
}

TEST(Identify, CutsTheSpacesBehindASerialNumber) {
  const DumpFile dump("Some name-[2468]", "S 1   ");
  const ChildResult run = RunQda({"identify", "--smbios-dump", dump.Path(), "-o", "json"});
  EXPECT_EQ(0, run.exitCode);
  const nlohmann::json json = ParseJson(run.output);
  EXPECT_EQ("2468xxx", json["machineTypeModel"]);
  EXPECT_EQ("2468", json["machineType"]);
  EXPECT_EQ("xxx", json["modelNumber"]);
  EXPECT_EQ("S 1", json["serialNumber"]);
}

TEST(Identify, AFactThatIsMerelyUnknownIsNoFailure) {
  const DumpFile dump("1234AC1", "");
  const ChildResult table = RunQda({"identify", "--smbios-dump", dump.Path()});
  EXPECT_EQ(0, table.exitCode);
  EXPECT_EQ("", table.error);
  EXPECT_THAT(table.output, HasSubstr("\nSerial number             unknown\n"));
  const ChildResult json = RunQda({"identify", "--smbios-dump", dump.Path(), "-o", "json"});
  EXPECT_EQ(0, json.exitCode);
  EXPECT_TRUE(ParseJson(json.output)["serialNumber"].is_null());
}

}  // namespace

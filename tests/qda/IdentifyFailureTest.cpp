// What identify says, and with which exit code, when something is missing.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tests/qda/FirmwareTable.h>
#include <tests/qda/QdaProgram.h>

namespace {

using qda_test::DumpFile;
using qda_test::FirmwareHasNoTable;
using qda_test::Installation;
using qda_test::ParseJson;
using qda_test::RunQda;
using qda_test::SampleFile;
using smbios::sample::StructureBuilder;
using smbios::sample::TableBuilder;
using test_support::ChildResult;
using test_support::TemporaryFolder;
using testing::HasSubstr;
using testing::StartsWith;

TEST(IdentifyFailure, AProductNameWithoutCodeIsNamedAndTheRestIsTold) {
  const DumpFile dump("Standard PC", "S1");
  const ChildResult run = RunQda({"identify", "--smbios-dump", dump.Path()});
  EXPECT_EQ(1, run.exitCode);
  EXPECT_EQ(
      "qda: machine type and model: product name \"Standard PC\" carries no type and model "
      "(kQDAStatusInvalidFormat)\n",
      run.error);
  EXPECT_THAT(run.output, StartsWith("Machine type and model    unknown\n"
                                     "Machine type              unknown\n"
                                     "Model                     unknown\n"
                                     "Serial number             S1\n"
                                     "Product name              Standard PC\n"));
}

TEST(IdentifyFailure, WhatCannotBeToldIsNullInJson) {
  const DumpFile dump("Standard PC", "S1");
  const ChildResult run = RunQda({"identify", "--smbios-dump", dump.Path(), "-o", "json"});
  EXPECT_EQ(1, run.exitCode);
  EXPECT_THAT(run.error, HasSubstr("kQDAStatusInvalidFormat"));
  const nlohmann::json json = ParseJson(run.output);
  EXPECT_TRUE(json.contains("machineTypeModel"));
  EXPECT_TRUE(json["machineTypeModel"].is_null());
  EXPECT_TRUE(json["machineType"].is_null());
  EXPECT_TRUE(json["modelNumber"].is_null());
  EXPECT_EQ("Standard PC", json["productName"]);
  EXPECT_EQ("S1", json["serialNumber"]);
}

TEST(IdentifyFailure, ATableWithoutProductNameIsNoIdentity) {
  const DumpFile dump("", "S1");
  const ChildResult run = RunQda({"identify", "--smbios-dump", dump.Path()});
  EXPECT_EQ(1, run.exitCode);
  EXPECT_EQ("qda: machine type and model: product name is unknown (kQDAStatusNotFound)\n",
            run.error);
  EXPECT_THAT(run.output, HasSubstr("\nSerial number             S1\n"));
}

TEST(IdentifyFailure, ATableWithoutSystemInformationIsNoIdentity) {
  TableBuilder table;
  table.Add(StructureBuilder(127, 1));
  const DumpFile dump(table);
  const ChildResult run = RunQda({"identify", "--smbios-dump", dump.Path()});
  EXPECT_EQ(1, run.exitCode);
  EXPECT_EQ(
      "qda: machine type and model: product name is unknown (kQDAStatusNotFound): the SMBIOS "
      "table's System Information cannot be read (kQDAStatusNoMoreItems)\n",
      run.error);
}

TEST(IdentifyFailure, ADumpThatIsNotThereIsNamed) {
  const TemporaryFolder folder;
  const std::string path = folder.PathOf("none.smbios");
  const ChildResult run = RunQda({"identify", "--smbios-dump", path});
  EXPECT_EQ(1, run.exitCode);
  EXPECT_EQ("", run.output);
  EXPECT_EQ(
      "qda: provider \"machine\": it gives no namespace (kQDAStatusFileNotFound): the SMBIOS dump "
      "\"" +
          path + "\" cannot be read (kQDAStatusFileNotFound)\n",
      run.error);
}

TEST(IdentifyFailure, ADumpThatIsNoTableIsNamed) {
  const TemporaryFolder folder;
  const std::string path = folder.Write("text.smbios", "this is no SMBIOS table at all\n");
  const ChildResult run = RunQda({"identify", "--smbios-dump", path, "-o", "json"});
  EXPECT_EQ(1, run.exitCode);
  EXPECT_EQ("", run.output);
  EXPECT_EQ(
      "qda: provider \"machine\": it gives no namespace (kQDAStatusFail): the SMBIOS dump \"" +
          path + "\" cannot be read (kQDAStatusFail)\n",
      run.error);
}

TEST(IdentifyFailure, AFolderIsNoDump) {
  const TemporaryFolder folder;
  const ChildResult run = RunQda({"identify", "--smbios-dump", folder.Path()});
  EXPECT_EQ(1, run.exitCode);
  EXPECT_THAT(run.error, HasSubstr("\"" + folder.Path() + "\" cannot be read (kQDAStatusFail)"));
}

TEST(IdentifyFailure, ADumpFromTheEnvironmentIsNamedToo) {
  const ChildResult run = RunQda({"identify"}, {{"QDA_SMBIOS_DUMP", "no-such.smbios"}});
  EXPECT_EQ(1, run.exitCode);
  EXPECT_THAT(
      run.error,
      HasSubstr("the SMBIOS dump \"no-such.smbios\" cannot be read (kQDAStatusFileNotFound)"));
}

// This machine's own firmware: what the outcome is depends on the machine, so it is asked first.
TEST(IdentifyFailure, AMachineWithoutATableSaysSoAndWhatToTry) {
  if (!FirmwareHasNoTable()) {
    GTEST_SKIP() << "this machine has an SMBIOS table, or one that may not be read";
  }
  const ChildResult run = RunQda({"identify"});
  EXPECT_EQ(1, run.exitCode);
  EXPECT_EQ(
      "qda: machine type and model: product name is unknown (kQDAStatusNotFound): this machine has "
      "no SMBIOS table; a dump of another machine can be read with --smbios-dump FILE\n",
      run.error);
  EXPECT_THAT(run.output, StartsWith("Machine type and model    unknown\n"));
}

TEST(IdentifyFailure, AProviderThatIsNotThereIsAnsweredWithThoseThatAre) {
  const ChildResult run = RunQda({"identify", "--provider", "Machine"});
  EXPECT_EQ(1, run.exitCode);
  EXPECT_EQ("", run.output);
  EXPECT_THAT(run.error, StartsWith("qda: provider \"Machine\": none of that name is registered "
                                    "(kQDAStatusNotFound); registered: "));
  EXPECT_THAT(run.error, HasSubstr("machine"));
}

TEST(IdentifyFailure, WithoutAnyModuleTheFolderIsNamed) {
  const Installation installation;
  const ChildResult run = installation.Run({"identify", "--smbios-dump", SampleFile()});
  EXPECT_EQ(1, run.exitCode);
  EXPECT_EQ("", run.output);
  EXPECT_EQ("qda: no provider module (*.nsp.dll) stands in \"" + installation.Path() +
                "\" (kQDAStatusNotFound); a module must stand beside the program\n"
                "qda: provider \"machine\": none of that name is registered (kQDAStatusNotFound); "
                "registered: none; see \"qda providers\"\n",
            run.error);
}

struct OddRow {
  const char* provider;
  const char* error;
};

void PrintTo(const OddRow& row, std::ostream* stream) { *stream << row.provider; }

class OddProvider : public testing::TestWithParam<OddRow> {};

TEST_P(OddProvider, IsToldAsAFailure) {
  const Installation installation;
  installation.AddOddModule();
  const ChildResult run = installation.Run({"identify", "--provider", GetParam().provider});
  EXPECT_EQ(1, run.exitCode);
  EXPECT_EQ(GetParam().error, run.error);
}

INSTANTIATE_TEST_SUITE_P(
    Each, OddProvider,
    testing::Values(
        OddRow{"mute",
               "qda: provider \"mute\": it serves no namespace that a host can read "
               "(kQDAStatusNotSupported)\n"},
        OddRow{"null", "qda: provider \"null\": it gives no namespace (kQDAStatusNotFound)\n"},
        OddRow{
            "refusing",
            "qda: provider \"refusing\": it gives no namespace (kQDAStatusCimomConnectFailure)\n"},
        OddRow{"empty",
               "qda: machine type and model: product name is unknown (kQDAStatusNotFound); a dump "
               "of another machine can be read with --smbios-dump FILE\n"},
        OddRow{
            "mistyped",
            "qda: serial number: what the provider serves cannot be read (kQDAStatusTypeMismatch)\n"
            "qda: operating system type: what the provider serves cannot be read "
            "(kQDAStatusTypeMismatch)\n"}));

TEST(IdentifyFailure, FactsOfTheWrongTypeLeaveTheOthersTold) {
  const Installation installation;
  installation.AddOddModule();
  const ChildResult run = installation.Run({"identify", "--provider", "mistyped", "-o", "json"});
  EXPECT_EQ(1, run.exitCode);
  const nlohmann::json json = ParseJson(run.output);
  EXPECT_EQ("mistyped", json["provider"]);
  EXPECT_EQ("5678XYZ", json["machineTypeModel"]);
  EXPECT_TRUE(json["serialNumber"].is_null());
  EXPECT_TRUE(json["operatingSystem"]["type"].is_null());
}

}  // namespace

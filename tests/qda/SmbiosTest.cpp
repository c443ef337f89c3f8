// qda smbios

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

TEST(Smbios, TellsTheIdentificationAndEachStructure) {
  const ChildResult run = RunQda({"smbios", "--smbios-dump", SampleFile()});
  EXPECT_EQ(0, run.exitCode);
  EXPECT_EQ("", run.error);
  EXPECT_THAT(run.output,
              StartsWith("SMBIOS version                    3.0\n"
                         "BIOS identifier                   GY\n"
                         "Machine type, by product name     1234\n"
                         "Machine type, by BIOS identifier  7327\n"
                         "\n"
                         "0x0000  BIOS Information (type 0, 24 bytes)\n"
                         "  Vendor                                ZRV\n"
                         "  BIOS Version                          -[GYE121AUS-1.07]-\n"));
  EXPECT_THAT(run.output, HasSubstr("\n\n0x0100  System Information (type 1, 27 bytes)\n"
                                    "  Manufacturer   ZRV\n"
                                    "  Product Name   ZRV Tserver k7265-[1234AC1]\n"
                                    "  Version        05\n"
                                    "  Serial Number  KD7Z042\n"
                                    "  UUID           00112233-4455-6677-8899-aabbccddeeff\n"
                                    "  Wake-up Type   Power Switch\n"
                                    "  SKU Number     1234AC1\n"
                                    "  Family         Tserver\n"));
  EXPECT_THAT(run.output, testing::EndsWith("\n0x7F00  End-of-Table (type 127, 4 bytes)\n"));
}

TEST(Smbios, TellsTheSameInJson) {
  const ChildResult run = RunQda({"smbios", "--smbios-dump", SampleFile(), "-o", "json"});
  EXPECT_EQ(0, run.exitCode);
  const nlohmann::json json = ParseJson(run.output);
  EXPECT_EQ("3.0", json["version"]);
  EXPECT_EQ("GY", json["biosId"]);
  EXPECT_EQ("1234", json["machineType"]);
  EXPECT_EQ("7327", json["machineTypeFromId"]);
  const nlohmann::json& system = json["structures"][1];
  EXPECT_EQ(1, system["type"]);
  EXPECT_EQ("System Information", system["name"]);
  EXPECT_EQ("0x0100", system["handle"]);
  EXPECT_EQ(27, system["length"]);
  EXPECT_EQ("KD7Z042", system["fields"]["Serial Number"]);
  EXPECT_EQ(127, json["structures"].back()["type"]);
}

TEST(Smbios, NeedsNoProvider) {
  const Installation installation;
  const ChildResult run = installation.Run({"smbios", "--smbios-dump", SampleFile()});
  EXPECT_EQ(0, run.exitCode);
  EXPECT_EQ("", run.error);
}

TEST(Smbios, UnknownTypesAreNamedByTypeHandleAndLength) {
  TableBuilder table;
  table.Add(StructureBuilder(200, 0x1234).Dword(1).LooseText("secret"));
  table.Add(StructureBuilder(99, 2));
  table.Add(StructureBuilder(127, 3));
  const DumpFile dump(table);
  const ChildResult run = RunQda({"smbios", "--smbios-dump", dump.Path()});
  EXPECT_EQ(0, run.exitCode);
  EXPECT_THAT(run.output, HasSubstr("\n\n0x1234  OEM-specific (type 200, 8 bytes)\n"
                                    "\n0x0002  Unknown (type 99, 4 bytes)\n"
                                    "\n0x0003  End-of-Table (type 127, 4 bytes)\n"));
}

TEST(Smbios, HostileStringsAreShownHarmlessly) {
  const DumpFile dump("\x1B[2J\xFF\nX", "\xE2\x80\xAE");
  const ChildResult run = RunQda({"smbios", "--smbios-dump", dump.Path()});
  EXPECT_EQ(0, run.exitCode);
  EXPECT_THAT(run.output, HasSubstr("\n  Product Name   \\x1B[2J\\xFF\\x0AX\n"));
  EXPECT_THAT(run.output, HasSubstr("\n  Serial Number  \\xE2\\x80\\xAE\n"));
  const ChildResult json = RunQda({"smbios", "--smbios-dump", dump.Path(), "-o", "json"});
  EXPECT_EQ("\x1B[2J\xEF\xBF\xBD\nX",
            ParseJson(json.output)["structures"][0]["fields"]["Product Name"]);
}

// More than any table before SMBIOS 3.0 can have.
TEST(Smbios, AHugeStructureIsTold) {
  TableBuilder table;
  StructureBuilder oem(11, 1);
  oem.Byte(2).LooseText(std::string(300000, 'x')).LooseText("behind");
  table.Add(oem);
  table.Add(StructureBuilder(127, 3));
  const DumpFile dump(table);
  const ChildResult run = RunQda({"smbios", "--smbios-dump", dump.Path(), "-o", "json"});
  EXPECT_EQ(0, run.exitCode);
  const nlohmann::json fields = ParseJson(run.output)["structures"][0]["fields"];
  EXPECT_EQ(std::string(300000, 'x'), fields["String 1"]);
  EXPECT_EQ("behind", fields["String 2"]);
}

TEST(Smbios, ADumpThatCannotBeReadIsNamed) {
  const TemporaryFolder folder;
  const std::string none = folder.PathOf("none");
  const std::string text = folder.Write("text", "no table at all\n");
  const std::string behind =
      "; it must be one that \"dmidecode --dump-bin\" writes, or a bare structure table\n";
  for (const bool isThere : {false, true}) {
    const ChildResult run = RunQda({"smbios", "--smbios-dump", isThere ? text : none});
    EXPECT_EQ(1, run.exitCode);
    EXPECT_EQ("", run.output);
    EXPECT_EQ("qda: the SMBIOS dump \"" + (isThere ? text : none) + "\" cannot be read (" +
                  (isThere ? "kQDAStatusFail" : "kQDAStatusFileNotFound") + ")" + behind,
              run.error);
  }
}

TEST(Smbios, AMachineWithoutATableSaysSoAndWhatToTry) {
  if (!FirmwareHasNoTable()) {
    GTEST_SKIP() << "this machine has an SMBIOS table, or one that may not be read";
  }
  const ChildResult run = RunQda({"smbios"});
  EXPECT_EQ(1, run.exitCode);
  EXPECT_EQ(
      "qda: this machine has no SMBIOS table (kQDAStatusNotFound); a dump of another machine can "
      "be read with --smbios-dump FILE\n",
      run.error);
}

}  // namespace

// qda snapshot, --from and qda diff

#include <gtest/gtest.h>

#include <tests/qda/QdaProgram.h>
#include <tests/support/TemporaryFolder.h>

namespace {

using qda_test::Installation;
using qda_test::ParseJson;
using qda_test::RunQda;
using qda_test::SampleFile;
using test_support::ChildResult;
using test_support::PathExists;
using test_support::ReadTextFile;
using test_support::TemporaryFolder;

const char kSchema[] =
    "Qualifier Key : boolean = false, Scope(property), Flavor(DisableOverride);\n"
    "class Disk { [Key] string ID; uint32 Size; string Note; };\n"
    "class Loose { string Text; };\n"
    "class Link { [Key] Disk REF From; Link REF Back; };\n";

TEST(Snapshot, IsReadLikeTheLiveMachine) {
  const Installation installation;
  installation.AddMachineModule();
  const TemporaryFolder folder;
  const std::string file = folder.PathOf("machine.mof");
  const ChildResult taken =
      installation.Run({"snapshot", "-o", file, "--smbios-dump", SampleFile()});
  EXPECT_EQ(0, taken.exitCode);
  EXPECT_EQ("", taken.output + taken.error);
  EXPECT_FALSE(PathExists(file + ".part"));
  // From here on without any module.
  const Installation bare;
  const ChildResult live = installation.Run({"identify", "--smbios-dump", SampleFile()});
  const ChildResult kept = bare.Run({"identify", "--from", file});
  EXPECT_EQ(0, kept.exitCode) << kept.error;
  EXPECT_EQ(live.output, kept.output);
  const nlohmann::json live_list = ParseJson(
      installation.Run({"instances", "CIM_Card", "--smbios-dump", SampleFile(), "-o", "json"})
          .output);
  const nlohmann::json kept_list =
      ParseJson(bare.Run({"instances", "CIM_Card", "--from", file, "-o", "json"}).output);
  EXPECT_LE(1u, kept_list["instances"].size());
  EXPECT_EQ(live_list["instances"], kept_list["instances"]);
  const nlohmann::json live_tree =
      ParseJson(installation.Run({"classes", "--smbios-dump", SampleFile(), "-o", "json"}).output);
  const nlohmann::json kept_tree =
      ParseJson(bare.Run({"classes", "--from", file, "-o", "json"}).output);
  EXPECT_EQ(live_tree["classes"].size(), kept_tree["classes"].size());
  const std::string path = kept_list["instances"][0]["path"];
  EXPECT_EQ(0, bare.Run({"get", path, "--from", file}).exitCode);
  EXPECT_EQ(0, bare.Run({"class", "CIM_Card", "--from", file}).exitCode);
}

TEST(Snapshot, OfASnapshotIsTheSameText) {
  const TemporaryFolder folder;
  const std::string first =
      folder.Write("first.mof", std::string(kSchema) +
                                    "instance of Disk { ID = \"a\"; Size = 1; };\n"
                                    "instance of Link { From = \"Disk.ID=\\\"a\\\"\"; "
                                    "Back = \"Link.From=\\\"Disk.ID=\\\\\\\"a\\\\\\\"\\\"\"; };\n"
                                    "instance of Loose { Text = \"x\"; };\n");
  const std::string second = folder.PathOf("second.mof");
  const std::string third = folder.PathOf("third.mof");
  const ChildResult one =
      RunQda({"snapshot", "--provider", "mof", "-o", second}, {{"QDA_MOF_PATH", first.c_str()}});
  EXPECT_EQ(0, one.exitCode) << one.error;
  const ChildResult two =
      RunQda({"snapshot", "--provider", "mof", "-o", third}, {{"QDA_MOF_PATH", second.c_str()}});
  EXPECT_EQ(0, two.exitCode) << two.error;
  EXPECT_EQ(ReadTextFile(second), ReadTextFile(third));
  EXPECT_NE(std::string::npos, ReadTextFile(third).find("instance of Link"));
}

TEST(Snapshot, TakesEveryProvider) {
  const TemporaryFolder folder;
  const std::string own =
      folder.Write("own.mof", std::string(kSchema) + "instance of Disk { ID = \"mine\"; };\n");
  const ChildResult run = RunQda({"snapshot", "-o", "-", "--smbios-dump", SampleFile()},
                                 {{"QDA_MOF_PATH", own.c_str()}});
  EXPECT_EQ(0, run.exitCode) << run.error;
  EXPECT_NE(std::string::npos, run.output.find("instance of Disk {\n  ID = \"mine\";\n}"));
  EXPECT_NE(std::string::npos, run.output.find("instance of ZRVSG_ComputerSystem {"));
}

TEST(Snapshot, TellsWhatItHadToLeaveOut) {
  const TemporaryFolder folder;
  // The machine provider has one of that very key.
  const std::string own = folder.Write(
      "own.mof", RunQda({"snapshot", "-o", "-", "--smbios-dump", SampleFile()}).output);
  const std::string file = folder.PathOf("both.mof");
  const ChildResult run = RunQda({"snapshot", "-o", file, "--smbios-dump", SampleFile()},
                                 {{"QDA_MOF_PATH", own.c_str()}});
  EXPECT_EQ(1, run.exitCode);
  EXPECT_NE(std::string::npos, run.error.find("provider \"mof\": ZRVSG_QDAProduct."));
  EXPECT_NE(std::string::npos, run.error.find("is left out (kQDAStatusAlreadyExists)"));
  // What could be taken is there.
  EXPECT_EQ(0, RunQda({"identify", "--from", file}).exitCode);
}

TEST(Snapshot, ReplacesAFileOnlyByAWholeOne) {
  const TemporaryFolder folder;
  const std::string file = folder.Write("old.mof", "what was there\n");
  const Installation none;
  const ChildResult nothing = none.Run({"snapshot", "-o", file});
  EXPECT_EQ(1, nothing.exitCode);
  EXPECT_NE(std::string::npos, nothing.error.find("snapshot: there is nothing to write"));
  EXPECT_EQ("what was there\n", ReadTextFile(file));
  EXPECT_EQ(0, RunQda({"snapshot", "-o", file, "--smbios-dump", SampleFile()}).exitCode);
  EXPECT_EQ("Qualifier", ReadTextFile(file).substr(0, 9));
}

// Names are bytes, and need not be UTF-8.
TEST(Snapshot, NameOfTheFileMayHaveAnyCharacters) {
  const TemporaryFolder folder;
  const std::string file = folder.PathOf("\xe4\xf6.mof");
  EXPECT_EQ(0, RunQda({"snapshot", "-o", file, "--smbios-dump", SampleFile()}).exitCode);
  EXPECT_EQ(0, RunQda({"classes", "--from", file}).exitCode);
}

TEST(Snapshot, PlaceThatCannotBeWrittenIsTold) {
  const TemporaryFolder folder;
  const std::string file = folder.PathOf("no folder/x.mof");
  const ChildResult run = RunQda({"snapshot", "-o", file, "--smbios-dump", SampleFile()});
  EXPECT_EQ(1, run.exitCode);
  EXPECT_NE(std::string::npos, run.error.find("it cannot be written (kQDAStatusFileSystemError)"))
      << run.error;
}

TEST(From, ProblemOfAFileIsToldWithItsPlace) {
  const TemporaryFolder folder;
  const std::string file = folder.Write("bad.mof", "class A {\n  strin ID;\n};\n");
  const ChildResult run = RunQda({"identify", "--from", file});
  EXPECT_EQ(1, run.exitCode);
  EXPECT_EQ(
      "qda: snapshot \"" + file + "\": " + file +
          ":2:3: \"strin\" is no type; a reference to a class reads \"strin REF\" in front of "
          "its name (kQDAStatusInvalidFormat); a snapshot is what \"qda snapshot -o FILE\" "
          "writes\n",
      run.error);
  const ChildResult missing = RunQda({"classes", "--from", folder.PathOf("none.mof")});
  EXPECT_EQ(1, missing.exitCode);
  EXPECT_NE(std::string::npos, missing.error.find("cannot be opened (kQDAStatusFileNotFound)"));
}

TEST(From, OutputNamesTheFile) {
  const TemporaryFolder folder;
  const std::string file =
      folder.Write("some disk.mof", std::string(kSchema) + "instance of Disk { ID = \"a\"; };\n");
  const Installation bare;
  const nlohmann::json identity =
      ParseJson(bare.Run({"identify", "--from", file, "-o", "json"}).output);
  const nlohmann::json tree = ParseJson(bare.Run({"classes", "--from", file, "-o", "json"}).output);
  for (const nlohmann::json& json : {identity, tree}) {
    EXPECT_EQ(file, json.value("snapshot", ""));
    EXPECT_EQ(0u, json.count("provider"));
  }
  const nlohmann::json live =
      ParseJson(RunQda({"classes", "--smbios-dump", SampleFile(), "-o", "json"}).output);
  EXPECT_EQ("machine", live.value("provider", ""));
  EXPECT_EQ(0u, live.count("snapshot"));
}

TEST(From, FailuresNameTheFile) {
  const TemporaryFolder folder;
  const std::string file =
      folder.Write("disk.mof", std::string(kSchema) + "instance of Disk { ID = \"a\"; };\n");
  const std::string from = " of snapshot \"" + file + "\": ";
  const struct {
    std::vector<std::string> arguments;
    std::string error;
  } rows[] = {
      {{"identify"},
       "qda: machine type and model" + from + "product name is unknown (kQDAStatusNotFound)\n"},
      {{"class", "Disc"},
       "qda: class \"Disc\"" + from +
           "the namespace gives none of that name (kQDAStatusNotFound); near it: Disk; see \"qda "
           "classes --from " +
           file + "\"\n"},
      {{"instances", "Disc"},
       "qda: class \"Disc\"" + from +
           "the namespace gives none of that name (kQDAStatusNotFound); near it: Disk; see \"qda "
           "classes --from " +
           file + "\"\n"},
      {{"get", "Disk.ID=\"b\""},
       "qda: path \"Disk.ID=\"b\"\"" + from +
           "there is no such instance (kQDAStatusNotFound); a path reads "
           "Class.Key=\"value\",Other=\"value\" with all the keys of the class, see \"qda "
           "instances --deep Disk --from " +
           file + "\"\n"},
  };
  for (const auto& row : rows) {
    std::vector<std::string> arguments = row.arguments;
    arguments.insert(arguments.end(), {"--from", file});
    const ChildResult run = RunQda(arguments);
    EXPECT_EQ(1, run.exitCode) << row.arguments[0];
    EXPECT_EQ(row.error, run.error);
  }
  const ChildResult none = RunQda({"get", "Disc.ID=\"b\"", "--from", file});
  EXPECT_EQ(1, none.exitCode);
  EXPECT_EQ(0u,
            none.error.find("qda: path \"Disc.ID=\"b\"\"" + from + "there is no class \"Disc\""));
}

TEST(From, ValuesOfAnotherTypeAreNoProvidersFault) {
  const TemporaryFolder folder;
  const std::string file = folder.Write(
      "odd.mof",
      "class ZRVSG_ComputerSystem { string ProductName; uint32 SerialNumber; };\n"
      "instance of ZRVSG_ComputerSystem { ProductName = \"x -[1234AC1]-\"; SerialNumber = 7; };\n");
  const ChildResult run = RunQda({"identify", "--from", file});
  EXPECT_EQ(1, run.exitCode);
  EXPECT_EQ("qda: serial number of snapshot \"" + file +
                "\": what it says cannot be read (kQDAStatusTypeMismatch)\n",
            run.error);
}

TEST(From, GoesWithNoOtherSource) {
  for (const char* other : {"--provider", "--smbios-dump"}) {
    EXPECT_EQ(2, RunQda({"identify", "--from", "x", other, "y"}).exitCode) << other;
  }
}

struct TwoSnapshots : testing::Test {
  std::string Before() const {
    return folder.Write("before.mof",
                        std::string(kSchema) +
                            "instance of Disk { ID = \"gone\"; };\n"
                            "instance of Disk { ID = \"same\"; Size = 1; };\n"
                            "instance of Disk { ID = \"new size\"; Size = 1; Note = \"n\"; };\n"
                            "instance of Loose { Text = \"twice\"; };\n"
                            "instance of Loose { Text = \"twice\"; };\n");
  }
  std::string After() const {
    return folder.Write("after.mof", std::string(kSchema) +
                                         "instance of Disk { ID = \"come\"; };\n"
                                         "instance of Disk { ID = \"new size\"; Size = 2; };\n"
                                         "instance of Disk { ID = \"same\"; Size = 1; };\n"
                                         "instance of Loose { Text = \"once\"; };\n"
                                         "instance of Loose { Text = \"twice\"; };\n");
  }

  const TemporaryFolder folder;
};

typedef TwoSnapshots Diff;

TEST_F(Diff, TellsWhatCameWhatWentAndWhatChanged) {
  const ChildResult run = RunQda({"diff", Before(), After()});
  EXPECT_EQ(0, run.exitCode) << run.error;
  EXPECT_EQ(
      "- Disk.ID=\"gone\"\n"
      "- Loose {Text=\"twice\"}\n"
      "+ Disk.ID=\"come\"\n"
      "+ Loose {Text=\"once\"}\n"
      "~ Disk.ID=\"new size\"\n"
      "    Note: \"n\" -> NULL\n"
      "    Size: 1 -> 2\n",
      run.output);
}

// Two paths that read the same, because real numbers are rounded in them.
TEST_F(Diff, LosesNoInstanceWhosePathAnotherOneHas) {
  const std::string schema =
      "Qualifier Key : boolean = false, Scope(property), Flavor(DisableOverride);\n"
      "class Point { [Key] real64 X; string S; };\n"
      "instance of Point { X = 0.12345678; S = \"a\"; };\n";
  const ChildResult run = RunQda(
      {"diff", folder.Write("one.mof", schema),
       folder.Write("two.mof", schema + "instance of Point { X = 0.12345679; S = \"b\"; };\n")});
  EXPECT_EQ("+ Point {S=\"b\", X=0.12345679}\n", run.output);
}

TEST_F(Diff, IsToldInJson) {
  const nlohmann::json json = ParseJson(RunQda({"diff", Before(), After(), "-o", "json"}).output);
  EXPECT_EQ(nlohmann::json::parse(R"({
      "removed": ["Disk.ID=\"gone\"", "Loose {Text=\"twice\"}"],
      "added": ["Disk.ID=\"come\"", "Loose {Text=\"once\"}"],
      "changed": [{"path": "Disk.ID=\"new size\"", "properties": {
          "Note": {"before": "n", "after": null}, "Size": {"before": 1, "after": 2}}}]})"),
            json);
}

TEST_F(Diff, OfEqualSnapshotsSaysSo) {
  const ChildResult run = RunQda({"diff", Before(), Before()});
  EXPECT_EQ(0, run.exitCode);
  EXPECT_EQ("The two snapshots have the same instances\n", run.output);
}

TEST_F(Diff, NeedsTwoFilesThatCanBeRead) {
  EXPECT_EQ(2, RunQda({"diff", Before()}).exitCode);
  const ChildResult run = RunQda({"diff", Before(), folder.PathOf("none.mof")});
  EXPECT_EQ(1, run.exitCode);
  EXPECT_NE(std::string::npos, run.error.find("none.mof\" cannot be opened"));
}

}  // namespace

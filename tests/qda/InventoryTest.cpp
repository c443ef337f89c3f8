// qda classes, class, instances and get, over the namespaces of a test module.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tests/qda/QdaProgram.h>

namespace {

using qda_test::Installation;
using qda_test::ParseJson;
using test_support::ChildResult;
using testing::HasSubstr;
using testing::StartsWith;

class Inventory : public testing::Test {
 protected:
  // One installation for all of them: they only read.
  static void SetUpTestSuite() {
    fInstallation = new Installation;
    fInstallation->AddInventoryModule();
  }
  static void TearDownTestSuite() {
    delete fInstallation;
    fInstallation = nullptr;
  }

  static ChildResult Run(std::vector<std::string> arguments, const char* provider = "values") {
    arguments.push_back("--provider");
    arguments.push_back(provider);
    return fInstallation->Run(arguments);
  }

  static std::string Output(const std::vector<std::string>& arguments,
                            const char* provider = "values") {
    const ChildResult run = Run(arguments, provider);
    EXPECT_EQ(0, run.exitCode);
    EXPECT_EQ("", run.error);
    return run.output;
  }

  static nlohmann::json Json(std::vector<std::string> arguments) {
    arguments.insert(arguments.end(), {"-o", "json"});
    return ParseJson(Output(arguments));
  }

  // The message of a run that fails and prints nothing.
  static std::string Failure(const std::vector<std::string>& arguments,
                             const char* provider = "values") {
    const ChildResult run = Run(arguments, provider);
    EXPECT_EQ(1, run.exitCode);
    EXPECT_EQ("", run.output);
    return run.error;
  }

  static Installation* fInstallation;
};

Installation* Inventory::fInstallation = nullptr;

TEST_F(Inventory, ClassesAreATree) {
  EXPECT_EQ(
      "CLASS      SUPERCLASS  KIND\n"
      "T_Base                 abstract\n"
      "  T_Thing  T_Base\n"
      "T_Link                 association\n"
      "T_Values\n"
      "T_Keyless\n"
      "T_NullKey\n",
      Output({"classes"}));
}

TEST_F(Inventory, ClassesAreListedInJson) {
  const nlohmann::json json = Json({"classes"});
  EXPECT_EQ("values", json["provider"]);
  ASSERT_EQ(6u, json["classes"].size());
  EXPECT_EQ(nlohmann::json::parse(R"({"name": "T_Base", "superclass": null, "depth": 0,
                                      "abstract": true, "association": false})"),
            json["classes"][0]);
  EXPECT_EQ(nlohmann::json::parse(R"({"name": "T_Thing", "superclass": "T_Base", "depth": 1,
                                      "abstract": false, "association": false})"),
            json["classes"][1]);
  EXPECT_EQ(true, json["classes"][2]["association"]);
}

TEST_F(Inventory, AClassTellsWhatItDeclaresAndInherits) {
  EXPECT_EQ(
      "Class        T_Thing\n"
      "Superclass   T_Base\n"
      "Abstract     no\n"
      "Association  no\n"
      "\n"
      "PROPERTY  TYPE       KEY  ORIGIN   DEFAULT\n"
      "Name      string     key  T_Base   NULL\n"
      "Count     uint32          T_Thing  7\n"
      "Tags      string[4]       T_Thing  NULL\n"
      "\n"
      "METHOD  TYPE    ORIGIN  PARAMETERS\n"
      "Reset   uint32  T_Base  boolean Hard\n"
      "\n"
      "ELEMENT  QUALIFIER    VALUE\n"
      "Name     Key          true\n"
      "Reset()  Description  \"Starts \\\"it\\\" again\"\n",
      Output({"class", "T_Thing"}));
}

TEST_F(Inventory, AClassTellsTheSameInJson) {
  EXPECT_EQ(nlohmann::json::parse(R"({
    "name": "T_Thing", "superclass": "T_Base", "abstract": false, "association": false,
    "qualifiers": {},
    "properties": [
      {"name": "Name", "type": "string", "array": false, "key": true, "origin": "T_Base",
       "default": null, "qualifiers": {"Key": true}},
      {"name": "Count", "type": "uint32", "array": false, "key": false, "origin": "T_Thing",
       "default": 7, "qualifiers": {}},
      {"name": "Tags", "type": "string[4]", "array": true, "key": false, "origin": "T_Thing",
       "default": null, "qualifiers": {}}],
    "methods": [
      {"name": "Reset", "type": "uint32", "origin": "T_Base",
       "parameters": [{"name": "Hard", "type": "boolean", "qualifiers": {}}],
       "qualifiers": {"Description": "Starts \"it\" again"}}]})"),
            Json({"class", "T_Thing"}));
}

TEST_F(Inventory, AnAssociationNamesWhatItRefersTo) {
  const std::string table = Output({"class", "T_Link"});
  EXPECT_THAT(table, HasSubstr("Association  yes\n"));
  EXPECT_THAT(table, HasSubstr("\nAntecedent  reference to T_Thing  key  T_Link"));
}

TEST_F(Inventory, ARootClassHasNoSuperclass) {
  EXPECT_THAT(Output({"class", "T_Base"}), HasSubstr("Superclass   none\nAbstract     yes\n"));
  EXPECT_TRUE(Json({"class", "T_Base"})["superclass"].is_null());
}

TEST_F(Inventory, AClassIsFoundInAnyCase) {
  EXPECT_EQ(Output({"class", "T_Thing"}), Output({"class", "t_THING"}));
}

TEST_F(Inventory, AClassThatIsNotThereIsAnsweredWithThoseNearIt) {
  const char* const expected =
      "qda: class \"T_Thin\": the namespace gives none of that name (kQDAStatusNotFound); near it: "
      "T_Thing; see \"qda classes\"\n";
  EXPECT_EQ(expected, Failure({"class", "T_Thin"}));
  EXPECT_EQ(expected, Failure({"instances", "T_Thin"}));
}

TEST_F(Inventory, AClassLikeNoOtherIsAnsweredWithoutNames) {
  EXPECT_EQ(
      "qda: class \"\\x1B\": the namespace gives none of that name (kQDAStatusNotFound); see \"qda "
      "classes\"\n",
      Failure({"class", "\x1B"}));
}

TEST_F(Inventory, InstancesAreListedWithPathsAndProperties) {
  EXPECT_EQ(
      "T_Thing.Name=\"plain\"\n"
      "  Name   string     \"plain\"\n"
      "  Count  uint32     7\n"
      "  Tags   string[4]  NULL\n"
      "\n"
      "T_Thing.Name=\"a\\\"b\\\\c.d,e=f\"\n"
      "  Name   string     \"a\\\"b\\\\c.d,e=f\"\n"
      "  Count  uint32     9\n"
      "  Tags   string[4]  NULL\n",
      Output({"instances", "T_Thing"}));
}

TEST_F(Inventory, InstancesOfSubclassesAreListedWhenAskedFor) {
  EXPECT_EQ("T_Base has no instances; --deep takes in those of its subclasses\n",
            Output({"instances", "T_Base"}));
  EXPECT_EQ(Output({"instances", "T_Thing"}), Output({"instances", "T_Base", "--deep"}));
  const nlohmann::json none = Json({"instances", "T_Base"});
  EXPECT_EQ(nlohmann::json::parse(R"({"class": "T_Base", "deep": false, "instances": []})"), none);
  const nlohmann::json deep = Json({"instances", "T_Base", "--deep"});
  EXPECT_EQ(true, deep["deep"]);
  EXPECT_EQ(2u, deep["instances"].size());
}

TEST_F(Inventory, EveryTypeIsShown) {
  const std::string table = Output({"get", "T_Values.Id=\"1\""});
  EXPECT_THAT(table, StartsWith("T_Values.Id=\"1\"\n"
                                "  Id          uint8     1\n"
                                "  Boolean     boolean   true\n"
                                "  Unsigned64  uint64    18446744073709551615\n"
                                "  Signed64    sint64    -9223372036854775808\n"
                                "  Real32      real32    0.1\n"
                                "  Real64      real64    1e+300\n"
                                "  NoNumber    real64    inf\n"
                                "  Character   char16    65\n"));
  EXPECT_THAT(table, HasSubstr("\n  Text        string    "
                               "\"\\x1B[2J\\xFF\\xE2\\x80\\xAE\\x0A\\x00\\\"\\\\\"\n"
                               "  When        datetime  20190314092653.012345+060\n"
                               "  Some        string[]  { \"a, b\", NULL }\n"
                               "  Many        uint32[]  { 0, 1, 2, "));
  EXPECT_THAT(table, HasSubstr(" 30, 31, and 9968 more }\n"));
}

TEST_F(Inventory, EveryTypeIsItselfInJson) {
  const nlohmann::json instance = Json({"get", "T_Values.Id=\"1\""});
  EXPECT_EQ("T_Values.Id=\"1\"", instance["path"]);
  EXPECT_EQ("T_Values", instance["class"]);
  const nlohmann::json& properties = instance["properties"];
  const auto value = [&properties](const char* name) { return properties[name]["value"]; };
  EXPECT_EQ("uint64", properties["Unsigned64"]["type"]);
  EXPECT_EQ(true, value("Boolean"));
  EXPECT_EQ(18446744073709551615ull, value("Unsigned64").get<unsigned long long>());
  EXPECT_EQ(-9223372036854775807ll - 1, value("Signed64").get<long long>());
  EXPECT_EQ(0.1, value("Real32"));
  EXPECT_EQ(1e300, value("Real64"));
  EXPECT_EQ("inf", value("NoNumber"));
  EXPECT_EQ(65, value("Character"));
  EXPECT_EQ(std::string("\x1B[2J\xEF\xBF\xBD\xE2\x80\xAE\n\0\"\\", 12 + 2), value("Text"));
  EXPECT_EQ("20190314092653.012345+060", value("When"));
  EXPECT_EQ(nlohmann::json::parse(R"(["a, b", null])"), value("Some"));
  ASSERT_EQ(10000u, value("Many").size());
  EXPECT_EQ(9999, value("Many")[9999]);
}

TEST_F(Inventory, WhatIsNotKnownIsNullOfItsType) {
  const nlohmann::json instance = Json({"get", "T_Values.Id=\"2\""});
  EXPECT_EQ(12u, instance["properties"].size());
  for (const auto& property : instance["properties"].items()) {
    EXPECT_TRUE(property.value()["type"].is_string());
    EXPECT_EQ(property.key() != "Id", property.value()["value"].is_null()) << property.key();
  }
  EXPECT_THAT(Output({"get", "T_Values.Id=\"2\""}), HasSubstr("\n  When        datetime  NULL\n"));
}

TEST_F(Inventory, AnInstanceWithoutPathSaysWhy) {
  EXPECT_EQ("T_Keyless (no path: its class has no key)\n  Note  string  \"x\"\n",
            Output({"instances", "T_Keyless"}));
  EXPECT_EQ("T_NullKey (no path: a key is null)\n  Name  string  NULL\n",
            Output({"instances", "T_NullKey"}));
  EXPECT_TRUE(Json({"instances", "T_NullKey"})["instances"][0]["path"].is_null());
}

TEST_F(Inventory, EveryPathIsTakenBack) {
  for (const char* name : {"T_Thing", "T_Link", "T_Values"}) {
    const nlohmann::json list = Json({"instances", name});
    ASSERT_FALSE(list["instances"].empty());
    for (const nlohmann::json& instance : list["instances"]) {
      ASSERT_TRUE(instance["path"].is_string());
      EXPECT_EQ(instance, Json({"get", instance["path"]}));
    }
  }
}

TEST_F(Inventory, APathOfAClassIsTheClass) {
  EXPECT_EQ(Output({"class", "T_Thing"}), Output({"get", "T_Thing"}));
  EXPECT_EQ(Json({"class", "T_Thing"}), Json({"get", "T_Thing"}));
}

TEST_F(Inventory, APathMayHaveItsNamespaceInFront) {
  EXPECT_EQ(Output({"get", "T_Thing.Name=\"plain\""}),
            Output({"get", "root/cimv2:T_Thing.Name=\"plain\""}));
}

struct PathRow {
  const char* what;
  const char* path;
  const char* said;
};

TEST_F(Inventory, APathThatNamesNothingSaysWhatIsWrongWithIt) {
  const PathRow rows[] = {
      {"another value", "T_Thing.Name=\"none\"",
       "there is no such instance (kQDAStatusNotFound); "},
      {"no quotes", "T_Thing.Name=plain", "it names nothing (kQDAStatusInvalidReference); "},
      {"no closing quote", "T_Thing.Name=\"plain",
       "it names nothing (kQDAStatusInvalidReference): Reference missing closing '\"', "
       "path=T_Thing.Name=\"plain; "},
      {"no such key", "T_Thing.Serial=\"1\"",
       "it names nothing (kQDAStatusInvalidReference): Reference specifies invalid property, "
       "property=Serial, path=T_Thing.Serial=\"1\"; "},
      {"a property that is no key", "T_Thing.Count=\"7\"",
       "it names nothing (kQDAStatusInvalidReference); "},
      {"the char16 of no key", "T_Values.Character=\"65\"",
       "it names nothing (kQDAStatusTypeMismatch): Core: Declaration type: char16 Value type: "
       "string; "}};
  for (const PathRow& row : rows) {
    SCOPED_TRACE(row.what);
    const std::string cls = std::string(row.path).substr(0, std::string(row.path).find('.'));
    EXPECT_EQ(
        "qda: path \"" + std::string(row.path) + "\": " + row.said +
            "a path reads Class.Key=\"value\",Other=\"value\" with all the keys of the class, "
            "see \"qda instances --deep " +
            cls + "\"\n",
        Failure({"get", row.path}));
  }
}

TEST_F(Inventory, APathOfNoClassIsAnsweredWithThoseNearIt) {
  EXPECT_EQ(
      "qda: path \"T_Things\": there is no class \"T_Things\" (kQDAStatusNotFound); near it: "
      "T_Thing; "
      "see \"qda classes\"\n",
      Failure({"get", "T_Things"}));
  EXPECT_EQ(
      "qda: path \"x:T_Thign.Name=\"plain\"\": there is no class \"T_Thign\" "
      "(kQDAStatusInvalidReference); near it: T_Thing; see \"qda classes\"\n",
      Failure({"get", "x:T_Thign.Name=\"plain\""}));
}

TEST_F(Inventory, AClassThatIsItsOwnAncestorEnds) {
  EXPECT_EQ("CLASS   SUPERCLASS  KIND\nT_Loop              abstract association\n",
            Output({"classes"}, "loop"));
  EXPECT_EQ("Class        T_Loop\nSuperclass   none\nAbstract     yes\nAssociation  yes\n",
            Output({"class", "T_Loop"}, "loop"));
  EXPECT_EQ("T_Loop has no instances; --deep takes in those of its subclasses\n",
            Output({"instances", "T_Loop"}, "loop"));
}

TEST_F(Inventory, AnInstanceWithoutClassEndsTheListAndIsTold) {
  const ChildResult run = Run({"instances", "T_Loop", "--deep", "-o", "json"}, "loop");
  EXPECT_EQ(1, run.exitCode);
  EXPECT_EQ(
      "qda: class \"T_Loop\": its instances cannot be read to the end (kQDAStatusInvalidClass)\n",
      run.error);
  EXPECT_TRUE(ParseJson(run.output)["instances"].empty());
}

TEST_F(Inventory, AnEmptyPointerForAClassIsNoClass) {
  EXPECT_EQ(
      "qda: class \"T_Lop\": the namespace gives none of that name (kQDAStatusNotFound); near it: "
      "T_Loop; see \"qda classes\"\n",
      Failure({"class", "T_Lop"}, "loop"));
}

TEST_F(Inventory, ARefusalIsToldWithItsStatus) {
  EXPECT_EQ(
      "qda: provider \"unlisted\": its classes cannot be read (kQDAStatusCimomConnectFailure)\n",
      Failure({"classes"}, "unlisted"));
  EXPECT_EQ(
      "qda: class \"T_Refused\": the namespace gives none of that name "
      "(kQDAStatusCimomConnectFailure); see \"qda classes\"\n",
      Failure({"class", "T_Refused"}, "unlisted"));
}

TEST_F(Inventory, AProviderThatIsNotThereIsNamed) {
  EXPECT_THAT(Failure({"classes"}, "none"),
              StartsWith("qda: provider \"none\": none of that name is registered"));
}

}  // namespace

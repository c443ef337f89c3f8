// A schema in files of its own, as standards bodies publish theirs: read, counted, copied, written
// and read again, with instances.

#include <qdacore/cim/object/TCIMCopy.h>
#include <tests/qdamemory/NamespaceContent.h>
#include <tests/qdamemory/mof/MofTestSupport.h>

namespace {

using namespace memory_test;

struct MofOwnSchema : testing::Test {
  void SetUp() override {
    for (const char* name : {"schema.mof", "inventory.mof"}) {
      MofProblem problem;
      try {
        ReadMofFile(schema, std::string(MOF_TEST_SCHEMA "/") + name, &problem);
      } catch (const TQDAException&) {
        FAIL() << problem.file << ":" << problem.line << ":" << problem.column << ": "
               << problem.reason;
      }
    }
  }

  const Namespace schema = CreateMemoryNamespace("own");
};

TEST_F(MofOwnSchema, HasWhatItsFilesSay) {
  const NamespaceContent content = ContentOf(schema);
  EXPECT_EQ(28u, content.qualifiers.size());
  EXPECT_EQ(
      (Names{"T_Element", "T_Named", "T_Device", "T_Disk", "T_SolidDisk", "T_Setting", "T_Event",
             "T_Alert", "T_Dependency", "T_SettingFor", "T_DiskPart", "T_Everything"}),
      content.classOrder);
  EXPECT_EQ((Names{"under T_Dependency", "association", "class [Association 1 true]",
                   "property Antecedent 15 to T_Setting null",
                   "property Antecedent [Override 13 Antecedent]", "property Antecedent [Min 6 1]",
                   "property Antecedent [Max 6 1]", "property Dependent 15 to T_Named null",
                   "property Dependent [Override 13 Dependent]", "property IsCurrent 1 false"}),
            content.classes.at("T_SettingFor"));
  EXPECT_EQ((Names{"under T_Element", "no association", "class [Terminal 1 true]",
                   "class [Weight 11 0x1.47ae147ae147bp-9]", "property InstanceID 13 null",
                   "property InstanceID [Key 1 true]", "property Octets 18[16] null",
                   "property IsDefault 1 true",
                   "property Modes 29[0] {13 plain} {13 with \"quotes\"} {13 null}"}),
            content.classes.at("T_Setting"));
}

TEST_F(MofOwnSchema, InstancesAreFoundByTheirPaths) {
  const Instance disk = Resolve(schema, "T_Disk.Name=\"sda\",SystemName=\"db1\"");
  ASSERT_TRUE(disk != Instance());
  const Instance twin = Resolve(schema, "T_Device.Name=\"sdb\",SystemName=\"db1\"");
  ASSERT_TRUE(twin != Instance());
  // Each is the other's mirror.
  EXPECT_EQ(twin, static_cast<TCIMReference>(ValueOf(disk, "Mirror")).GetCIMElement(false));
  EXPECT_EQ(disk, static_cast<TCIMReference>(ValueOf(twin, "Mirror")).GetCIMElement(false));
  const Instance everything = Resolve(schema, "T_Everything.Number=\"1\"");
  ASSERT_TRUE(everything != Instance());
  EXPECT_EQ("2 255", DescribeValue(ValueOf(everything, "U8")));
  EXPECT_EQ("3 -128", DescribeValue(ValueOf(everything, "S8")));
  EXPECT_EQ("4 65535", DescribeValue(ValueOf(everything, "U16")));
  EXPECT_EQ("12 233", DescribeValue(ValueOf(everything, "C")));
  EXPECT_EQ("13 caf\xC3\xA9 \xE2\x82\xAC", DescribeValue(ValueOf(everything, "S")));
  EXPECT_EQ(
      "31[0] {15 to T_Disk :T_Disk <Name=13 sda> <SystemName=13 db1>} {15 to T_SolidDisk "
      ":T_SolidDisk <Name=13 sdb> <SystemName=13 db1>} {15 null}",
      DescribeValue(ValueOf(everything, "Rs")));
}

TEST_F(MofOwnSchema, CopyIsTheSameElementByElement) {
  const Namespace copy = CreateMemoryNamespace("copy");
  TCIMCopy::CopyClasses(schema, copy, false);
  ExpectSameSchema(schema, copy);
}

TEST_F(MofOwnSchema, WrittenReadsBackTheSame) {
  const Namespace again = CreateMemoryNamespace("again");
  ASSERT_TRUE(Read(again, Written(schema)));
  ExpectSameSchema(schema, again);
  ExpectSameOrder(schema, again);
  ExpectSameInstances(schema, again);
}

}  // namespace

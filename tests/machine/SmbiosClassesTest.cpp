// What the SMBIOS families make of structures that are made up here: values, nulls, associations.

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <qdacore/cim/object/ICIMNamespace.h>
#include <tests/support/LogCapture.h>

#include "BuiltTables.h"
#include "SmbiosObjects.h"

namespace machine_test {
namespace {

using boost::shared_ptr;
using namespace NZRVQDA20;
using smbios::sample::StructureBuilder;

typedef std::vector<Facts> Objects;

shared_ptr<ICIMNamespace> Built(const std::string& name) {
  for (const BuiltTable& table : BuiltTables()) {
    if (table.name == name) {
      return NamespaceOfDump(table.dump);
    }
  }
  return shared_ptr<ICIMNamespace>();
}

Facts Only(const shared_ptr<ICIMNamespace>& ns, const std::string& name) {
  const Objects objects = ObjectsOf(ns, name);
  EXPECT_EQ(1u, objects.size()) << name;
  return objects.empty() ? Facts() : WithoutSystemKeys(objects[0]);
}

TEST(SmbiosBios, IsAnElementWithFeaturesAndARelease) {
  const shared_ptr<ICIMNamespace> ns = Built("a server");
  EXPECT_EQ((Facts{{"Name", "BIOS"},
                   {"Version", "2.4.3"},
                   {"SoftwareElementState", "3"},
                   {"SoftwareElementID", "BIOS"},
                   {"TargetOperatingSystem", "66"},
                   {"Manufacturer", "ZRV"},
                   {"PrimaryBIOS", "true"},
                   {"ReleaseDate", "20150707000000.000000+000"},
                   {"LoadedStartingAddress", "983040"},
                   {"LoadedEndingAddress", "1048575"}}),
            Only(ns, "CIM_BIOSElement"));
  EXPECT_EQ("{ 4, 5, 7, 9, 11, 12, 27, 28, 31, 16, 18, 24 }",
            Only(ns, "CIM_BIOSFeature")["Characteristics"]);
  // The embedded controller has FFh for a release: it is not known.
  EXPECT_EQ((Facts{{"InstanceID", "ZRVSG:BIOS"},
                   {"ElementName", "BIOS"},
                   {"MajorVersion", "5"},
                   {"MinorVersion", "17"},
                   {"Classifications", "{ 11 }"}}),
            Only(ns, "CIM_SoftwareIdentity"));
  EXPECT_EQ(1u, ObjectsOf(ns, "CIM_SystemBIOS").size());
  EXPECT_EQ(1u, ObjectsOf(ns, "CIM_BIOSFeatureBIOSElements").size());
  EXPECT_EQ(1u, ObjectsOf(ns, "CIM_InstalledSoftwareIdentity").size());
}

TEST(SmbiosBios, SaysNothingAboutFeaturesWhenItSaysSo) {
  // Bit 3: characteristics are not supported.
  const shared_ptr<ICIMNamespace> ns = NamespaceOf(
      {StructureBuilder(0, 0).Text("").Text("").Word(0).Text("13/01/2014").Byte(0).Qword(0x98)});
  EXPECT_EQ(0u, Only(ns, "CIM_BIOSFeature").count("Characteristics"));
  const Facts bios = Only(ns, "CIM_BIOSElement");
  EXPECT_EQ("", bios.at("Version"));
  EXPECT_EQ(0u, bios.count("ReleaseDate"));
  EXPECT_EQ(0u, bios.count("LoadedStartingAddress"));
  EXPECT_EQ(0u, bios.count("Manufacturer"));
}

TEST(SmbiosBios, HasTheLanguagesOfType13) {
  const shared_ptr<ICIMNamespace> ns =
      NamespaceOf({StructureBuilder(0, 0).Text("V").Text("1").Word(0).Text("").Byte(0).Qword(8),
                   StructureBuilder(13, 1)
                       .Byte(2)
                       .Byte(0)
                       .Raw({0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0})
                       .Byte(2)
                       .LooseText("en|US|iso8859-1")
                       .LooseText("de|DE|iso8859-1")});
  const Facts bios = Only(ns, "CIM_BIOSElement");
  EXPECT_EQ("{ en|US|iso8859-1, de|DE|iso8859-1 }", bios.at("ListOfLanguages"));
  EXPECT_EQ("de|DE|iso8859-1", bios.at("CurrentLanguage"));
}

TEST(SmbiosEnclosure, IsTheSystemsPackageAndHoldsItsBoards) {
  const shared_ptr<ICIMNamespace> ns = Built("a server");
  EXPECT_EQ((Facts{{"Tag", "Chassis 0"},
                   {"Manufacturer", "ZRV"},
                   {"SerialNumber", "SN 7"},
                   {"OtherIdentifyingInfo", "tag"},
                   {"SKU", "SKU 9"},
                   {"ChassisPackageType", "1"},
                   {"ChassisTypeDescription", "Rack Mount Chassis"},
                   {"LockPresent", "true"},
                   {"NumberOfPowerCords", "2"},
                   {"Height", "1.75"},
                   {"PackageType", "3"}}),
            Only(ns, "CIM_Chassis"));
  const Objects cards = ObjectsOf(ns, "CIM_Card");
  ASSERT_EQ(2u, cards.size());
  EXPECT_EQ((Facts{{"Tag", "Card 0"},
                   {"Manufacturer", "ZRV"},
                   {"Model", "Board A"},
                   {"Version", "A05"},
                   {"SerialNumber", ".SN7."},
                   {"HostingBoard", "true"},
                   {"RequiresDaughterBoard", "false"},
                   {"Removable", "false"},
                   {"Replaceable", "true"},
                   {"HotSwappable", "false"},
                   {"PackageType", "9"}}),
            WithoutSystemKeys(cards[0]));
  EXPECT_EQ("true", cards[1].at("HotSwappable"));
  EXPECT_EQ("false", cards[1].at("HostingBoard"));
  const Objects places = ObjectsOf(ns, "CIM_PackageInChassis");
  ASSERT_EQ(2u, places.size());
  EXPECT_EQ(
      (Facts{{"GroupComponent", "CIM_Chassis.CreationClassName=\"CIM_Chassis\",Tag=\"Chassis 0\""},
             {"PartComponent", "CIM_Card.CreationClassName=\"CIM_Card\",Tag=\"Card 0\""},
             {"LocationWithinContainer", "Slot 00"}}),
      places[0]);
  EXPECT_EQ(0u, places[1].count("LocationWithinContainer"));
  EXPECT_EQ(1u, ObjectsOf(ns, "CIM_ComputerSystemPackage").size());
}

TEST(SmbiosEnclosure, TypesWithoutANumberAreOtherAndUnknownIsNull) {
  struct Row {
    unsigned char smbios;
    const char* cim;
    const char* name;
  };
  const Row rows[] = {{1, "1", "Other"},        {3, "3", "Desktop"},
                      {0x0A, "10", "Notebook"}, {0x17, "1", "Rack Mount Chassis"},
                      {0x1C, "1", "Blade"},     {0x1D, "28", "Blade Enclosing"},
                      {0x24, "36", "Stick PC"}};
  for (const Row& row : rows) {
    const Facts chassis =
        Only(NamespaceOf({StructureBuilder(3, 3).Text("M").Byte(row.smbios)}), "CIM_Chassis");
    EXPECT_EQ(row.cim, chassis.at("ChassisPackageType")) << row.name;
    EXPECT_EQ(row.name, chassis.at("ChassisTypeDescription"));
  }
  for (const unsigned char code : {0, 2, 0x25, 0x7F}) {
    const Facts chassis =
        Only(NamespaceOf({StructureBuilder(3, 3).Text("M").Byte(code)}), "CIM_Chassis");
    EXPECT_EQ(0u, chassis.count("ChassisPackageType")) << int{code};
    EXPECT_EQ(0u, chassis.count("ChassisTypeDescription")) << int{code};
  }
}

TEST(SmbiosProcessor, HasCountsOfTwoBytesAndItsOwnChip) {
  const shared_ptr<ICIMNamespace> ns = Built("a server");
  EXPECT_EQ((Facts{{"DeviceID", "Processor 0"},
                   {"ElementName", "ZRV Tcore 288"},
                   {"Role", "Central Processor"},
                   {"Family", "107"},
                   {"UpgradeMethod", "54"},
                   {"MaxClockSpeed", "4000"},
                   {"CurrentClockSpeed", "2600"},
                   {"CPUStatus", "4"},
                   {"Characteristics", "{ 2, 5, 6, 4, 7 }"},
                   {"NumberOfEnabledCores", "287"}}),
            Only(ns, "CIM_Processor"));
  EXPECT_EQ((Facts{{"InstanceID", "ZRVSG:Processor 0"},
                   {"NumberOfProcessorCores", "288"},
                   {"NumberOfHardwareThreads", "576"}}),
            Only(ns, "CIM_ProcessorCapabilities"));
  EXPECT_EQ((Facts{{"Tag", "Processor 0"},
                   {"ElementName", "CPU1"},
                   {"Manufacturer", "ZRV Silicon"},
                   {"Model", "ZRV Tcore 288"}}),
            Only(ns, "CIM_Chip"));
  EXPECT_EQ(1u, ObjectsOf(ns, "CIM_ElementCapabilities").size());
}

// A processor of one socket whose last field is the status.
StructureBuilder ProcessorWithStatus(std::uint16_t handle, unsigned int status) {
  return StructureBuilder(4, handle)
      .Text("CPU")
      .Byte(3)
      .Byte(0xFE)
      .Text("M")
      .Qword(0)
      .Text("V")
      .Byte(0)
      .Word(0)
      .Word(0)
      .Word(0)
      .Byte(0x40 | status);
}

TEST(SmbiosProcessor, StatusesThatTheClassHasNoNumberForAreNull) {
  const char* const expected[] = {"", "1", "2", "3", "4", "", "", "7"};
  for (unsigned int status = 0; status < 8; ++status) {
    const Facts processor = Only(NamespaceOf({ProcessorWithStatus(4, status)}), "CIM_Processor");
    const auto found = processor.find("CPUStatus");
    EXPECT_EQ(expected[status], found != processor.end() ? found->second : "") << status;
    // FEh, and the structure ends before the second field.
    EXPECT_EQ(0u, processor.count("Family"));
  }
}

TEST(SmbiosCache, BelongsToItsProcessor) {
  const shared_ptr<ICIMNamespace> ns = Built("a server");
  const Objects memories = ObjectsOf(ns, "CIM_Memory");
  // The third one has nothing installed.
  ASSERT_EQ(2u, memories.size());
  EXPECT_EQ((Facts{{"DeviceID", "Cache 0"},
                   {"EnabledState", "2"},
                   {"BlockSize", "1"},
                   {"NumberOfBlocks", "1179648"},
                   {"Volatile", "true"},
                   {"ErrorMethodology", "Multi-bit ECC"}}),
            WithoutSystemKeys(memories[0]));
  EXPECT_EQ("67108864", memories[1].at("NumberOfBlocks"));
  EXPECT_EQ("3", memories[1].at("EnabledState"));
  EXPECT_EQ("None", memories[1].at("ErrorMethodology"));
  const Objects caches = ObjectsOf(ns, "CIM_AssociatedCacheMemory");
  ASSERT_EQ(2u, caches.size());
  EXPECT_EQ("3", caches[0].at("Level"));
  EXPECT_EQ("2", caches[0].at("WritePolicy"));
  EXPECT_EQ("3", caches[0].at("CacheType"));
  EXPECT_EQ("7", caches[0].at("Associativity"));
  EXPECT_EQ("4", caches[1].at("Level"));
  EXPECT_EQ("3", caches[1].at("WritePolicy"));
  EXPECT_EQ(0u, caches[1].count("CacheType"));
  EXPECT_EQ("13", caches[1].at("Associativity"));
  EXPECT_EQ(0u, caches[1].count("OtherLevelDescription"));
}

TEST(SmbiosMemory, HasEveryWayOfStatingSizeAndSpeed) {
  const shared_ptr<ICIMNamespace> ns = Built("memory");
  const Objects modules = ObjectsOf(ns, "CIM_PhysicalMemory");
  ASSERT_EQ(4u, modules.size());
  EXPECT_EQ((Facts{{"Tag", "Memory Device 0"},
                   {"ElementName", "DIMM 1"},
                   {"Manufacturer", "ZRV"},
                   {"SerialNumber", "01"},
                   {"PartNumber", "PN"},
                   {"FormFactor", "8"},
                   {"MemoryType", "26"},
                   {"TotalWidth", "72"},
                   {"DataWidth", "64"},
                   {"Speed", "0"},
                   {"MaxMemorySpeed", "3200"},
                   {"IsSpeedInMhz", "true"},
                   {"ConfiguredMemoryClockSpeed", "2933"},
                   {"Capacity", "17179869184"}}),
            WithoutSystemKeys(modules[0]));
  EXPECT_EQ("68719476736", modules[1].at("Capacity"));
  EXPECT_EQ("70400", modules[1].at("MaxMemorySpeed"));
  EXPECT_EQ("70000", modules[1].at("ConfiguredMemoryClockSpeed"));
  EXPECT_EQ("524288", modules[2].at("Capacity"));
  EXPECT_EQ(0u, modules[2].count("MaxMemorySpeed"));
  EXPECT_EQ(0u, modules[2].count("IsSpeedInMhz"));
  EXPECT_EQ(0u, modules[3].count("Capacity"));
  EXPECT_EQ(0u, modules[3].count("MemoryType"));
}

TEST(SmbiosMemory, ArraysStateCapacityAndRangesStandOnThem) {
  const shared_ptr<ICIMNamespace> ns = Built("memory");
  const Objects capacities = ObjectsOf(ns, "CIM_MemoryCapacity");
  ASSERT_EQ(2u, capacities.size());
  EXPECT_EQ("25769803776", capacities[0].at("MaximumMemoryCapacity"));
  EXPECT_EQ("16384", capacities[1].at("MaximumMemoryCapacity"));
  EXPECT_EQ("24", ObjectsOf(ns, "CIM_ConfigurationCapacity").at(0).at("MaximumCapacity"));
  const Objects memories = ObjectsOf(ns, "CIM_Memory");
  ASSERT_EQ(4u, memories.size());
  EXPECT_EQ("CRC", memories[0].at("ErrorMethodology"));
  // One of its modules does not say how large it is, so the sum is not known.
  EXPECT_EQ(0u, memories[0].count("NumberOfBlocks"));
  EXPECT_EQ("0", memories[2].at("StartingAddress"));
  EXPECT_EQ("50331647", memories[2].at("EndingAddress"));
  EXPECT_EQ("4294967296", memories[3].at("StartingAddress"));
  EXPECT_EQ("5368709119", memories[3].at("EndingAddress"));
  EXPECT_EQ(2u, ObjectsOf(ns, "CIM_BasedOn").size());
  EXPECT_EQ(4u, ObjectsOf(ns, "CIM_Realizes").size());
}

TEST(SmbiosMemory, ArrayHasTheSumOfItsModules) {
  const auto module = [](std::uint16_t handle, std::uint64_t megabytes) {
    return StructureBuilder(17, handle).Word(16).Word(0).Word(64).Word(64).Word(megabytes);
  };
  const shared_ptr<ICIMNamespace> ns =
      NamespaceOf({StructureBuilder(16, 16).Byte(3).Byte(3).Byte(3).Dword(8192).Word(0).Word(3),
                   module(1, 4), module(2, 0), module(3, 8)});
  EXPECT_EQ("12582912", Only(ns, "CIM_Memory").at("NumberOfBlocks"));
}

// A module that states its size in the later field only.
StructureBuilder LargeModule(std::uint16_t handle, std::uint64_t megabytes) {
  return StructureBuilder(17, handle)
      .Word(16)
      .Word(0)
      .Word(64)
      .Word(64)
      .Word(0x7FFF)
      .Raw({9, 0, 0, 0, 26, 0, 0, 0, 0, 0, 0, 0, 0, 0})
      .Dword(megabytes);
}

TEST(SmbiosMemory, ALaterSizeOfZeroIsNotKnown) {
  const shared_ptr<ICIMNamespace> ns =
      NamespaceOf({StructureBuilder(16, 16).Byte(3).Byte(3).Byte(3).Dword(8192).Word(0).Word(3),
                   LargeModule(1, 0), LargeModule(2, 65536)});
  const Objects modules = ObjectsOf(ns, "CIM_PhysicalMemory");
  ASSERT_EQ(2u, modules.size());
  EXPECT_EQ(0u, modules[0].count("Capacity"));
  EXPECT_EQ("68719476736", modules[1].at("Capacity"));
  EXPECT_EQ(0u, Only(ns, "CIM_Memory").count("NumberOfBlocks"));
}

TEST(SmbiosMemory, ASumThatNoNumberHoldsIsNotKnown) {
  // 8,193 modules of nearly 2 PiB each: together more than 16 EiB.
  std::vector<StructureBuilder> structures{
      StructureBuilder(16, 16).Byte(3).Byte(3).Byte(3).Dword(8192).Word(0).Word(3)};
  for (std::uint16_t number = 0; number < 8193; ++number) {
    structures.push_back(LargeModule(static_cast<std::uint16_t>(100 + number), 0x7FFFFFFF));
  }
  const shared_ptr<ICIMNamespace> ns = NamespaceOf(structures);
  EXPECT_EQ(8193u, ObjectsOf(ns, "CIM_PhysicalMemory").size());
  EXPECT_EQ(0u, Only(ns, "CIM_Memory").count("NumberOfBlocks"));
}

TEST(SmbiosConnectors, AreOtherWhenTheyAreAndNullWhenNobodyKnowsThem) {
  const struct {
    unsigned char smbios;
    const char* cim;
  } rows[] = {{0x0C, "{ 1 }"}, {0x22, "{ 1 }"}, {0xFF, "{ 1 }"}, {0x0B, "{ 39 }"},
              {0x24, ""},      {0x9F, ""},      {0xA5, ""},      {0xFE, ""}};
  for (const auto& row : rows) {
    const Facts port = Only(
        NamespaceOf({StructureBuilder(8, 8).Text("J").Byte(0).Text("").Byte(row.smbios).Byte(0)}),
        "CIM_PhysicalConnector");
    const auto found = port.find("ConnectorType");
    EXPECT_EQ(row.cim, found != port.end() ? found->second : "") << int{row.smbios};
  }
}

TEST(SmbiosConnectors, AreOuterOnesWhereThereAreAny) {
  const shared_ptr<ICIMNamespace> ns = Built("a notebook");
  const Objects ports = ObjectsOf(ns, "CIM_PhysicalConnector");
  ASSERT_EQ(5u, ports.size());
  EXPECT_EQ((Facts{{"Tag", "Port 0"},
                   {"ElementName", "COM 1"},
                   {"Description", "Serial Port 16550A Compatible"},
                   {"ConnectorType", "{ 21 }"},
                   {"ConnectorGender", "2"}}),
            WithoutSystemKeys(ports[0]));
  EXPECT_EQ("J2", ports[1].at("ElementName"));
  EXPECT_EQ("{ 90 }", ports[1].at("ConnectorType"));
  EXPECT_EQ("Other", ports[1].at("Description"));
  EXPECT_EQ("{ 53 }", ports[2].at("ConnectorType"));
  EXPECT_EQ(0u, ports[4].count("ConnectorType"));
  EXPECT_EQ(0u, ports[4].count("Description"));
}

TEST(SmbiosSlots, HaveTypeWidthAndVoltages) {
  const shared_ptr<ICIMNamespace> ns = Built("a notebook");
  const Objects slots = ObjectsOf(ns, "CIM_Slot");
  ASSERT_EQ(3u, slots.size());
  EXPECT_EQ((Facts{{"Tag", "Slot 0"},
                   {"ElementName", "PCI 1"},
                   {"ConnectorType", "{ 43 }"},
                   {"ConnectorLayout", "16"},
                   {"Number", "1"},
                   {"MaxDataWidth", "32"},
                   {"VccMixedVoltageSupport", "{ 2, 3 }"},
                   {"SupportsHotPlug", "true"}}),
            WithoutSystemKeys(slots[0]));
  EXPECT_EQ((Facts{{"Tag", "Slot 1"},
                   {"ElementName", "PCIEX1"},
                   {"Description", "PCI Express 1 x1"},
                   {"ConnectorLayout", "19"},
                   {"Number", "2"},
                   {"MaxLinkWidth", "2"},
                   {"VccMixedVoltageSupport", "{ 2 }"},
                   {"SupportsHotPlug", "false"}}),
            WithoutSystemKeys(slots[1]));
  EXPECT_EQ("PCI Express 3 x16", slots[2].at("Description"));
  EXPECT_EQ("5", slots[2].at("MaxLinkWidth"));
}

TEST(SmbiosPower, SuppliesInWattsAndBatteriesInMilliwattHours) {
  const shared_ptr<ICIMNamespace> server = Built("a server");
  // The second one is not there.
  EXPECT_EQ((Facts{{"DeviceID", "Power Supply 0"},
                   {"ElementName", "PSU "},
                   {"TotalOutputPower", "750000"},
                   {"IsSwitchingSupply", "true"}}),
            Only(server, "CIM_PowerSupply"));
  EXPECT_EQ((Facts{{"Tag", "Power Supply 0"},
                   {"ElementName", "Bay 1"},
                   {"Manufacturer", "ZRV"},
                   {"SerialNumber", "P1"},
                   {"PartNumber", "PN1"},
                   {"HotSwappable", "true"},
                   {"PackageType", "6"}}),
            Only(server, "CIM_PhysicalPackage"));
  EXPECT_EQ((Facts{{"DeviceID", "Battery 0"},
                   {"ElementName", "BAT0"},
                   {"Chemistry", "6"},
                   {"DesignCapacity", "45000"},
                   {"DesignVoltage", "11400"}}),
            Only(Built("a notebook"), "CIM_Battery"));
}

TEST(SmbiosPower, ACapacityThatAFactorMakesZeroIsNotKnown) {
  const auto battery = [](unsigned char factor) {
    return StructureBuilder(22, 22)
        .Raw({0, 0, 0, 0, 0, 6})
        .Word(4500)
        .Word(0)
        .Raw({0, 0, 0, 0, 0, 0, 0})
        .Byte(factor);
  };
  EXPECT_EQ("9000", Only(NamespaceOf({battery(2)}), "CIM_Battery").at("DesignCapacity"));
  EXPECT_EQ(0u, Only(NamespaceOf({battery(0)}), "CIM_Battery").count("DesignCapacity"));
}

TEST(SmbiosIpmi, TellsHowTheControllerIsReached) {
  EXPECT_EQ((Facts{{"DeviceID", "IPMI Controller 0"},
                   {"InterfaceType", "1"},
                   {"SpecificationVersion", "1.5"},
                   {"I2CSlaveAddress", "32"},
                   {"BaseAddress", "3240"},
                   {"BaseAddressIsIOSpace", "true"},
                   {"RegisterSpacing", "4"},
                   {"InterruptNumber", "10"}}),
            Only(Built("a server"), "ZRVSG_IPMIController"));
}

TEST(SmbiosIpmi, OfAnSmbusControllerIsItsAddressThere) {
  const Facts controller = Only(
      NamespaceOf({StructureBuilder(38, 38).Byte(4).Byte(0x20).Byte(0x20).Byte(0xFF).Qword(0x21)}),
      "ZRVSG_IPMIController");
  EXPECT_EQ("4", controller.at("InterfaceType"));
  EXPECT_EQ("16", controller.at("BaseAddress"));
  EXPECT_EQ(0u, controller.count("BaseAddressIsIOSpace"));
}

TEST(SmbiosStrings, AreThoseThatAreThere) {
  const shared_ptr<ICIMNamespace> ns =
      NamespaceOf({StructureBuilder(11, 1).Byte(3).LooseText("a").LooseText("b"),
                   StructureBuilder(12, 2).Byte(1).LooseText("JP1: 1-2")});
  const Objects strings = ObjectsOf(ns, "ZRVSG_FirmwareStrings");
  ASSERT_EQ(2u, strings.size());
  EXPECT_EQ((Facts{{"InstanceID", "ZRVSG:OEM Strings 0"},
                   {"ElementName", "OEM Strings"},
                   {"Strings", "{ a, b }"}}),
            strings[0]);
  EXPECT_EQ("{ JP1: 1-2 }", strings[1].at("Strings"));
}

TEST(SmbiosClasses, AreThereWithoutATableToo) {
  const shared_ptr<ICIMNamespace> ns = NamespaceOf({});
  for (const char* name : {"CIM_BIOSElement",
                           "CIM_BIOSFeature",
                           "CIM_SoftwareIdentity",
                           "CIM_Chassis",
                           "CIM_Card",
                           "CIM_Processor",
                           "CIM_ProcessorCapabilities",
                           "CIM_Chip",
                           "CIM_Memory",
                           "CIM_PhysicalMemory",
                           "CIM_MemoryCapacity",
                           "CIM_ConfigurationCapacity",
                           "CIM_PhysicalConnector",
                           "CIM_Slot",
                           "CIM_PowerSupply",
                           "CIM_Battery",
                           "ZRVSG_IPMIController",
                           "ZRVSG_FirmwareStrings",
                           "CIM_SystemDevice",
                           "CIM_Realizes",
                           "CIM_PackageInChassis",
                           "CIM_ComputerSystemPackage",
                           "CIM_SystemBIOS",
                           "CIM_BIOSFeatureBIOSElements",
                           "CIM_InstalledSoftwareIdentity",
                           "CIM_ElementCapabilities",
                           "CIM_AssociatedCacheMemory",
                           "CIM_ElementCapacity",
                           "CIM_BasedOn"}) {
    EXPECT_TRUE(ObjectsOf(ns, name).empty()) << name;
  }
}

// Structures that share a handle, and handles that name the wrong kind: nothing may be lost.
TEST(SmbiosAssociations, AreNotMadeWithTheWrongKind) {
  const test_support::LogCapture log;
  const shared_ptr<ICIMNamespace> ns = NamespaceOf(
      {StructureBuilder(7, 5).Text("L1").Word(0x180).Word(0).Word(0).Word(0).Word(0),
       ProcessorWithStatus(5, 1).Byte(1).Word(5).Word(5).Word(5),
       StructureBuilder(3, 5).Text("M").Byte(3),
       StructureBuilder(2, 5).Text("M").Text("P").Text("").Text("").Text("").Byte(1).Text("").Word(
           5),
       StructureBuilder(16, 5).Byte(3).Byte(3).Byte(3).Dword(8192).Word(0).Word(1),
       StructureBuilder(17, 5).Word(5).Word(0).Word(64).Word(64).Word(4),
       StructureBuilder(19, 5).Dword(0).Dword(4095).Word(5).Byte(1)});
  EXPECT_EQ(1u, ObjectsOf(ns, "CIM_Processor").size());
  EXPECT_EQ(0u, ObjectsOf(ns, "CIM_AssociatedCacheMemory").size());
  EXPECT_EQ(1u, ObjectsOf(ns, "CIM_PackageInChassis").size());
  EXPECT_EQ(1u, ObjectsOf(ns, "CIM_BasedOn").size());
  EXPECT_EQ(2u, ObjectsOf(ns, "CIM_Realizes").size());
  EXPECT_EQ(std::vector<std::string>(), log.Lines());
}

}  // namespace
}  // namespace machine_test

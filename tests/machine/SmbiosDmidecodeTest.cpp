// The facts of the namespace against the word of an independent reader: of the sample table, of
// small built ones, and of real machines' tables where the folder with them is known.

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <qdacore/cim/object/ICIMNamespace.h>
#include <smbios/sample/TableBuilder.h>
#include <tests/smbios/Dmidecode.h>
#include <tests/support/TemporaryFolder.h>

#include "BuiltTables.h"
#include "DmidecodeRecords.h"
#include "SmbiosObjects.h"

namespace machine_test {
namespace {

using boost::shared_ptr;
using NZRVQDA20::ICIMNamespace;
using smbios::sample::Bytes;

typedef std::vector<DmidecodeRecord> Records;
typedef std::vector<Facts> Objects;

// How one table's facts compare.
class Comparison {
 public:
  explicit Comparison(const std::string& dump) : fDump(dump), fNamespace(NamespaceOfFile(dump)) {}

  bool IsThere() const { return fNamespace != nullptr; }
  unsigned int Count() const { return fCount; }

  Records Of(int type) const { return DmidecodeRecords(fDump, type); }
  Objects Have(const std::string& name) const { return ObjectsOf(fNamespace, name); }

  // `said` empty: the fact has to be null.
  void Same(const Facts& facts, const std::string& property, const std::string& said) {
    const auto found = facts.find(property);
    const std::string have = found != facts.end() ? AsDmidecodeShows(found->second) : "";
    EXPECT_EQ(said, have) << property;
    ++fCount;
  }

  void SameBool(const Facts& facts, const std::string& property, bool said) {
    Same(facts, property, said ? "true" : "false");
  }

  // The code that the reader's text has in `codes`; a text that is not there is null.
  void SameCode(const Facts& facts, const std::string& property, const std::string& text,
                const std::map<std::string, int>& codes) {
    const auto found = codes.find(text);
    Same(facts, property, found != codes.end() ? std::to_string(found->second) : "");
  }

  // Texts that both have under these names.
  void SameTexts(const Facts& facts, const DmidecodeRecord& record,
                 const std::map<std::string, std::string>& labels) {
    for (const auto& label : labels) {
      Same(facts, label.first, record.Field(label.second));
    }
  }

 private:
  const std::string fDump;
  const shared_ptr<ICIMNamespace> fNamespace;
  unsigned int fCount = 0;
};

// An array as ToString has it.
std::string ArrayText(const std::set<int>& numbers) {
  std::string text;
  for (const int number : numbers) {
    text += (text.empty() ? "{ " : ", ") + std::to_string(number);
  }
  return text.empty() ? "" : text + " }";
}

std::set<int> NumbersOf(const std::string& arrayText) {
  std::set<int> numbers;
  const char* at = arrayText.c_str();
  while (*at != '\0') {
    char* end = nullptr;
    const long number = std::strtol(at, &end, 10);
    if (end != at) {
      numbers.insert(static_cast<int>(number));
      at = end;
    } else {
      ++at;
    }
  }
  return numbers;
}

std::string ArrayOfListed(const DmidecodeRecord& record, const std::string& label,
                          const std::map<std::string, int>& codes) {
  std::set<int> numbers;
  for (const auto& code : codes) {
    if (record.Lists(label, code.first)) {
      numbers.insert(code.second);
    }
  }
  return ArrayText(numbers);
}

std::string Sorted(const Facts& facts, const std::string& property) {
  const auto found = facts.find(property);
  return found != facts.end() ? ArrayText(NumbersOf(found->second)) : "";
}

const std::map<std::string, int> kBiosFeatures = {{"ISA is supported", 4},
                                                  {"MCA is supported", 5},
                                                  {"EISA is supported", 6},
                                                  {"VLB is supported", 13},
                                                  {"PCI is supported", 7},
                                                  {"PC Card (PCMCIA) is supported", 8},
                                                  {"PNP is supported", 9},
                                                  {"APM is supported", 10},
                                                  {"BIOS is upgradeable", 11},
                                                  {"BIOS shadowing is allowed", 12},
                                                  {"ESCD support is available", 14},
                                                  {"LS-120 boot is supported", 15},
                                                  {"ACPI is supported", 16},
                                                  {"USB legacy is supported", 18},
                                                  {"AGP is supported", 19},
                                                  {"Smart battery is supported", 24},
                                                  {"ATAPI Zip drive boot is supported", 25},
                                                  {"IEEE 1394 boot is supported", 26},
                                                  {"Boot from CD is supported", 27},
                                                  {"Selectable boot is supported", 28},
                                                  {"BIOS ROM is socketed", 29},
                                                  {"EDD is supported", 31}};

void CompareBios(Comparison* compare) {
  const Records records = compare->Of(0);
  const Objects bios = compare->Have("CIM_BIOSElement");
  ASSERT_EQ(records.size(), bios.size());
  for (std::size_t i = 0; i < records.size(); ++i) {
    compare->SameTexts(bios[i], records[i], {{"Manufacturer", "Vendor"}, {"Version", "Version"}});
    const std::string date = records[i].Field("Release Date");
    const bool isDate = date.size() == 10 && date[2] == '/';
    compare->Same(
        bios[i], "ReleaseDate",
        isDate ? date.substr(6) + date.substr(0, 2) + date.substr(3, 2) + "000000.000000+000" : "");
    compare->Same(bios[i], "LoadedStartingAddress", LeadingNumber(records[i].Field("Address")));
    const Facts features = compare->Have("CIM_BIOSFeature").at(i);
    Facts sorted;
    sorted["Characteristics"] = Sorted(features, "Characteristics");
    compare->Same(sorted, "Characteristics",
                  ArrayOfListed(records[i], "Characteristics", kBiosFeatures));
    for (const Facts& identity : compare->Have("CIM_SoftwareIdentity")) {
      const bool isBios = identity.at("ElementName") == "BIOS";
      EXPECT_EQ(records[i].Field(isBios ? "BIOS Revision" : "Firmware Revision"),
                identity.at("MajorVersion") + "." + identity.at("MinorVersion"));
    }
  }
}

void CompareEnclosure(Comparison* compare) {
  const Records boards = compare->Of(2);
  const Objects cards = compare->Have("CIM_Card");
  ASSERT_EQ(boards.size(), cards.size());
  for (std::size_t i = 0; i < boards.size(); ++i) {
    compare->SameTexts(cards[i], boards[i],
                       {{"Manufacturer", "Manufacturer"},
                        {"Model", "Product Name"},
                        {"Version", "Version"},
                        {"SerialNumber", "Serial Number"},
                        {"OtherIdentifyingInfo", "Asset Tag"}});
    if (boards[i].fields.count("Features")) {
      const std::map<std::string, std::string> features = {
          {"HostingBoard", "Board is a hosting board"},
          {"RequiresDaughterBoard", "Board requires at least one daughter board"},
          {"Removable", "Board is removable"},
          {"Replaceable", "Board is replaceable"},
          {"HotSwappable", "Board is hot swappable"}};
      for (const auto& feature : features) {
        compare->SameBool(cards[i], feature.first, boards[i].Lists("Features", feature.second));
      }
    }
  }
  const Records enclosures = compare->Of(3);
  const Objects chassis = compare->Have("CIM_Chassis");
  ASSERT_EQ(enclosures.size(), chassis.size());
  for (std::size_t i = 0; i < enclosures.size(); ++i) {
    const DmidecodeRecord& record = enclosures[i];
    compare->SameTexts(chassis[i], record,
                       {{"Manufacturer", "Manufacturer"},
                        {"Version", "Version"},
                        {"SerialNumber", "Serial Number"},
                        {"OtherIdentifyingInfo", "Asset Tag"},
                        {"SKU", "SKU Number"}});
    const std::string type = record.Field("Type");
    compare->Same(chassis[i], "ChassisTypeDescription", type == "Unknown" ? "" : type);
    compare->SameBool(chassis[i], "LockPresent", record.Field("Lock") == "Present");
    const std::string cords = record.Field("Number Of Power Cords");
    compare->Same(chassis[i], "NumberOfPowerCords", cords == "Unspecified" ? "" : cords);
    const std::string units = LeadingNumber(record.Field("Height"));
    const auto height = chassis[i].find("Height");
    EXPECT_EQ(units.empty(), height == chassis[i].end());
    if (!units.empty() && height != chassis[i].end()) {
      EXPECT_EQ(std::stof(units) * 1.75f, std::stof(height->second));
    }
  }
}

const std::map<std::string, int> kUpgrades = {{"Other", 1},
                                              {"Daughter Board", 3},
                                              {"ZIF Socket", 4},
                                              {"None", 6},
                                              {"Socket mPGA604", 19},
                                              {"Socket AM2", 23},
                                              {"Socket LGA1366", 25},
                                              {"Socket LGA1155", 36},
                                              {"Socket BGA1155", 36},
                                              {"Socket LGA2011", 38},
                                              {"Socket LGA2011-3", 43},
                                              {"Socket BGA1168", 46},
                                              {"Socket LGA1150", 45},
                                              {"Socket AM3", 27},
                                              {"Socket rPGA988B", 33},
                                              {"Socket AM4", 49},
                                              {"Socket LGA3647-1", 54}};
const std::map<std::string, int> kFamilies = {
    {"Other", 1},     {"Core i7", 0xC6},   {"Core i5", 0xCD},   {"Core i3", 0xCE},
    {"Core M", 0x2C}, {"Xeon", 0xB3},      {"Athlon", 0x1D},    {"Zen", 0x6B},
    {"Phenom", 0x8C}, {"Athlon 64", 0x83}, {"Phenom II", 0xEC}, {"Athlon II", 0xED}};
const std::map<std::string, int> kStatuses = {{"Populated, Enabled", 1},
                                              {"Populated, Disabled By User", 2},
                                              {"Populated, Disabled By BIOS", 3},
                                              {"Populated, Idle", 4},
                                              {"Populated, Other", 7}};
const std::map<std::string, int> kProcessorBits = {{"64-bit capable", 2},
                                                   {"Hardware Thread", 5},
                                                   {"Execute Protection", 6},
                                                   {"Enhanced Virtualization", 4},
                                                   {"Power/Performance Control", 7}};

void CompareProcessors(Comparison* compare) {
  Records records = compare->Of(4);
  records.erase(std::remove_if(records.begin(), records.end(),
                               [](const DmidecodeRecord& record) {
                                 return record.Field("Status").rfind("Unpopulated", 0) == 0;
                               }),
                records.end());
  const Objects processors = compare->Have("CIM_Processor");
  const Objects chips = compare->Have("CIM_Chip");
  const Objects capabilities = compare->Have("CIM_ProcessorCapabilities");
  ASSERT_EQ(records.size(), processors.size());
  ASSERT_EQ(records.size(), chips.size());
  ASSERT_EQ(records.size(), capabilities.size());
  for (std::size_t i = 0; i < records.size(); ++i) {
    const DmidecodeRecord& record = records[i];
    const Facts& processor = processors[i];
    compare->SameTexts(chips[i], record,
                       {{"ElementName", "Socket Designation"},
                        {"Manufacturer", "Manufacturer"},
                        {"Model", "Version"},
                        {"SerialNumber", "Serial Number"},
                        {"OtherIdentifyingInfo", "Asset Tag"},
                        {"PartNumber", "Part Number"}});
    compare->Same(processor, "ElementName", record.Field("Version"));
    compare->Same(processor, "Role", record.Field("Type"));
    compare->SameCode(processor, "Family", record.Field("Family"), kFamilies);
    compare->SameCode(processor, "UpgradeMethod", record.Field("Upgrade"), kUpgrades);
    compare->SameCode(processor, "CPUStatus", record.Field("Status"), kStatuses);
    compare->Same(processor, "ExternalBusClockSpeed",
                  LeadingNumber(record.Field("External Clock")));
    compare->Same(processor, "MaxClockSpeed", LeadingNumber(record.Field("Max Speed")));
    compare->Same(processor, "CurrentClockSpeed", LeadingNumber(record.Field("Current Speed")));
    compare->Same(processor, "NumberOfEnabledCores", record.Field("Core Enabled"));
    compare->Same(capabilities[i], "NumberOfProcessorCores", record.Field("Core Count"));
    compare->Same(capabilities[i], "NumberOfHardwareThreads", record.Field("Thread Count"));
    Facts sorted;
    sorted["Characteristics"] = Sorted(processor, "Characteristics");
    compare->Same(sorted, "Characteristics",
                  ArrayOfListed(record, "Characteristics", kProcessorBits));
  }
}

// Objects of `prefix` and a number, by that number, which counts the structures.
std::map<std::size_t, Facts> ByNumber(const Objects& objects, const std::string& prefix) {
  std::map<std::size_t, Facts> found;
  for (const Facts& object : objects) {
    const std::string& id = object.at("DeviceID");
    if (id.rfind(prefix, 0) == 0) {
      found[std::stoul(id.substr(prefix.size()))] = object;
    }
  }
  return found;
}

void CompareCaches(Comparison* compare) {
  const Records records = compare->Of(7);
  const std::map<std::size_t, Facts> caches = ByNumber(compare->Have("CIM_Memory"), "Cache ");
  for (std::size_t i = 0; i < records.size(); ++i) {
    const DmidecodeRecord& record = records[i];
    const unsigned long long size = BytesOfSize(record.Field("Installed Size"));
    if (caches.count(i) == 0) {
      EXPECT_EQ(0u, size) << i;
      continue;
    }
    const Facts& cache = caches.at(i);
    // The reader takes the size of SMBIOS 3.1 wherever there is room for it, also where firmware
    // has left it 0 beside a size in the older field, which is the one that counts (DSP0134, 7.8).
    if (size != 0) {
      compare->Same(cache, "NumberOfBlocks", std::to_string(size));
    }
    compare->Same(cache, "ElementName", record.Field("Socket Designation"));
    const std::string method = record.Field("Error Correction Type");
    compare->Same(cache, "ErrorMethodology", method == "Unknown" ? "" : method);
    const bool isEnabled = record.Field("Configuration").rfind("Enabled", 0) == 0;
    compare->Same(cache, "EnabledState", isEnabled ? "2" : "3");
  }
}

const std::map<std::string, int> kMemoryTypes = {
    {"Other", 1}, {"DRAM", 2}, {"SDRAM", 17},  {"DDR", 20},    {"DDR2", 21},   {"DDR3", 24},
    {"DDR4", 26}, {"RAM", 9},  {"FEPROM", 13}, {"LPDDR3", 29}, {"LPDDR4", 30}, {"DDR5", 1}};
const std::map<std::string, int> kFormFactors = {{"Other", 1}, {"SIMM", 7},    {"Chip", 1},
                                                 {"DIMM", 8},  {"SODIMM", 12}, {"Row Of Chips", 1}};

void CompareModules(Comparison* compare) {
  Records records = compare->Of(17);
  records.erase(std::remove_if(records.begin(), records.end(),
                               [](const DmidecodeRecord& record) {
                                 return record.Field("Size") == "No Module Installed";
                               }),
                records.end());
  const Objects modules = compare->Have("CIM_PhysicalMemory");
  ASSERT_EQ(records.size(), modules.size());
  for (std::size_t i = 0; i < records.size(); ++i) {
    const DmidecodeRecord& record = records[i];
    const Facts& module = modules[i];
    compare->SameTexts(module, record,
                       {{"ElementName", "Locator"},
                        {"BankLabel", "Bank Locator"},
                        {"Manufacturer", "Manufacturer"},
                        {"SerialNumber", "Serial Number"},
                        {"OtherIdentifyingInfo", "Asset Tag"},
                        {"PartNumber", "Part Number"}});
    const unsigned long long bytes = BytesOfSize(record.Field("Size"));
    compare->Same(module, "Capacity", bytes == 0 ? "" : std::to_string(bytes));
    compare->SameCode(module, "MemoryType", record.Field("Type"), kMemoryTypes);
    compare->SameCode(module, "FormFactor", record.Field("Form Factor"), kFormFactors);
    compare->Same(module, "TotalWidth", LeadingNumber(record.Field("Total Width")));
    compare->Same(module, "DataWidth", LeadingNumber(record.Field("Data Width")));
    compare->Same(module, "MaxMemorySpeed", LeadingNumber(record.Field("Speed")));
    compare->Same(module, "ConfiguredMemoryClockSpeed",
                  LeadingNumber(record.Field("Configured Memory Speed")));
  }
}

void CompareArrays(Comparison* compare) {
  const Records arrays = compare->Of(16);
  const Objects capacities = compare->Have("CIM_MemoryCapacity");
  const Objects slots = compare->Have("CIM_ConfigurationCapacity");
  ASSERT_EQ(arrays.size(), capacities.size());
  ASSERT_EQ(arrays.size(), slots.size());
  Objects memories;
  Objects ranges;
  for (const Facts& memory : compare->Have("CIM_Memory")) {
    if (memory.at("DeviceID").rfind("Memory Array ", 0) == 0) {
      memories.push_back(memory);
    } else if (memory.at("DeviceID").rfind("Memory Range ", 0) == 0) {
      ranges.push_back(memory);
    }
  }
  ASSERT_EQ(arrays.size(), memories.size());
  for (std::size_t i = 0; i < arrays.size(); ++i) {
    const unsigned long long bytes = BytesOfSize(arrays[i].Field("Maximum Capacity"));
    compare->Same(capacities[i], "MaximumMemoryCapacity",
                  bytes == 0 ? "" : std::to_string(bytes / 1024));
    compare->Same(slots[i], "MaximumCapacity", arrays[i].Field("Number Of Devices"));
    const std::string method = arrays[i].Field("Error Correction Type");
    compare->Same(memories[i], "ErrorMethodology", method == "Unknown" ? "" : method);
  }
  const Records mapped = compare->Of(19);
  ASSERT_EQ(mapped.size(), ranges.size());
  for (std::size_t i = 0; i < mapped.size(); ++i) {
    const unsigned long long start =
        std::strtoull(mapped[i].Field("Starting Address").c_str(), nullptr, 16);
    const unsigned long long end =
        std::strtoull(mapped[i].Field("Ending Address").c_str(), nullptr, 16);
    compare->Same(ranges[i], "StartingAddress", std::to_string(start / 1024));
    compare->Same(ranges[i], "EndingAddress", std::to_string(end / 1024));
  }
}

// "x8 PCI Express 3 x16" is a slot of 16 lanes' size with 8 lanes connected.
void CompareSlots(Comparison* compare) {
  const Records records = compare->Of(9);
  const Objects slots = compare->Have("CIM_Slot");
  ASSERT_EQ(records.size(), slots.size());
  const std::map<std::string, int> links = {{"x1", 2},  {"x2", 3},  {"x4", 4}, {"x8", 5},
                                            {"x12", 6}, {"x16", 7}, {"x32", 8}};
  for (std::size_t i = 0; i < records.size(); ++i) {
    const std::string type = records[i].Field("Type");
    compare->Same(slots[i], "ElementName", records[i].Field("Designation"));
    compare->SameCode(slots[i], "MaxLinkWidth", type.substr(0, type.find(' ')), links);
    const bool isBits = type.find("-bit ") != std::string::npos;
    compare->Same(slots[i], "MaxDataWidth", isBits ? LeadingNumber(type) : "");
    const std::size_t express = type.find("PCI Express");
    if (express != std::string::npos) {
      // The first generation is not numbered there.
      std::string said = type.substr(express);
      if (said.size() == 11 || said[12] == 'x') {
        said.insert(11, " 1");
      }
      compare->Same(slots[i], "Description", said);
    }
    if (!records[i].Field("ID").empty()) {
      compare->Same(slots[i], "Number", records[i].Field("ID"));
    }
    if (records[i].lists.count("Characteristics")) {
      compare->SameBool(slots[i], "SupportsHotPlug",
                        records[i].Lists("Characteristics", "Hot-plug devices are supported"));
      Facts sorted;
      sorted["Vcc"] = Sorted(slots[i], "VccMixedVoltageSupport");
      compare->Same(sorted, "Vcc",
                    ArrayOfListed(records[i], "Characteristics",
                                  {{"3.3 V is provided", 2}, {"5.0 V is provided", 3}}));
    }
  }
}

void ComparePorts(Comparison* compare) {
  const Records records = compare->Of(8);
  const Objects ports = compare->Have("CIM_PhysicalConnector");
  ASSERT_EQ(records.size(), ports.size());
  const std::map<std::string, int> types = {{"DB-25 male", 23},
                                            {"DB-25 female", 23},
                                            {"DB-15 male", 22},
                                            {"DB-15 female", 22},
                                            {"DB-9 male", 21},
                                            {"DB-9 female", 21},
                                            {"RJ-11", 38},
                                            {"RJ-45", 39},
                                            {"Mini DIN", 59},
                                            {"PS/2", 61},
                                            {"Access Bus (USB)", 53},
                                            {"On Board IDE", 90},
                                            {"On Board Floppy", 91},
                                            {"9 Pin Dual Inline (pin 10 cut)", 92},
                                            {"IEEE 1394", 54},
                                            {"Mini Jack (headphones)", 97},
                                            {"Mini Centronics Type-14", 68},
                                            {"25 Pin Dual Inline (pin 26 cut)", 93},
                                            {"Other", 1},
                                            {"SAS/SATA Plug Receptacle", 1},
                                            {"On Board Sound Input From CD-ROM", 96},
                                            {"BNC", 37},
                                            {"Infrared", 62},
                                            {"Circular DIN-8 male", 89}};
  for (std::size_t i = 0; i < records.size(); ++i) {
    const DmidecodeRecord& record = records[i];
    const std::string outside = record.Field("External Reference Designator");
    compare->Same(ports[i], "ElementName",
                  outside.empty() ? record.Field("Internal Reference Designator") : outside);
    const std::string use = record.Field("Port Type");
    compare->Same(ports[i], "Description", use == "None" ? "" : use);
    const std::string outer = record.Field("External Connector Type");
    const std::string type = outer == "None" ? record.Field("Internal Connector Type") : outer;
    const auto code = types.find(type);
    EXPECT_TRUE(code != types.end() || type == "None") << type;
    compare->Same(ports[i], "ConnectorType",
                  code == types.end() ? "" : "{ " + std::to_string(code->second) + " }");
    const bool isMale = type.find(" male") != std::string::npos;
    const bool isFemale = type.find(" female") != std::string::npos;
    compare->Same(ports[i], "ConnectorGender", isMale ? "2" : isFemale ? "3" : "");
  }
}

void CompareStrings(Comparison* compare) {
  const Objects strings = compare->Have("ZRVSG_FirmwareStrings");
  std::vector<std::string> said;
  for (const DmidecodeRecord& record : compare->Of(11)) {
    std::string all;
    for (int number = 1; record.fields.count("String " + std::to_string(number)); ++number) {
      all += (all.empty() ? "{ " : ", ") + record.Field("String " + std::to_string(number));
    }
    said.push_back(all.empty() ? all : all + " }");
  }
  std::vector<std::string> have;
  for (const Facts& text : strings) {
    if (text.at("ElementName") == "OEM Strings") {
      const auto found = text.find("Strings");
      have.push_back(found != text.end() ? AsDmidecodeShows(found->second) : "");
    }
  }
  EXPECT_EQ(said, have);
}

void ComparePower(Comparison* compare) {
  Records records = compare->Of(39);
  records.erase(std::remove_if(records.begin(), records.end(),
                               [](const DmidecodeRecord& record) {
                                 return record.Field("Status").rfind("Not Present", 0) == 0;
                               }),
                records.end());
  const Objects supplies = compare->Have("CIM_PowerSupply");
  const Objects packages = compare->Have("CIM_PhysicalPackage");
  ASSERT_EQ(records.size(), supplies.size());
  ASSERT_EQ(records.size(), packages.size());
  for (std::size_t i = 0; i < records.size(); ++i) {
    const std::string watts = LeadingNumber(records[i].Field("Max Power Capacity"));
    compare->Same(supplies[i], "ElementName", records[i].Field("Name"));
    compare->Same(supplies[i], "TotalOutputPower",
                  watts.empty() || watts == "0" ? "" : watts + "000");
    const std::string type = records[i].Field("Type");
    compare->Same(supplies[i], "IsSwitchingSupply",
                  type == "Switching" ? "true"
                  : type == "Linear"  ? "false"
                                      : "");
    compare->SameTexts(packages[i], records[i],
                       {{"ElementName", "Location"},
                        {"Manufacturer", "Manufacturer"},
                        {"SerialNumber", "Serial Number"},
                        {"OtherIdentifyingInfo", "Asset Tag"},
                        {"PartNumber", "Model Part Number"},
                        {"Version", "Revision"}});
    compare->SameBool(packages[i], "HotSwappable", records[i].Field("Hot Replaceable") == "Yes");
  }
  const Records batteries = compare->Of(22);
  const Objects have = compare->Have("CIM_Battery");
  ASSERT_EQ(batteries.size(), have.size());
  const std::map<std::string, int> chemistries = {{"Lead Acid", 3},
                                                  {"Nickel Cadmium", 4},
                                                  {"Nickel Metal Hydride", 5},
                                                  {"Lithium Ion", 6},
                                                  {"Lithium Polymer", 8}};
  for (std::size_t i = 0; i < batteries.size(); ++i) {
    compare->Same(have[i], "ElementName", batteries[i].Field("Name"));
    compare->Same(have[i], "DesignVoltage", LeadingNumber(batteries[i].Field("Design Voltage")));
    compare->Same(have[i], "DesignCapacity", LeadingNumber(batteries[i].Field("Design Capacity")));
    compare->SameCode(have[i], "Chemistry", batteries[i].Field("Chemistry"), chemistries);
  }
}

void CompareIpmi(Comparison* compare) {
  const Records records = compare->Of(38);
  const Objects controllers = compare->Have("ZRVSG_IPMIController");
  ASSERT_EQ(records.size(), controllers.size());
  for (std::size_t i = 0; i < records.size(); ++i) {
    const DmidecodeRecord& record = records[i];
    const std::string type = record.Field("Interface Type");
    compare->SameCode(controllers[i], "InterfaceType", type.substr(0, type.find(' ')),
                      {{"KCS", 1}, {"SMIC", 2}, {"BT", 3}, {"SSIF", 4}});
    compare->Same(controllers[i], "SpecificationVersion", record.Field("Specification Version"));
    // There without its lowest bit, which says read or write. 0 is no address of a device.
    const int slave = 2 * std::stoi(LeadingNumber(record.Field("I2C Slave Address")));
    compare->Same(controllers[i], "I2CSlaveAddress", slave == 0 ? "" : std::to_string(slave));
    const std::string base = record.Field("Base Address");
    compare->Same(controllers[i], "BaseAddress", LeadingNumber(base));
    compare->SameBool(controllers[i], "BaseAddressIsIOSpace",
                      base.find("(I/O)") != std::string::npos);
    compare->SameCode(
        controllers[i], "RegisterSpacing", record.Field("Register Spacing"),
        {{"Successive Byte Boundaries", 1}, {"32-bit Boundaries", 4}, {"16-byte Boundaries", 16}});
    compare->Same(controllers[i], "InterruptNumber",
                  LeadingNumber(record.Field("Interrupt Number")));
  }
}

unsigned int CompareAll(const std::string& dump) {
  Comparison compare(dump);
  EXPECT_TRUE(compare.IsThere());
  if (!compare.IsThere()) {
    return 0;
  }
  CompareBios(&compare);
  CompareEnclosure(&compare);
  CompareProcessors(&compare);
  CompareCaches(&compare);
  CompareModules(&compare);
  CompareArrays(&compare);
  CompareSlots(&compare);
  ComparePorts(&compare);
  CompareStrings(&compare);
  ComparePower(&compare);
  CompareIpmi(&compare);
  return compare.Count();
}

TEST(SmbiosFactsByDmidecode, OfTheSampleAreTheSame) {
  const std::string reason = smbios_test::NoDmidecodeReason();
  if (!reason.empty()) {
    GTEST_SKIP() << reason;
  }
  EXPECT_GT(CompareAll(SMBIOS_SAMPLE_FILE), 150u);
}

TEST(SmbiosFactsByDmidecode, OfBuiltTablesAreTheSame) {
  const std::string reason = smbios_test::NoDmidecodeReason();
  if (!reason.empty()) {
    GTEST_SKIP() << reason;
  }
  const test_support::TemporaryFolder folder;
  for (const BuiltTable& built : BuiltTables()) {
    SCOPED_TRACE(built.name);
    const std::string dump(built.dump.begin(), built.dump.end());
    EXPECT_GT(CompareAll(folder.Write("dump.smbios", dump)), 20u);
  }
}

std::vector<std::filesystem::path> RealTables() {
  const char* const named = std::getenv("QDACORE_SMBIOS_DATA");
  const std::filesystem::path folder = named != nullptr ? named : SMBIOS_REAL_TABLES;
  std::vector<std::filesystem::path> files;
  if (!folder.empty() && std::filesystem::is_directory(folder)) {
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
      if (entry.path().extension() == ".bin") {
        files.push_back(entry.path());
      }
    }
  }
  std::sort(files.begin(), files.end());
  return files;
}

TEST(SmbiosFactsByDmidecode, OfRealTablesAreTheSame) {
  const std::string reason = smbios_test::NoDmidecodeReason();
  const std::vector<std::filesystem::path> files = RealTables();
  if (files.empty() || !reason.empty()) {
    GTEST_SKIP() << (files.empty() ? "no real tables: QDACORE_SMBIOS_DATA names no folder with any"
                                   : reason);
  }
  const test_support::TemporaryFolder folder;
  unsigned int count = 0;
  for (const std::filesystem::path& file : files) {
    SCOPED_TRACE(file.filename().string());
    std::ifstream stream(file, std::ios::binary);
    Bytes bytes{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    // dmidecode wants an entry point: a bare table gets one.
    if (!bytes.empty() && bytes[0] != '_') {
      smbios::sample::TableBuilder table;
      table.AddBytes(bytes);
      bytes = table.Dump64(3, 0);
    }
    count += CompareAll(folder.Write("dump.smbios", std::string(bytes.begin(), bytes.end())));
  }
  std::printf("%u facts of %zu tables compared\n", count, files.size());
  EXPECT_GT(count, 50u * files.size());
}

}  // namespace
}  // namespace machine_test

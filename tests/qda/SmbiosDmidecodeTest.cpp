// What qda smbios tells, against the word of dmidecode: the sample table, every value of every
// enumeration, and tables of real machines where there are some.

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include <tests/qda/QdaProgram.h>
#include <tests/smbios/Dmidecode.h>
#include <tests/support/TemporaryFolder.h>

namespace {

using qda_test::ParseJson;
using qda_test::RunQda;
using qda_test::SampleFile;
using smbios::sample::Bytes;
using smbios::sample::StructureBuilder;
using smbios::sample::TableBuilder;
using smbios_test::NoDmidecodeReason;
using test_support::ChildResult;
using test_support::TemporaryFolder;
typedef std::vector<std::string> Lines;

struct Told {
  std::string heading;  // "Handle 0x0000, DMI type 0, 24 bytes"
  std::map<std::string, std::string> fields;
};

std::vector<Told> ToldBy(const Lines& lines) {
  std::vector<Told> all;
  // The field whose lines follow it.
  std::string* list = nullptr;
  for (const std::string& line : lines) {
    if (line.rfind("Handle 0x", 0) == 0) {
      all.push_back({line, {}});
      list = nullptr;
    } else if (!all.empty() && line.size() > 1 && line[0] == '\t' && line[1] != '\t') {
      const std::size_t colon = line.find(':');
      if (colon != std::string::npos) {
        const std::size_t value = line.find_first_not_of(' ', colon + 1);
        all.back().fields[line.substr(1, colon - 1)] =
            value == std::string::npos ? "" : line.substr(value);
        list = value == std::string::npos ? &all.back().fields[line.substr(1, colon - 1)] : nullptr;
      }
    } else if (list != nullptr && line.rfind("\t\t", 0) == 0) {
      *list += (list->empty() ? "" : ", ") + line.substr(2);
    } else {
      list = nullptr;
    }
  }
  return all;
}

// Its name for a field of ours; "" where it tells the same in another shape.
std::string ItsName(int type, const std::string& name) {
  static const std::map<std::pair<int, std::string>, std::string> names = {
      {{0, "BIOS Version"}, "Version"},
      {{0, "BIOS Starting Address Segment"}, ""},
      {{0, "BIOS Release Date"}, "Release Date"},
      {{0, "BIOS ROM Size"}, "ROM Size"},
      {{0, "BIOS Characteristics"}, "Characteristics"},
      {{0, "System BIOS Release"}, "BIOS Revision"},
      {{0, "Embedded Controller Firmware Release"}, "Firmware Revision"},
      {{2, "Product"}, "Product Name"},
      {{2, "Location in Chassis"}, "Location In Chassis"},
      {{2, "Board Type"}, "Type"},
      {{3, "Asset Tag Number"}, "Asset Tag"},
      {{3, "Number of Power Cords"}, "Number Of Power Cords"},
      {{4, "Processor Type"}, "Type"},
      {{4, "Processor Characteristics"}, "Characteristics"},
      {{4, "Processor Family"}, "Family"},
      {{4, "Processor Manufacturer"}, "Manufacturer"},
      {{4, "Processor ID"}, "ID"},
      {{4, "Processor Version"}, "Version"},
      {{7, "Cache Level"}, "Configuration"},
      {{7, "State"}, "Configuration"},
      {{7, "Maximum Cache Size"}, "Maximum Size"},
      {{7, "Cache Speed"}, "Speed"},
      {{7, "System Cache Type"}, "System Type"},
      {{9, "Slot Designation"}, "Designation"},
      {{9, "Slot Type"}, "Type"},
      {{9, "Slot Data Bus Width"}, "Type"},
      {{9, "Slot Length"}, "Length"},
      {{9, "PCI Address"}, "Bus Address"},
      {{13, "Current Language"}, "Currently Installed Language"},
      {{15, "Log Area Length"}, "Area Length"},
      {{15, "Log Change Token"}, "Change Token"},
      {{15, "Log Status"}, "Status"},
      {{16, "Memory Error Correction"}, "Error Correction Type"},
      {{16, "Number of Memory Devices"}, "Number Of Devices"},
      {{17, "Physical Memory Array Handle"}, "Array Handle"},
      {{17, "Device Locator"}, "Locator"},
      {{17, "Memory Type"}, "Type"},
      {{19, "Memory Array Handle"}, "Physical Array Handle"},
      {{20, "Memory Device Handle"}, "Physical Device Handle"},
      {{17, "Non-volatile Size"}, "Non-Volatile Size"},
      {{18, "Error Granularity"}, "Granularity"},
      {{18, "Error Operation"}, "Operation"},
      {{18, "Error Type"}, "Type"},
      {{21, "Number of Buttons"}, "Buttons"},
      {{22, "Device Chemistry"}, "Chemistry"},
      {{22, "Device Name"}, "Name"},
      {{22, "SBDS Device Chemistry"}, "SBDS Chemistry"},
      {{22, "SBDS Version Number"}, "SBDS Version"},
      {{24, "Power-on Password Status"}, "Power-On Password Status"},
      {{27, "Device Type"}, "Type"},
      {{32, "Boot Status"}, "Status"},
      {{33, "Error Granularity"}, "Granularity"},
      {{33, "Error Operation"}, "Operation"},
      {{33, "Error Type"}, "Type"},
      {{37, "Channel Type"}, "Type"},
      {{37, "Maximum Channel Load"}, "Maximal Load"},
      {{37, "Memory Device Count"}, "Devices"},
      {{38, "IPMI Specification Revision"}, "Specification Version"},
      {{39, "Device Name"}, "Name"},
      {{39, "Asset Tag Number"}, "Asset Tag"},
      {{39, "Revision Level"}, "Revision"},
      {{41, "Device Type"}, "Type"},
      {{42, "Interface Type"}, "Host Interface Type"},
      {{41, "Enabled"}, "Status"},
      {{41, "Device Type Instance"}, "Type Instance"},
      {{41, "PCI Address"}, "Bus Address"},
  };
  const auto found = names.find({type, name});
  return found == names.end() ? name : found->second;
}

void Replace(std::string* text, const std::string& from, const std::string& to) {
  for (std::size_t at = text->find(from); at != std::string::npos; at = text->find(from, at)) {
    text->replace(at, from.size(), to);
    at += to.size();
  }
}

// Letters and digits alone, small, with the same units.
std::string Plain(std::string text) {
  Replace(&text, "KiB", "kB");
  Replace(&text, "MiB", "MB");
  Replace(&text, "GiB", "GB");
  Replace(&text, "TiB", "TB");
  std::string plain;
  for (const char character : text) {
    if (character >= 'A' && character <= 'Z') {
      plain += static_cast<char>(character - 'A' + 'a');
    } else if ((character >= 'a' && character <= 'z') || (character >= '0' && character <= '9')) {
      plain += character;
    }
  }
  return plain;
}

bool SaysNothing(const std::string& text) {
  static const std::set<std::string> words = {"",
                                              "Not Specified",
                                              "Unknown",
                                              "None",
                                              "Unspecified",
                                              "Not Provided",
                                              "Not Present",
                                              "Not Settable",
                                              "Unknown Or Non-rotating",
                                              "0 bytes",
                                              "1980-00-00"};
  return words.count(text) == 1;
}

// Its words for ours, where they differ in more than signs.
std::string ItsWords(const std::string& ours) {
  static const std::map<std::string, std::string> words = {
      {"1394", "IEEE 1394"},
      {"CXL Add-on Card", "CXL Flexbus 1.0"},
      {"Blade Enclosure", "Blade Enclosing"},
      {"I/O Riser Card Slot", "I/O Riser Card"},
      {"MXM Type III (HE connector)", "MXM Type III-HE"},
      {"MXM Type III (standard connector)", "MXM Type III"},
      {"Multi-system Chassis", "Multi-system"},
      {"Network Host Interface", "Network"},
      {"OEM-defined", "OEM"},
      {"Plug and Play", "PNP"},
      {"Pentium Extreme Edition", "Pentium EE"},
      {"PCI - 66MHz Capable", "PCI-66"},
      {"PCI Express 6 and Beyond", "PCI Express 6+"},
      {"Processor Card Slot", "Processor Card"},
      {"Proprietary Memory Card Slot", "Proprietary Memory Card"},
      {"VL-VESA", "VLB"}};
  const auto found = words.find(ours);
  return found == words.end() ? ours : found->second;
}

// Version 3.4 of it does not know them.
bool IsNewerThanIt(const std::string& ours) {
  return ours == "Thunderbolt" || ours == "HBM3" || ours == "ARMv9" || ours == "Arm64 SoC ID" ||
         ours == "LoongArch" || ours == "MFDP (Multi-Function Display Port)";
}

bool EndsWith(const std::string& text, const std::string& ending) {
  return text.size() >= ending.size() &&
         text.compare(text.size() - ending.size(), ending.size(), ending) == 0;
}

// "1536 KiB" as bytes, and the unit; a unit of 0 for what is no size.
std::pair<double, double> SizeIn(const std::string& text) {
  static const std::map<std::string, int> units = {{"bytes", 0}, {"KiB", 1}, {"kB", 1},
                                                   {"MiB", 2},   {"MB", 2},  {"GiB", 3},
                                                   {"GB", 3},    {"TiB", 4}, {"TB", 4}};
  const auto unit = units.find(text.substr(std::min(text.find(' '), text.size() - 1) + 1));
  const double size = unit == units.end() ? 0 : std::pow(1024.0, unit->second);
  return {std::atof(text.c_str()) * size, size};
}

// It rounds down to the largest unit; we never round.
bool SameSize(const std::string& ours, const std::string& its) {
  const std::pair<double, double> our = SizeIn(ours);
  const std::pair<double, double> it = SizeIn(its);
  return our.second != 0 && it.second != 0 && our.first >= it.first &&
         our.first < it.first + it.second;
}

std::vector<std::string> Split(const std::string& list) {
  std::vector<std::string> parts;
  for (std::size_t begin = 0; begin < list.size();) {
    const std::size_t end = std::min(list.find(", ", begin), list.size());
    parts.push_back(list.substr(begin, end - begin));
    begin = end + 2;
  }
  return parts;
}

// "PCI, Upgradeable" and "PCI is supported, BIOS is upgradeable".
bool SameList(const std::string& ours, const std::string& its) {
  const std::vector<std::string> our = Split(ours);
  std::vector<std::string> it = Split(its);
  if (!it.empty() && it[0] == "BIOS characteristics not supported") {
    it.erase(it.begin());
  }
  return std::equal(our.begin(), our.end(), it.begin(), it.end(),
                    [](const std::string& left, const std::string& right) {
                      return Plain(right).find(Plain(ItsWords(left))) != std::string::npos;
                    });
}

// Whether its words say what ours do.
bool Agree(int type, const std::string& name, const nlohmann::json& value, const std::string& its) {
  if (value.is_null()) {
    // A count of FFh that another field should tell, and does not.
    return SaysNothing(its) || (type == 43 && its == "255.255") ||
           (type == 0 && its == "BIOS characteristics not supported") ||
           (type == 4 && EndsWith(name, "Count") && its == "0");
  }
  std::string ours = value;
  // A range has one name there.
  const bool isNameless = its.find("OUT OF SPEC") != std::string::npos ||
                          (type == 15 && its == "OEM-specific") || (type == 42 && its == "MCTP");
  if (isNameless && (ours.find("0x") != std::string::npos || IsNewerThanIt(ours))) {
    return true;
  }
  if (type == 0 && name == "BIOS Characteristics") {
    return SameList(ours, its);
  }
  if ((ours == "None" || IsNewerThanIt(ours)) && SaysNothing(its)) {
    return true;
  }
  if (SameSize(ours, its) || (type == 17 && its == "Reserved")) {
    return true;
  }
  // Some firmware leaves the second field of a size 0; it looks at nothing else then.
  if (type == 7 && EndsWith(name, "Size") && its == "0 kB") {
    return true;
  }
  if (ours.rfind("(there is no string", 0) == 0) {
    return its == "<BAD INDEX>";
  }
  if (type == 3 && name == "Lock") {
    ours = ours == "Yes" ? "Present" : "Not Present";
  } else if (type == 41 && name == "Enabled") {
    ours = ours == "Yes" ? "Enabled" : "Disabled";
  } else if (type == 7 && (name == "Cache Level" || name == "State")) {
    const std::string part = name == "State" ? ours + "," : "Level " + ours;
    return its.find(part) != std::string::npos;
  } else if (type == 9 && name == "Slot Data Bus Width") {
    // It leaves out the words for "other" and "unknown".
    return ours == "Other" || ours == "Unknown" || ours.rfind("0x", 0) == 0 ||
           Plain(its).find(Plain(ours)) != std::string::npos;
  } else if (type == 9 && name == "Slot Type") {
    // "x8 PCI Express 3" for an x8 slot of "PCI Express Gen 3".
    Replace(&ours, "Gen ", "");
    return EndsWith(Plain(its), Plain(ItsWords(ours)));
  } else if (type == 22 && name == "SBDS Serial Number") {
    ours.erase(0, 2);
  } else if (type == 34 && name == "Description") {
    // Some firmware counts the string's first bytes into the formatted area. It knows of that.
    return EndsWith(its, ours);
  } else if (type == 21 && ours == "HP-HIL") {
    // It has a slip there.
    ours = "HIP-HIL";
  } else if (type == 8) {
    Replace(&ours, " pin ", " ");
  } else if (type == 17 && EndsWith(name, "Voltage")) {
    const int millivolts = std::atoi(ours.c_str());
    return std::lround(1000 * std::atof(its.c_str())) == millivolts;
  }
  return Plain(ItsWords(ours)) == Plain(its);
}

// How many facts were compared.
std::size_t Compare(const std::string& dump, const std::string& itsDump) {
  const ChildResult run = RunQda({"smbios", "--smbios-dump", dump, "-o", "json"});
  const nlohmann::json ours = ParseJson(run.output)["structures"];
  const std::vector<Told> told = ToldBy(smbios_test::Dmidecode(itsDump, ""));
  EXPECT_EQ(told.size(), ours.size());
  std::size_t compared = 0;
  for (std::size_t i = 0; i < told.size() && i < ours.size(); ++i) {
    const int type = ours[i]["type"];
    EXPECT_EQ(told[i].heading, "Handle " + ours[i]["handle"].get<std::string>() + ", DMI type " +
                                   std::to_string(type) + ", " + ours[i]["length"].dump() +
                                   " bytes");
    for (const auto& field : ours[i]["fields"].items()) {
      const std::string name = ItsName(type, field.key());
      const auto its = told[i].fields.find(name);
      // It leaves some out when they say nothing.
      if (name.empty() || its == told[i].fields.end()) {
        continue;
      }
      EXPECT_TRUE(Agree(type, field.key(), field.value(), its->second))
          << told[i].heading << ", " << field.key() << ": " << field.value() << ", but "
          << its->second;
      ++compared;
    }
  }
  return compared;
}

std::string WriteDump(const TemporaryFolder& folder, const Bytes& bytes) {
  return folder.Write("dump", std::string(bytes.begin(), bytes.end()));
}

TEST(SmbiosDmidecode, AgreesOnTheSampleTable) {
  const std::string reason = NoDmidecodeReason();
  if (!reason.empty()) {
    GTEST_SKIP() << reason;
  }
  EXPECT_LT(250u, Compare(SampleFile(), SampleFile()));
}

// `length` bytes behind the header, all 0 but for those at `offset`.
StructureBuilder WithByte(unsigned char type, std::uint16_t handle, std::size_t length,
                          std::size_t offset, unsigned int value, std::size_t width = 1) {
  StructureBuilder builder(type, handle);
  for (std::size_t at = 4; at < length; ++at) {
    const std::size_t behind = at - offset;
    builder.Byte(at >= offset && behind < width ? value >> (8 * behind) : 0);
  }
  return builder;
}

TEST(SmbiosDmidecode, AgreesOnEveryValueOfEveryEnumeration) {
  const std::string reason = NoDmidecodeReason();
  if (!reason.empty()) {
    GTEST_SKIP() << reason;
  }
  struct Row {
    unsigned char type;
    std::size_t length;
    std::size_t offset;
  };
  const Row rows[] = {
      {1, 0x1B, 0x18},  {2, 0x0F, 0x0D},  {3, 0x15, 0x05},  {3, 0x15, 0x09},  {3, 0x15, 0x0A},
      {3, 0x15, 0x0B},  {3, 0x15, 0x0C},  {4, 0x30, 0x05},  {4, 0x30, 0x11},  {7, 0x13, 0x10},
      {7, 0x13, 0x11},  {7, 0x13, 0x12},  {7, 0x13, 0x05},  {8, 0x09, 0x05},  {8, 0x09, 0x08},
      {9, 0x11, 0x05},  {9, 0x11, 0x06},  {9, 0x11, 0x07},  {9, 0x11, 0x08},  {16, 0x17, 0x04},
      {16, 0x17, 0x05}, {16, 0x17, 0x06}, {17, 0x28, 0x0E}, {17, 0x28, 0x12}, {32, 0x0B, 0x0A},
      {38, 0x12, 0x04}, {41, 0x0B, 0x05}, {4, 0x30, 0x18},  {4, 0x30, 0x06},  {13, 0x16, 0x05},
      {15, 0x14, 0x0A}, {15, 0x14, 0x0B}, {17, 0x54, 0x28}, {18, 0x17, 0x04}, {18, 0x17, 0x05},
      {18, 0x17, 0x06}, {21, 0x07, 0x04}, {21, 0x07, 0x05}, {22, 0x1A, 0x09}, {23, 0x0D, 0x04},
      {24, 0x05, 0x04}, {26, 0x16, 0x05}, {27, 0x0F, 0x06}, {28, 0x16, 0x05}, {29, 0x16, 0x05},
      {30, 0x06, 0x05}, {33, 0x1F, 0x04}, {34, 0x0B, 0x05}, {34, 0x0B, 0x0A}, {37, 0x07, 0x04},
      {39, 0x16, 0x0E}, {39, 0x16, 0x0F}, {42, 0x0B, 0x04}, {45, 0x18, 0x16}};
  const TemporaryFolder folder;
  for (const Row& row : rows) {
    SCOPED_TRACE("type " + std::to_string(row.type) + ", offset " + std::to_string(row.offset));
    TableBuilder table;
    for (unsigned int value = 0; value < 256; ++value) {
      table.Add(
          WithByte(row.type, static_cast<std::uint16_t>(value), row.length, row.offset, value));
    }
    table.Add(StructureBuilder(127, 0x7F00));
    const std::string dump = WriteDump(folder, table.Dump64(3, 4));
    EXPECT_LE(256u, Compare(dump, dump));
  }
}

TEST(SmbiosDmidecode, AgreesOnNumbers) {
  const std::string reason = NoDmidecodeReason();
  if (!reason.empty()) {
    GTEST_SKIP() << reason;
  }
  struct Row {
    unsigned char type;
    std::size_t length;
    std::size_t offset;
    std::size_t width;
  };
  const Row rows[] = {
      {0, 0x1A, 0x09, 1},  {0, 0x1A, 0x14, 2},  {3, 0x15, 0x11, 1},  {3, 0x15, 0x12, 1},
      {4, 0x30, 0x14, 2},  {4, 0x30, 0x1A, 2},  {4, 0x30, 0x23, 1},  {7, 0x13, 0x07, 2},
      {7, 0x13, 0x09, 2},  {7, 0x13, 0x0F, 1},  {9, 0x11, 0x0D, 4},  {16, 0x17, 0x07, 4},
      {17, 0x28, 0x08, 2}, {17, 0x28, 0x0C, 2}, {17, 0x28, 0x1B, 1}, {17, 0x5C, 0x15, 2},
      {17, 0x28, 0x26, 2}, {19, 0x1F, 0x04, 4}, {19, 0x1F, 0x08, 4}, {38, 0x12, 0x05, 1},
      {38, 0x12, 0x06, 1}, {39, 0x16, 0x0C, 2}, {41, 0x0B, 0x07, 4}, {0, 0x18, 0x0A, 4},
      {0, 0x18, 0x12, 2},  {4, 0x30, 0x26, 2},  {13, 0x16, 0x04, 1}, {15, 0x14, 0x04, 2},
      {15, 0x14, 0x0C, 4}, {17, 0x54, 0x13, 2}, {17, 0x54, 0x22, 2}, {17, 0x54, 0x24, 2},
      {17, 0x54, 0x34, 4}, {17, 0x54, 0x3C, 4}, {17, 0x54, 0x48, 4}, {22, 0x1A, 0x0A, 2},
      {22, 0x1A, 0x0C, 2}, {22, 0x1A, 0x12, 2}, {26, 0x16, 0x06, 2}, {26, 0x16, 0x08, 2},
      {26, 0x16, 0x0A, 2}, {26, 0x16, 0x0C, 2}, {26, 0x16, 0x0E, 2}, {26, 0x16, 0x14, 2},
      {27, 0x0F, 0x04, 2}, {27, 0x0F, 0x0C, 2}, {28, 0x16, 0x06, 2}, {28, 0x16, 0x08, 2},
      {28, 0x16, 0x0A, 2}, {28, 0x16, 0x0C, 2}, {28, 0x16, 0x0E, 2}, {28, 0x16, 0x14, 2},
      {29, 0x16, 0x06, 2}, {29, 0x16, 0x0A, 2}, {29, 0x16, 0x0C, 2}, {29, 0x16, 0x14, 2},
      {34, 0x0B, 0x06, 4}, {37, 0x07, 0x05, 1}, {36, 0x10, 0x04, 2}, {36, 0x10, 0x06, 2},
      {36, 0x10, 0x08, 2}, {36, 0x10, 0x0A, 2}, {36, 0x10, 0x0C, 2}, {36, 0x10, 0x0E, 2},
      {43, 0x1F, 0x08, 2}, {43, 0x1F, 0x0A, 4}, {45, 0x18, 0x0C, 4}};
  const unsigned int values[] = {0,          1,          2,         8,       0x7F,     0x80,
                                 0xFF,       0x400,      0x4000,    0x7FFE,  0x7FFF,   0x8000,
                                 0x8200,     0xFFFE,     0xFFFF,    0x10000, 0x800000, 0x7FFFFFFF,
                                 0x80000000, 0x80000010, 0xFFFFFFFF};
  const TemporaryFolder folder;
  for (const Row& row : rows) {
    SCOPED_TRACE("type " + std::to_string(row.type) + ", offset " + std::to_string(row.offset));
    TableBuilder table;
    std::uint16_t handle = 0;
    for (const unsigned int value : values) {
      // FFFFFFFFh of an address is for both of them or for none.
      const bool isElsewhere = row.type == 19 && value == 0xFFFFFFFF;
      if (!isElsewhere && (row.width == 4 || value < 1u << (8 * row.width))) {
        table.Add(WithByte(row.type, handle++, row.length, row.offset, value, row.width));
      }
    }
    table.Add(StructureBuilder(127, 0x7F00));
    const std::string dump = WriteDump(folder, table.Dump64(3, 4));
    EXPECT_LT(6u, Compare(dump, dump));
  }
}

std::string BytesOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

TEST(SmbiosDmidecode, AgreesOnRealTables) {
  const std::string reason = NoDmidecodeReason();
  const char* const named = std::getenv("QDACORE_SMBIOS_DATA");
  const std::filesystem::path data = named != nullptr ? named : SMBIOS_REAL_TABLES;
  if (!reason.empty() || data.empty() || !std::filesystem::is_directory(data)) {
    GTEST_SKIP() << (reason.empty() ? "no real tables: QDACORE_SMBIOS_DATA names no folder"
                                    : reason);
  }
  const TemporaryFolder folder;
  std::size_t tables = 0;
  for (const auto& entry : std::filesystem::directory_iterator(data)) {
    if (entry.path().extension() != ".bin") {
      continue;
    }
    SCOPED_TRACE(entry.path().filename().string());
    const std::string text = BytesOf(entry.path());
    std::string itsDump = entry.path().string();
    if (text.empty() || text[0] != '_') {
      // dmidecode wants an entry point: a bare table gets one.
      TableBuilder table;
      table.AddBytes(Bytes(text.begin(), text.end()));
      itsDump = WriteDump(folder, table.Dump64(3, 0));
    }
    EXPECT_LT(60u, Compare(entry.path().string(), itsDump));
    ++tables;
  }
  EXPECT_LT(0u, tables);
}

}  // namespace

// Machine identification by whole tables, through the smbios library that comes with the core
// library.

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <qdacore/os/TOSSpecific.h>
#include <tests/os/SmbiosDump.h>
#include <tests/support/LogCapture.h>

// A table stays loaded after an out-of-range exception, which is meant: no leak to report.
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions() { return "leak:smBiosLoad\n"; }

namespace {

using namespace NZRVQDA20;
using namespace test_support;
using smbios::sample::Bytes;
using smbios::sample::StructureBuilder;
using smbios::sample::TableBuilder;

typedef std::vector<std::string> Lines;

// The first structure is another one, as it is on some machines.
TableBuilder Table(const std::string& biosVersion, const std::string& productName) {
  TableBuilder table;
  table.Add(StructureBuilder(218, 9).Dword(1));
  table.Add(StructureBuilder(0, 0)
                .Text("ZRV")
                .Text(biosVersion)
                .Word(0xE000)
                .Text("01/02/2020")
                .Byte(0)
                .Qword(8));
  table.Add(StructureBuilder(1, 1).Text("ZRV").Text(productName).Text("V1").Text("SN1"));
  table.Add(StructureBuilder(127, 2));
  return table;
}

TEST(SmbiosIdentification, OfADumpIsWhatItsTextsSay) {
  const struct {
    const char* version;
    const char* product;
    const char* biosID;
    const char* machineType;
    const char* fromID;
  } rows[] = {
      {"-[GYE143AUS-1.20]-", "Tserver -[7145AC1]-", "GY", "7145", "7327"},
      {"ZZE1", "Tserver -[7145AC1]-", "ZZ", "7145", "7145"},
      {"1.60", "1234567", "1.", "1234", "1234"},
      {"ml", "12345678", "ml", "0000", "7148"},
      {"ML", "", "ML", "0000", "7148"},
      {"A", "1234567", "out of range", "1234", "out of range"},
      {"GY", "L70-", "GY", "out of range", "out of range"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(std::string(row.version) + " " + row.product);
    const TableBuilder table = Table(row.version, row.product);
    for (const Bytes& bytes : {table.Dump64(3, 0), table.Dump32(2, 8), table.Table()}) {
      const SmbiosDump dump(bytes);
      EXPECT_EQ(row.biosID, Identified(TOSSpecific::GetBiosID));
      EXPECT_EQ(row.machineType, Identified(TOSSpecific::GetMachineType));
      EXPECT_EQ(row.fromID, Identified(TOSSpecific::GetMachineTypeFromID));
    }
  }
}

TEST(SmbiosIdentification, WithoutTheStructuresIsTheDefault) {
  TableBuilder table;
  table.Add(StructureBuilder(2, 0).Text("ZRV"));
  table.Add(StructureBuilder(127, 1));
  const SmbiosDump dump(table.Dump64(3, 0));
  EXPECT_EQ("00", TOSSpecific::GetBiosID());
  EXPECT_EQ("0000", TOSSpecific::GetMachineType());
  EXPECT_EQ("0000", TOSSpecific::GetMachineTypeFromID());
}

// The library of the table counts both closing NULs as the structure's.
TEST(SmbiosIdentification, DoesNotSeeAProductNameThatIsTheLastString) {
  TableBuilder table;
  table.Add(StructureBuilder(0, 0).Text("ZRV").Text("AB").Word(0).Byte(0).Byte(0).Qword(0));
  table.Add(StructureBuilder(1, 1).Text("ZRV").Text("-[7145AC1]-").Byte(0).Byte(0));
  table.Add(StructureBuilder(127, 2));
  const SmbiosDump dump(table.Dump64(3, 0));
  EXPECT_EQ("0000", TOSSpecific::GetMachineType());
}

// Larger than the buffer: a failed read for the library of the table.
TEST(SmbiosIdentification, OfStructuresLargerThanTheBuffersHasNothing) {
  TableBuilder table;
  table.Add(StructureBuilder(0, 0).Text("ZRV").Text("GY").LooseText(std::string(4090, 'x')));
  table.Add(StructureBuilder(1, 1).Text("ZRV").Text("1234567").LooseText(std::string(1010, 'x')));
  table.Add(StructureBuilder(127, 2));
  const SmbiosDump dump(table.Dump64(3, 0));
  const LogCapture log;
  EXPECT_EQ("0000", TOSSpecific::GetMachineType());
  EXPECT_EQ("out of range", Identified(TOSSpecific::GetBiosID));
  EXPECT_EQ((Lines{"[Debug] getMachineType() entered.",
                   "[Debug] Unable to read DMI structure type 1 from SMBIOS",
                   "[Debug] getMachineType() completed.",
                   "[Debug] TOSSpecific::GetBiosID - Retrieving first SMBIOS structure",
                   "[Debug] TOSSpecific::GetBiosID - smbios read operation failed! "}),
            log.Lines());
}

TEST(SmbiosIdentification, WithoutADumpSaysWhichStatus) {
  const SmbiosDump dump({});
  std::filesystem::remove(dump.Path());
  const LogCapture log;
  EXPECT_EQ("00", TOSSpecific::GetBiosID());
  EXPECT_EQ("0000", TOSSpecific::GetMachineType());
  EXPECT_EQ("0000", TOSSpecific::GetMachineTypeFromID());
  // 26 is kQDAStatusFileNotFound.
  EXPECT_EQ((Lines{"[Error] GetBiosID: Unable to open SMBIOS lib error = 26",
                   "[Debug] getMachineType() entered.",
                   "[Error] getMachineType: Unable to open SMBIOS lib error = 26",
                   "[Debug] getMachineType() entered.",
                   "[Error] getMachineType: Unable to open SMBIOS lib error = 26",
                   "[Error] getBIOSstructure: Unable to open SMBIOS lib error = 26",
                   "[Debug] getBIOSstructure: Unable to open SMBIOS lib error = 26Failed in "
                   "getting machineType from Bios ID.",
                   "Get machineType from GetMachineType().", "machineType=0000"}),
            log.Lines());
}

// This machine's own, whatever it has: a table, none, or no right to read it.
TEST(SmbiosIdentification, OfThisMachineIsATextOrOutOfRange) {
  const ScopedEnvironment scope("QDA_SMBIOS_DUMP", nullptr);
  const std::string biosID = Identified(TOSSpecific::GetBiosID);
  EXPECT_TRUE(biosID == "out of range" || biosID.size() == 2) << biosID;
  const std::string machineType = Identified(TOSSpecific::GetMachineType);
  EXPECT_TRUE(machineType == "out of range" || machineType.size() <= 4) << machineType;
}

void ExpectPromisesKept() {
  const std::string biosID = Identified(TOSSpecific::GetBiosID);
  ASSERT_TRUE(biosID == "out of range" || biosID.size() == 2) << biosID;
  const std::string machineType = Identified(TOSSpecific::GetMachineType);
  ASSERT_TRUE(machineType == "out of range" || machineType.size() <= 4) << machineType;
  const std::string fromID = Identified(TOSSpecific::GetMachineTypeFromID);
  ASSERT_EQ(biosID == "out of range" || machineType == "out of range", fromID == "out of range");
}

TEST(SmbiosIdentification, OfATableCutAtEveryByteKeepsItsPromises) {
  const Bytes whole = Table("-[GYE143AUS-1.20]-", "Tserver -[7145AC1]-").Table();
  const SmbiosDump dump(whole);
  for (std::size_t size = 0; size <= whole.size(); ++size) {
    dump.Write(Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size)));
    ExpectPromisesKept();
    if (HasFatalFailure()) {
      FAIL() << "cut to " << size;
    }
  }
}

void Bend(std::mt19937& random, Bytes& bytes) {
  const std::size_t at = random() % bytes.size();
  const auto here = bytes.begin() + static_cast<std::ptrdiff_t>(at);
  const unsigned char marks[] = {0, 0, 1, 2, 4, 24, 127, '-', '[', ']', 'x', 0xFF};
  switch (random() % 4) {
    case 0:
      bytes.insert(here, marks[random() % sizeof marks]);
      break;
    case 1:
      bytes.erase(here, here + static_cast<std::ptrdiff_t>(
                                   1 + random() % std::min<std::size_t>(8, bytes.size() - at)));
      break;
    case 2:
      bytes.resize(at + 1);
      break;
    default:
      *here = marks[random() % sizeof marks];
      break;
  }
  if (bytes.empty()) {
    bytes.push_back(0);
  }
}

TEST(SmbiosIdentification, OfBentTablesKeepsItsPromises) {
#if defined(_WIN32)
  // Each table goes through a file, and files are slow in the emulation that runs these tests.
  const int rounds = 1000;
#else
  const int rounds = 10000;
#endif
  const TableBuilder table = Table("-[GYE143AUS-1.20]-", "Tserver -[7145AC1]-");
  const SmbiosDump dump({});
  std::mt19937 random(20100307);
  int identified = 0;
  for (int round = 0; round < rounds; ++round) {
    // Without an entry point a table has no checksum, so more of them are looked at.
    Bytes bytes = round % 8 == 0 ? table.Dump64(3, 0) : table.Table();
    for (unsigned changes = 1 + random() % 4; changes > 0; --changes) {
      Bend(random, bytes);
    }
    dump.Write(bytes);
    ExpectPromisesKept();
    if (HasFatalFailure()) {
      FAIL() << "in round " << round;
    }
    identified += Identified(TOSSpecific::GetBiosID) == "GY" ? 1 : 0;
  }
  // Many are bent where it does not matter, and many where it does.
  EXPECT_GT(identified, rounds / 10);
  EXPECT_LT(identified, rounds * 9 / 10);
}

std::filesystem::path RealTables() {
  const char* const named = std::getenv("QDACORE_SMBIOS_DATA");
  return named ? named : QDACORE_SMBIOS_DATA_FOLDER;
}

// The tables of real machines, from a folder that is not part of the sources. By hand: the version
// and the product name of each, as a program of another origin prints them, and what the rules
// make of these.
TEST(SmbiosIdentification, OfRealTablesIsWhatWasWorkedOutByHand) {
  const struct {
    const char* file;
    const char* biosID;
    const char* machineType;
  } rows[] = {
      {"asrock-single-ryzen.bin", "P1", "0000"},      // P1.20, To Be Filled By O.E.M.
      {"asus-ux305la.bin", "UX", "UX30"},             // UX305LA.206, UX305LA
      {"dell-poweredge-anon-3.2.bin", "2.", "0000"},  // 2.8.2, PowerEdge R777sd
      {"dell-poweredge-r630.bin", "2.", "0000"},      // 2.3.4, PowerEdge R630
      {"gigabyte-ga-ma74gmt-s2.bin", "F8", "A74G"},   // F8, GA-MA74GMT-S2
      {"msi-ms-7816.bin", "V2", "816"},               // V2.14B14, MS-7816
      {"supermicro-dual-xeon.bin", "3.", "027R"},     // 3.0c, SYS-1027R-WRF
      {"synology-rs3614xsp.bin", "0.", "0000"},       // 0.1.4, RS3614xs+
      {"toshiba-satellite-pro-l70.bin", "1.", ""},    // 1.60, SATELLITE PRO L70-A
  };
  int seen = 0;
  for (const auto& row : rows) {
    const std::filesystem::path file = RealTables() / row.file;
    if (!std::filesystem::exists(file)) {
      continue;
    }
    SCOPED_TRACE(row.file);
    ++seen;
    std::ifstream stream(file, std::ios::binary);
    const SmbiosDump dump(
        Bytes{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()});
    EXPECT_EQ(row.biosID, Identified(TOSSpecific::GetBiosID));
    EXPECT_EQ(row.machineType, Identified(TOSSpecific::GetMachineType));
    // None of these identifiers is known.
    EXPECT_EQ(row.machineType, Identified(TOSSpecific::GetMachineTypeFromID));
  }
  if (seen == 0) {
    GTEST_SKIP() << "no real tables: QDACORE_SMBIOS_DATA names no folder with any";
  }
}

}  // namespace

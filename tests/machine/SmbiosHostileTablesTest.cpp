// Tables that are bent and cut, made into a namespace the whole way from the file. Nothing may
// crash, hang or be read outside its bytes, and no table that loads may cost the namespace.

#include <fstream>
#include <iterator>
#include <random>

#include <gtest/gtest.h>

#include <qdacore/cim/object/ICIMNamespace.h>

#include "BuiltTables.h"
#include "SmbiosObjects.h"

namespace machine_test {
namespace {

using smbios::sample::Bytes;

// A file of its own for each table is what takes the time, most of all under Wine.
#if defined(_WIN32)
const int kRounds = 60;
const std::size_t kCutStep = 97;
#else
const int kRounds = 600;
const std::size_t kCutStep = 13;
#endif

Bytes BareTable(const BuiltTable& built) {
  return Bytes(built.dump.begin() + 32, built.dump.end());
}

TEST(SmbiosHostileTables, BentOnesMakeANamespace) {
  std::mt19937 random(20191114);
  int loaded = 0;
  for (int round = 0; round < kRounds; ++round) {
    const std::vector<BuiltTable> tables = BuiltTables();
    Bytes bytes = BareTable(tables[random() % tables.size()]);
    for (unsigned int changes = 1 + random() % 12; changes > 0; --changes) {
      bytes[random() % bytes.size()] =
          static_cast<unsigned char>(random() % 3 == 0 ? 0xFF : random() % 64);
    }
    if (const auto ns = NamespaceOfDump(bytes)) {
      EXPECT_EQ(1u, ObjectsOf(ns, "ZRVSG_ComputerSystem").size());
      ObjectsOf(ns, "CIM_AssociatedCacheMemory");
      ++loaded;
    }
  }
  EXPECT_GT(loaded, kRounds / 4);
}

TEST(SmbiosHostileTables, CutOnesMakeANamespaceOfWhatIsThere) {
  for (const BuiltTable& built : BuiltTables()) {
    std::size_t most = 0;
    for (std::size_t size = 32; size <= built.dump.size(); size += kCutStep) {
      const Bytes cut(built.dump.begin(), built.dump.begin() + static_cast<std::ptrdiff_t>(size));
      if (const auto ns = NamespaceOfDump(cut)) {
        const std::size_t elements =
            ObjectsOf(ns, "CIM_SystemDevice").size() + ObjectsOf(ns, "CIM_Slot").size();
        EXPECT_GE(elements, most) << built.name << " " << size;
        most = elements;
      }
    }
    EXPECT_GT(most, 0u) << built.name;
  }
}

// Every structure the same handle: each thing is there, once, and no wrong ones are joined.
TEST(SmbiosHostileTables, OneHandleForAllMakesANamespace) {
  for (const BuiltTable& built : BuiltTables()) {
    Bytes bytes = BareTable(built);
    std::size_t at = 0;
    while (at + 4 < bytes.size()) {
      bytes[at + 2] = 7;
      bytes[at + 3] = 0;
      std::size_t end = at + bytes[at + 1];
      while (bytes[end] != 0 || bytes[end + 1] != 0) {
        ++end;
      }
      at = end + 2;
    }
    const auto ns = NamespaceOfDump(bytes);
    ASSERT_TRUE(ns) << built.name;
    EXPECT_EQ(1u, ObjectsOf(ns, "CIM_BIOSElement").size()) << built.name;
  }
}

// A few bytes that claim 255 strings each, as often as a table can have them: what is not there
// must not be made up, or half a megabyte of table would fill the memory.
TEST(SmbiosHostileTables, StringsThatAreClaimedAndNotThereCostNothing) {
  smbios::sample::TableBuilder table;
  const std::uint16_t count = 5000;
  for (std::uint16_t number = 0; number < count; ++number) {
    table.Add(smbios::sample::StructureBuilder(11, number).Byte(255));
  }
  table.Add(smbios::sample::StructureBuilder(127, 0x7F00));
  const auto ns = NamespaceOfDump(table.Dump64(3, 7));
  ASSERT_TRUE(ns);
  const std::vector<Facts> strings = ObjectsOf(ns, "ZRVSG_FirmwareStrings");
  ASSERT_EQ(count, strings.size());
  for (const Facts& text : strings) {
    ASSERT_EQ(0u, text.count("Strings"));
  }
}

}  // namespace
}  // namespace machine_test

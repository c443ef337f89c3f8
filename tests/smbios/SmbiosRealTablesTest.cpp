// Tables of real machines, from a folder that is not part of the sources: the
// environment variable QDACORE_SMBIOS_DATA names it, or the CMake cache entry.

#include <algorithm>
#include <cstdlib>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Dmidecode.h"
#include "SmbiosTestSupport.h"

namespace smbios_test {
namespace {

namespace fs = std::filesystem;

std::vector<fs::path> RealTables() {
  const char* const named = std::getenv("QDACORE_SMBIOS_DATA");
  const fs::path folder = named != nullptr ? named : SMBIOS_REAL_TABLES;
  std::vector<fs::path> files;
  if (!folder.empty() && fs::is_directory(folder)) {
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
      if (entry.path().extension() == ".bin") {
        files.push_back(entry.path());
      }
    }
  }
  std::sort(files.begin(), files.end());
  return files;
}

const char* const kNoTables = "no real tables: QDACORE_SMBIOS_DATA names no folder with any";

// dmidecode wants an entry point: a bare table gets one.
Bytes WithEntryPoint(const Bytes& bytes) {
  if (bytes.size() >= 4 && bytes[0] == '_') {
    return bytes;
  }
  smbios::sample::TableBuilder table;
  table.AddBytes(bytes);
  return table.Dump64(3, 0);
}

struct Keyword {
  const char* name;
  int type;
  std::size_t offset;
};
const Keyword kKeywords[] = {
    {"bios-vendor", 0, 4},
    {"bios-version", 0, 5},
    {"bios-release-date", 0, 8},
    {"system-manufacturer", 1, 4},
    {"system-product-name", 1, 5},
    {"system-version", 1, 6},
    {"system-serial-number", 1, 7},
    {"baseboard-manufacturer", 2, 4},
    {"baseboard-product-name", 2, 5},
    {"baseboard-serial-number", 2, 7},
    {"chassis-manufacturer", 3, 4},
    {"chassis-serial-number", 3, 7},
    {"processor-manufacturer", 4, 7},
    {"processor-version", 4, 16},
};

TEST(SmbiosRealTables, SayWhatDmidecodeSays) {
  const std::string reason = NoDmidecodeReason();
  const std::vector<fs::path> files = RealTables();
  if (files.empty() || !reason.empty()) {
    GTEST_SKIP() << (files.empty() ? kNoTables : reason);
  }
  const ScratchFolder folder;
  for (const fs::path& file : files) {
    SCOPED_TRACE(file.filename().string());
    const LoadedTable table(file);
    ASSERT_EQ(0, table.LoadStatus());
    const fs::path dump = folder.Path() / "dump";
    WriteBytes(dump, WithEntryPoint(ReadBytes(file)));
    for (const Keyword& keyword : kKeywords) {
      const auto lines = Dmidecode(dump, std::string("-s ") + keyword.name);
      const std::string text = table.Text(keyword.type, keyword.offset);
      // A missing string is a note there and an empty text here.
      const std::string said = lines.empty() || lines[0] == "Not Specified" ? "" : lines[0];
      EXPECT_EQ(said, text) << keyword.name;
    }
    const auto lines = Dmidecode(dump, "");
    const auto structures = std::count_if(lines.begin(), lines.end(), [](const std::string& line) {
      return line.rfind("Handle 0x", 0) == 0;
    });
    EXPECT_EQ(static_cast<unsigned int>(structures), table.Count(-1));
  }
}

TEST(SmbiosRealTables, HaveTheProductNamesThatAreKnown) {
  struct Row {
    const char* file;
    const char* product;
  };
  const Row rows[] = {{"asus-ux305la.bin", "UX305LA"},
                      {"msi-ms-7816.bin", "MS-7816"},
                      {"toshiba-satellite-pro-l70.bin", "SATELLITE PRO L70-A"}};
  int seen = 0;
  for (const fs::path& file : RealTables()) {
    for (const Row& row : rows) {
      if (file.filename() == row.file) {
        EXPECT_EQ(row.product, LoadedTable(file).Text(1, 5));
        ++seen;
      }
    }
  }
  if (seen == 0) {
    GTEST_SKIP() << kNoTables;
  }
}

TEST(SmbiosRealTables, EndWithTheEndOfTable) {
  const std::vector<fs::path> files = RealTables();
  if (files.empty()) {
    GTEST_SKIP() << kNoTables;
  }
  for (const fs::path& file : files) {
    const LoadedTable table(file);
    ASSERT_EQ(0, table.LoadStatus()) << file;
    const Bytes last = table.Get(-1, table.Count(-1) - 1);
    EXPECT_EQ(127, last.at(0)) << file;
    EXPECT_EQ(4, last.at(1)) << file;
  }
}

}  // namespace
}  // namespace smbios_test

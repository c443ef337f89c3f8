// The sample table as an independent reader sees it.

#include <algorithm>

#include <gtest/gtest.h>

#include "Dmidecode.h"

namespace smbios_test {
namespace {

TEST(SmbiosSampleByDmidecode, SaysTheSameKeywords) {
  const std::string reason = NoDmidecodeReason();
  if (!reason.empty()) {
    GTEST_SKIP() << reason;
  }
  struct Row {
    const char* keyword;
    const char* text;
  };
  const Row rows[] = {
      {"bios-vendor", "ZRV"},
      {"bios-version", "-[GYE121AUS-1.07]-"},
      {"bios-release-date", "03/14/2019"},
      {"bios-revision", "1.7"},
      {"system-manufacturer", "ZRV"},
      {"system-product-name", "ZRV Tserver k7265-[1234AC1]"},
      {"system-version", "05"},
      {"system-serial-number", "KD7Z042"},
      {"system-uuid", "00112233-4455-6677-8899-aabbccddeeff"},
      {"system-sku-number", "1234AC1"},
      {"system-family", "Tserver"},
      {"baseboard-product-name", "Tboard 21"},
      {"chassis-type", "Rack Mount Chassis"},
      {"chassis-serial-number", "KD7Z042-C"},
      {"processor-version", "ZRV Tcore 8 @ 2.40GHz"},
  };
  for (const Row& row : rows) {
    const auto lines = Dmidecode(SMBIOS_SAMPLE_FILE, std::string("-s ") + row.keyword);
    ASSERT_FALSE(lines.empty()) << row.keyword;
    EXPECT_EQ(row.text, lines[0]) << row.keyword;
  }
}

TEST(SmbiosSampleByDmidecode, IsUnderstoodWithoutComplaint) {
  const std::string reason = NoDmidecodeReason();
  if (!reason.empty()) {
    GTEST_SKIP() << reason;
  }
  const auto lines = Dmidecode(SMBIOS_SAMPLE_FILE, "");
  const auto has = [&lines](const char* line) {
    return std::find(lines.begin(), lines.end(), line) != lines.end();
  };
  EXPECT_TRUE(has("SMBIOS 3.0.0 present."));
  EXPECT_TRUE(has("\tType: x8 PCI Express 3"));
  EXPECT_TRUE(has("\tMaximum Capacity: 256 GB"));
  EXPECT_TRUE(has("\tSize: 16 GB"));
  EXPECT_TRUE(has("\tSize: No Module Installed"));
  EXPECT_TRUE(has("\tRange Size: 64 GB"));
  EXPECT_TRUE(has("\tString 2: This server does not exist"));
  EXPECT_TRUE(has("\tInterface Type: KCS (Keyboard Control Style)"));
  EXPECT_TRUE(has("\tBase Address: 0x0000000000000CA2 (I/O)"));
  EXPECT_TRUE(has("End Of Table"));
  for (const std::string& line : lines) {
    EXPECT_EQ(std::string::npos, line.find("OUT OF SPEC")) << line;
    EXPECT_EQ(std::string::npos, line.find("BAD INDEX")) << line;
    EXPECT_EQ(std::string::npos, line.find("TRUNCATED")) << line;
  }
}

}  // namespace
}  // namespace smbios_test

// The sample table that the build writes, read back through the library.

#include <gtest/gtest.h>

#include <smbios/SmbiosFields.h>

#include "SmbiosTestSupport.h"

namespace smbios_test {
namespace {

class SmbiosSample : public testing::Test {
 protected:
  LoadedTable fTable{std::filesystem::path(SMBIOS_SAMPLE_FILE)};
};

TEST_F(SmbiosSample, HasItsStrings) {
  struct Row {
    int type;
    std::size_t offset;
    unsigned int nth;
    const char* text;
  };
  const Row rows[] = {
      {0, 4, 0, "ZRV"},
      {0, 5, 0, "-[GYE121AUS-1.07]-"},
      {0, 8, 0, "03/14/2019"},
      {1, 4, 0, "ZRV"},
      {1, 5, 0, "ZRV Tserver k7265-[1234AC1]"},
      {1, 7, 0, "KD7Z042"},
      {1, 25, 0, "1234AC1"},
      {2, 5, 0, "Tboard 21"},
      {3, 7, 0, "KD7Z042-C"},
      {4, 16, 1, "ZRV Tcore 8 @ 2.40GHz"},
      {7, 4, 5, "L3 Cache"},
      {8, 6, 3, "Ethernet 1"},
      {9, 4, 2, "PCIe Slot 3"},
      {17, 16, 3, "DIMM 4"},
      {17, 26, 0, "TM16-2400R"},
      {17, 26, 4, ""},
  };
  ASSERT_EQ(0, fTable.LoadStatus());
  for (const Row& row : rows) {
    EXPECT_EQ(row.text, fTable.Text(row.type, row.offset, row.nth))
        << "type " << row.type << " offset " << row.offset;
  }
  const Bytes oem = fTable.Get(11);
  EXPECT_EQ("This server does not exist", smbios::String(oem.data(), oem.size(), 2));
}

TEST_F(SmbiosSample, HasItsStructures) {
  struct Row {
    int type;
    unsigned int count;
  };
  const Row rows[] = {{0, 1},  {1, 1},  {2, 1},  {3, 1},  {4, 2},  {7, 6},   {8, 6},  {9, 3},
                      {11, 1}, {16, 1}, {17, 5}, {19, 1}, {38, 1}, {127, 1}, {-1, 31}};
  for (const Row& row : rows) {
    EXPECT_EQ(row.count, fTable.Count(row.type)) << "type " << row.type;
  }
}

TEST_F(SmbiosSample, HasVersion30) {
  int major = 0;
  int minor = 0;
  EXPECT_EQ(0, smBiosGetVersion(fTable.Handle(), &major, &minor).GetStatusCode());
  EXPECT_EQ(3, major);
  EXPECT_EQ(0, minor);
}

TEST_F(SmbiosSample, SystemStructureStandsByteForByte) {
  const Bytes system = fTable.Get(1);
  const Bytes formatted = {1,    27,   0x00, 0x01, 1,    2,    3,    4,    0x33,
                           0x22, 0x11, 0x00, 0x55, 0x44, 0x77, 0x66, 0x88, 0x99,
                           0xAA, 0xBB, 0xCC, 0xDD, 0xEE, 0xFF, 6,    5,    6};
  const std::string strings(
      "ZRV\0ZRV Tserver k7265-[1234AC1]\0"
      "05\0KD7Z042\0"
      "1234AC1\0Tserver\0\0",
      4 + 28 + 3 + 8 + 8 + 8 + 1);
  Bytes expected = formatted;
  expected.insert(expected.end(), strings.begin(), strings.end());
  EXPECT_EQ(expected, system);
}

}  // namespace
}  // namespace smbios_test

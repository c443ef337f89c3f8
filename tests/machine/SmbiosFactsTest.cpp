#include <plugins/machine/SmbiosFacts.h>

#include <algorithm>

#include <gtest/gtest.h>

#include <smbios/sample/TableBuilder.h>

namespace {

using machine::FormatUuid;
using machine::ParseSystemInformation;
using machine::SystemFacts;
using smbios::sample::Bytes;
using smbios::sample::StructureBuilder;

SystemFacts Parse(const Bytes& bytes) { return ParseSystemInformation(bytes.data(), bytes.size()); }

TEST(FormatUuid, HasItsFirstThreeFieldsInLittleEndianOrder) {
  // The example of DSP0134, 7.2.1.
  const unsigned char bytes[] = {0x33, 0x22, 0x11, 0x00, 0x55, 0x44, 0x77, 0x66,
                                 0x88, 0x99, 0xAA, 0xBB, 0xCC, 0xDD, 0xEE, 0xFF};
  EXPECT_EQ("00112233-4455-6677-8899-aabbccddeeff", FormatUuid(bytes));
}

TEST(FormatUuid, OfEqualBytesIsAbsentForNoneAndAllOnly) {
  unsigned char bytes[16];
  std::fill_n(bytes, 16, static_cast<unsigned char>(0x00));
  EXPECT_FALSE(FormatUuid(bytes).has_value());
  std::fill_n(bytes, 16, static_cast<unsigned char>(0xFF));
  EXPECT_FALSE(FormatUuid(bytes).has_value());
  std::fill_n(bytes, 16, static_cast<unsigned char>(0x11));
  EXPECT_EQ("11111111-1111-1111-1111-111111111111", FormatUuid(bytes));
}

TEST(FormatUuid, IsThereAsSoonAsOneByteDiffers) {
  unsigned char bytes[16] = {};
  bytes[15] = 1;
  EXPECT_EQ("00000000-0000-0000-0000-000000000001", FormatUuid(bytes));
  std::fill_n(bytes, 16, static_cast<unsigned char>(0xFF));
  bytes[0] = 0xFE;
  EXPECT_EQ("fffffffe-ffff-ffff-ffff-ffffffffffff", FormatUuid(bytes));
}

TEST(SystemInformation, GivesItsStringsUntouched) {
  const SystemFacts facts = Parse(StructureBuilder(1, 1)
                                      .Text("ZRV ")
                                      .Text("Product\x1B\xFF")
                                      .Text("version")
                                      .Text("  S1  ")
                                      .Build());
  EXPECT_EQ("ZRV ", facts.manufacturer);
  EXPECT_EQ("Product\x1B\xFF", facts.productName);
  EXPECT_EQ("  S1  ", facts.serialNumber);
}

TEST(SystemInformation, OfSmbios20HasNoUuid) {
  const SystemFacts facts =
      Parse(StructureBuilder(1, 1).Text("M").Text("P").Text("V").Text("S").Build());
  EXPECT_EQ("S", facts.serialNumber);
  EXPECT_FALSE(facts.uuid.has_value());
}

TEST(SystemInformation, WithPartOfAUuidHasNone) {
  const SystemFacts facts = Parse(StructureBuilder(1, 1)
                                      .Text("M")
                                      .Text("P")
                                      .Text("V")
                                      .Text("S")
                                      .Qword(0x0102030405060708)
                                      .Dword(1)
                                      .Word(1)
                                      .Byte(1)
                                      .Build());
  EXPECT_FALSE(facts.uuid.has_value());
}

TEST(SystemInformation, WithAWholeUuidHasIt) {
  const SystemFacts facts = Parse(StructureBuilder(1, 1)
                                      .Text("M")
                                      .Text("P")
                                      .Text("V")
                                      .Text("S")
                                      .Qword(0x0102030405060708)
                                      .Qword(0x1112131415161718)
                                      .Build());
  EXPECT_EQ("05060708-0304-0102-1817-161514131211", facts.uuid);
}

TEST(SystemInformation, StringNumberNullIsAbsent) {
  const SystemFacts facts =
      Parse(StructureBuilder(1, 1).Text("M").Text("").Text("V").Text("").Build());
  EXPECT_EQ("M", facts.manufacturer);
  EXPECT_FALSE(facts.productName.has_value());
  EXPECT_FALSE(facts.serialNumber.has_value());
}

TEST(SystemInformation, StringNumberOfNoStringIsAbsent) {
  const SystemFacts facts =
      Parse(StructureBuilder(1, 1).Byte(1).Byte(2).Byte(0).Byte(255).LooseText("only one").Build());
  EXPECT_EQ("only one", facts.manufacturer);
  EXPECT_FALSE(facts.productName.has_value());
  EXPECT_FALSE(facts.serialNumber.has_value());
}

TEST(SystemInformation, WithoutFieldsHasNoFacts) {
  const SystemFacts facts = Parse(StructureBuilder(1, 1).LooseText("M").LooseText("P").Build());
  EXPECT_FALSE(facts.manufacturer.has_value());
  EXPECT_FALSE(facts.productName.has_value());
  EXPECT_FALSE(facts.serialNumber.has_value());
  EXPECT_FALSE(facts.uuid.has_value());
}

// Each length in a block of its own, so that a read beyond it is seen by the sanitizers.
TEST(SystemInformation, CutAnywhereIsReadNoFurther) {
  const Bytes whole =
      StructureBuilder(1, 1).Text("M").Text("P").Text("V").Text("S").Qword(1).Qword(2).Build();
  for (std::size_t size = 0; size < whole.size(); ++size) {
    const Bytes cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size));
    const SystemFacts facts = Parse(cut);
    EXPECT_EQ(size >= 24, facts.uuid.has_value()) << size;
    EXPECT_EQ(size >= 28, facts.productName.has_value()) << size;
  }
}

}  // namespace

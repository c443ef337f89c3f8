// <smbios/SmbiosFields.h>: numbers and strings out of one hostile structure.

#include <smbios/SmbiosFields.h>

#include <vector>

#include <gtest/gtest.h>

namespace {

using Bytes = std::vector<unsigned char>;

const Bytes kStructure = {1, 8, 0x34, 0x12, 2, 0x78, 0x56, 9, 'A', 0, 'B', ' ', 0, 0};

std::string Text(const Bytes& bytes, unsigned int number) {
  return std::string(smbios::String(bytes.data(), bytes.size(), number));
}

TEST(SmbiosFields, NumbersAreLittleEndian) {
  std::uint64_t value = 0;
  EXPECT_TRUE(smbios::NumberField(kStructure.data(), kStructure.size(), 2, 2, &value));
  EXPECT_EQ(0x1234u, value);
  EXPECT_TRUE(smbios::NumberField(kStructure.data(), kStructure.size(), 4, 4, &value));
  EXPECT_EQ(0x09567802u, value);
  EXPECT_TRUE(smbios::NumberField(kStructure.data(), kStructure.size(), 0, 8, &value));
  EXPECT_EQ(0x0956780212340801u, value);
}

TEST(SmbiosFields, NumberOutsideTheFormattedAreaIsNotThere) {
  struct Row {
    std::size_t offset;
    std::size_t width;
  };
  const Row rows[] = {{8, 1},
                      {7, 2},
                      {1, 8},
                      {0, 0},
                      {0, 9},
                      {9, 1},
                      {static_cast<std::size_t>(-1), 1},
                      {static_cast<std::size_t>(-1), 2}};
  for (const Row& row : rows) {
    std::uint64_t value = 77;
    EXPECT_FALSE(
        smbios::NumberField(kStructure.data(), kStructure.size(), row.offset, row.width, &value));
    EXPECT_EQ(77u, value);
  }
}

TEST(SmbiosFields, StringsCountFromOneAndStayUntouched) {
  EXPECT_EQ("", Text(kStructure, 0));
  EXPECT_EQ("A", Text(kStructure, 1));
  EXPECT_EQ("B ", Text(kStructure, 2));
  EXPECT_EQ("", Text(kStructure, 3));
  EXPECT_EQ("", Text(kStructure, 255));
}

TEST(SmbiosFields, StringFieldFollowsTheNumber) {
  EXPECT_EQ("B ", smbios::StringField(kStructure.data(), kStructure.size(), 4));
  EXPECT_EQ("", smbios::StringField(kStructure.data(), kStructure.size(), 7));
  EXPECT_EQ("", smbios::StringField(kStructure.data(), kStructure.size(), 8));
}

TEST(SmbiosFields, StructureWithoutStringsHasNone) {
  EXPECT_EQ("", Text({1, 4, 0, 0, 0, 0}, 1));
  EXPECT_EQ("", Text({1, 4, 0, 0, 0, 'x', 0, 0}, 1));
  EXPECT_EQ("", Text({1, 4, 0, 0, 0, 'x', 0, 0}, 2));
}

TEST(SmbiosFields, CutStructureIsReadAsFarAsItGoes) {
  for (std::size_t size = 0; size <= kStructure.size(); ++size) {
    // A copy of exactly this size, so that a sanitizer sees a byte read too many.
    const Bytes cut(kStructure.begin(), kStructure.begin() + static_cast<std::ptrdiff_t>(size));
    EXPECT_EQ(size >= 10 ? "A" : "", Text(cut, 1)) << size;
    EXPECT_EQ(size >= 13 ? "B " : "", Text(cut, 2)) << size;
    std::uint64_t value = 0;
    EXPECT_EQ(size >= 7, smbios::NumberField(cut.data(), cut.size(), 5, 2, &value)) << size;
  }
}

TEST(SmbiosFields, NothingIsInANullOrAShortHeader) {
  std::uint64_t value = 0;
  EXPECT_EQ("", smbios::String(nullptr, 100, 1));
  EXPECT_FALSE(smbios::NumberField(nullptr, 100, 0, 1, &value));
  const Bytes shortHeader = {1, 3, 0, 0, 'A', 0, 0};
  EXPECT_EQ("", Text(shortHeader, 1));
  EXPECT_FALSE(smbios::NumberField(shortHeader.data(), shortHeader.size(), 0, 1, &value));
  EXPECT_EQ(0u, smbios::FormattedLength(shortHeader.data(), shortHeader.size()));
  EXPECT_EQ(8u, smbios::FormattedLength(kStructure.data(), kStructure.size()));
}

}  // namespace

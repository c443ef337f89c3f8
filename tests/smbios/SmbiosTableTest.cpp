// The walk over a structure table: where it stops and what it keeps.

#include <smbios/SmbiosTable.h>

#include <gtest/gtest.h>

#include <smbios/sample/TableBuilder.h>

namespace smbios {
namespace {

using sample::Bytes;
using sample::StructureBuilder;
using sample::TableBuilder;
using WalkEnd = SmbiosTable::WalkEnd;

struct Row {
  const char* what;
  Bytes bytes;
  std::size_t statedNumber;
  std::size_t count;
  WalkEnd end;
};

// What a failing row prints.
void PrintTo(const Row& row, std::ostream* out) { *out << row.what; }

class Walk : public testing::TestWithParam<Row> {};

TEST_P(Walk, KeepsWholeStructuresAndStops) {
  const Row& row = GetParam();
  const SmbiosTable table(row.bytes, row.statedNumber);
  EXPECT_EQ(row.count, table.Count());
  EXPECT_EQ(row.end, table.End());
}

// One structure of type 9 with 6 bytes, then what the row is about.
const Row kRows[] = {
    {"nothing", {}, 0, 0, WalkEnd::kEndOfBytes},
    {"one structure", {9, 4, 0, 0, 0, 0}, 0, 1, WalkEnd::kEndOfBytes},
    {"two structures", {9, 4, 0, 0, 0, 0, 9, 4, 1, 0, 0, 0}, 0, 2, WalkEnd::kEndOfBytes},
    {"end of table", {9, 4, 0, 0, 0, 0, 127, 4, 0, 0, 0, 0}, 0, 2, WalkEnd::kEndOfTable},
    {"structures behind the end of table",
     {127, 4, 0, 0, 0, 0, 9, 4, 0, 0, 0, 0},
     0,
     1,
     WalkEnd::kEndOfTable},
    {"end of table without its NULs", {9, 4, 0, 0, 0, 0, 127, 4, 0, 0}, 0, 1, WalkEnd::kBroken},
    {"padding of zeros", {9, 4, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}, 0, 1, WalkEnd::kEndOfBytes},
    {"padding of FFh", {9, 4, 0, 0, 0, 0, 255, 255, 255}, 0, 1, WalkEnd::kEndOfBytes},
    {"one byte of padding", {9, 4, 0, 0, 0, 0, 0}, 0, 1, WalkEnd::kEndOfBytes},
    {"mixed rest", {9, 4, 0, 0, 0, 0, 0, 255, 0, 255}, 0, 1, WalkEnd::kBroken},
    {"length 0", {9, 4, 0, 0, 0, 0, 5, 0, 0, 0, 0, 0}, 0, 1, WalkEnd::kBroken},
    {"length 3", {9, 4, 0, 0, 0, 0, 5, 3, 0, 0, 0, 0}, 0, 1, WalkEnd::kBroken},
    {"length beyond the bytes", {9, 5, 0, 0, 0, 0}, 0, 0, WalkEnd::kBroken},
    {"length 255", {9, 255, 0, 0, 0, 0}, 0, 0, WalkEnd::kBroken},
    {"no closing NULs", {9, 4, 0, 0}, 0, 0, WalkEnd::kBroken},
    {"one closing NUL", {9, 4, 0, 0, 0}, 0, 0, WalkEnd::kBroken},
    {"string without any NUL", {9, 4, 0, 0, 'a', 'b'}, 0, 0, WalkEnd::kBroken},
    {"string with one NUL", {9, 4, 0, 0, 'a', 'b', 0}, 0, 0, WalkEnd::kBroken},
    {"NULs in the formatted area close nothing",
     {9, 6, 0, 0, 0, 0, 'a', 0},
     0,
     0,
     WalkEnd::kBroken},
    {"last field zero, one string", {9, 5, 0, 0, 0, 'a', 0, 0}, 0, 1, WalkEnd::kEndOfBytes},
    {"stated number", {9, 4, 0, 0, 0, 0, 9, 4, 1, 0, 0, 0}, 1, 1, WalkEnd::kStatedNumber},
    {"stated number too large", {9, 4, 0, 0, 0, 0}, 1000, 1, WalkEnd::kEndOfBytes},
};
INSTANTIATE_TEST_SUITE_P(SmbiosTable, Walk, testing::ValuesIn(kRows));

TEST(SmbiosTable, StructureIsTheBytesOfTheTable) {
  const SmbiosTable table({9, 5, 0x34, 0x12, 1, 'a', 0, 0, 10, 4, 0, 0, 0, 0});
  const Structure first = table.At(0);
  EXPECT_EQ(Bytes({9, 5, 0x34, 0x12, 1, 'a', 0, 0}), Bytes(first.bytes, first.bytes + first.size));
  EXPECT_EQ(9, first.Type());
  EXPECT_EQ(5u, first.FormattedLength());
  EXPECT_EQ(10, table.At(1).Type());
}

TEST(SmbiosTable, FindCountsAmongItsType) {
  TableBuilder builder;
  builder.Add(StructureBuilder(4, 10)).Add(StructureBuilder(7, 11)).Add(StructureBuilder(4, 12));
  const SmbiosTable table(builder.Table());
  Structure found{};
  ASSERT_TRUE(table.Find(4, 0, &found));
  EXPECT_EQ(10, found.bytes[2]);
  ASSERT_TRUE(table.Find(4, 1, &found));
  EXPECT_EQ(12, found.bytes[2]);
  EXPECT_FALSE(table.Find(4, 2, &found));
  EXPECT_FALSE(table.Find(8, 0, &found));
}

TEST(SmbiosTable, NoMoreStructuresThanHandles) {
  Bytes bytes;
  for (int i = 0; i < 65537; ++i) {
    bytes.insert(bytes.end(), {9, 4, 0, 0, 0, 0});
  }
  const SmbiosTable table(bytes);
  EXPECT_EQ(65536u, table.Count());
  EXPECT_EQ(WalkEnd::kBroken, table.End());
}

TEST(SmbiosTable, VeryLongStringsArePassedInOneGo) {
  Bytes bytes = {9, 4, 0, 0};
  bytes.insert(bytes.end(), 8 * 1024 * 1024, 'x');
  bytes.insert(bytes.end(), {0, 0, 127, 4, 0, 0, 0, 0});
  const SmbiosTable table(bytes);
  EXPECT_EQ(2u, table.Count());
  EXPECT_EQ(8u * 1024 * 1024 + 6, table.At(0).size);
}

}  // namespace
}  // namespace smbios

// smBiosGetFirst, smBiosGetNext, smBiosGetVersion and smBiosClose.

#include <climits>

#include <gtest/gtest.h>

#include "SmbiosTestSupport.h"

namespace smbios_test {
namespace {

using smbios::sample::StructureBuilder;
using smbios::sample::TableBuilder;

const unsigned char kUntouched = 0xA5;

// Type 200 with two strings: 5 + 4 + 3 + 1 = 13 bytes.
const Bytes kWithStrings = {200, 5, 0x34, 0x12, 2, 'A', 'B', 'C', 0, 'D', 'E', 0, 0};
// Type 201 without strings: 4 + 2 bytes.
const Bytes kWithoutStrings = {201, 4, 0x35, 0x12, 0, 0};

class SmbiosRead : public testing::Test {
 protected:
  static Bytes Dump() {
    TableBuilder table = SmallTable();
    TableBuilder all;
    all.AddBytes(kWithStrings)
        .AddBytes(kWithoutStrings)
        .Add(StructureBuilder(200, 0x1300).Text("second"))
        .AddBytes(table.Table());
    return all.Dump64(3, 1);
  }

  void* Handle() const { return fTable.Handle(); }

  LoadedTable fTable{Dump()};
};

TEST_F(SmbiosRead, DeliversTheFirstOfItsTypeWithBothClosingNuls) {
  Bytes buffer(64, kUntouched);
  int size = 64;
  EXPECT_EQ(0, smBiosGetFirst(Handle(), 200, buffer.data(), &size).GetStatusCode());
  EXPECT_EQ(13, size);
  EXPECT_EQ(kWithStrings, Bytes(buffer.begin(), buffer.begin() + 13));
  EXPECT_EQ(Bytes(51, kUntouched), Bytes(buffer.begin() + 13, buffer.end()));
}

TEST_F(SmbiosRead, StructureWithoutStringsHasTwoNuls) {
  Bytes buffer(64, kUntouched);
  int size = 64;
  EXPECT_EQ(0, smBiosGetFirst(Handle(), 201, buffer.data(), &size).GetStatusCode());
  EXPECT_EQ(6, size);
  EXPECT_EQ(kWithoutStrings, Bytes(buffer.begin(), buffer.begin() + 6));
}

TEST_F(SmbiosRead, BufferOfExactlyItsSizeIsEnough) {
  Bytes buffer(13);
  int size = 13;
  EXPECT_EQ(0, smBiosGetFirst(Handle(), 200, buffer.data(), &size).GetStatusCode());
  EXPECT_EQ(13, size);
  EXPECT_EQ(kWithStrings, buffer);
}

TEST_F(SmbiosRead, EverySmallerBufferIsFailAndStaysUntouched) {
  for (int capacity = 1; capacity < 13; ++capacity) {
    Bytes buffer(static_cast<std::size_t>(capacity), kUntouched);
    int size = capacity;
    EXPECT_EQ(3, smBiosGetFirst(Handle(), 200, buffer.data(), &size).GetStatusCode());
    EXPECT_EQ(0, size);
    EXPECT_EQ(Bytes(static_cast<std::size_t>(capacity), kUntouched), buffer) << capacity;
  }
}

TEST_F(SmbiosRead, TypeThatIsNotThereIsNoMoreItems) {
  for (const int type : {2, 17, 126, 255, 256, 257, -1, -200, INT_MAX, INT_MIN}) {
    Bytes buffer(64, kUntouched);
    int size = 64;
    EXPECT_EQ(5, smBiosGetFirst(Handle(), type, buffer.data(), &size).GetStatusCode()) << type;
    EXPECT_EQ(0, size) << type;
    EXPECT_EQ(Bytes(64, kUntouched), buffer) << type;
  }
}

TEST_F(SmbiosRead, NullArgumentsAndCapacitiesBelowOneAreFail) {
  Bytes buffer(64, kUntouched);
  int size = 64;
  EXPECT_EQ(3, smBiosGetFirst(nullptr, 200, buffer.data(), &size).GetStatusCode());
  EXPECT_EQ(0, size);
  size = 64;
  EXPECT_EQ(3, smBiosGetFirst(Handle(), 200, nullptr, &size).GetStatusCode());
  EXPECT_EQ(0, size);
  EXPECT_EQ(3, smBiosGetFirst(Handle(), 200, buffer.data(), nullptr).GetStatusCode());
  for (const int capacity : {0, -1, INT_MIN}) {
    size = capacity;
    EXPECT_EQ(3, smBiosGetFirst(Handle(), 200, buffer.data(), &size).GetStatusCode());
    EXPECT_EQ(0, size);
  }
  EXPECT_EQ(Bytes(64, kUntouched), buffer);
}

TEST_F(SmbiosRead, WalkOfOneTypeEndsWithNoMoreItems) {
  EXPECT_EQ(kWithStrings, fTable.Get(200, 0));
  EXPECT_EQ("second", fTable.Text(200, 4, 1));
  for (const unsigned int index : {2u, 3u, UINT_MAX}) {
    Bytes buffer(64);
    int size = 64;
    EXPECT_EQ(5, smBiosGetNext(Handle(), 200, index, buffer.data(), &size).GetStatusCode());
    EXPECT_EQ(0, size);
  }
}

TEST_F(SmbiosRead, WalkOfAllTypesIsInTableOrder) {
  const unsigned char types[] = {200, 201, 200, 0, 1, 127};
  for (unsigned int i = 0; i < 6; ++i) {
    const Bytes bytes = fTable.Get(kSmBiosAnyType, i);
    ASSERT_FALSE(bytes.empty());
    EXPECT_EQ(types[i], bytes[0]);
  }
  Bytes buffer(64);
  int size = 64;
  EXPECT_EQ(5, smBiosGetNext(Handle(), kSmBiosAnyType, 6, buffer.data(), &size).GetStatusCode());
}

TEST_F(SmbiosRead, WalkGoesOnBehindAStructureThatWasTooLarge) {
  Bytes buffer(6);
  int size = 6;
  EXPECT_EQ(3, smBiosGetNext(Handle(), -1, 0, buffer.data(), &size).GetStatusCode());
  size = 6;
  EXPECT_EQ(0, smBiosGetNext(Handle(), -1, 1, buffer.data(), &size).GetStatusCode());
  EXPECT_EQ(kWithoutStrings, buffer);
}

TEST_F(SmbiosRead, NextHasTheSameFailuresAsFirst) {
  Bytes buffer(64, kUntouched);
  int size = 64;
  EXPECT_EQ(3, smBiosGetNext(nullptr, -1, 0, buffer.data(), &size).GetStatusCode());
  size = 64;
  EXPECT_EQ(3, smBiosGetNext(Handle(), -1, 0, nullptr, &size).GetStatusCode());
  EXPECT_EQ(3, smBiosGetNext(Handle(), -1, 0, buffer.data(), nullptr).GetStatusCode());
  size = 0;
  EXPECT_EQ(3, smBiosGetNext(Handle(), -1, 0, buffer.data(), &size).GetStatusCode());
  EXPECT_EQ(Bytes(64, kUntouched), buffer);
}

TEST(SmbiosVersion, IsTheEntryPoints) {
  struct Row {
    Bytes dump;
    int status;
    int major;
    int minor;
  };
  const Row rows[] = {{SmallTable().Dump64(3, 4), 0, 3, 4},
                      {SmallTable().Dump32(2, 8), 0, 2, 8},
                      {SmallTable().Table(), 15, 0, 0}};
  for (const Row& row : rows) {
    const LoadedTable table(row.dump);
    int major = -1;
    int minor = -1;
    EXPECT_EQ(row.status, smBiosGetVersion(table.Handle(), &major, &minor).GetStatusCode());
    EXPECT_EQ(row.major, major);
    EXPECT_EQ(row.minor, minor);
  }
}

TEST(SmbiosVersion, NullArgumentsAreFail) {
  const LoadedTable table(SmallTable().Dump64(3, 4));
  int major = -1;
  int minor = -1;
  EXPECT_EQ(3, smBiosGetVersion(nullptr, &major, &minor).GetStatusCode());
  EXPECT_EQ(3, smBiosGetVersion(table.Handle(), nullptr, &minor).GetStatusCode());
  EXPECT_EQ(3, smBiosGetVersion(table.Handle(), &major, nullptr).GetStatusCode());
  EXPECT_EQ(-1, major);
  EXPECT_EQ(-1, minor);
}

TEST(SmbiosClose, TakesTheHandleAwayAndMayBeRepeated) {
  const ScratchFolder folder;
  WriteBytes(folder.Path() / "dump", SmallTable().Dump64(3, 0));
  const DumpVariable variable(folder.Path() / "dump");
  void* handle = nullptr;
  ASSERT_EQ(0, smBiosLoad(nullptr, &handle).GetStatusCode());
  ASSERT_NE(nullptr, handle);
  EXPECT_EQ(0, smBiosClose(&handle).GetStatusCode());
  EXPECT_EQ(nullptr, handle);
  EXPECT_EQ(0, smBiosClose(&handle).GetStatusCode());
  EXPECT_EQ(nullptr, handle);
}

TEST(SmbiosClose, NullArgumentIsFail) { EXPECT_EQ(3, smBiosClose(nullptr).GetStatusCode()); }

TEST(SmbiosClose, OtherHandlesStayOpen) {
  const LoadedTable kept(SmallTable().Dump64(3, 0));
  { const LoadedTable closed(SmallTable().Dump64(3, 0)); }
  EXPECT_EQ("Tserver", kept.Text(1, 5));
}

}  // namespace
}  // namespace smbios_test

// smBiosLoad: what is loaded, what is refused, and with which status.

#include <fstream>

#include <gtest/gtest.h>

#include "SmbiosTestSupport.h"

#if defined(_WIN32)
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
#else
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace smbios_test {
namespace {

namespace fs = std::filesystem;
using smbios::sample::StructureBuilder;
using smbios::sample::TableBuilder;

const std::size_t kMiB = 1024 * 1024;

TEST(SmbiosLoad, NullHandleArgumentIsFail) {
  EXPECT_EQ(3, smBiosLoad(nullptr, nullptr).GetStatusCode());
}

TEST(SmbiosLoad, ThreeKindsOfDumpGiveTheSameStructures) {
  const TableBuilder small = SmallTable();
  for (const Bytes& dump : {small.Dump64(3, 2), small.Dump32(2, 8), small.Table()}) {
    const LoadedTable table(dump);
    ASSERT_EQ(0, table.LoadStatus());
    ASSERT_NE(nullptr, table.Handle());
    EXPECT_EQ("1.0", table.Text(0, 5));
    EXPECT_EQ("Tserver", table.Text(1, 5));
    EXPECT_EQ("SN1", table.Text(1, 7));
    EXPECT_EQ(3u, table.Count(-1));
  }
}

// The worked example of docs/smbios.md.
TEST(SmbiosLoad, WorkedExampleIsReadAsThePageSays) {
  const Bytes dump = {0x5f, 0x53, 0x4d, 0x33, 0x5f, 0x14, 0x18, 0x03, 0x00, 0x00, 0x01, 0x00, 0x1f,
                      0x00, 0x00, 0x00, 0x20, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00,
                      0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x01, 0x08, 0x00, 0x01, 0x01, 0x02, 0x00,
                      0x00, 0x5a, 0x52, 0x56, 0x00, 0x54, 0x73, 0x65, 0x72, 0x76, 0x65, 0x72, 0x20,
                      0x41, 0x2d, 0x31, 0x00, 0x00, 0x7f, 0x04, 0x00, 0x7f, 0x00, 0x00};
  const LoadedTable table(dump);
  ASSERT_EQ(0, table.LoadStatus());
  EXPECT_EQ(Bytes(dump.begin() + 0x20, dump.begin() + 0x39), table.Get(1));
  EXPECT_EQ("ZRV", table.Text(1, 4));
  EXPECT_EQ("Tserver A-1", table.Text(1, 5));
  EXPECT_EQ("", table.Text(1, 6));
  EXPECT_EQ(2u, table.Count(-1));
}

struct Refused {
  const char* why;
  Bytes bytes;
};

Bytes Changed(Bytes bytes, std::size_t offset, unsigned char value) {
  bytes[offset] = value;
  return bytes;
}

Bytes Text(const char* text) {
  const std::string characters = text;
  return Bytes(characters.begin(), characters.end());
}

TEST(SmbiosLoad, FilesThatHoldNoTableAreFail) {
  const Bytes dump64 = SmallTable().Dump64(3, 0);
  const Bytes dump32 = SmallTable().Dump32(2, 8);
  const Refused rows[] = {
      {"empty", {}},
      {"one byte", {0}},
      {"text", Text("The quick brown fox jumps over the lazy dog.\n")},
      {"zeros", Bytes(4096, 0)},
      {"ones", Bytes(4096, 0xFF)},
      {"64-bit checksum", Changed(dump64, 5, static_cast<unsigned char>(dump64[5] + 1))},
      {"64-bit version changed", Changed(dump64, 7, 9)},
      {"32-bit checksum", Changed(dump32, 4, static_cast<unsigned char>(dump32[4] + 1))},
      {"intermediate checksum", Changed(dump32, 21, static_cast<unsigned char>(dump32[21] + 1))},
      {"anchor only", Text("_SM3_")},
      {"entry point only", Bytes(dump64.begin(), dump64.begin() + 32)},
      {"only half of the first structure", Bytes(dump64.begin(), dump64.begin() + 50)},
  };
  for (const Refused& row : rows) {
    SCOPED_TRACE(row.why);
    const LoadedTable table(row.bytes);
    EXPECT_EQ(3, table.LoadStatus());
    EXPECT_EQ(nullptr, table.Handle());
  }
}

TEST(SmbiosLoad, MissingFileIsFileNotFound) {
  const ScratchFolder folder;
  WriteBytes(folder.Path() / "file", SmallTable().Table());
  for (const char* const path : {"missing", "missing/dump", "file/dump"}) {
    const LoadedTable table(folder.Path() / path);
    EXPECT_EQ(26, table.LoadStatus()) << path;
    EXPECT_EQ(nullptr, table.Handle()) << path;
  }
}

TEST(SmbiosLoad, FolderIsFail) {
  const ScratchFolder folder;
  const LoadedTable table(folder.Path());
  EXPECT_EQ(3, table.LoadStatus());
  EXPECT_EQ(nullptr, table.Handle());
}

TEST(SmbiosLoad, DeviceIsFail) {
#if defined(_WIN32)
  const LoadedTable table(fs::path("NUL"));
#else
  const LoadedTable table(fs::path("/dev/zero"));
#endif
  EXPECT_EQ(3, table.LoadStatus());
  EXPECT_EQ(nullptr, table.Handle());
}

TEST(SmbiosLoad, PipeThatNobodyWritesIsFailAndDoesNotBlock) {
#if defined(_WIN32)
  GTEST_SKIP() << "a pipe has no name in a folder on Windows";
#else
  const ScratchFolder folder;
  ASSERT_EQ(0, mkfifo((folder.Path() / "pipe").c_str(), 0600));
  const LoadedTable table(folder.Path() / "pipe");
  EXPECT_EQ(3, table.LoadStatus());
#endif
}

TEST(SmbiosLoad, FileThatMayNotBeReadIsAccessDenied) {
  const ScratchFolder folder;
  const fs::path path = folder.Path() / "dump";
  WriteBytes(path, SmallTable().Dump64(3, 0));
#if defined(_WIN32)
  const HANDLE alone =
      CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
  ASSERT_NE(INVALID_HANDLE_VALUE, alone);
  const LoadedTable table(path);
  CloseHandle(alone);
#else
  ASSERT_EQ(0, chmod(path.c_str(), 0));
  // Nothing is denied to the superuser, so another one asks for the while.
  const bool superuser = geteuid() == 0;
  if (superuser) {
    ASSERT_EQ(0, seteuid(65534));
  }
  const LoadedTable table(path);
  if (superuser) {
    ASSERT_EQ(0, seteuid(0));
  }
#endif
  EXPECT_EQ(27, table.LoadStatus());
  EXPECT_EQ(nullptr, table.Handle());
}

TEST(SmbiosLoad, SixteenMebibytesAreReadAndOneByteMoreIsFail) {
  Bytes bytes = SmallTable().Dump64(3, 0);
  bytes.resize(16 * kMiB, 0);
  EXPECT_EQ(0, LoadedTable(bytes).LoadStatus());
  bytes.push_back(0);
  EXPECT_EQ(3, LoadedTable(bytes).LoadStatus());
}

TEST(SmbiosLoad, FileNameBeyondAsciiIsFound) {
  const ScratchFolder folder;
  const fs::path path = folder.Path() / fs::u8path(
                                            "t\xC3\xA4"
                                            "ble \xE6\xA9\x9F.smbios");
  WriteBytes(path, SmallTable().Dump64(3, 0));
  EXPECT_EQ(0, LoadedTable(path).LoadStatus());
}

TEST(SmbiosLoad, DumpIsNotChangedAndNotHeldOpen) {
  const ScratchFolder folder;
  const fs::path path = folder.Path() / "dump";
  const Bytes dump = SmallTable().Dump64(3, 0);
  WriteBytes(path, dump);
  const auto before = fs::last_write_time(path) - std::chrono::hours(24);
  fs::last_write_time(path, before);
  fs::permissions(path, fs::perms::owner_read);

  const LoadedTable table(path);
  ASSERT_EQ(0, table.LoadStatus());
  EXPECT_EQ("Tserver", table.Text(1, 5));
  EXPECT_EQ(before, fs::last_write_time(path));
  EXPECT_EQ(dump, ReadBytes(path));

  fs::permissions(path, fs::perms::owner_all);
  ASSERT_TRUE(fs::remove(path));
  EXPECT_EQ("Tserver", table.Text(1, 5));
}

TEST(SmbiosLoad, EachLoadReadsTheFileAnew) {
  const ScratchFolder folder;
  const fs::path path = folder.Path() / "dump";
  WriteBytes(path, SmallTable().Dump64(3, 0));
  const LoadedTable first(path);
  TableBuilder other;
  other.Add(StructureBuilder(1, 1).Text("ZRV").Text("Other")).Add(StructureBuilder(127, 2));
  WriteBytes(path, other.Dump32(2, 8));
  const LoadedTable second(path);
  EXPECT_EQ("Tserver", first.Text(1, 5));
  EXPECT_EQ("Other", second.Text(1, 5));
}

TEST(SmbiosLoad, WithoutTheVariableTheFirmwareIsRead) {
  const DumpVariable unset{fs::path()};
  const LoadedTable table;
#if defined(_WIN32)
  const UINT bytes = GetSystemFirmwareTable(0x52534D42, 0, nullptr, 0);
  EXPECT_EQ(0, table.LoadStatus());
  EXPECT_EQ(bytes > 8, table.Handle() != nullptr);
#else
  const char* const file = "/sys/firmware/dmi/tables/DMI";
  const bool there = fs::exists(file);
  const bool readable = std::ifstream(file).good();
  EXPECT_EQ(!there || readable ? 0 : 27, table.LoadStatus());
  EXPECT_EQ(readable, table.Handle() != nullptr);
#endif
  if (table.Handle() == nullptr) {
    GTEST_SKIP() << "this machine has no SMBIOS table that we may read: no structure was looked at";
  }
  EXPECT_FALSE(table.Get(1).empty());
}

}  // namespace
}  // namespace smbios_test

// Entry points byte by byte: the two forms of the standard, the older one, and the
// header of GetSystemFirmwareTable.

#include <smbios/EntryPoint.h>

#include <gtest/gtest.h>

#include <smbios/sample/TableBuilder.h>

namespace smbios {
namespace {

using sample::Bytes;
using sample::Checksum;
using sample::StructureBuilder;
using sample::TableBuilder;

// As in the dump of a notebook: 27 structures in 2158 bytes at 32.
const Bytes k32 = {'_', 'S', 'M', '_', 0x64, 0x1F, 2,    8,    0x14, 0x01, 0, 0, 0,  0, 0,   0,
                   '_', 'D', 'M', 'I', '_',  0x8F, 0x6E, 0x08, 0x20, 0,    0, 0, 27, 0, 0x28};
// As in the dump of a server: at most 4869 bytes at 32.
const Bytes k64 = {'_',  'S',  'M', '3', '_',  0x19, 24, 3, 2, 0, 1, 0,
                   0x05, 0x13, 0,   0,   0x20, 0,    0,  0, 0, 0, 0, 0};

EntryPointVerdict Read(const Bytes& bytes, EntryPoint* entry) {
  return ReadEntryPoint(bytes.data(), bytes.size(), entry);
}

EntryPointVerdict Verdict(const Bytes& bytes) {
  EntryPoint entry;
  return Read(bytes, &entry);
}

Bytes Resummed32(Bytes bytes) {
  bytes[21] = 0;
  bytes[21] = Checksum(bytes, 16, 15);
  bytes[4] = 0;
  bytes[4] = Checksum(bytes, 0, bytes[5] < bytes.size() ? bytes[5] : bytes.size());
  return bytes;
}

Bytes Resummed64(Bytes bytes) {
  bytes[5] = 0;
  bytes[5] = Checksum(bytes, 0, bytes[6] < bytes.size() ? bytes[6] : bytes.size());
  return bytes;
}

TEST(EntryPoint, Of32BitsIsRead) {
  EntryPoint entry;
  ASSERT_EQ(EntryPointVerdict::kValid, Read(k32, &entry));
  EXPECT_EQ(2, entry.version.majorNumber);
  EXPECT_EQ(8, entry.version.minorNumber);
  EXPECT_EQ(31u, entry.size);
  EXPECT_EQ(32u, entry.tableAddress);
  EXPECT_EQ(2158u, entry.tableLength);
  EXPECT_EQ(27u, entry.structureCount);
}

TEST(EntryPoint, Of64BitsIsRead) {
  EntryPoint entry;
  ASSERT_EQ(EntryPointVerdict::kValid, Read(k64, &entry));
  EXPECT_EQ(3, entry.version.majorNumber);
  EXPECT_EQ(2, entry.version.minorNumber);
  EXPECT_EQ(24u, entry.size);
  EXPECT_EQ(32u, entry.tableAddress);
  EXPECT_EQ(4869u, entry.tableLength);
  EXPECT_EQ(0u, entry.structureCount);
}

TEST(EntryPoint, AddressOf64BitsIsReadInFull) {
  Bytes bytes = k64;
  const Bytes address = {1, 2, 3, 4, 5, 6, 7, 8};
  std::copy(address.begin(), address.end(), bytes.begin() + 16);
  EntryPoint entry;
  ASSERT_EQ(EntryPointVerdict::kValid, Read(Resummed64(bytes), &entry));
  EXPECT_EQ(0x0807060504030201u, entry.tableAddress);
}

TEST(EntryPoint, OlderOneIsRead) {
  EntryPoint entry;
  ASSERT_EQ(EntryPointVerdict::kValid, Read(Bytes(k32.begin() + 16, k32.end()), &entry));
  EXPECT_EQ(2, entry.version.majorNumber);
  EXPECT_EQ(8, entry.version.minorNumber);
  EXPECT_EQ(15u, entry.size);
  EXPECT_EQ(2158u, entry.tableLength);
}

TEST(EntryPoint, MisprintedLengthOf30IsRead) {
  Bytes bytes = k32;
  bytes[5] = 30;
  // The last byte is outside the outer sum then.
  EntryPoint entry;
  ASSERT_EQ(EntryPointVerdict::kValid, Read(Resummed32(bytes), &entry));
  EXPECT_EQ(31u, entry.size);
  EXPECT_EQ(2158u, entry.tableLength);
}

TEST(EntryPoint, BytesWithoutAnchorAreNone) {
  EXPECT_EQ(EntryPointVerdict::kNone, Verdict({}));
  EXPECT_EQ(EntryPointVerdict::kNone, Verdict({'_', 'S', 'M'}));
  EXPECT_EQ(EntryPointVerdict::kNone, Verdict({'_', 'S', 'M', '4', '_'}));
  EXPECT_EQ(EntryPointVerdict::kNone, Verdict({0, 24, 0, 0, 0, 0, 0}));
}

TEST(EntryPoint, CutAtEveryByteIsDamaged) {
  for (std::size_t size = 5; size < 31; ++size) {
    const auto end = static_cast<std::ptrdiff_t>(size);
    EXPECT_EQ(EntryPointVerdict::kDamaged, Verdict(Bytes(k32.begin(), k32.begin() + end))) << size;
    if (size < 24) {
      EXPECT_EQ(EntryPointVerdict::kDamaged, Verdict(Bytes(k64.begin(), k64.begin() + end)));
    }
    if (size < 15) {
      EXPECT_EQ(EntryPointVerdict::kDamaged,
                Verdict(Bytes(k32.begin() + 16, k32.begin() + 16 + end)));
    }
  }
}

TEST(EntryPoint, OneBitChangedAnywhereIsNotValid) {
  for (const Bytes& sound : {k32, k64}) {
    for (std::size_t bit = 0; bit < sound.size() * 8; ++bit) {
      Bytes bytes = sound;
      bytes[bit / 8] = static_cast<unsigned char>(bytes[bit / 8] ^ (1 << bit % 8));
      EXPECT_NE(EntryPointVerdict::kValid, Verdict(bytes)) << bit;
    }
  }
}

TEST(EntryPoint, ImpossibleLengthsAreDamagedEvenWithASoundChecksum) {
  for (const int length : {0, 1, 23, 29, 33, 64, 255}) {
    Bytes bytes = k32;
    bytes.resize(256);
    bytes[5] = static_cast<unsigned char>(length);
    EXPECT_EQ(EntryPointVerdict::kDamaged, Verdict(Resummed32(bytes))) << length;
    bytes = k64;
    bytes.resize(256);
    bytes[6] = static_cast<unsigned char>(length);
    if (length != 29) {
      EXPECT_EQ(EntryPointVerdict::kDamaged, Verdict(Resummed64(bytes))) << length;
    }
  }
}

TEST(EntryPoint, MissingIntermediateAnchorIsDamaged) {
  Bytes bytes = k32;
  bytes[17] = 'X';
  EXPECT_EQ(EntryPointVerdict::kDamaged, Verdict(Resummed32(bytes)));
}

TEST(EntryPoint, BuilderMakesTheSameBytesAsTheDumps) {
  TableBuilder table;
  for (int i = 0; i < 26; ++i) {
    table.AddBytes(Bytes(72));
  }
  table.AddBytes(Bytes(276));
  // 26 * 72 + 276 = 2148: ten more bytes, in the table but in no structure of their own.
  Bytes entry = table.EntryPoint32(2, 8);
  EXPECT_EQ(2148 % 256, entry[22]);
  entry[22] = 0x6E;
  EXPECT_EQ(k32, Resummed32(entry));
}

TEST(RawSmbiosData, HeaderOfEightBytesIsRead) {
  const Bytes header = {0, 2, 7, 0x27, 0x7B, 0, 0, 0};
  EntryPoint entry;
  ASSERT_TRUE(ReadRawSmbiosData(header.data(), header.size(), &entry));
  EXPECT_EQ(2, entry.version.majorNumber);
  EXPECT_EQ(7, entry.version.minorNumber);
  EXPECT_EQ(123u, entry.tableLength);
  EXPECT_EQ(0u, entry.structureCount);
}

TEST(RawSmbiosData, OtherSizesAreNone) {
  const Bytes header(9, 1);
  EntryPoint entry;
  entry.tableLength = 77;
  for (const std::size_t size : {std::size_t{0}, std::size_t{7}, std::size_t{9}}) {
    EXPECT_FALSE(ReadRawSmbiosData(header.data(), size, &entry));
  }
  EXPECT_EQ(77u, entry.tableLength);
}

}  // namespace
}  // namespace smbios

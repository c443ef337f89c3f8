// Tables that are cut, bent and made up. Under a sanitizer a read outside the bytes
// ends the test; everywhere, so does a broken promise of the table.

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include <smbios/TableLoader.h>
#include <smbios/sample/TableBuilder.h>

#include "SmbiosTableFuzz.h"

namespace smbios {
namespace {

using sample::Bytes;
using sample::StructureBuilder;
using sample::TableBuilder;

Bytes FileBytes(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return Bytes(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
}

// Three whole structures, with what a reader must find when the bytes end somewhere.
const Bytes kParts[] = {
    StructureBuilder(0, 0).Text("V").Text("1").Word(0).Text("D").Byte(0).Qword(0).Build(),
    StructureBuilder(1, 1).Text("ZRV").Text("T").Text("").Text("").Build(),
    StructureBuilder(127, 2).Build(),
};

// How many of the parts are whole in the first `size` bytes of the table.
std::size_t WholeParts(std::size_t size) {
  std::size_t whole = 0;
  std::size_t end = 0;
  for (const Bytes& part : kParts) {
    end += part.size();
    whole += end <= size ? 1 : 0;
  }
  return whole;
}

TableBuilder PartsTable() {
  TableBuilder table;
  for (const Bytes& part : kParts) {
    table.AddBytes(part);
  }
  return table;
}

TEST(SmbiosHostileBytes, TableCutAtEveryByteHasItsWholeStructures) {
  const Bytes whole = PartsTable().Table();
  for (std::size_t size = 0; size <= whole.size(); ++size) {
    const Bytes cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size));
    const auto table = TableFromDump(cut);
    EXPECT_EQ(WholeParts(size), table ? table->Count() : 0) << size;
  }
}

TEST(SmbiosHostileBytes, DumpCutAtEveryByteHasItsWholeStructures) {
  for (const Bytes& whole : {PartsTable().Dump64(3, 0), PartsTable().Dump32(2, 8)}) {
    for (std::size_t size = 0; size <= whole.size(); ++size) {
      const Bytes cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size));
      const auto table = TableFromDump(cut);
      EXPECT_EQ(size < 32 ? 0 : WholeParts(size - 32), table ? table->Count() : 0) << size;
    }
  }
}

TEST(SmbiosHostileBytes, SampleCutAtEveryByteKeepsItsPromises) {
  const Bytes sample = FileBytes(SMBIOS_SAMPLE_FILE);
  ASSERT_GT(sample.size(), 1000u);
  for (std::size_t size = 0; size <= sample.size(); ++size) {
    fuzz_smbios::FuzzOneInput(sample.data(), size);
  }
}

TEST(SmbiosHostileBytes, EveryLengthByteInEveryStructureKeepsItsPromises) {
  const Bytes whole = PartsTable().Table();
  std::size_t begin = 0;
  for (const Bytes& part : kParts) {
    for (unsigned int length = 0; length < 256; ++length) {
      Bytes bytes = whole;
      bytes[begin + 1] = static_cast<unsigned char>(length);
      fuzz_smbios::FuzzOneInput(bytes.data(), bytes.size());
    }
    begin += part.size();
  }
}

// Together with the cut ones more than ten thousand.
const int kMutated = 8000;
const int kRandom = 4000;

void Mutate(std::mt19937* random, Bytes* bytes) {
  const auto below = [random](std::size_t limit) { return (*random)() % limit; };
  const std::size_t place = below(bytes->size());
  const auto here = bytes->begin() + static_cast<std::ptrdiff_t>(place);
  switch (below(5)) {
    case 0:
      *here = static_cast<unsigned char>(below(256));
      break;
    case 1:
      *here = static_cast<unsigned char>(*here ^ (1u << below(8)));
      break;
    case 2:
      bytes->insert(here, 1 + below(8), static_cast<unsigned char>(below(4) == 0 ? below(256) : 0));
      break;
    case 3:
      bytes->erase(here, here + static_cast<std::ptrdiff_t>(
                                    1 + below(std::min<std::size_t>(8, bytes->size() - place))));
      break;
    default:
      *here = below(2) == 0 ? 0 : 255;
      break;
  }
  if (bytes->empty()) {
    bytes->push_back(0);
  }
}

TEST(SmbiosHostileBytes, MutatedSamplesKeepTheirPromises) {
  const Bytes dump = FileBytes(SMBIOS_SAMPLE_FILE);
  ASSERT_GT(dump.size(), 1000u);
  // With the entry point, which mostly refuses, and without, which mostly does not.
  const Bytes bare(dump.begin() + 32, dump.end());
  std::mt19937 random(20190314);
  for (int round = 0; round < kMutated; ++round) {
    Bytes bytes = round % 4 == 0 ? dump : bare;
    for (std::size_t changes = 1 + random() % 8; changes > 0; --changes) {
      Mutate(&random, &bytes);
    }
    fuzz_smbios::FuzzOneInput(bytes.data(), bytes.size());
  }
}

// Some are cut as well as bent, which neither test above does.
TEST(SmbiosHostileBytes, MutatedAndCutSamplesKeepTheirPromises) {
  const Bytes dump = FileBytes(SMBIOS_SAMPLE_FILE);
  std::mt19937 random(1234);
  for (int round = 0; round < 1000; ++round) {
    Bytes bytes(dump.begin() + 32, dump.end());
    Mutate(&random, &bytes);
    bytes.resize(1 + random() % bytes.size());
    fuzz_smbios::FuzzOneInput(bytes.data(), bytes.size());
  }
}

TEST(SmbiosHostileBytes, RandomBytesKeepTheirPromises) {
  std::mt19937 random(7265);
  for (int round = 0; round < kRandom; ++round) {
    Bytes bytes(random() % 300);
    for (unsigned char& byte : bytes) {
      // Small values, so that many of them make structures.
      byte = static_cast<unsigned char>(random() % 3 == 0 ? 0 : random() % 12);
    }
    fuzz_smbios::FuzzOneInput(bytes.data(), bytes.size());
  }
}

TEST(SmbiosHostileBytes, CorpusKeepsItsPromises) {
  int files = 0;
  for (const auto& entry : std::filesystem::directory_iterator(SMBIOS_CORPUS)) {
    SCOPED_TRACE(entry.path().filename().string());
    const Bytes bytes = FileBytes(entry.path());
    fuzz_smbios::FuzzOneInput(bytes.data(), bytes.size());
    ++files;
  }
  EXPECT_GE(files, 10);
}

}  // namespace
}  // namespace smbios

// The loading policy over a host that is made up: which source, which status, and
// which bytes count as a table.

#include <smbios/TableLoader.h>

#include <new>

#include <gtest/gtest.h>

#include <smbios/sample/TableBuilder.h>
#include <smbios/smbios.h>

namespace smbios {
namespace {

using host::Situation;
using sample::Bytes;
using sample::StructureBuilder;
using sample::TableBuilder;

class MadeUpHost : public host::FirmwareTable {
 public:
  std::string ReadVariable(const char* name) override {
    return std::string(name) == "QDA_SMBIOS_DUMP" ? dumpPath : "wrong variable";
  }
  Situation ReadFileBytes(const std::string& path, std::size_t mostBytes,
                          std::vector<unsigned char>* bytes) override {
    readPath = path;
    readLimit = mostBytes;
    *bytes = file;
    return fileSituation;
  }
  Situation ReadFirmware(std::size_t mostBytes, std::vector<unsigned char>* firmwareHeader,
                         std::vector<unsigned char>* table) override {
    readLimit = mostBytes;
    *firmwareHeader = header;
    *table = firmware;
    return firmwareSituation;
  }

  std::string dumpPath;
  Bytes file;
  Situation fileSituation = Situation::kDone;
  Bytes header;
  Bytes firmware;
  Situation firmwareSituation = Situation::kDone;

  std::string readPath;
  std::size_t readLimit = 0;
};

int Load(MadeUpHost& source, std::unique_ptr<SmbiosTable>* table) {
  return LoadTable(source, table).GetStatusCode();
}

TableBuilder Small() {
  TableBuilder table;
  table.Add(StructureBuilder(1, 1).Text("ZRV").Text("Tserver").Text("").Text(""));
  table.Add(StructureBuilder(127, 2));
  return table;
}

TEST(TableLoader, DumpSituationsBecomeStatuses) {
  struct Row {
    Situation situation;
    int status;
  };
  for (const Row& row :
       {Row{Situation::kNotThere, 26}, Row{Situation::kDenied, 27}, Row{Situation::kOther, 3}}) {
    MadeUpHost source;
    source.dumpPath = "dump";
    source.firmware = Small().Table();
    source.fileSituation = row.situation;
    std::unique_ptr<SmbiosTable> table;
    EXPECT_EQ(row.status, Load(source, &table));
    EXPECT_EQ(nullptr, table);
  }
}

TEST(TableLoader, FirmwareSituationsBecomeStatuses) {
  struct Row {
    Situation situation;
    int status;
  };
  for (const Row& row :
       {Row{Situation::kNotThere, 0}, Row{Situation::kDenied, 27}, Row{Situation::kOther, 3}}) {
    MadeUpHost source;
    source.file = Small().Table();
    source.firmwareSituation = row.situation;
    std::unique_ptr<SmbiosTable> table;
    EXPECT_EQ(row.status, Load(source, &table));
    EXPECT_EQ(nullptr, table);
  }
}

TEST(TableLoader, VariableNamesTheFileThatIsRead) {
  MadeUpHost source;
  source.dumpPath = "/some/dump";
  source.file = Small().Dump64(3, 0);
  std::unique_ptr<SmbiosTable> table;
  EXPECT_EQ(0, Load(source, &table));
  ASSERT_NE(nullptr, table);
  EXPECT_EQ(2u, table->Count());
  EXPECT_EQ("/some/dump", source.readPath);
  EXPECT_EQ(16777216u, source.readLimit);
}

TEST(TableLoader, FirmwareIsReadWhenTheVariableIsEmpty) {
  MadeUpHost source;
  source.header = Small().EntryPoint32(2, 7);
  source.firmware = Small().Table();
  std::unique_ptr<SmbiosTable> table;
  EXPECT_EQ(0, Load(source, &table));
  ASSERT_NE(nullptr, table);
  EXPECT_EQ(2u, table->Count());
  EXPECT_EQ(2, table->StatedVersion().majorNumber);
  EXPECT_EQ(7, table->StatedVersion().minorNumber);
  EXPECT_EQ("", source.readPath);
}

TEST(TableLoader, EmptyFirmwareTableIsNoTable) {
  MadeUpHost source;
  source.header = {0, 2, 7, 0, 0, 0, 0, 0};
  std::unique_ptr<SmbiosTable> table;
  EXPECT_EQ(0, Load(source, &table));
  EXPECT_EQ(nullptr, table);
}

TEST(TableLoader, FirmwareTableWithoutAWholeStructureIsFail) {
  MadeUpHost source;
  source.firmware = {1, 8, 0, 0, 1, 2};
  std::unique_ptr<SmbiosTable> table;
  EXPECT_EQ(3, Load(source, &table));
  EXPECT_EQ(nullptr, table);
}

TEST(TableLoader, EarlierTableDoesNotOutliveAFailedLoad) {
  MadeUpHost source;
  source.firmware = Small().Table();
  std::unique_ptr<SmbiosTable> table;
  ASSERT_EQ(0, Load(source, &table));
  source.firmwareSituation = Situation::kDenied;
  EXPECT_EQ(27, Load(source, &table));
  EXPECT_EQ(nullptr, table);
}

TEST(FirmwareHeader, LengthOfRawSmbiosDataCutsTheTable) {
  Bytes bytes = Small().Table();
  const auto length = static_cast<unsigned char>(bytes.size());
  bytes.insert(bytes.end(), {9, 4, 0, 0, 0, 0});
  const auto table = TableFromFirmware({0, 2, 4, 0, length, 0, 0, 0}, bytes);
  ASSERT_NE(nullptr, table);
  EXPECT_EQ(2u, table->Count());
  EXPECT_EQ(4, table->StatedVersion().minorNumber);
}

TEST(FirmwareHeader, OneThatCannotBeReadLeavesTheVersionUnknown) {
  Bytes damaged = Small().EntryPoint64(3, 0);
  damaged[5] = static_cast<unsigned char>(damaged[5] + 1);
  for (const Bytes& header : {Bytes(), Bytes{1, 2, 3}, damaged}) {
    const auto table = TableFromFirmware(header, Small().Table());
    ASSERT_NE(nullptr, table);
    EXPECT_EQ(2u, table->Count());
    EXPECT_EQ(0, table->StatedVersion().majorNumber);
    EXPECT_EQ(0, table->StatedVersion().minorNumber);
  }
}

// Sets the field of a 64-bit entry point and mends the checksum.
Bytes With64(Bytes dump, std::size_t offset, std::size_t width, std::uint64_t value) {
  for (std::size_t i = 0; i < width; ++i) {
    dump[offset + i] = static_cast<unsigned char>(value >> (8 * i));
  }
  dump[5] = 0;
  dump[5] = sample::Checksum(dump, 0, 24);
  return dump;
}

TEST(DumpWithEntryPoint, TableLengthBeyondTheFileIsCutToIt) {
  const auto table = TableFromDump(With64(Small().Dump64(3, 0), 12, 4, 0xFFFFFFFF));
  ASSERT_NE(nullptr, table);
  EXPECT_EQ(2u, table->Count());
}

TEST(DumpWithEntryPoint, TableLengthHidesWhatIsBehindIt) {
  const std::size_t first = Small().Table().size() - 6;
  const auto table = TableFromDump(With64(Small().Dump64(3, 0), 12, 4, first));
  ASSERT_NE(nullptr, table);
  EXPECT_EQ(1u, table->Count());
  EXPECT_EQ(nullptr, TableFromDump(With64(Small().Dump64(3, 0), 12, 4, first - 1)));
  EXPECT_EQ(nullptr, TableFromDump(With64(Small().Dump64(3, 0), 12, 4, 0)));
}

TEST(DumpWithEntryPoint, TableMayBeginAnywhereBehindTheEntryPoint) {
  const TableBuilder small = Small();
  Bytes dump = small.EntryPoint64(3, 0);
  dump.insert(dump.end(), small.Table().begin(), small.Table().end());
  EXPECT_NE(nullptr, TableFromDump(With64(dump, 16, 8, 24)));

  Bytes far = small.Dump64(3, 0);
  far.insert(far.begin() + 32, 1000, 0xCC);
  EXPECT_NE(nullptr, TableFromDump(With64(far, 16, 8, 1032)));
}

TEST(DumpWithEntryPoint, AddressOutsideTheRestOfTheFileIsRefused) {
  const Bytes dump = Small().Dump64(3, 0);
  for (const std::uint64_t address :
       {std::uint64_t{0}, std::uint64_t{23}, std::uint64_t{dump.size()}, std::uint64_t{0x8B3F0000},
        std::uint64_t{0x100000020}, ~std::uint64_t{0}}) {
    EXPECT_EQ(nullptr, TableFromDump(With64(dump, 16, 8, address))) << address;
  }
}

TEST(DumpWithEntryPoint, StatedNumberOf32BitsIsKept) {
  TableBuilder table = Small();
  Bytes dump = table.Dump32(2, 8);
  dump[28] = 1;
  dump[21] = 0;
  dump[21] = sample::Checksum(dump, 16, 15);
  const auto loaded = TableFromDump(dump);
  ASSERT_NE(nullptr, loaded);
  EXPECT_EQ(1u, loaded->Count());
}

TEST(DumpWithEntryPoint, MissingEndOfTableIsTolerated) {
  TableBuilder table;
  table.Add(StructureBuilder(2, 1).Text("ZRV"));
  EXPECT_NE(nullptr, TableFromDump(table.Dump64(3, 0)));
}

TEST(DumpWithEntryPoint, OlderEntryPointAloneIsKnown) {
  const TableBuilder small = Small();
  const Bytes entry32 = small.EntryPoint32(2, 0);
  Bytes dump(entry32.begin() + 16, entry32.end());
  dump.resize(32, 0);
  dump.insert(dump.end(), small.Table().begin(), small.Table().end());
  const auto table = TableFromDump(dump);
  ASSERT_NE(nullptr, table);
  EXPECT_EQ(2u, table->Count());
  EXPECT_EQ(2, table->StatedVersion().majorNumber);
}

struct BareRow {
  const char* what;
  Bytes bytes;
  bool accepted;
};
void PrintTo(const BareRow& row, std::ostream* out) { *out << row.what; }

Bytes Joined(std::initializer_list<Bytes> parts) {
  Bytes all;
  for (const Bytes& part : parts) {
    all.insert(all.end(), part.begin(), part.end());
  }
  return all;
}

const Bytes kBios = StructureBuilder(0, 0)
                        .Text("ZRV")
                        .Text("1.0")
                        .Word(0)
                        .Text("01/02/2020")
                        .Byte(0)
                        .Qword(0)
                        .Build();
const Bytes kSystem = StructureBuilder(1, 1).Text("ZRV").Text("T").Text("").Text("").Build();
const Bytes kOther = StructureBuilder(218, 2).LooseText("maker").Build();
const Bytes kEnd = {127, 4, 0, 0, 0, 0};
const Bytes kRubbish = {9, 2, 0xFF, 0x10, 0x20};

const BareRow kBareRows[] = {
    {"BIOS, system, end", Joined({kBios, kSystem, kEnd}), true},
    {"maker's own structure first", Joined({kOther, kBios, kSystem, kEnd}), true},
    {"without end of table", Joined({kOther}), true},
    {"padding behind the last one", Joined({kOther, Bytes(50, 0)}), true},
    {"rubbish behind the end of table", Joined({kOther, kEnd, kRubbish}), true},
    {"end of table alone", kEnd, true},
    {"rubbish behind a BIOS structure", Joined({kBios, kRubbish}), true},
    {"rubbish behind a system structure", Joined({kSystem, kRubbish}), true},
    {"rubbish behind another structure", Joined({kOther, kRubbish}), false},
    {"rubbish behind a system structure that is too short",
     Joined({{1, 7, 0, 0, 0, 0, 0, 0, 0}, kRubbish}), false},
    {"rubbish behind a system structure with a stray string number",
     Joined({{1, 8, 0, 0, 0, 1, 0, 0, 0, 0}, kRubbish}), false},
    {"rubbish behind a BIOS structure that is too short",
     Joined({StructureBuilder(0, 0).Qword(0).Dword(0).Build(), kRubbish}), false},
    {"end of table of another length", {127, 5, 0, 0, 0, 0, 0}, false},
    {"rubbish first", Joined({kRubbish, kBios, kSystem, kEnd}), false},
    {"start of an ELF program", Joined({{0x7F, 'E', 'L', 'F', 2, 1, 1, 0}, Bytes(200, 0)}), false},
};

class BareTable : public testing::TestWithParam<BareRow> {};

TEST_P(BareTable, IsTakenOrRefused) {
  EXPECT_EQ(GetParam().accepted, TableFromDump(GetParam().bytes) != nullptr);
}
INSTANTIATE_TEST_SUITE_P(TableLoader, BareTable, testing::ValuesIn(kBareRows));

}  // namespace
}  // namespace smbios

#include <plugins/machine/DiskFacts.h>

#include <gtest/gtest.h>

namespace {

using machine::DiskFacts;
using machine::DriveKind;
using machine::SerialNumberIn;
using machine::UnderstandDescriptor;
using machine::UnderstandDisks;
using machine::host::DiskReading;

DiskFacts Understand(const DiskReading& reading) {
  const std::vector<DiskFacts> found = UnderstandDisks({reading});
  EXPECT_EQ(1u, found.size());
  return found.empty() ? DiskFacts() : found[0];
}

DiskReading Scsi() {
  DiskReading reading;
  reading.name = "sda";
  reading.size = "4000\n";
  reading.logicalBlockSize = "512\n";
  reading.removable = "0\n";
  reading.readOnly = "0\n";
  reading.rotational = "1\n";
  reading.deviceType = "0\n";
  reading.vendor = "MAKER   \n";
  reading.model = "A MODEL         \n";
  reading.revision = "1.00\n";
  reading.serialPage = std::string("\x00\x80\x00\x06  S123", 10);
  return reading;
}

TEST(UnderstandDisks, ReadsAScsiDisk) {
  const DiskFacts facts = Understand(Scsi());
  EXPECT_EQ("sda", facts.deviceId);
  EXPECT_EQ(DriveKind::kDisk, facts.kind);
  EXPECT_EQ("MAKER", facts.manufacturer);
  EXPECT_EQ("A MODEL", facts.model);
  EXPECT_EQ("1.00", facts.version);
  EXPECT_EQ("S123", facts.serialNumber);
  EXPECT_EQ(512u, facts.blockSize);
  EXPECT_EQ(4000u, facts.numberOfBlocks);
  EXPECT_EQ(false, facts.removable);
  EXPECT_EQ(false, facts.readOnly);
  // That it turns is what the kernel says of any that does not tell.
  EXPECT_EQ(std::nullopt, facts.diskType);
}

TEST(UnderstandDisks, ReadsAnNvmeDisk) {
  DiskReading reading;
  reading.name = "nvme0n1";
  reading.size = "8000";
  reading.logicalBlockSize = "4096";
  reading.rotational = "0";
  reading.model = "Fast Drive 1TB                          \n";
  reading.serial = "S5GXNX0T            \n";
  reading.revision = "2B2QEXM7\n";
  const DiskFacts facts = Understand(reading);
  EXPECT_EQ("Fast Drive 1TB", facts.model);
  EXPECT_EQ("S5GXNX0T", facts.serialNumber);
  EXPECT_EQ("2B2QEXM7", facts.version);
  EXPECT_EQ(4096u, facts.blockSize);
  EXPECT_EQ(1000u, facts.numberOfBlocks);
  EXPECT_EQ(3, facts.diskType);
  EXPECT_EQ(std::nullopt, facts.manufacturer);
  EXPECT_EQ(std::nullopt, facts.removable);
}

TEST(UnderstandDisks, TheDeviceTypeTellsTheKind) {
  const struct {
    const char* name;
    const char* type;
    DriveKind kind;
  } rows[] = {{"sda", "0", DriveKind::kDisk},      {"sr0", "5", DriveKind::kCdrom},
              {"sdb", "14", DriveKind::kDisk},     {"sdc", "7", DriveKind::kOther},
              {"sdd", "x", DriveKind::kDisk},      {"fd0", "", DriveKind::kDiskette},
              {"fd12", "5", DriveKind::kDiskette}, {"fdisk", "", DriveKind::kDisk},
              {"fd", "", DriveKind::kDisk}};
  for (const auto& row : rows) {
    DiskReading reading;
    reading.name = row.name;
    reading.deviceType = row.type;
    reading.rotational = "0";
    EXPECT_EQ(row.kind, Understand(reading).kind) << row.name;
    EXPECT_EQ(row.kind == DriveKind::kDisk, Understand(reading).diskType.has_value()) << row.name;
  }
}

TEST(UnderstandDisks, AnAtaDiskAndAVirtualOneHaveNoMaker) {
  DiskReading reading = Scsi();
  reading.vendor = "ATA     \n";
  EXPECT_EQ(std::nullopt, Understand(reading).manufacturer);
  reading.vendor = "0x1af4\n";
  EXPECT_EQ(std::nullopt, Understand(reading).manufacturer);
  reading.vendor = "ATAS\n";
  EXPECT_EQ("ATAS", Understand(reading).manufacturer);
}

TEST(UnderstandDisks, LeavesOutHiddenPathsAndWhatHasNoName) {
  DiskReading hidden = Scsi();
  hidden.hidden = "1\n";
  DiskReading shown = Scsi();
  shown.hidden = "0\n";
  DiskReading nameless = Scsi();
  nameless.name = "";
  EXPECT_EQ(1u, UnderstandDisks({hidden, shown, nameless}).size());
}

TEST(UnderstandDisks, APageWithoutASerialNumberLeavesTheOtherSource) {
  DiskReading reading = Scsi();
  reading.serialPage = std::string("\x00\x80\x00\x04    ", 8);
  reading.serial = "FROM-FILE\n";
  EXPECT_EQ("FROM-FILE", Understand(reading).serialNumber);
}

TEST(UnderstandDisks, SizesThatMakeNoSenseAreAbsent) {
  const struct {
    const char* size;
    const char* block;
  } rows[] = {{"0", "512"}, {"", "512"},          {"-1", "512"},
              {"8", "0"},   {"7", "4096"},        {"36028797018963968", "512"},
              {"8", ""},    {"8", "999999999999"}};
  for (const auto& row : rows) {
    DiskReading reading = Scsi();
    reading.size = row.size;
    reading.logicalBlockSize = row.block;
    EXPECT_EQ(std::nullopt, Understand(reading).numberOfBlocks) << row.size << " " << row.block;
  }
  DiskReading largest = Scsi();
  largest.size = "36028797018963967";
  EXPECT_EQ(36028797018963967u, Understand(largest).numberOfBlocks);
}

struct PageRow {
  const char* what;
  std::string page;
  std::optional<std::string> serial;
};

void PrintTo(const PageRow& row, std::ostream* stream) { *stream << row.what; }

class SerialPage : public testing::TestWithParam<PageRow> {};

TEST_P(SerialPage, GivesTheNumberOrNothing) {
  EXPECT_EQ(GetParam().serial, SerialNumberIn(GetParam().page));
}

INSTANTIATE_TEST_SUITE_P(
    Pages, SerialPage,
    testing::Values(PageRow{"plain", std::string("\0\x80\0\2AB", 6), "AB"},
                    PageRow{"padded in front", std::string("\0\x80\0\4  AB", 8), "AB"},
                    PageRow{"bytes behind its end", std::string("\0\x80\0\2ABCD", 8), "AB"},
                    PageRow{"two length bytes",
                            std::string("\0\x80\1\0", 4) + std::string(256, 'x'),
                            std::string(256, 'x')},
                    PageRow{"another page", std::string("\0\x83\0\2AB", 6), {}},
                    PageRow{"cut", std::string("\0\x80\0\3AB", 6), {}},
                    PageRow{"length beyond all", std::string("\0\x80\xFF\xFF", 4), {}},
                    PageRow{"no length", std::string("\0\x80\0", 3), {}}, PageRow{"empty", "", {}},
                    PageRow{"nothing in it", std::string("\0\x80\0\0", 4), {}},
                    PageRow{"blanks only", std::string("\0\x80\0\3   ", 7), {}}));

void Put(std::string* bytes, std::size_t at, std::uint32_t number) {
  for (int i = 0; i < 4; ++i) {
    (*bytes)[at + i] = static_cast<char>(number >> (8 * i));
  }
}

// As Windows lays it out: 36 bytes and the texts behind them.
std::string Descriptor() {
  std::string bytes(36, '\0');
  bytes[8] = 0;   // direct access
  bytes[10] = 1;  // removable
  bytes += std::string("MAKER   \0A MODEL \0001.00\0 S123 \0", 30);
  Put(&bytes, 12, 36);
  Put(&bytes, 16, 45);
  Put(&bytes, 20, 54);
  Put(&bytes, 24, 59);
  return bytes;
}

DiskFacts Described(const std::string& bytes) {
  DiskFacts facts;
  UnderstandDescriptor(bytes, &facts);
  return facts;
}

TEST(UnderstandDescriptor, ReadsItsTexts) {
  const DiskFacts facts = Described(Descriptor());
  EXPECT_EQ("MAKER", facts.manufacturer);
  EXPECT_EQ("A MODEL", facts.model);
  EXPECT_EQ("1.00", facts.version);
  EXPECT_EQ("S123", facts.serialNumber);
  EXPECT_EQ(true, facts.removable);
  EXPECT_EQ(DriveKind::kDisk, facts.kind);
}

TEST(UnderstandDescriptor, ReadsTheKind) {
  std::string bytes = Descriptor();
  bytes[8] = 5;
  EXPECT_EQ(DriveKind::kCdrom, Described(bytes).kind);
}

TEST(UnderstandDescriptor, OffsetsThatLeadOutsideAreAbsentTexts) {
  for (const std::uint32_t offset : {0u, 1u, 35u, 68u, 69u, 0x7FFFFFFFu, 0xFFFFFFFFu}) {
    std::string bytes = Descriptor();
    Put(&bytes, 16, offset);
    EXPECT_EQ(std::nullopt, Described(bytes).model) << offset;
    EXPECT_EQ("S123", Described(bytes).serialNumber) << offset;
  }
}

TEST(UnderstandDescriptor, ATextThatDoesNotEndIsAbsent) {
  std::string bytes = Descriptor();
  bytes.pop_back();
  EXPECT_EQ(std::nullopt, Described(bytes).serialNumber);
  EXPECT_EQ("1.00", Described(bytes).version);
}

TEST(UnderstandDescriptor, OneThatIsCutTellsNothing) {
  const std::string bytes = Descriptor();
  for (std::size_t size = 0; size < 36; ++size) {
    EXPECT_EQ(std::nullopt, Described(bytes.substr(0, size)).removable) << size;
  }
}

TEST(UnderstandDisks, ReadsAWindowsDisk) {
  DiskReading reading;
  reading.name = "PhysicalDrive0";
  reading.bytes = 1024000;
  reading.sectorBytes = 512;
  reading.descriptor = Descriptor();
  const DiskFacts facts = Understand(reading);
  EXPECT_EQ(2000u, facts.numberOfBlocks);
  EXPECT_EQ("A MODEL", facts.model);
  EXPECT_EQ(std::nullopt, facts.readOnly);
}

}  // namespace

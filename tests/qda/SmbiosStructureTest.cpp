// Structures decoded byte by byte. What dmidecode confirms is in SmbiosDmidecodeTest; here is what
// it has no word for, and what no firmware should write.

#include <qda/SmbiosStructure.h>

#include <algorithm>
#include <memory>
#include <set>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <smbios/sample/TableBuilder.h>

namespace {

using qda::DecodeStructure;
using qda::SmbiosField;
using qda::SmbiosStructure;
using qda::SmbiosVersion;
using smbios::sample::Bytes;
using smbios::sample::StructureBuilder;

// The value of a field; "(null)" for one that is not stated, "(none)" when there is no such field.
std::string Value(const SmbiosStructure& structure, const std::string& name) {
  for (const SmbiosField& field : structure.fields) {
    if (field.name == name) {
      return field.value.value_or("(null)");
    }
  }
  return "(none)";
}

SmbiosStructure Decode(const StructureBuilder& builder, SmbiosVersion version = {3, 0}) {
  const Bytes bytes = builder.Build();
  return DecodeStructure(bytes.data(), bytes.size(), version);
}

TEST(SmbiosStructureTest, HasItsHeader) {
  const SmbiosStructure structure = Decode(StructureBuilder(17, 0xABCD).Word(1));
  EXPECT_EQ(17u, structure.type);
  EXPECT_EQ(6u, structure.length);
  EXPECT_EQ(0xABCD, structure.handle);
  EXPECT_EQ("Memory Device", structure.name);
}

TEST(SmbiosStructureTest, LeavesOutWhatAnEarlierVersionHasNot) {
  const SmbiosStructure structure = Decode(StructureBuilder(1, 1).Text("A").Text("B"));
  EXPECT_EQ("A", Value(structure, "Manufacturer"));
  EXPECT_EQ("B", Value(structure, "Product Name"));
  EXPECT_EQ("(none)", Value(structure, "Version"));
  EXPECT_EQ(2u, structure.fields.size());
}

TEST(SmbiosStructureTest, TellsAStringThatIsNotThere) {
  const SmbiosStructure structure = Decode(StructureBuilder(1, 1).Byte(0).Byte(7).LooseText("A"));
  EXPECT_EQ("(null)", Value(structure, "Manufacturer"));
  EXPECT_EQ("(there is no string 7)", Value(structure, "Product Name"));
}

TEST(SmbiosStructureTest, ReadsAUuidByTheVersionOfTheTable) {
  StructureBuilder system(1, 1);
  system.Dword(0).Qword(0x7766554433221100).Qword(0xFFEEDDCCBBAA9988);
  EXPECT_EQ("33221100-5544-7766-8899-aabbccddeeff", Value(Decode(system, {2, 6}), "UUID"));
  EXPECT_EQ("00112233-4455-6677-8899-aabbccddeeff", Value(Decode(system, {2, 5}), "UUID"));
  EXPECT_EQ("33221100-5544-7766-8899-aabbccddeeff", Value(Decode(system, {0, 0}), "UUID"));
}

StructureBuilder MemoryDevice(std::uint64_t size, std::uint64_t extended) {
  StructureBuilder device(17, 1);
  device.Qword(0).Word(size).Qword(0).Dword(0).Word(0).Dword(extended);
  return device;
}

TEST(SmbiosStructureTest, ReadsEverySizeOfMemory) {
  const auto size = [](std::uint64_t number, std::uint64_t extended) {
    return Value(Decode(MemoryDevice(number, extended)), "Size");
  };
  EXPECT_EQ("No module installed", size(0, 0));
  EXPECT_EQ("(null)", size(0xFFFF, 0));
  EXPECT_EQ("512 KiB", size(0x8200, 0));
  EXPECT_EQ("1536 MiB", size(1536, 0));
  EXPECT_EQ("32 GiB", size(0x7FFF, 32768));
  EXPECT_EQ("1 TiB", size(0x7FFF, 0x100000));
  // An old structure has no double word to look at.
  EXPECT_EQ("32767 MiB", Value(Decode(StructureBuilder(17, 1).Qword(0).Word(0x7FFF)), "Size"));
}

TEST(SmbiosStructureTest, ReadsEverySizeOfACache) {
  const auto size = [](std::uint64_t number, std::uint64_t extended) {
    StructureBuilder cache(7, 1);
    cache.Byte(0).Word(0).Word(number).Qword(0).Word(0).Dword(extended).Dword(0);
    return Value(Decode(cache), "Maximum Cache Size");
  };
  EXPECT_EQ("512 KiB", size(512, 0));
  EXPECT_EQ("32 MiB", size(0x8200, 0));
  EXPECT_EQ("3 GiB", size(0xFFFF, 0x8000C000));
  EXPECT_EQ("3 MiB", size(0xFFFF, 0xC00));
}

TEST(SmbiosStructureTest, ReadsAddressesBeyondTheirFields) {
  StructureBuilder address(19, 1);
  address.Dword(0xFFFFFFFF).Dword(0xFFFFFFFF).Word(0x1000).Byte(2);
  const SmbiosStructure old = Decode(address);
  EXPECT_EQ("(null)", Value(old, "Starting Address"));
  address.Qword(0x40000000000).Qword(0x7FFFFFFFFFF);
  const SmbiosStructure structure = Decode(address);
  EXPECT_EQ("0x40000000000", Value(structure, "Starting Address"));
  EXPECT_EQ("0x7FFFFFFFFFF", Value(structure, "Ending Address"));
}

TEST(SmbiosStructureTest, FindsTheChassisSkuBehindTheContainedElements) {
  StructureBuilder chassis(3, 1);
  chassis.Text("M").Byte(3).Text("").Text("").Text("").Dword(0x03030303).Dword(0).Byte(2).Byte(1);
  StructureBuilder without = chassis;
  chassis.Byte(2).Byte(3).Qword(0);
  EXPECT_EQ("(null)", Value(Decode(chassis), "SKU Number"));
  without.Byte(2).Byte(3).Dword(0).Word(0).Text("sku");
  EXPECT_EQ("sku", Value(Decode(without), "SKU Number"));
  // Contained elements that would reach beyond the structure.
  StructureBuilder beyond(3, 1);
  beyond.Qword(0).Dword(0).Word(0).Byte(0).Byte(0xFF).Byte(0xFF);
  EXPECT_EQ("(null)", Value(Decode(beyond), "SKU Number"));
}

TEST(SmbiosStructureTest, ListsOnboardDevices) {
  const StructureBuilder devices =
      StructureBuilder(10, 1).Byte(0x83).Byte(1).Byte(5).Byte(0).Byte(0x7F).LooseText("VGA");
  const SmbiosStructure structure = Decode(devices);
  EXPECT_EQ("Video", Value(structure, "Device 1 Type"));
  EXPECT_EQ("Yes", Value(structure, "Device 1 Enabled"));
  EXPECT_EQ("VGA", Value(structure, "Device 1 Description"));
  EXPECT_EQ("Ethernet", Value(structure, "Device 2 Type"));
  EXPECT_EQ("No", Value(structure, "Device 2 Enabled"));
  EXPECT_EQ("(null)", Value(structure, "Device 2 Description"));
  // A half one is none.
  EXPECT_EQ(6u, structure.fields.size());
}

TEST(SmbiosStructureTest, ListsTheItemsOfAGroup) {
  const StructureBuilder group =
      StructureBuilder(14, 1).Text("Tcore").Byte(4).Word(0x0400).Byte(200).Word(0xFFFE).Word(7);
  const SmbiosStructure structure = Decode(group);
  EXPECT_EQ("Tcore", Value(structure, "Group Name"));
  EXPECT_EQ("0x0400 (Processor Information)", Value(structure, "Item 1"));
  EXPECT_EQ("0xFFFE (OEM-specific)", Value(structure, "Item 2"));
  EXPECT_EQ(3u, structure.fields.size());
}

TEST(SmbiosStructureTest, ReadsTheFamilyOfAProcessorFromItsWord) {
  const auto family = [](unsigned int byte, unsigned int word) {
    StructureBuilder processor(4, 1);
    processor.Word(0).Byte(byte).Byte(0).Qword(0).Qword(0).Qword(0).Qword(0).Word(word);
    return Value(Decode(processor), "Processor Family");
  };
  EXPECT_EQ("Xeon", family(0xB3, 0x101));
  EXPECT_EQ("ARMv8", family(0xFE, 0x101));
  EXPECT_EQ("ARMv9", family(0xFE, 0x102));
  EXPECT_EQ("LoongArch", family(0xFE, 0x258));
  EXPECT_EQ("0x103", family(0xFE, 0x103));
  EXPECT_EQ("0xFE", Value(Decode(StructureBuilder(4, 1).Word(0).Byte(0xFE)), "Processor Family"));
}

// The extension bytes came one after the other.
TEST(SmbiosStructureTest, ReadsAsManyBiosCharacteristicsAsThereAre) {
  StructureBuilder bios(0, 1);
  bios.Dword(0).Word(0);
  EXPECT_EQ("(none)", Value(Decode(bios), "BIOS Characteristics"));
  bios.Qword(0x80);
  EXPECT_EQ("PCI", Value(Decode(bios), "BIOS Characteristics"));
  bios.Byte(1);
  EXPECT_EQ("PCI, ACPI", Value(Decode(bios), "BIOS Characteristics"));
  bios.Byte(8);
  EXPECT_EQ("PCI, ACPI, UEFI", Value(Decode(bios), "BIOS Characteristics"));
  const StructureBuilder none = StructureBuilder(0, 1).Dword(0).Word(0).Qword(0x88);
  EXPECT_EQ("(null)", Value(Decode(none), "BIOS Characteristics"));
}

TEST(SmbiosStructureTest, ReadsWhatAnotherProgramDoesNotKnow) {
  const SmbiosStructure addition =
      Decode(StructureBuilder(44, 1).Word(0x0400).Byte(2).Byte(2).Word(0));
  EXPECT_EQ("0x0400", Value(addition, "Referenced Handle"));
  EXPECT_EQ("x64", Value(addition, "Processor Type"));
  const SmbiosStructure property =
      Decode(StructureBuilder(46, 1).Word(1).Text("PciRoot(0x0)").Word(0x1100));
  EXPECT_EQ("UEFI Device Path", Value(property, "String Property ID"));
  EXPECT_EQ("PciRoot(0x0)", Value(property, "String Property Value"));
  EXPECT_EQ("0x1100", Value(property, "Parent Handle"));
}

TEST(SmbiosStructureTest, ReadsTheVersionsOfATpm) {
  const auto firmware = [](unsigned int major, unsigned int number) {
    StructureBuilder tpm(43, 1);
    tpm.Dword(0x43544E49).Byte(major).Byte(0).Dword(number).Dword(0);
    return Value(Decode(tpm), "Firmware Revision");
  };
  EXPECT_EQ("3.4", firmware(1, 0x04030201));
  EXPECT_EQ("11.3", firmware(2, 0x000B0003));
  EXPECT_EQ("0x000B0003", firmware(3, 0x000B0003));
}

TEST(SmbiosStructureTest, ReadsProbesWithTheirSigns) {
  const auto value = [](unsigned char type, unsigned int number, const char* name) {
    StructureBuilder probe(type, 1);
    probe.Byte(0).Byte(0x63).Word(number).Word(number).Word(number).Word(number);
    return Value(Decode(probe), name);
  };
  EXPECT_EQ("12.345 V", value(26, 12345, "Maximum Value"));
  EXPECT_EQ("-0.005 V", value(26, 0xFFFB, "Maximum Value"));
  EXPECT_EQ("-50.0 deg C", value(28, 0xFE0C, "Minimum Value"));
  EXPECT_EQ("0.015 deg C", value(28, 15, "Resolution"));
  EXPECT_EQ("6553.5 mA", value(29, 0xFFFF, "Resolution"));
  EXPECT_EQ("(null)", value(26, 0x8000, "Maximum Value"));
  EXPECT_EQ("(null)", value(26, 0x8000, "Resolution"));
}

TEST(SmbiosStructureTest, ShowsNumbersThatStandForNothing) {
  EXPECT_EQ("0xEE",
            Value(Decode(StructureBuilder(8, 1).Byte(0).Byte(0xEE)), "Internal Connector Type"));
  EXPECT_EQ("0xB7", Value(Decode(StructureBuilder(9, 1).Byte(0).Byte(0xB7)), "Slot Type"));
}

TEST(SmbiosStructureTest, WithoutAWholeHeaderIsNothing) {
  const unsigned char bytes[] = {17, 3, 0, 0};
  for (std::size_t size = 0; size <= sizeof bytes; ++size) {
    EXPECT_TRUE(DecodeStructure(bytes, size, {3, 0}).fields.empty());
  }
  EXPECT_TRUE(DecodeStructure(nullptr, 0, {3, 0}).fields.empty());
}

// Every type, cut to every length of its formatted area, with bytes of every kind, in a block that
// ends where the structure does: a checker of memory sees what is read outside.
TEST(SmbiosStructureTest, OfAnyTypeAndLengthIsReadInsideOnly) {
  const unsigned int fills[] = {0x00, 0x01, 0x7F, 0x80, 0xFF};
  std::set<std::string> names;
  for (unsigned int type = 0; type < 256; ++type) {
    for (unsigned int length = 0; length < 128; ++length) {
      for (const unsigned int fill : fills) {
        const std::size_t size = length < 4 ? 4 : length;
        const std::unique_ptr<unsigned char[]> bytes(new unsigned char[size]);
        std::fill(bytes.get(), bytes.get() + size, static_cast<unsigned char>(fill));
        bytes[0] = static_cast<unsigned char>(type);
        bytes[1] = static_cast<unsigned char>(length);
        const SmbiosStructure structure = DecodeStructure(bytes.get(), size, {3, 0});
        for (const SmbiosField& field : structure.fields) {
          names.insert(field.name);
        }
        // Strings that no NUL closes are none.
        EXPECT_EQ(structure.fields.end(),
                  std::find_if(structure.fields.begin(), structure.fields.end(),
                               [](const SmbiosField& field) { return field.name == "String 1"; }));
      }
    }
  }
  EXPECT_LT(80u, names.size());
}

}  // namespace

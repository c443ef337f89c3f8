// make_sample_table FILE: writes the SMBIOS dump of a server that does not exist, for
// trying the programs on a machine whose own table cannot be read. The same bytes on
// every system. Field order and meaning: DMTF DSP0134, version 3.0, chapter 7.

#include <cstdint>
#include <cstdio>
#include <string>

#include <smbios/sample/TableBuilder.h>

using smbios::sample::Bytes;
using smbios::sample::StructureBuilder;
using smbios::sample::TableBuilder;

namespace {

enum Handle : std::uint16_t {
  kBios = 0x0000,
  kSystem = 0x0100,
  kBoard = 0x0200,
  kChassis = 0x0300,
  kProcessor = 0x0400,
  kCache = 0x0700,
  kPort = 0x0800,
  kSlot = 0x0900,
  kOemStrings = 0x0B00,
  kMemoryArray = 0x1000,
  kMemoryDevice = 0x1100,
  kArrayAddress = 0x1300,
  kIpmi = 0x2600,
  kEndOfTable = 0x7F00,
  kNone = 0xFFFF,     // no such structure
  kNoError = 0xFFFE,  // no error information is provided
};

void AddSystem(TableBuilder* table) {
  table->Add(StructureBuilder(0, kBios)
                 .Text("ZRV")
                 .Text("-[GYE121AUS-1.07]-")
                 .Word(0xE000)
                 .Text("03/14/2019")
                 .Byte(0x7F)         // 8 MB of ROM
                 .Qword(0x00019880)  // PCI, upgradeable, shadowing, CD boot, selectable boot
                 .Word(0x0C03)       // ACPI, USB legacy; targeted content, UEFI
                 .Byte(1)
                 .Byte(7)
                 .Byte(2)
                 .Byte(31));
  table->Add(StructureBuilder(1, kSystem)
                 .Text("ZRV")
                 .Text("ZRV Tserver k7265-[1234AC1]")
                 .Text("05")
                 .Text("KD7Z042")
                 .Raw({0x33, 0x22, 0x11, 0x00, 0x55, 0x44, 0x77, 0x66})
                 .Raw({0x88, 0x99, 0xAA, 0xBB, 0xCC, 0xDD, 0xEE, 0xFF})
                 .Byte(6)  // power switch
                 .Text("1234AC1")
                 .Text("Tserver"));
  table->Add(StructureBuilder(2, kBoard)
                 .Text("ZRV")
                 .Text("Tboard 21")
                 .Text("A1")
                 .Text("Z1B0193A42C")
                 .Text("board-0001")
                 .Byte(0x09)  // a hosting board, replaceable
                 .Text("Main tray")
                 .Word(kChassis)
                 .Byte(10)  // motherboard
                 .Byte(0));
  table->Add(StructureBuilder(3, kChassis)
                 .Text("ZRV")
                 .Byte(23)  // rack mount
                 .Text("2U")
                 .Text("KD7Z042-C")
                 .Text("rack-07")
                 .Byte(3)
                 .Byte(3)
                 .Byte(3)
                 .Byte(3)  // states: safe; security: none
                 .Dword(0)
                 .Byte(2)
                 .Byte(2)
                 .Byte(0)
                 .Byte(0)
                 .Text("1234-CH"));
}

void AddProcessors(TableBuilder* table) {
  for (std::uint16_t socket = 0; socket < 2; ++socket) {
    const std::uint16_t caches = kCache + 3 * socket;
    table->Add(StructureBuilder(4, kProcessor + socket)
                   .Text("Socket " + std::to_string(socket + 1))
                   .Byte(3)  // central processor
                   .Byte(2)  // family: unknown
                   .Text("ZRV Silicon")
                   .Qword(0x00000000000A0051)
                   .Text("ZRV Tcore 8 @ 2.40GHz")
                   .Byte(0x8B)  // 1.1 V
                   .Word(100)
                   .Word(3600)
                   .Word(2400)
                   .Byte(0x41)  // populated, enabled
                   .Byte(2)
                   .Word(caches)
                   .Word(caches + 1)
                   .Word(caches + 2)
                   .Text("CPU-000" + std::to_string(socket + 1))
                   .Text("")
                   .Text("TC8-2400")
                   .Byte(8)
                   .Byte(8)
                   .Byte(16)
                   .Word(0x003C)  // 64 bits, cores, threads, execute protection
                   .Word(2)
                   .Word(8)
                   .Word(8)
                   .Word(16));
  }
}

void AddCaches(TableBuilder* table) {
  struct Cache {
    const char* name;
    std::uint16_t kilobytes;
    unsigned char type;
  };
  const Cache caches[] = {{"L1 Cache", 512, 5}, {"L2 Cache", 2048, 5}, {"L3 Cache", 20480, 5}};
  for (std::uint16_t i = 0; i < 6; ++i) {
    const Cache& cache = caches[i % 3];
    table->Add(StructureBuilder(7, kCache + i)
                   .Text(cache.name)
                   .Word(0x0180 + i % 3)  // write back, enabled, and the level
                   .Word(cache.kilobytes)
                   .Word(cache.kilobytes)
                   .Word(2)
                   .Word(2)
                   .Byte(0)
                   .Byte(5)  // single-bit error correction
                   .Byte(cache.type)
                   .Byte(7));  // 8-way
  }
}

void AddPortsAndSlots(TableBuilder* table) {
  struct Port {
    const char* name;
    unsigned char connector;
    unsigned char type;
  };
  // Connectors: D-sub 9 male, Access Bus USB, RJ-45, D-sub 15 female.
  const Port ports[] = {{"Serial 1", 8, 9},     {"USB 1", 18, 16},      {"USB 2", 18, 16},
                        {"Ethernet 1", 11, 31}, {"Ethernet 2", 11, 31}, {"Video", 7, 28}};
  std::uint16_t handle = kPort;
  for (const Port& port : ports) {
    table->Add(StructureBuilder(8, handle++)
                   .Text("")
                   .Byte(0)
                   .Text(port.name)
                   .Byte(port.connector)
                   .Byte(port.type));
  }
  for (std::uint16_t i = 0; i < 3; ++i) {
    table->Add(StructureBuilder(9, kSlot + i)
                   .Text("PCIe Slot " + std::to_string(i + 1))
                   .Byte(0xB1)  // PCI Express Gen 3
                   .Byte(11)    // x8
                   .Byte(i == 0 ? 4 : 3)
                   .Byte(4)
                   .Word(i + 1)
                   .Byte(0x04)  // 3.3 V
                   .Byte(0x01)  // power management events
                   .Word(0)
                   .Byte(0x10 * (i + 1))
                   .Byte(0));
  }
  table->Add(StructureBuilder(11, kOemStrings)
                 .Byte(2)
                 .LooseText("ZRV sample table")
                 .LooseText("This server does not exist"));
}

void AddMemory(TableBuilder* table) {
  const std::uint16_t modules = 4;
  const std::uint16_t megabytes = 16384;
  table->Add(StructureBuilder(16, kMemoryArray)
                 .Byte(3)            // on the system board
                 .Byte(3)            // system memory
                 .Byte(6)            // multi-bit error correction
                 .Dword(0x10000000)  // 256 GB, in kilobytes
                 .Word(kNoError)
                 .Word(modules + 1)
                 .Qword(0));
  for (std::uint16_t i = 0; i <= modules; ++i) {
    const bool there = i < modules;
    const std::string number = std::to_string(i + 1);
    table->Add(StructureBuilder(17, kMemoryDevice + i)
                   .Word(kMemoryArray)
                   .Word(kNoError)
                   .Word(there ? 72 : 0xFFFF)
                   .Word(there ? 64 : 0xFFFF)
                   .Word(there ? megabytes : 0)
                   .Byte(9)  // DIMM
                   .Byte(0)
                   .Text("DIMM " + number)
                   .Text("Bank " + number)
                   .Byte(there ? 26 : 2)           // DDR4, or unknown
                   .Word(there ? 0x2080 : 0x0004)  // synchronous, registered; or unknown
                   .Word(there ? 2400 : 0)
                   .Text(there ? "ZRV Memory" : "")
                   .Text(there ? "4D00000" + number : "")
                   .Text("")
                   .Text(there ? "TM16-2400R" : "")
                   .Byte(there ? 2 : 0)
                   .Dword(0)
                   .Word(there ? 2133 : 0)
                   .Word(there ? 1200 : 0)
                   .Word(there ? 1200 : 0)
                   .Word(there ? 1200 : 0));
  }
  table->Add(StructureBuilder(19, kArrayAddress)
                 .Dword(0)
                 .Dword(std::uint64_t{modules} * megabytes * 1024 - 1)
                 .Word(kMemoryArray)
                 .Byte(modules)
                 .Qword(0)
                 .Qword(0));
}

Bytes SampleDump() {
  TableBuilder table;
  AddSystem(&table);
  AddProcessors(&table);
  AddCaches(&table);
  AddPortsAndSlots(&table);
  AddMemory(&table);
  table.Add(StructureBuilder(38, kIpmi)
                .Byte(1)     // keyboard controller style
                .Byte(0x20)  // IPMI 2.0
                .Byte(0x20)
                .Byte(0xFF)
                .Qword(0x0CA3)  // I/O space, port CA2h
                .Byte(0)
                .Byte(0));
  table.Add(StructureBuilder(127, kEndOfTable));
  return table.Dump64(3, 0);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: make_sample_table FILE\n");
    return 2;
  }
  const Bytes dump = SampleDump();
  std::FILE* const file = std::fopen(argv[1], "wb");
  if (file == nullptr) {
    std::fprintf(stderr, "make_sample_table: cannot create %s\n", argv[1]);
    return 1;
  }
  const bool written = std::fwrite(dump.data(), 1, dump.size(), file) == dump.size();
  if (std::fclose(file) != 0 || !written) {
    std::fprintf(stderr, "make_sample_table: cannot write %s\n", argv[1]);
    return 1;
  }
  return 0;
}

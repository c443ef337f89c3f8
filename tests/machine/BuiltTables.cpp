#include "BuiltTables.h"

namespace machine_test {

namespace {

using smbios::sample::StructureBuilder;
using smbios::sample::TableBuilder;

StructureBuilder Bios(const char* version, const char* date) {
  return StructureBuilder(0, 0)
      .Text("ZRV")
      .Text(version)
      .Word(0xF000)
      .Text(date)
      .Byte(0x7F)
      .Qword(0x0000000013F99ABC & ~8ull)
      .Byte(0x83)
      .Byte(0x05)
      .Byte(5)
      .Byte(17)
      .Byte(0xFF)
      .Byte(0xFF);
}

StructureBuilder Enclosure(unsigned char type) {
  return StructureBuilder(3, 3)
      .Text("ZRV")
      .Byte(type)
      .Text("")
      .Text("S")
      .Text("A")
      .Byte(3)
      .Byte(3)
      .Byte(3)
      .Byte(3);
}

// A maker's own structure first, as some servers have it; a modular chassis with contained
// elements in front of the SKU number; two boards, one of them hot-swappable.
BuiltTable Server() {
  TableBuilder table;
  table.Add(StructureBuilder(218, 0xDA00).Byte(0xB2).Byte(0).Dword(0x01020304));
  table.Add(Bios("2.4.3", "07/07/2015"));
  table.Add(StructureBuilder(1, 0x0100).Text("ZRV").Text("Tserver A-1").Text("").Text("SN 7"));
  table.Add(StructureBuilder(2, 0x0200)
                .Text("ZRV")
                .Text("Board A")
                .Text("A05")
                .Text(".SN7.")
                .Text("")
                .Byte(0x09)
                .Text("Slot 00")
                .Word(3)
                .Byte(10)
                .Byte(1)
                .Word(0x0400));
  table.Add(StructureBuilder(2, 0x0201)
                .Text("ZRV")
                .Text("Riser")
                .Text("")
                .Text("")
                .Text("")
                .Byte(0x1E)
                .Text("")
                .Word(3)
                .Byte(8)
                .Byte(0));
  table.Add(StructureBuilder(3, 3)
                .Text("ZRV")
                .Byte(0x80 | 23)
                .Text("")
                .Text("SN 7")
                .Text("tag")
                .Byte(3)
                .Byte(3)
                .Byte(3)
                .Byte(2)
                .Dword(0)
                .Byte(1)
                .Byte(2)
                .Byte(2)
                .Byte(3)
                .Raw({0x84, 1, 2, 0x90, 2, 4})
                .Text("SKU 9"));
  // Counts beyond 254 stand in the later fields, and a family beyond FDh too.
  table.Add(StructureBuilder(4, 0x0400)
                .Text("CPU1")
                .Byte(3)
                .Byte(0xFE)
                .Text("ZRV Silicon")
                .Qword(0)
                .Text("ZRV Tcore 288")
                .Byte(0x92)
                .Word(0)
                .Word(4000)
                .Word(2600)
                .Byte(0x44)
                .Byte(54)
                .Word(0x0700)
                .Word(0x0701)
                .Word(0xFFFF)
                .Text("")
                .Text("")
                .Text("")
                .Byte(0xFF)
                .Byte(0xFF)
                .Byte(0xFF)
                .Word(0x00FC)
                .Word(0x006B)
                .Word(288)
                .Word(287)
                .Word(576));
  // An empty socket is no processor.
  table.Add(StructureBuilder(4, 0x0401)
                .Text("CPU2")
                .Byte(3)
                .Byte(2)
                .Text("")
                .Qword(0)
                .Text("")
                .Byte(0)
                .Word(0)
                .Word(4000)
                .Word(0)
                .Byte(0x00)
                .Byte(54)
                .Word(0xFFFF)
                .Word(0xFFFF)
                .Word(0xFFFF));
  table.Add(StructureBuilder(7, 0x0700)
                .Text("")
                .Word(0x0180)
                .Word(0x8012)
                .Word(0x8012)
                .Word(2)
                .Word(2)
                .Byte(0)
                .Byte(6)
                .Byte(4)
                .Byte(8));
  // 64 MiB stand in the fields of SMBIOS 3.1.
  table.Add(StructureBuilder(7, 0x0701)
                .Text("L2")
                .Word(0x0001)
                .Word(0xFFFF)
                .Word(0xFFFF)
                .Word(2)
                .Word(2)
                .Byte(0)
                .Byte(3)
                .Byte(2)
                .Byte(14)
                .Dword(0x80000400)
                .Dword(0x80000400));
  table.Add(StructureBuilder(7, 0x0702).Text("L3").Word(0x0102).Word(0).Word(0).Word(0).Word(0));
  table.Add(StructureBuilder(38, 0x2600)
                .Byte(1)
                .Byte(0x15)
                .Byte(0x20)
                .Byte(0xFF)
                .Qword(0x0CA9)
                .Byte(0x43)
                .Byte(10));
  table.Add(StructureBuilder(39, 0x2700)
                .Byte(1)
                .Text("Bay 1")
                .Text("PSU ")
                .Text("ZRV")
                .Text("P1")
                .Text("")
                .Text("PN1")
                .Text("")
                .Word(750)
                .Word(0x11A3)
                .Word(0xFFFF)
                .Word(0xFFFF)
                .Word(0xFFFF));
  table.Add(StructureBuilder(39, 0x2701)
                .Byte(2)
                .Text("Bay 2")
                .Text("")
                .Text("")
                .Text("")
                .Text("")
                .Text("")
                .Text("")
                .Word(0x8000)
                .Word(0x0C00));
  table.Add(StructureBuilder(127, 0x7F00));
  return {"a server", table.Dump64(3, 2)};
}

StructureBuilder Module(std::uint16_t handle, std::uint64_t size, unsigned int type) {
  return StructureBuilder(17, handle)
      .Word(0x1000)
      .Word(0xFFFE)
      .Word(72)
      .Word(64)
      .Word(size)
      .Byte(9)
      .Byte(0)
      .Text("DIMM " + std::to_string(handle & 0xFF))
      .Text("")
      .Byte(type)
      .Word(0x0080);
}

// Memory in all its ways of stating a size and a speed.
BuiltTable Memory() {
  TableBuilder table;
  table.Add(Bios("1", "12/31/1999"));
  table.Add(StructureBuilder(1, 1).Text("ZRV").Text("T").Text("").Text(""));
  table.Add(StructureBuilder(16, 0x1000)
                .Byte(3)
                .Byte(3)
                .Byte(7)
                .Dword(0x80000000)
                .Word(0xFFFE)
                .Word(24)
                .Qword(0x0000180000000000));
  table.Add(StructureBuilder(16, 0x1001).Byte(3).Byte(5).Byte(3).Dword(16384).Word(0xFFFE).Word(1));
  table.Add(Module(0x1101, 0x4000, 26)
                .Word(3200)
                .Text("ZRV")
                .Text("01")
                .Text("")
                .Text("PN")
                .Byte(2)
                .Dword(0)
                .Word(2933)
                .Word(1200)
                .Word(1200)
                .Word(1200));
  table.Add(Module(0x1102, 0x7FFF, 34)
                .Word(0xFFFF)
                .Text("ZRV")
                .Text("02")
                .Text("")
                .Text("PN")
                .Byte(2)
                .Dword(65536)
                .Word(0xFFFF)
                .Word(1200)
                .Word(1200)
                .Word(1200)
                .Raw({3, 8, 0})  // technology, modes
                .Text("")
                .Word(0)
                .Word(0)
                .Word(0)
                .Word(0)
                .Qword(0)
                .Qword(0)
                .Qword(0)
                .Qword(0)
                .Dword(70400)
                .Dword(70000));
  table.Add(Module(0x1103, 0x8200, 11));  // 512 KiB of ROM, from before SMBIOS 2.3
  table.Add(Module(0x1104, 0xFFFF, 2));   // there, of unknown size and type
  table.Add(Module(0x1105, 0, 2));        // an empty socket
  table.Add(StructureBuilder(19, 0x1300).Dword(0).Dword(0x02FFFFFF).Word(0x1000).Byte(2));
  table.Add(StructureBuilder(19, 0x1301)
                .Dword(0xFFFFFFFF)
                .Dword(0xFFFFFFFF)
                .Word(0x1000)
                .Byte(2)
                .Qword(0x0000040000000000)
                .Qword(0x000004FFFFFFFFFF));
  table.Add(StructureBuilder(127, 0x7F00));
  return {"memory", table.Dump64(3, 3)};
}

// A notebook of SMBIOS 2.x with a 32-bit entry point: battery, ports, slots; OEM strings.
BuiltTable Notebook() {
  TableBuilder table;
  table.Add(Bios("UX.207", "02/28/2014"));
  table.Add(StructureBuilder(1, 1).Text("ZRV").Text("UX305LA").Text("1.0").Text("E1"));
  table.Add(Enclosure(10));
  table.Add(StructureBuilder(8, 0x0801).Text("J1").Byte(0).Text("COM 1").Byte(8).Byte(9));
  table.Add(StructureBuilder(8, 0x0802).Text("J2").Byte(0x16).Text("").Byte(0).Byte(0xFF));
  table.Add(StructureBuilder(8, 0x0803).Text("").Byte(0).Text("USB").Byte(0x12).Byte(16));
  table.Add(StructureBuilder(8, 0x0804).Text("").Byte(0).Text("LAN").Byte(0x0B).Byte(31));
  table.Add(StructureBuilder(8, 0x0805).Text("JX").Byte(0).Text("").Byte(0).Byte(0));
  table.Add(StructureBuilder(9, 0x0901)
                .Text("PCI 1")
                .Byte(6)
                .Byte(5)
                .Byte(3)
                .Byte(3)
                .Word(1)
                .Byte(0x06)
                .Byte(0x03));
  table.Add(StructureBuilder(9, 0x0902)
                .Text("PCIEX1")
                .Byte(0xA6)
                .Byte(8)
                .Byte(4)
                .Byte(3)
                .Word(2)
                .Byte(0x0C)
                .Byte(0x01));
  table.Add(StructureBuilder(9, 0x0903)
                .Text("PCIEX16")
                .Byte(0xB6)
                .Byte(11)
                .Byte(4)
                .Byte(4)
                .Word(3)
                .Byte(0x04)
                .Byte(0x01));
  table.Add(StructureBuilder(11, 0x0B00).Byte(2).LooseText("one, two").LooseText("1[0040]"));
  table.Add(StructureBuilder(22, 0x1600)
                .Text("Rear")
                .Text("ZRV")
                .Text("01/02/2014")
                .Text("7")
                .Text("BAT0")
                .Byte(6)
                .Word(4500)
                .Word(11400)
                .Text("")
                .Byte(0)
                .Word(0)
                .Word(0)
                .Text("")
                .Byte(10)
                .Dword(0));
  table.Add(StructureBuilder(127, 0x7F00));
  return {"a notebook", table.Dump32(2, 8)};
}

}  // namespace

std::vector<BuiltTable> BuiltTables() { return {Server(), Memory(), Notebook()}; }

}  // namespace machine_test

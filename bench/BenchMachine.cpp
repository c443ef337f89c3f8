// A machine's whole inventory: a dump of 30 KiB, from the file to the instances. The counter
// "bytes" is the size of the dump. Compare with Pair.

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include <benchmark/benchmark.h>

#include <plugins/machine/Schema.h>
#include <qdacore/cim/object/ICIMNamespace.h>
#include <smbios/sample/TableBuilder.h>
#include <smbios/smbios.h>

namespace {

using smbios::sample::Bytes;
using smbios::sample::StructureBuilder;
using smbios::sample::TableBuilder;

void AddModule(TableBuilder* table, unsigned int number) {
  const std::string text = std::to_string(number);
  table->Add(StructureBuilder(17, static_cast<std::uint16_t>(0x1100 + number))
                 .Word(0x1000)
                 .Word(0xFFFE)
                 .Word(72)
                 .Word(64)
                 .Word(16384)
                 .Byte(9)
                 .Byte(0)
                 .Text("P1-DIMM" + text)
                 .Text("P0_Node0_Channel0_Dimm" + text)
                 .Byte(26)
                 .Word(0x80)
                 .Word(2400)
                 .Text("ZRV Memory")
                 .Text("346C4A" + text)
                 .Text("Dimm" + text + "_AssetTag")
                 .Text("18KSF51272PZ-1G4K")
                 .Byte(2)
                 .Dword(0)
                 .Word(2133));
}

void AddPort(TableBuilder* table, unsigned int number) {
  const std::string text = std::to_string(number);
  table->Add(StructureBuilder(8, static_cast<std::uint16_t>(0x0800 + number))
                 .Text("J" + text)
                 .Byte(0)
                 .Text("USB port " + text + " at the back")
                 .Byte(0x12)
                 .Byte(16));
  table->Add(StructureBuilder(9, static_cast<std::uint16_t>(0x0900 + number))
                 .Text("CPU1 SLOT" + text + " PCI-E 3.0 X8")
                 .Byte(0xB1)
                 .Byte(11)
                 .Byte(3)
                 .Byte(4)
                 .Word(number)
                 .Byte(4)
                 .Byte(1));
}

Bytes LargeDump() {
  TableBuilder table;
  table.Add(StructureBuilder(0, 0).Text("ZRV").Text("1").Word(0xF000).Text("01/02/2020").Byte(0));
  table.Add(StructureBuilder(3, 3).Text("ZRV").Byte(23));
  table.Add(StructureBuilder(16, 0x1000).Byte(3).Byte(3).Byte(6).Dword(1 << 28).Word(0).Word(96));
  for (unsigned int number = 0; table.Table().size() < 30 * 1024; ++number) {
    AddModule(&table, number);
    AddPort(&table, number);
  }
  table.Add(StructureBuilder(127, 0x7F00));
  return table.Dump64(3, 0);
}

void UseDump(const std::string& path) {
#if defined(_WIN32)
  _putenv_s("QDA_SMBIOS_DUMP", path.c_str());
#else
  setenv("QDA_SMBIOS_DUMP", path.c_str(), 1);
#endif
}

void MachineFromTable(benchmark::State& state) {
  const Bytes dump = LargeDump();
  const std::string path =
      (std::filesystem::temp_directory_path() / "qdacore-bench.smbios").string();
  std::ofstream(path, std::ios::binary)
      .write(reinterpret_cast<const char*>(dump.data()), static_cast<std::streamsize>(dump.size()));
  UseDump(path);
  for (auto _ : state) {
    void* table = nullptr;
    smBiosLoad(nullptr, &table);
    machine::MachineFacts facts;
    facts.operatingSystem.hostName = "box";
    facts.smbios = machine::SmbiosStructures(table);
    smBiosClose(&table);
    benchmark::DoNotOptimize(machine::BuildNamespace(facts));
  }
  state.counters["bytes"] = static_cast<double>(dump.size());
  std::remove(path.c_str());
}
BENCHMARK(MachineFromTable)->Unit(benchmark::kMicrosecond);

void MachineWithoutTable(benchmark::State& state) {
  for (auto _ : state) {
    machine::MachineFacts facts;
    facts.operatingSystem.hostName = "box";
    benchmark::DoNotOptimize(machine::BuildNamespace(facts));
  }
}
BENCHMARK(MachineWithoutTable)->Unit(benchmark::kMicrosecond);

void MachineSystemOnly(benchmark::State& state) {
  for (auto _ : state) {
    machine::MachineFacts facts;
    facts.operatingSystem.hostName = "box";
    benchmark::DoNotOptimize(machine::BuildNamespace(facts, machine::Scope::kSystem));
  }
}
BENCHMARK(MachineSystemOnly)->Unit(benchmark::kMicrosecond);

}  // namespace

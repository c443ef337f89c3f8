#include "SmbiosTestSupport.h"

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <random>

#include <smbios/SmbiosFields.h>

namespace smbios_test {

namespace fs = std::filesystem;
using smbios::sample::StructureBuilder;
using smbios::sample::TableBuilder;

namespace {

void SetDumpVariable(const fs::path& path) {
#if defined(_WIN32)
  // An empty value takes the variable away.
  _wputenv_s(L"QDA_SMBIOS_DUMP", path.c_str());
#else
  if (path.empty()) {
    unsetenv("QDA_SMBIOS_DUMP");
  } else {
    setenv("QDA_SMBIOS_DUMP", path.c_str(), 1);
  }
#endif
}

}  // namespace

Bytes ReadBytes(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return Bytes(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
}

void WriteBytes(const fs::path& path, const Bytes& bytes) {
  std::ofstream file(path, std::ios::binary);
  file.write(reinterpret_cast<const char*>(bytes.data()),
             static_cast<std::streamsize>(bytes.size()));
}

ScratchFolder::ScratchFolder() {
  std::random_device random;
  do {
    fPath = fs::temp_directory_path() / ("qdacore-smbios-" + std::to_string(random()));
  } while (!fs::create_directory(fPath));
}

ScratchFolder::~ScratchFolder() {
  std::error_code ignored;
  fs::remove_all(fPath, ignored);
}

DumpVariable::DumpVariable(const fs::path& path) { SetDumpVariable(path); }
DumpVariable::~DumpVariable() { SetDumpVariable(fs::path()); }

LoadedTable::LoadedTable() { Load(); }

LoadedTable::LoadedTable(const Bytes& dump) {
  const ScratchFolder folder;
  WriteBytes(folder.Path() / "dump", dump);
  const DumpVariable variable(folder.Path() / "dump");
  Load();
}

LoadedTable::LoadedTable(const fs::path& dumpFile) {
  const DumpVariable variable(dumpFile);
  Load();
}

LoadedTable::~LoadedTable() { smBiosClose(&fHandle); }

void LoadedTable::Load() {
  // Not null, so that a load that stores nothing is seen.
  int other = 0;
  fHandle = &other;
  fStatus = smBiosLoad(nullptr, &fHandle).GetStatusCode();
  if (fHandle == &other) {
    std::abort();
  }
}

Bytes LoadedTable::Get(int type, unsigned int nth) const {
  Bytes bytes(65536);
  int size = static_cast<int>(bytes.size());
  if (smBiosGetNext(fHandle, type, nth, bytes.data(), &size).GetStatusCode() !=
      Status::kQDAStatusOK) {
    return {};
  }
  bytes.resize(static_cast<std::size_t>(size));
  return bytes;
}

std::string LoadedTable::Text(int type, std::size_t offset, unsigned int nth) const {
  const Bytes bytes = Get(type, nth);
  return std::string(smbios::StringField(bytes.data(), bytes.size(), offset));
}

unsigned int LoadedTable::Count(int type) const {
  unsigned int count = 0;
  while (!Get(type, count).empty()) {
    ++count;
  }
  return count;
}

TableBuilder SmallTable() {
  TableBuilder table;
  table.Add(StructureBuilder(0, 0)
                .Text("ZRV")
                .Text("1.0")
                .Word(0xE000)
                .Text("01/02/2020")
                .Byte(0)
                .Qword(8));
  table.Add(StructureBuilder(1, 1).Text("ZRV").Text("Tserver").Text("").Text("SN1"));
  table.Add(StructureBuilder(127, 2));
  return table;
}

}  // namespace smbios_test

#include <tests/qda/QdaProgram.h>

#include <filesystem>
#include <system_error>

#include <gtest/gtest.h>

namespace qda_test {

namespace fs = std::filesystem;
using smbios::sample::Bytes;
using smbios::sample::StructureBuilder;
using smbios::sample::TableBuilder;
using test_support::ChildResult;
using test_support::EnvironmentChange;

namespace {

const std::vector<EnvironmentChange> kCleanEnvironment = {
    {"QDA_MOF_PATH", nullptr}, {"QDA_SMBIOS_DUMP", nullptr}, {"ZRV_VXTPI_GUI_T", nullptr}};

// A link is as good as a copy, and quicker; it needs the same file system.
void LinkOrCopy(const fs::path& source, const fs::path& target) {
  std::error_code error;
  fs::create_hard_link(source, target, error);
  if (error) {
    fs::copy_file(source, target);
  }
}

bool EndsWith(const std::string& text, const std::string& ending) {
  return text.size() >= ending.size() &&
         text.compare(text.size() - ending.size(), ending.size(), ending) == 0;
}

// On Windows the libraries stand beside the program; plug-ins, which have endings of two parts,
// stay where they are.
bool IsLibrary(const std::string& name) {
  return EndsWith(name, ".dll") && name.find('.') == name.size() - 4;
}

}  // namespace

ChildResult RunQda(const std::vector<std::string>& arguments,
                   const std::vector<EnvironmentChange>& environment) {
  std::vector<EnvironmentChange> changes = kCleanEnvironment;
  changes.insert(changes.end(), environment.begin(), environment.end());
  return test_support::RunProgram(QDA_FILE, arguments, changes);
}

Installation::Installation() {
  const fs::path program = QDA_FILE;
  for (const fs::directory_entry& entry : fs::directory_iterator(program.parent_path())) {
    const std::string name = entry.path().filename().string();
    if (IsLibrary(name)) {
      LinkOrCopy(entry.path(), fFolder.PathOf(name));
    }
  }
  fProgram = fFolder.PathOf(program.filename().string());
  LinkOrCopy(program, fProgram);
}

void Installation::AddMachineModule() const {
  LinkOrCopy(QDA_MACHINE_MODULE, fFolder.PathOf("machine.nsp.dll"));
}

void Installation::AddOddModule() const {
  LinkOrCopy(QDA_ODD_MODULE, fFolder.PathOf("odd.nsp.dll"));
}

void Installation::AddInventoryModule() const {
  LinkOrCopy(QDA_INVENTORY_MODULE, fFolder.PathOf("inventory.nsp.dll"));
}

void Installation::AddMarkModule(const std::string& name) const {
  LinkOrCopy(QDA_MARK_MODULE, fFolder.PathOf(name + ".nsp.dll"));
}

void Installation::AddFile(const std::string& name, const std::string& text) const {
  fFolder.Write(name, text);
}

ChildResult Installation::Run(const std::vector<std::string>& arguments) const {
  return test_support::RunProgram(fProgram, arguments, kCleanEnvironment);
}

std::string SampleFile() { return SMBIOS_SAMPLE_FILE; }

DumpFile::DumpFile(const TableBuilder& table) { Write(table); }

DumpFile::DumpFile(const std::string& productName, const std::string& serialNumber) {
  TableBuilder table;
  table.Add(StructureBuilder(1, 1).Text("ZRV").Text(productName).Text("").Text(serialNumber));
  table.Add(StructureBuilder(127, 2));
  Write(table);
}

void DumpFile::Write(const TableBuilder& table) {
  const Bytes bytes = table.Dump64(3, 0);
  fPath = fFolder.Write("table.smbios", std::string(bytes.begin(), bytes.end()));
}

nlohmann::json ParseJson(const std::string& text) {
  const nlohmann::json json = nlohmann::json::parse(text, nullptr, false);
  EXPECT_FALSE(json.is_discarded()) << text;
  return json.is_discarded() ? nlohmann::json() : json;
}

}  // namespace qda_test

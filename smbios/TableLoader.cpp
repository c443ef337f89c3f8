#include <smbios/TableLoader.h>

#include <initializer_list>
#include <string>
#include <utility>

#include <smbios/EntryPoint.h>
#include <smbios/SmbiosFields.h>

namespace smbios {

namespace {

using NZRVQDA20::TQDAStatusCode;

std::unique_ptr<SmbiosTable> TableOfSomeStructures(std::vector<unsigned char> bytes,
                                                   const EntryPoint& entry) {
  auto table = std::make_unique<SmbiosTable>(std::move(bytes), entry.structureCount, entry.version);
  if (table->Count() == 0) {
    table.reset();
  }
  return table;
}

// Whether each string number at `offsets` is 0 or names a string that is there.
bool StringsAreThere(const Structure& structure, std::initializer_list<std::size_t> offsets) {
  for (const std::size_t offset : offsets) {
    if (structure.bytes[offset] != 0 &&
        StringField(structure.bytes, structure.size, offset).empty()) {
      return false;
    }
  }
  return true;
}

bool IsBiosInformation(const Structure& structure) {
  return structure.Type() == 0 && structure.FormattedLength() >= 0x12 &&
         StringsAreThere(structure, {4, 5, 8});
}

bool IsSystemInformation(const Structure& structure) {
  return structure.Type() == 1 && structure.FormattedLength() >= 8 &&
         StringsAreThere(structure, {4, 5, 6, 7});
}

bool EndsProperly(const SmbiosTable& table) {
  if (table.End() == SmbiosTable::WalkEnd::kEndOfTable) {
    return table.At(table.Count() - 1).FormattedLength() == 4;
  }
  return table.End() == SmbiosTable::WalkEnd::kEndOfBytes;
}

bool IsPlausible(const SmbiosTable& table) {
  if (EndsProperly(table)) {
    return true;
  }
  for (std::size_t i = 0; i < table.Count(); ++i) {
    const Structure structure = table.At(i);
    if (IsBiosInformation(structure) || IsSystemInformation(structure)) {
      return true;
    }
  }
  return false;
}

TQDAStatusCode StatusOf(host::Situation situation) {
  switch (situation) {
    case host::Situation::kDone:
      return TQDAStatusCode::kQDAStatusOK;
    case host::Situation::kNotThere:
      return TQDAStatusCode::kQDAStatusFileNotFound;
    case host::Situation::kDenied:
      return TQDAStatusCode::kQDAStatusAccessDenied;
    case host::Situation::kOther:
      break;
  }
  return TQDAStatusCode::kQDAStatusFail;
}

TQDAStatusCode LoadDump(host::FirmwareTable& source, const std::string& path,
                        std::unique_ptr<SmbiosTable>* table) {
  std::vector<unsigned char> bytes;
  const host::Situation situation = source.ReadFileBytes(path, kMostTableBytes, &bytes);
  if (situation != host::Situation::kDone) {
    return StatusOf(situation);
  }
  *table = TableFromDump(std::move(bytes));
  return *table ? TQDAStatusCode::kQDAStatusOK : TQDAStatusCode::kQDAStatusFail;
}

TQDAStatusCode LoadFirmware(host::FirmwareTable& source, std::unique_ptr<SmbiosTable>* table) {
  std::vector<unsigned char> header;
  std::vector<unsigned char> bytes;
  const host::Situation situation = source.ReadFirmware(kMostTableBytes, &header, &bytes);
  // A machine without a table is no failure: there is nothing to read, and that is all.
  if (situation == host::Situation::kNotThere ||
      (situation == host::Situation::kDone && bytes.empty())) {
    return TQDAStatusCode::kQDAStatusOK;
  }
  if (situation != host::Situation::kDone) {
    return StatusOf(situation);
  }
  *table = TableFromFirmware(header, std::move(bytes));
  return *table ? TQDAStatusCode::kQDAStatusOK : TQDAStatusCode::kQDAStatusFail;
}

}  // namespace

std::unique_ptr<SmbiosTable> TableFromDump(std::vector<unsigned char> bytes) {
  EntryPoint entry;
  switch (ReadEntryPoint(bytes.data(), bytes.size(), &entry)) {
    case EntryPointVerdict::kDamaged:
      return nullptr;
    case EntryPointVerdict::kNone: {
      auto table = TableOfSomeStructures(std::move(bytes), EntryPoint());
      if (table && !IsPlausible(*table)) {
        table.reset();
      }
      return table;
    }
    case EntryPointVerdict::kValid:
      break;
  }
  if (entry.tableAddress < entry.size || entry.tableAddress >= bytes.size()) {
    return nullptr;
  }
  const auto begin = bytes.begin() + static_cast<std::ptrdiff_t>(entry.tableAddress);
  bytes.erase(bytes.begin(), begin);
  if (entry.tableLength < bytes.size()) {
    bytes.resize(entry.tableLength);
  }
  return TableOfSomeStructures(std::move(bytes), entry);
}

std::unique_ptr<SmbiosTable> TableFromFirmware(const std::vector<unsigned char>& header,
                                               std::vector<unsigned char> bytes) {
  EntryPoint entry;
  if (ReadEntryPoint(header.data(), header.size(), &entry) == EntryPointVerdict::kValid ||
      ReadRawSmbiosData(header.data(), header.size(), &entry)) {
    if (entry.tableLength < bytes.size()) {
      bytes.resize(entry.tableLength);
    }
  }
  return TableOfSomeStructures(std::move(bytes), entry);
}

TQDAStatusCode LoadTable(host::FirmwareTable& source, std::unique_ptr<SmbiosTable>* table) {
  table->reset();
  const std::string path = source.ReadVariable("QDA_SMBIOS_DUMP");
  // Windows cannot tell an empty variable from one that is not set, so neither do we.
  return path.empty() ? LoadFirmware(source, table) : LoadDump(source, path, table);
}

}  // namespace smbios

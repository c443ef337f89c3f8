#include <qda/SmbiosStructure.h>

#include <fmt/format.h>

#include <qda/SmbiosFieldTables.h>
#include <qda/SmbiosShow.h>

namespace qda {

namespace {

const unsigned int kOnboardDevices = 10;
const unsigned int kOemStrings = 11;
const unsigned int kConfigurationOptions = 12;
const unsigned int kGroup = 14;

// The whole string set, as types whose fields it is have it.
void AddStrings(const SmbiosView& view, const char* name, SmbiosStructure* structure) {
  for (unsigned int number = 1; number < 256; ++number) {
    const std::string_view text = smbios::String(view.bytes, view.size, number);
    if (text.empty()) {
      return;
    }
    structure->fields.push_back({name + (" " + std::to_string(number)), std::string(text)});
  }
}

// 7.11: two bytes a device, its type and its string.
void AddOnboardDevices(const SmbiosView& view, SmbiosStructure* structure) {
  const SmbiosNames types = {
      1,
      "Other|Unknown|Video|SCSI Controller|Ethernet|Token Ring|Sound|PATA Controller|"
      "SATA Controller|SAS Controller"};
  std::uint64_t type = 0;
  for (std::size_t at = 4; view.Number(at, 2, &type); at += 2) {
    const std::string name = "Device " + std::to_string(structure->fields.size() / 3 + 1);
    const SmbiosFieldRow device = {nullptr, at, 1, nullptr, types};
    const SmbiosFieldRow description = {nullptr, at + 1, 1, nullptr, types};
    structure->fields.push_back({name + " Type", show::NameAt<0, 7>(view, device)});
    structure->fields.push_back({name + " Enabled", show::HighBit(view, device)});
    structure->fields.push_back({name + " Description", show::Text(view, description)});
  }
}

// 7.15: a name, and three bytes an item: the type and the handle of a structure.
void AddGroup(const SmbiosView& view, SmbiosStructure* structure) {
  std::uint64_t item = 0;
  if (view.Number(4, 1, &item)) {
    structure->fields.push_back({"Group Name", show::Text(view, {nullptr, 4, 1, nullptr, {}})});
  }
  for (std::size_t at = 5; view.Number(at, 3, &item); at += 3) {
    structure->fields.push_back({"Item " + std::to_string((at - 5) / 3 + 1),
                                 fmt::format("0x{:04X} ({})", item >> 8,
                                             NameOfType(static_cast<unsigned int>(item & 0xFF)))});
  }
}

void AddLists(const SmbiosView& view, SmbiosStructure* structure) {
  switch (structure->type) {
    case kOnboardDevices:
      AddOnboardDevices(view, structure);
      break;
    case kOemStrings:
      AddStrings(view, "String", structure);
      break;
    case kConfigurationOptions:
      AddStrings(view, "Option", structure);
      break;
    case kGroup:
      AddGroup(view, structure);
      break;
    default:
      break;
  }
}

}  // namespace

SmbiosStructure DecodeStructure(const unsigned char* bytes, std::size_t size,
                                SmbiosVersion version) {
  SmbiosStructure structure;
  const std::size_t length = smbios::FormattedLength(bytes, size);
  if (length == 0) {
    structure.name = "Unknown";
    return structure;
  }
  structure.type = bytes[0];
  structure.length = bytes[1];
  structure.handle = static_cast<std::uint16_t>(bytes[2] | bytes[3] << 8);
  structure.name = NameOfType(structure.type);
  const SmbiosView view = {bytes, size, version};
  AddLists(view, &structure);
  const SmbiosTypeRow* const type = FieldsOfType(structure.type);
  for (std::size_t i = 0; type != nullptr && i < type->count; ++i) {
    const SmbiosFieldRow& row = type->rows[i];
    if (row.offset + row.width <= length) {
      structure.fields.push_back({row.name, row.show(view, row)});
    }
  }
  return structure;
}

}  // namespace qda

#include <qda/SmbiosStructure.h>

#include <qda/SmbiosFieldTables.h>
#include <qda/SmbiosShow.h>

namespace qda {

namespace {

const unsigned int kOemStrings = 11;
const unsigned int kConfigurationOptions = 12;

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
  if (structure.type == kOemStrings || structure.type == kConfigurationOptions) {
    AddStrings(view, structure.type == kOemStrings ? "String" : "Option", &structure);
  }
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

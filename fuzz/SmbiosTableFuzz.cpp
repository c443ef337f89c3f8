#include "SmbiosTableFuzz.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <vector>

#include <smbios/SmbiosFields.h>
#include <smbios/SmbiosTable.h>
#include <smbios/TableLoader.h>

namespace {

void Require(bool holds, const char* promise) {
  if (!holds) {
    std::fprintf(stderr, "broken: %s\n", promise);
    std::abort();
  }
}

void ReadFields(const smbios::Structure& structure) {
  std::size_t total = 0;
  // A little beyond the formatted area on either side of where a field still fits.
  const std::size_t end = structure.FormattedLength() + 2;
  for (std::size_t offset = 0; offset <= end; ++offset) {
    for (const std::size_t width : {1, 2, 4, 8}) {
      std::uint64_t value = 0;
      const bool there =
          smbios::NumberField(structure.bytes, structure.size, offset, width, &value);
      Require(there == (offset + width <= structure.FormattedLength()),
              "a field is there when the formatted area holds it");
      Require(width == 8 || value >> (8 * width) == 0, "a number has its width");
    }
    const std::string_view text = smbios::StringField(structure.bytes, structure.size, offset);
    Require(text.find('\0') == std::string_view::npos, "a string holds no NUL");
    total = std::max(total, text.size());
  }
  Require(total < structure.size, "a string is shorter than its structure");
}

void LookAt(const smbios::SmbiosTable& table) {
  Require(table.Count() > 0, "a table that was loaded has a structure");
  std::vector<std::size_t> seen(256, 0);
  const unsigned char* expected = table.At(0).bytes;
  for (std::size_t i = 0; i < table.Count(); ++i) {
    const smbios::Structure structure = table.At(i);
    Require(structure.bytes == expected, "structures stand side by side");
    Require(structure.size >= 6, "a structure has a header and two closing NULs");
    Require(structure.FormattedLength() >= 4 && structure.FormattedLength() + 2 <= structure.size,
            "the formatted area lies in the structure");
    Require(structure.bytes[structure.size - 1] == 0 && structure.bytes[structure.size - 2] == 0,
            "two NULs close a structure");
    Require(structure.Type() != 127 || i + 1 == table.Count(), "type 127 is the last");
    expected += structure.size;

    const std::size_t nth = seen[structure.Type()]++;
    smbios::Structure found;
    Require(table.Find(structure.Type(), nth, &found) && found.bytes == structure.bytes,
            "a search finds what the walk has found");
    if (i < 64) {
      ReadFields(structure);
    }
  }
  for (unsigned int type = 0; type < seen.size(); ++type) {
    smbios::Structure found;
    Require(!table.Find(static_cast<unsigned char>(type), seen[type], &found),
            "a search finds nothing that the walk has not found");
  }
}

}  // namespace

void fuzz_smbios::FuzzOneInput(const std::uint8_t* data, std::size_t size) {
  const std::vector<unsigned char> bytes(data, data + size);
  if (const std::unique_ptr<smbios::SmbiosTable> table = smbios::TableFromDump(bytes)) {
    LookAt(*table);
  }
  // The same bytes as a host would hand them out: 8 or 32 bytes of header, then a table.
  for (const std::size_t headerSize : {std::size_t{8}, std::size_t{32}}) {
    const std::size_t cut = std::min(headerSize, size);
    const std::vector<unsigned char> header(data, data + cut);
    const std::vector<unsigned char> rest(data + cut, data + size);
    if (const std::unique_ptr<smbios::SmbiosTable> table =
            smbios::TableFromFirmware(header, rest)) {
      LookAt(*table);
    }
  }
}

// Here for libFuzzer; to the tests that link this file it is one more function.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz_smbios::FuzzOneInput(data, size);
  return 0;
}

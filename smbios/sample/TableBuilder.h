// Builds SMBIOS structures, tables and dumps byte by byte (DMTF DSP0134). For the
// sample table and for tests. Header only; it checks nothing, because a test must be
// able to build what no firmware should.
//
//   TableBuilder table;
//   table.Add(StructureBuilder(1, 0x0100).Text("ZRV").Text("Tserver"));
//   table.Add(StructureBuilder(127, 0x7F00));
//   Bytes dump = table.Dump64(3, 0);

#ifndef SMBIOS_SAMPLE_TABLEBUILDER_H
#define SMBIOS_SAMPLE_TABLEBUILDER_H

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <vector>

namespace smbios {
namespace sample {

using Bytes = std::vector<unsigned char>;

// Where `dmidecode --dump-bin` puts the table, behind the entry point.
constexpr std::size_t kDumpTableOffset = 32;

inline void AppendNumber(Bytes* bytes, std::uint64_t number, std::size_t width) {
  for (std::size_t i = 0; i < width; ++i) {
    bytes->push_back(static_cast<unsigned char>(number >> (8 * i)));
  }
}

inline void StoreNumber(Bytes* bytes, std::size_t offset, std::uint64_t number, std::size_t width) {
  for (std::size_t i = 0; i < width; ++i) {
    (*bytes)[offset + i] = static_cast<unsigned char>(number >> (8 * i));
  }
}

// The value that makes `bytes` add up to 0, when its own place holds 0.
inline unsigned char Checksum(const Bytes& bytes, std::size_t begin, std::size_t size) {
  unsigned int sum = 0;
  for (std::size_t i = begin; i < begin + size; ++i) {
    sum += bytes[i];
  }
  return static_cast<unsigned char>(0u - sum);
}

// One structure: its fields in the order of the standard, from offset 4 on.
class StructureBuilder {
 public:
  StructureBuilder(unsigned char type, std::uint16_t handle) {
    fFormatted.push_back(type);
    fFormatted.push_back(0);
    AppendNumber(&fFormatted, handle, 2);
  }

  StructureBuilder& Byte(std::uint64_t value) { return Number(value, 1); }
  StructureBuilder& Word(std::uint64_t value) { return Number(value, 2); }
  StructureBuilder& Dword(std::uint64_t value) { return Number(value, 4); }
  StructureBuilder& Qword(std::uint64_t value) { return Number(value, 8); }

  StructureBuilder& Raw(std::initializer_list<unsigned char> bytes) {
    fFormatted.insert(fFormatted.end(), bytes);
    return *this;
  }

  // A field with the number of a new string; 0, "no string", for an empty text.
  StructureBuilder& Text(const std::string& text) {
    if (!text.empty()) {
      LooseText(text);
    }
    return Byte(text.empty() ? 0 : fStringCount);
  }

  // A string that no field names.
  StructureBuilder& LooseText(const std::string& text) {
    fStrings.insert(fStrings.end(), text.begin(), text.end());
    fStrings.push_back(0);
    ++fStringCount;
    return *this;
  }

  // Formatted area, strings, closing NULs.
  Bytes Build() const {
    Bytes bytes = fFormatted;
    bytes[1] = static_cast<unsigned char>(fFormatted.size());
    bytes.insert(bytes.end(), fStrings.begin(), fStrings.end());
    bytes.insert(bytes.end(), fStrings.empty() ? 2 : 1, 0);
    return bytes;
  }

 private:
  StructureBuilder& Number(std::uint64_t value, std::size_t width) {
    AppendNumber(&fFormatted, value, width);
    return *this;
  }

  Bytes fFormatted;
  Bytes fStrings;
  unsigned int fStringCount = 0;
};

class TableBuilder {
 public:
  TableBuilder& Add(const StructureBuilder& structure) { return AddBytes(structure.Build()); }

  // Whatever the bytes are, they count as one structure.
  TableBuilder& AddBytes(const Bytes& bytes) {
    fTable.insert(fTable.end(), bytes.begin(), bytes.end());
    ++fCount;
    if (bytes.size() > fLargest) {
      fLargest = bytes.size();
    }
    return *this;
  }

  const Bytes& Table() const { return fTable; }

  // The 64-bit entry point (DSP0134, 5.2.2) for a table at kDumpTableOffset.
  Bytes EntryPoint64(unsigned char major, unsigned char minor) const {
    Bytes entry = {'_', 'S', 'M', '3', '_', 0, 24, major, minor, 0, 1, 0,
                   0,   0,   0,   0,   0,   0, 0,  0,     0,     0, 0, 0};
    StoreNumber(&entry, 12, fTable.size(), 4);
    StoreNumber(&entry, 16, kDumpTableOffset, 8);
    entry[5] = Checksum(entry, 0, 24);
    return entry;
  }

  // The 32-bit entry point (DSP0134, 5.2.1) for a table at kDumpTableOffset.
  Bytes EntryPoint32(unsigned char major, unsigned char minor) const {
    Bytes entry = {'_', 'S', 'M', '_', 0,   31, major, minor, 0, 0, 0, 0, 0, 0, 0, 0,
                   '_', 'D', 'M', 'I', '_', 0,  0,     0,     0, 0, 0, 0, 0, 0, 0};
    StoreNumber(&entry, 8, fLargest, 2);
    StoreNumber(&entry, 22, fTable.size(), 2);
    StoreNumber(&entry, 24, kDumpTableOffset, 4);
    StoreNumber(&entry, 28, fCount, 2);
    entry[30] = static_cast<unsigned char>(major << 4 | minor);
    entry[21] = Checksum(entry, 16, 15);
    entry[4] = Checksum(entry, 0, 31);
    return entry;
  }

  Bytes Dump64(unsigned char major, unsigned char minor) const {
    return Dump(EntryPoint64(major, minor));
  }
  Bytes Dump32(unsigned char major, unsigned char minor) const {
    return Dump(EntryPoint32(major, minor));
  }

 private:
  Bytes Dump(Bytes entry) const {
    entry.resize(kDumpTableOffset, 0);
    entry.insert(entry.end(), fTable.begin(), fTable.end());
    return entry;
  }

  Bytes fTable;
  std::size_t fCount = 0;
  std::size_t fLargest = 0;
};

}  // namespace sample
}  // namespace smbios

#endif

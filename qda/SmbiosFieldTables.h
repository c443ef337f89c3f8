// The types of SMBIOS structures and their fields (DSP0134, chapter 7).

#ifndef QDA_SMBIOSFIELDTABLES_H
#define QDA_SMBIOSFIELDTABLES_H

#include <cstddef>

#include <qda/SmbiosShow.h>

namespace qda {

struct SmbiosTypeRow {
  unsigned int type;
  // The formatted area must have as many bytes as row.offset + row.width for a row to be shown.
  const SmbiosFieldRow* rows;
  std::size_t count;
};

template <std::size_t count>
constexpr SmbiosTypeRow RowsOf(unsigned int type, const SmbiosFieldRow (&rows)[count]) {
  return {type, rows, count};
}

// Null when the type is not decoded.
const SmbiosTypeRow* FieldsOfType(unsigned int type);

// Those of batteries, sensors, power and what manages the machine, which stand in a file of their
// own.
struct SmbiosTypeTable {
  const SmbiosTypeRow* begin;
  const SmbiosTypeRow* end;
};
SmbiosTypeTable PlatformTypes();

// The name of a type, known or not: "Memory Device", "OEM-specific", "Unknown".
const char* NameOfType(unsigned int type);

}  // namespace qda

#endif

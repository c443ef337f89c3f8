// What the SMBIOS table says about the machine as a whole (DMTF DSP0134, 7.2: System
// Information, type 1).

#ifndef PLUGINS_MACHINE_SMBIOSFACTS_H
#define PLUGINS_MACHINE_SMBIOSFACTS_H

#include <cstddef>
#include <optional>
#include <string>

#include <plugins/machine/SmbiosStructures.h>

namespace machine {

// What the table does not have is absent. The strings are untouched: blanks at their ends and
// bytes that are no ASCII stay.
struct SystemFacts {
  std::optional<std::string> manufacturer;
  std::optional<std::string> productName;
  std::optional<std::string> serialNumber;
  std::optional<std::string> uuid;
};

// The facts of one structure of type 1, `size` bytes as the smbios library delivers it. The
// structure is hostile: fields outside its formatted area and string numbers that name no
// string are absent facts.
SystemFacts ParseSystemInformation(const void* structure, std::size_t size);

// The 16 bytes as 8-4-4-4-12 lower-case digits (RFC 4122, 3). The first three fields are
// little-endian (DSP0134, 7.2.1), also in tables older than SMBIOS 2.6, which made that the
// rule. All bytes 00h (not set) and all FFh (not present) are absent.
std::optional<std::string> FormatUuid(const unsigned char* bytes);

// What the table that the smbios library loads says about the system, and, when `all`, all its
// structures.
struct SmbiosReading {
  SystemFacts system;
  SmbiosStructures structures;
};

// Reads the table that the smbios library loads. A machine without a table, or whose
// table may not be read, gives no facts and a warning in the core log. But when the variable
// QDA_SMBIOS_DUMP names a file, that very file is wanted: one that cannot be read throws
// TQDAException with the status of smBiosLoad, after an error line in the core log.
SmbiosReading ReadSmbios(bool all);

}  // namespace machine

#endif

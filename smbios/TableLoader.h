// Where a table comes from and whether it is one: the policy between the host and
// the walk. Everything that a load refuses is refused here.

#ifndef SMBIOS_TABLELOADER_H
#define SMBIOS_TABLELOADER_H

#include <cstddef>
#include <memory>
#include <vector>

#include <qdacore/frame/TQDAStatusCode.h>
#include <smbios/SmbiosTable.h>
#include <smbios/host/FirmwareTable.h>

namespace smbios {

// A dump file or a firmware table of more bytes is refused. The largest table of a
// 32-bit entry point has 64 KiB.
const std::size_t kMostTableBytes = 16 * 1024 * 1024;

// The table in the bytes of a dump file, or null when they hold none.
//
// With an anchor string at the first byte they are a dump: the entry point has to be
// sound, the table to begin inside the file and behind the entry point, and one
// structure at least to be whole. A stated length beyond the file is cut to the file.
//
// Without one they are a bare table, which has no checksum to tell it from any other
// file. So one structure at least has to be whole, and either the walk ends properly
// (at an end-of-table structure of 4 bytes, or with the last byte but padding), or
// there is a BIOS or System Information structure (types 0 and 1, required by
// DSP0134, 6.2) of at least its smallest length and without stray string numbers.
std::unique_ptr<SmbiosTable> TableFromDump(std::vector<unsigned char> bytes);

// The table of a running machine, or null when not one structure is whole. `header` is
// what the host keeps beside the table: an entry point, a RawSMBIOSData header or
// nothing. One that cannot be read leaves the version unknown: the table is the host's
// own, and does not depend on it.
std::unique_ptr<SmbiosTable> TableFromFirmware(const std::vector<unsigned char>& header,
                                               std::vector<unsigned char> bytes);

// Loads what QDA_SMBIOS_DUMP or the firmware has, with the statuses of smBiosLoad.
// `*table` is null unless a table was loaded. Passes on std::bad_alloc.
NZRVQDA20::TQDAStatusCode LoadTable(host::FirmwareTable& source,
                                    std::unique_ptr<SmbiosTable>* table);

}  // namespace smbios

#endif

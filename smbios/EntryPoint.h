// What stands in front of a structure table and says where it is and how large.
//
// Four forms are known, three of them by an anchor string at their first byte:
//   "_SM3_"  the 64-bit entry point of SMBIOS 3.x (DSP0134, 5.2.2), 24 bytes
//   "_SM_"   the 32-bit entry point of SMBIOS 2.1 and later (5.2.1), 31 bytes, the last
//            15 of which are an intermediate entry point with the anchor "_DMI_"
//   "_DMI_"  such an intermediate entry point alone, as before SMBIOS 2.1, 15 bytes
//   the 8-byte header of the RawSMBIOSData block of GetSystemFirmwareTable
// Bytes only: nothing here reads outside the `size` bytes given, fails or throws.

#ifndef SMBIOS_ENTRYPOINT_H
#define SMBIOS_ENTRYPOINT_H

#include <cstddef>
#include <cstdint>

#include <smbios/SmbiosTable.h>

namespace smbios {

struct EntryPoint {
  Version version;
  // How many bytes the entry point itself has.
  std::size_t size = 0;
  // Physical on a running machine; in a dump file the table's offset in the file.
  std::uint64_t tableAddress = 0;
  // In bytes. The 64-bit form states only the most that there can be.
  std::uint32_t tableLength = 0;
  // 0 where it is not stated: in the 64-bit form and in RawSMBIOSData.
  std::uint32_t structureCount = 0;
};

enum class EntryPointVerdict {
  kNone,     // no anchor string
  kValid,    // stored
  kDamaged,  // an anchor string, but cut, of an impossible length or with a bad checksum
};

// Reads the anchored entry point at `bytes`. `*entry` is written on kValid only.
EntryPointVerdict ReadEntryPoint(const unsigned char* bytes, std::size_t size, EntryPoint* entry);

// Reads the RawSMBIOSData header. False, with `*entry` untouched, unless `size` is 8.
// It has no checksum and no address.
bool ReadRawSmbiosData(const unsigned char* bytes, std::size_t size, EntryPoint* entry);

}  // namespace smbios

#endif

#include <smbios/EntryPoint.h>

#include <cstring>

namespace smbios {

namespace {

const std::size_t kIntermediateOffset = 16;
const std::size_t kIntermediateSize = 15;
const std::size_t kEntryPoint32Size = 31;
// Firmware written after version 2.1 of the standard says 30, a misprint of that version.
const std::size_t kEntryPoint32Misprint = 30;
const std::size_t kEntryPoint64Size = 24;
// Later versions may append fields, yet `dmidecode --dump-bin` keeps 32 bytes for all.
const std::size_t kLargestEntryPoint = 32;
const std::size_t kRawHeaderSize = 8;

std::uint32_t LittleEndian(const unsigned char* bytes, std::size_t width) {
  std::uint32_t number = 0;
  for (std::size_t i = width; i > 0; --i) {
    number = number << 8 | bytes[i - 1];
  }
  return number;
}

bool HasAnchor(const unsigned char* bytes, std::size_t size, const char* anchor) {
  const std::size_t length = std::strlen(anchor);
  return size >= length && std::memcmp(bytes, anchor, length) == 0;
}

// The bytes of a whole entry point, its checksum among them, add up to 0 modulo 256.
bool AddsUpToZero(const unsigned char* bytes, std::size_t size) {
  unsigned int sum = 0;
  for (std::size_t i = 0; i < size; ++i) {
    sum += bytes[i];
  }
  return sum % 256 == 0;
}

EntryPointVerdict ReadIntermediate(const unsigned char* bytes, std::size_t size,
                                   EntryPoint* entry) {
  if (size < kIntermediateSize || !HasAnchor(bytes, size, "_DMI_") ||
      !AddsUpToZero(bytes, kIntermediateSize)) {
    return EntryPointVerdict::kDamaged;
  }
  EntryPoint read;
  // Two decimal digits, one a half byte.
  read.version.majorNumber = bytes[14] >> 4;
  read.version.minorNumber = bytes[14] & 15;
  read.size = kIntermediateSize;
  read.tableLength = LittleEndian(bytes + 6, 2);
  read.tableAddress = LittleEndian(bytes + 8, 4);
  read.structureCount = LittleEndian(bytes + 12, 2);
  *entry = read;
  return EntryPointVerdict::kValid;
}

EntryPointVerdict Read32(const unsigned char* bytes, std::size_t size, EntryPoint* entry) {
  if (size < kEntryPoint32Size) {
    return EntryPointVerdict::kDamaged;
  }
  const std::size_t length = bytes[5];
  if (length < kEntryPoint32Misprint || length > kLargestEntryPoint || length > size ||
      !AddsUpToZero(bytes, length)) {
    return EntryPointVerdict::kDamaged;
  }
  EntryPoint read;
  if (ReadIntermediate(bytes + kIntermediateOffset, kIntermediateSize, &read) !=
      EntryPointVerdict::kValid) {
    return EntryPointVerdict::kDamaged;
  }
  read.version.majorNumber = bytes[6];
  read.version.minorNumber = bytes[7];
  read.size = length < kEntryPoint32Size ? kEntryPoint32Size : length;
  *entry = read;
  return EntryPointVerdict::kValid;
}

EntryPointVerdict Read64(const unsigned char* bytes, std::size_t size, EntryPoint* entry) {
  if (size < kEntryPoint64Size) {
    return EntryPointVerdict::kDamaged;
  }
  const std::size_t length = bytes[6];
  if (length < kEntryPoint64Size || length > kLargestEntryPoint || length > size ||
      !AddsUpToZero(bytes, length)) {
    return EntryPointVerdict::kDamaged;
  }
  EntryPoint read;
  read.version.majorNumber = bytes[7];
  read.version.minorNumber = bytes[8];
  read.size = length;
  read.tableLength = LittleEndian(bytes + 12, 4);
  read.tableAddress =
      static_cast<std::uint64_t>(LittleEndian(bytes + 20, 4)) << 32 | LittleEndian(bytes + 16, 4);
  *entry = read;
  return EntryPointVerdict::kValid;
}

}  // namespace

EntryPointVerdict ReadEntryPoint(const unsigned char* bytes, std::size_t size, EntryPoint* entry) {
  if (HasAnchor(bytes, size, "_SM3_")) {
    return Read64(bytes, size, entry);
  }
  if (HasAnchor(bytes, size, "_SM_")) {
    return Read32(bytes, size, entry);
  }
  if (HasAnchor(bytes, size, "_DMI_")) {
    return ReadIntermediate(bytes, size, entry);
  }
  return EntryPointVerdict::kNone;
}

bool ReadRawSmbiosData(const unsigned char* bytes, std::size_t size, EntryPoint* entry) {
  if (size != kRawHeaderSize) {
    return false;
  }
  EntryPoint read;
  read.version.majorNumber = bytes[1];
  read.version.minorNumber = bytes[2];
  read.size = kRawHeaderSize;
  read.tableLength = LittleEndian(bytes + 4, 4);
  *entry = read;
  return true;
}

}  // namespace smbios

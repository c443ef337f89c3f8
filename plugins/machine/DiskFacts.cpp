#include <plugins/machine/DiskFacts.h>

#include <cstddef>

#include <plugins/machine/HostText.h>

namespace machine {

namespace {

const std::uint16_t kSolidStateDrive = 3;  // CIM_DiskDrive.DiskType

// SCSI peripheral device types (SPC-4, 6.6.2), which Windows' descriptor has too.
const std::uint64_t kDirectAccess = 0x00;
const std::uint64_t kCdDvd = 0x05;
const std::uint64_t kReducedBlock = 0x0E;

// The unit of /sys/block/NAME/size.
const std::uint64_t kBytesPerUnit = 512;

// STORAGE_DEVICE_DESCRIPTOR: offsets of its fields.
const std::size_t kTypeAt = 8;
const std::size_t kRemovableAt = 10;
const std::size_t kVendorAt = 12;
const std::size_t kProductAt = 16;
const std::size_t kRevisionAt = 20;
const std::size_t kSerialAt = 24;
const std::size_t kDescriptorSize = 36;

DriveKind KindOf(std::uint64_t peripheralType) {
  switch (peripheralType) {
    case kDirectAccess:
    case kReducedBlock:
      return DriveKind::kDisk;
    case kCdDvd:
      return DriveKind::kCdrom;
    default:
      return DriveKind::kOther;
  }
}

// The kernel names diskette drives "fd" and a number, and nothing else so.
bool IsDiskette(std::string_view name) {
  return name.substr(0, 2) == "fd" && DecimalIn(name.substr(2)).has_value();
}

// A name of a maker. ATA drives have none: "ATA" stands in its place (SAT-3, 8.1.3). What
// begins with 0x is a register of a virtual device.
std::optional<std::string> MakerIn(const std::optional<std::string>& text) {
  const std::optional<std::string> name = NameIn(text);
  return name && *name != "ATA" && name->compare(0, 2, "0x") != 0 ? name : std::nullopt;
}

void UnderstandSize(std::optional<std::uint64_t> bytes, DiskFacts* facts) {
  // A drive without a medium says 0.
  if (!bytes || *bytes == 0 || !facts->blockSize || *bytes % *facts->blockSize != 0) {
    return;
  }
  facts->numberOfBlocks = *bytes / *facts->blockSize;
}

DiskFacts Understand(const host::DiskReading& reading) {
  DiskFacts facts;
  facts.deviceId = reading.name;
  if (reading.descriptor) {
    UnderstandDescriptor(*reading.descriptor, &facts);
  } else if (IsDiskette(reading.name)) {
    facts.kind = DriveKind::kDiskette;
  } else if (const std::optional<std::uint64_t> type = DecimalIn(reading.deviceType, 0x1F)) {
    facts.kind = KindOf(*type);
  }
  if (!reading.descriptor) {
    facts.manufacturer = MakerIn(reading.vendor);
    facts.model = NameIn(reading.model);
    facts.version = NameIn(reading.revision);
    facts.serialNumber = reading.serialPage ? SerialNumberIn(*reading.serialPage) : std::nullopt;
    if (!facts.serialNumber) {
      facts.serialNumber = NameIn(reading.serial);
    }
    facts.removable = FlagIn(reading.removable);
  }
  facts.readOnly = FlagIn(reading.readOnly);
  facts.blockSize =
      reading.sectorBytes ? *reading.sectorBytes : DecimalIn(reading.logicalBlockSize, UINT32_MAX);
  if (facts.blockSize == 0u) {
    facts.blockSize.reset();
  }
  UnderstandSize(reading.bytes ? reading.bytes : Product(DecimalIn(reading.size), kBytesPerUnit),
                 &facts);
  if (facts.kind == DriveKind::kDisk && FlagIn(reading.rotational) == false) {
    facts.diskType = kSolidStateDrive;
  }
  return facts;
}

// Little-endian, 4 bytes; `at` and these are inside `bytes`.
std::size_t OffsetAt(std::string_view bytes, std::size_t at) {
  std::size_t offset = 0;
  for (std::size_t i = 4; i > 0; --i) {
    offset = offset << 8 | static_cast<unsigned char>(bytes[at + i - 1]);
  }
  return offset;
}

std::optional<std::string> TextAt(std::string_view bytes, std::size_t field) {
  const std::size_t offset = OffsetAt(bytes, field);
  // 0 is "none"; and a serial number that is not there has also been seen as -1.
  if (offset < kDescriptorSize || offset >= bytes.size()) {
    return std::nullopt;
  }
  const std::string_view text = bytes.substr(offset);
  const std::size_t end = text.find('\0');
  if (end == std::string_view::npos) {
    return std::nullopt;
  }
  return NameIn(std::string(text.substr(0, end)));
}

}  // namespace

std::optional<std::string> SerialNumberIn(std::string_view page) {
  const std::size_t headerSize = 4;
  if (page.size() < headerSize || static_cast<unsigned char>(page[1]) != 0x80) {
    return std::nullopt;
  }
  const std::size_t length = static_cast<std::size_t>(static_cast<unsigned char>(page[2])) << 8 |
                             static_cast<unsigned char>(page[3]);
  if (length > page.size() - headerSize) {
    return std::nullopt;
  }
  return NameIn(std::string(page.substr(headerSize, length)));
}

void UnderstandDescriptor(std::string_view bytes, DiskFacts* facts) {
  if (bytes.size() < kDescriptorSize) {
    return;
  }
  facts->kind = KindOf(static_cast<unsigned char>(bytes[kTypeAt]));
  facts->removable = bytes[kRemovableAt] != 0;
  facts->manufacturer = MakerIn(TextAt(bytes, kVendorAt));
  facts->model = TextAt(bytes, kProductAt);
  facts->version = TextAt(bytes, kRevisionAt);
  facts->serialNumber = TextAt(bytes, kSerialAt);
}

std::vector<DiskFacts> UnderstandDisks(const std::vector<host::DiskReading>& readings) {
  std::vector<DiskFacts> disks;
  for (const host::DiskReading& reading : readings) {
    if (!reading.name.empty() && FlagIn(reading.hidden) != true) {
      disks.push_back(Understand(reading));
    }
  }
  return disks;
}

}  // namespace machine

// Fields that one type has. Chapters are those of DSP0134.

#include <qda/SmbiosShow.h>

#include <fmt/format.h>

namespace qda {
namespace show {

namespace {

std::uint64_t Number(const SmbiosView& view, const SmbiosFieldRow& row) {
  std::uint64_t number = 0;
  view.Number(row.offset, row.width, &number);
  return number;
}

// KiB, or 64 KiB when the highest bit is set.
std::uint64_t GranularSize(std::uint64_t number, std::uint64_t highestBit) {
  return (number & (highestBit - 1)) * ((number & highestBit) != 0 ? 65536 : 1024);
}

std::optional<std::string> AddressOf(const SmbiosView& view, const SmbiosFieldRow& row,
                                     std::uint64_t last) {
  std::uint64_t address = Number(view, row);
  if (address == 0xFFFFFFFF) {
    if (!view.Number(row.names.first, 8, &address)) {
      return std::nullopt;
    }
  } else {
    address = address * 1024 + last;
  }
  return fmt::format("0x{:011X}", address);
}

}  // namespace

// 7.1: 64 KiB each, from 1 on; FFh: the word at 18h, whose two highest bits tell the unit.
std::optional<std::string> BiosRomSize(const SmbiosView& view, const SmbiosFieldRow& row) {
  const std::uint64_t number = Number(view, row);
  std::uint64_t extended = 0;
  if (number != 0xFF || !view.Number(0x18, 2, &extended)) {
    return ExactSizeText((number + 1) * 65536);
  }
  switch (extended >> 14) {
    case 0:
      return ExactSizeText((extended & 0x3FFF) << 20);
    case 1:
      return ExactSizeText((extended & 0x3FFF) << 30);
    default:
      return std::nullopt;
  }
}

// 7.2.1: the first three fields are little-endian since version 2.6, and were not told before.
std::optional<std::string> Uuid(const SmbiosView& view, const SmbiosFieldRow& row) {
  const unsigned char* const id = view.bytes + row.offset;
  bool isZero = true;
  bool isOnes = true;
  for (int i = 0; i < 16; ++i) {
    isZero = isZero && id[i] == 0;
    isOnes = isOnes && id[i] == 0xFF;
  }
  if (isZero || isOnes) {
    return std::nullopt;
  }
  const SmbiosVersion& version = view.version;
  const bool isSwapped = !version.IsStated() || version.majorNumber > 2 ||
                         (version.majorNumber == 2 && version.minorNumber >= 6);
  const int swapped[] = {3, 2, 1, 0, 5, 4, 7, 6, 8, 9, 10, 11, 12, 13, 14, 15};
  std::string text;
  for (int i = 0; i < 16; ++i) {
    text += fmt::format("{}{:02x}", i == 4 || i == 6 || i == 8 || i == 10 ? "-" : "",
                        id[isSwapped ? swapped[i] : i]);
  }
  return text;
}

std::optional<std::string> ChassisHeight(const SmbiosView& view, const SmbiosFieldRow& row) {
  const std::uint64_t units = Number(view, row);
  if (units == 0) {
    return std::nullopt;
  }
  return fmt::format("{} U", units);
}

// 7.4: it stands behind the contained elements, whose number and length are at 13h and 14h. The
// row's own field is both.
std::optional<std::string> ChassisSku(const SmbiosView& view, const SmbiosFieldRow& row) {
  std::uint64_t number = 0;
  std::uint64_t length = 0;
  view.Number(row.offset, 1, &number);
  view.Number(row.offset + 1, 1, &length);
  SmbiosFieldRow sku = row;
  sku.offset = static_cast<std::size_t>(row.offset + 2 + number * length);
  sku.width = 1;
  std::uint64_t string = 0;
  return view.Number(sku.offset, 1, &string) ? Text(view, sku) : std::nullopt;
}

std::optional<std::string> ProcessorId(const SmbiosView& view, const SmbiosFieldRow& row) {
  std::string text;
  for (std::size_t i = 0; i < row.width; ++i) {
    text += fmt::format("{}{:02X}", i == 0 ? "" : " ", view.bytes[row.offset + i]);
  }
  return text;
}

// 7.5.4: tenths of a volt when the highest bit is set, otherwise one of three, by bits.
std::optional<std::string> ProcessorVoltage(const SmbiosView& view, const SmbiosFieldRow& row) {
  const std::uint64_t voltage = Number(view, row);
  if ((voltage & 0x80) != 0) {
    return fmt::format("{}.{} V", (voltage & 0x7F) / 10, (voltage & 0x7F) % 10);
  }
  const char* const volts[] = {"5.0 V", "3.3 V", "2.9 V"};
  std::string text;
  for (int bit = 0; bit < 3; ++bit) {
    if ((voltage >> bit & 1) != 0) {
      text += (text.empty() ? "" : " ") + std::string(volts[bit]);
    }
  }
  return text.empty() ? std::optional<std::string>() : text;
}

// 7.5: bit 6 is the socket, the lowest three are the processor.
std::optional<std::string> ProcessorStatus(const SmbiosView& view, const SmbiosFieldRow& row) {
  const std::uint64_t status = Number(view, row);
  if ((status & 0x40) == 0) {
    return "Unpopulated";
  }
  return "Populated, " + NameOf(row.names, status & 7);
}

std::optional<std::string> ProcessorCount(const SmbiosView& view, const SmbiosFieldRow& row) {
  std::uint64_t count = Number(view, row);
  if (count == 0xFF) {
    view.Number(row.names.first, 2, &count);
  }
  if (count == 0) {
    return std::nullopt;
  }
  return std::to_string(count);
}

// 7.8: the bits of the configuration.
std::optional<std::string> CacheLevel(const SmbiosView& view, const SmbiosFieldRow& row) {
  return std::to_string((Number(view, row) & 7) + 1);
}

std::optional<std::string> CacheState(const SmbiosView& view, const SmbiosFieldRow& row) {
  return (Number(view, row) & 0x80) != 0 ? "Enabled" : "Disabled";
}

std::optional<std::string> CacheMode(const SmbiosView& view, const SmbiosFieldRow& row) {
  return NameOf(row.names, Number(view, row) >> 8 & 3);
}

std::optional<std::string> CacheSize(const SmbiosView& view, const SmbiosFieldRow& row) {
  const std::uint64_t size = Number(view, row);
  std::uint64_t extended = 0;
  if (size == 0xFFFF && view.Number(row.names.first, 4, &extended)) {
    return ExactSizeText(GranularSize(extended, 0x80000000));
  }
  return ExactSizeText(GranularSize(size, 0x8000));
}

// 7.17: KiB; 80000000h: the quad word at 0Fh has it in bytes.
std::optional<std::string> ArrayCapacity(const SmbiosView& view, const SmbiosFieldRow& row) {
  std::uint64_t capacity = Number(view, row);
  if (capacity != 0x80000000) {
    return ExactSizeText(capacity * 1024);
  }
  if (!view.Number(0x0F, 8, &capacity)) {
    return std::nullopt;
  }
  return ExactSizeText(capacity);
}

// 7.18: MiB, or KiB by the highest bit; 7FFFh: the double word at 1Ch has it in MiB.
std::optional<std::string> MemorySize(const SmbiosView& view, const SmbiosFieldRow& row) {
  const std::uint64_t size = Number(view, row);
  std::uint64_t extended = 0;
  if (size == 0) {
    return "No module installed";
  }
  if (size == 0xFFFF) {
    return std::nullopt;
  }
  if (size == 0x7FFF && view.Number(0x1C, 4, &extended)) {
    return ExactSizeText((extended & 0x7FFFFFFF) << 20);
  }
  return ExactSizeText((size & 0x7FFF) << ((size & 0x8000) != 0 ? 10 : 20));
}

std::optional<std::string> MemorySpeed(const SmbiosView& view, const SmbiosFieldRow& row) {
  std::uint64_t speed = Number(view, row);
  if (speed == 0xFFFF) {
    speed = 0;
    view.Number(row.names.first, 4, &speed);
    speed &= 0x7FFFFFFF;
  }
  if (speed == 0) {
    return std::nullopt;
  }
  return fmt::format("{} MT/s", speed);
}

std::optional<std::string> MemoryRank(const SmbiosView& view, const SmbiosFieldRow& row) {
  const std::uint64_t rank = Number(view, row) & 0xF;
  if (rank == 0) {
    return std::nullopt;
  }
  return std::to_string(rank);
}

std::optional<std::string> StartAddress(const SmbiosView& view, const SmbiosFieldRow& row) {
  return AddressOf(view, row, 0);
}

// The last byte, while the field has the last KiB.
std::optional<std::string> EndAddress(const SmbiosView& view, const SmbiosFieldRow& row) {
  return AddressOf(view, row, 1023);
}

// 7.33.1: ranges for the vendor and for the product above the names.
std::optional<std::string> BootStatus(const SmbiosView& view, const SmbiosFieldRow& row) {
  const std::uint64_t status = Number(view, row);
  if (status >= 192) {
    return "Product-specific";
  }
  return status >= 128 ? "OEM-specific" : NameOf(row.names, status);
}

// 7.39: on the I2C bus, shifted by the direction bit.
std::optional<std::string> SlaveAddress(const SmbiosView& view, const SmbiosFieldRow& row) {
  return fmt::format("0x{:02X}", Number(view, row) >> 1);
}

// 7.39: the lowest bit says I/O or memory; its own value is in the highest two bits of 10h. An
// SSIF has its slave address there.
std::optional<std::string> BmcAddress(const SmbiosView& view, const SmbiosFieldRow& row) {
  const std::uint64_t address = Number(view, row);
  std::uint64_t type = 0;
  std::uint64_t modifier = 0;
  view.Number(4, 1, &type);
  if (type == 4) {
    return fmt::format("0x{:02X} (SMBus)", address >> 1);
  }
  const bool hasModifier = view.Number(0x10, 1, &modifier) && view.bytes[1] > 0x11;
  const std::uint64_t low = hasModifier ? modifier >> 4 & 1 : 0;
  return fmt::format("0x{:016X} ({})", (address & ~std::uint64_t{1}) | low,
                     (address & 1) != 0 ? "I/O" : "memory-mapped");
}

std::optional<std::string> Watts(const SmbiosView& view, const SmbiosFieldRow& row) {
  const std::uint64_t watts = Number(view, row);
  if (watts == 0x8000) {
    return std::nullopt;
  }
  return fmt::format("{} W", watts);
}

// 7.44: four characters of the TCG's, filled with zeros.
std::optional<std::string> VendorId(const SmbiosView& view, const SmbiosFieldRow& row) {
  std::string text(reinterpret_cast<const char*>(view.bytes) + row.offset, row.width);
  text.erase(text.find_last_not_of('\0') + 1);
  return text.empty() ? std::optional<std::string>() : text;
}

}  // namespace show
}  // namespace qda

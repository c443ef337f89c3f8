// Fields that one type has: what the machine is made of. Chapters are those of DSP0134.

#include <qda/SmbiosShow.h>

#include <fmt/format.h>

namespace qda {
namespace show {

namespace {

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

// 7.1.1 and 7.1.2: the field, unless its bit 3 says that it says nothing, and the extension bytes
// at 12h and 13h, as bits 64 and 72 onwards of the names.
std::optional<std::string> BiosCharacteristics(const SmbiosView& view, const SmbiosFieldRow& row) {
  std::uint64_t extension = 0;
  if (!view.Number(0x12, 2, &extension)) {
    view.Number(0x12, 1, &extension);
  }
  const std::uint64_t base = Number(view, row);
  const std::uint64_t parts[] = {(base & 8) != 0 ? 0 : base, extension};
  std::string text;
  for (unsigned int bit = 0; bit < 128; ++bit) {
    const std::string_view name =
        (parts[bit / 64] >> bit % 64 & 1) != 0 ? FindName(row.names, bit) : std::string_view();
    if (!name.empty()) {
      text += (text.empty() ? "" : ", ") + std::string(name);
    }
  }
  return text.empty() ? std::optional<std::string>() : text;
}

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

// 7.5.2: FEh: the word at 28h has it.
std::optional<std::string> ProcessorFamily(const SmbiosView& view, const SmbiosFieldRow& row) {
  std::uint64_t family = Number(view, row);
  if (family == 0xFE) {
    view.Number(0x28, 2, &family);
  }
  return NameOf(row.names, family);
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

}  // namespace show
}  // namespace qda

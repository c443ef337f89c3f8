// Fields that one type has: batteries, power and what manages the machine. Chapters are those of
// DSP0134.

#include <qda/SmbiosShow.h>

#include <fmt/format.h>

namespace qda {
namespace show {

// 7.23: mWh, times the byte at 15h; 0 is not stated.
std::optional<std::string> BatteryCapacity(const SmbiosView& view, const SmbiosFieldRow& row) {
  const std::uint64_t capacity = Number(view, row);
  std::uint64_t multiplier = 1;
  view.Number(0x15, 1, &multiplier);
  if (capacity == 0) {
    return std::nullopt;
  }
  return fmt::format("{} mWh", capacity * multiplier);
}

// 7.23: the year since 1980, month and day, in a word. 0 is not stated.
std::optional<std::string> BatteryDate(const SmbiosView& view, const SmbiosFieldRow& row) {
  const std::uint64_t date = Number(view, row);
  if (date == 0) {
    return std::nullopt;
  }
  return fmt::format("{}-{:02}-{:02}", 1980 + (date >> 9), date >> 5 & 0xF, date & 0x1F);
}

// 7.28: 8000h is not stated.
std::optional<std::string> Revolutions(const SmbiosView& view, const SmbiosFieldRow& row) {
  const std::uint64_t speed = Number(view, row);
  if (speed == 0x8000) {
    return std::nullopt;
  }
  return fmt::format("{} rpm", speed);
}

// 7.40.1: bit 1 is whether it is there, bits 7 to 9 are how it is.
std::optional<std::string> PowerSupplyStatus(const SmbiosView& view, const SmbiosFieldRow& row) {
  const std::uint64_t characteristics = Number(view, row);
  if ((characteristics & 2) == 0) {
    return "Not Present";
  }
  return "Present, " + NameOf(row.names, characteristics >> 7 & 7);
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

// 7.44: by the TCG's major version, at 08h: bytes 2 and 3 of a TPM_VERSION, or two words, the high
// one first.
std::optional<std::string> TpmFirmware(const SmbiosView& view, const SmbiosFieldRow& row) {
  const std::uint64_t firmware = Number(view, row);
  std::uint64_t version = 0;
  view.Number(0x08, 1, &version);
  switch (version) {
    case 1:
      return fmt::format("{}.{}", firmware >> 16 & 0xFF, firmware >> 24);
    case 2:
      return fmt::format("{}.{}", firmware >> 16, firmware & 0xFFFF);
    default:
      return fmt::format("0x{:08X}", firmware);
  }
}

}  // namespace show
}  // namespace qda

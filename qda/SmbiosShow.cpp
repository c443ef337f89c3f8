// Kinds of fields that several types have. Those of one type stand in SmbiosShowTypes.cpp.

#include <qda/SmbiosShow.h>

#include <algorithm>
#include <cstdlib>
#include <string_view>

#include <fmt/format.h>

namespace qda {

namespace {

std::uint64_t Number(const SmbiosView& view, const SmbiosFieldRow& row) {
  std::uint64_t number = 0;
  view.Number(row.offset, row.width, &number);
  return number;
}

std::optional<std::string> Measured(std::uint64_t number, const char* unit) {
  if (number == 0) {
    return std::nullopt;
  }
  return fmt::format("{} {}", number, unit);
}

}  // namespace

std::string NameOf(const SmbiosNames& names, std::uint64_t number) {
  const std::string_view all = names.names;
  std::uint64_t at = names.first;
  for (std::size_t begin = 0; begin < all.size();) {
    const std::size_t end = std::min(all.find('|', begin), all.size());
    const std::string_view name = all.substr(begin, end - begin);
    if (!name.empty() && name[0] == '#') {
      at = std::strtoul(std::string(name.substr(1)).c_str(), nullptr, 16);
    } else if (at == number && !name.empty()) {
      return std::string(name);
    } else {
      ++at;
    }
    begin = end + 1;
  }
  return fmt::format("0x{:02X}", number);
}

std::string ExactSizeText(std::uint64_t bytes) {
  const char* const units[] = {"bytes", "KiB", "MiB", "GiB", "TiB", "PiB", "EiB"};
  std::size_t unit = 0;
  while (bytes != 0 && bytes % 1024 == 0 && unit < 6) {
    bytes /= 1024;
    ++unit;
  }
  return fmt::format("{} {}", bytes, units[unit]);
}

namespace show {

std::optional<std::string> Text(const SmbiosView& view, const SmbiosFieldRow& row) {
  const std::uint64_t number = Number(view, row);
  if (number == 0) {
    return std::nullopt;
  }
  const std::string_view text = smbios::StringField(view.bytes, view.size, row.offset);
  // An empty string closes the set, so there is none with that number.
  return text.empty() ? fmt::format("(there is no string {})", number) : std::string(text);
}

std::optional<std::string> Decimal(const SmbiosView& view, const SmbiosFieldRow& row) {
  return std::to_string(Number(view, row));
}

std::optional<std::string> Hexadecimal(const SmbiosView& view, const SmbiosFieldRow& row) {
  return fmt::format("0x{:0{}X}", Number(view, row), 2 * row.width);
}

std::optional<std::string> Name(const SmbiosView& view, const SmbiosFieldRow& row) {
  return NameOf(row.names, Number(view, row));
}

std::optional<std::string> NameOfLow3Bits(const SmbiosView& view, const SmbiosFieldRow& row) {
  return NameOf(row.names, Number(view, row) & 7);
}

std::optional<std::string> NameOfLow7Bits(const SmbiosView& view, const SmbiosFieldRow& row) {
  return NameOf(row.names, Number(view, row) & 0x7F);
}

std::optional<std::string> HighBit(const SmbiosView& view, const SmbiosFieldRow& row) {
  return (Number(view, row) & 0x80) != 0 ? "Yes" : "No";
}

std::optional<std::string> Handle(const SmbiosView& view, const SmbiosFieldRow& row) {
  const std::uint64_t handle = Number(view, row);
  if (handle == 0xFFFF) {
    return std::nullopt;
  }
  return fmt::format("0x{:04X}", handle);
}

std::optional<std::string> Release(const SmbiosView& view, const SmbiosFieldRow& row) {
  const std::uint64_t release = Number(view, row);
  if (release == 0xFFFF) {
    return std::nullopt;
  }
  return fmt::format("{}.{}", release & 0xFF, release >> 8);
}

std::optional<std::string> BcdRelease(const SmbiosView& view, const SmbiosFieldRow& row) {
  const std::uint64_t release = Number(view, row);
  return fmt::format("{}.{}", release >> 4, release & 0xF);
}

std::optional<std::string> Megahertz(const SmbiosView& view, const SmbiosFieldRow& row) {
  return Measured(Number(view, row), "MHz");
}

std::optional<std::string> Nanoseconds(const SmbiosView& view, const SmbiosFieldRow& row) {
  return Measured(Number(view, row), "ns");
}

std::optional<std::string> Millivolts(const SmbiosView& view, const SmbiosFieldRow& row) {
  return Measured(Number(view, row), "mV");
}

std::optional<std::string> Bits(const SmbiosView& view, const SmbiosFieldRow& row) {
  const std::uint64_t bits = Number(view, row);
  return bits == 0xFFFF ? std::nullopt : Measured(bits, "bits");
}

std::optional<std::string> Count(const SmbiosView& view, const SmbiosFieldRow& row) {
  const std::uint64_t count = Number(view, row);
  if (count == 0) {
    return std::nullopt;
  }
  return std::to_string(count);
}

std::optional<std::string> PciAddress(const SmbiosView& view, const SmbiosFieldRow& row) {
  std::uint64_t segment = 0;
  std::uint64_t bus = 0;
  std::uint64_t function = 0;
  view.Number(row.offset, 2, &segment);
  view.Number(row.offset + 2, 1, &bus);
  view.Number(row.offset + 3, 1, &function);
  if (segment == 0xFFFF && bus == 0xFF && function == 0xFF) {
    return std::nullopt;
  }
  return fmt::format("{:04X}:{:02X}:{:02X}.{}", segment, bus, function >> 3, function & 7);
}

}  // namespace show
}  // namespace qda

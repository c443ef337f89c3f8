// Kinds of fields that several types have. Those of one type stand in SmbiosShowTypes.cpp and
// SmbiosShowPlatform.cpp.

#include <qda/SmbiosShow.h>

#include <algorithm>
#include <cstdlib>
#include <string_view>

#include <fmt/format.h>

namespace qda {

using show::Number;

namespace {

std::uint64_t AllOnes(const SmbiosFieldRow& row) {
  return ~std::uint64_t{0} >> (64 - 8 * row.width);
}

std::string Decimals(std::int64_t number, const SmbiosNames& unit) {
  std::string text = std::to_string(number < 0 ? -number : number);
  if (text.size() <= unit.first) {
    text.insert(0, unit.first + 1 - text.size(), '0');
  }
  if (unit.first > 0) {
    text.insert(text.size() - unit.first, ".");
  }
  const char* const blank = *unit.names == '\0' ? "" : " ";
  return (number < 0 ? "-" : "") + text + blank + unit.names;
}

std::optional<std::string> Measured(std::uint64_t number, const char* unit) {
  if (number == 0) {
    return std::nullopt;
  }
  return fmt::format("{} {}", number, unit);
}

}  // namespace

std::string_view FindName(const SmbiosNames& names, std::uint64_t number) {
  const std::string_view all = names.names;
  std::uint64_t at = names.first;
  for (std::size_t begin = 0; begin < all.size();) {
    const std::size_t end = std::min(all.find('|', begin), all.size());
    const std::string_view name = all.substr(begin, end - begin);
    if (!name.empty() && name[0] == '#') {
      at = std::strtoul(std::string(name.substr(1)).c_str(), nullptr, 16);
    } else if (at == number && !name.empty()) {
      return name;
    } else {
      ++at;
    }
    begin = end + 1;
  }
  return {};
}

std::string NameOf(const SmbiosNames& names, std::uint64_t number) {
  const std::string_view name = FindName(names, number);
  return name.empty() ? fmt::format("0x{:02X}", number) : std::string(name);
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

std::optional<std::string> NameOfBits(const SmbiosView& view, const SmbiosFieldRow& row,
                                      unsigned int lowest, unsigned int bits) {
  return NameOf(row.names, Number(view, row) >> lowest & ((1u << bits) - 1));
}

std::optional<std::string> SetBits(const SmbiosView& view, const SmbiosFieldRow& row) {
  const std::uint64_t set = Number(view, row);
  std::string text;
  for (unsigned int bit = 0; bit < 8 * row.width; ++bit) {
    const std::string_view name =
        (set >> bit & 1) != 0 ? FindName(row.names, bit) : std::string_view();
    if (!name.empty()) {
      text += (text.empty() ? "" : ", ") + std::string(name);
    }
  }
  return text.empty() ? "None" : text;
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

std::optional<std::string> Bytes(const SmbiosView& view, const SmbiosFieldRow& row) {
  return Measured(Number(view, row), "bytes");
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

std::optional<std::string> KnownDecimal(const SmbiosView& view, const SmbiosFieldRow& row) {
  return Number(view, row) == AllOnes(row) ? std::nullopt : Decimal(view, row);
}

std::optional<std::string> Minutes(const SmbiosView& view, const SmbiosFieldRow& row) {
  const std::optional<std::string> number = KnownDecimal(view, row);
  return number ? *number + " min" : number;
}

std::optional<std::string> ByteSize(const SmbiosView& view, const SmbiosFieldRow& row) {
  const std::uint64_t size = Number(view, row);
  if (size == AllOnes(row)) {
    return std::nullopt;
  }
  return size == 0 ? "None" : ExactSizeText(size);
}

std::optional<std::string> Signed(const SmbiosView& view, const SmbiosFieldRow& row) {
  const std::int64_t number = static_cast<std::int64_t>(Number(view, row));
  if (number == 0x8000) {
    return std::nullopt;
  }
  return Decimals(number > 0x8000 ? number - 0x10000 : number, row.names);
}

std::optional<std::string> Unsigned(const SmbiosView& view, const SmbiosFieldRow& row) {
  const std::int64_t number = static_cast<std::int64_t>(Number(view, row));
  if (number == 0x8000) {
    return std::nullopt;
  }
  return Decimals(number, row.names);
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

// Turning the codes of SMBIOS fields (DMTF DSP0134, chapter 7) into numbers of DMTF value maps.

#ifndef PLUGINS_MACHINE_SMBIOSCODES_H
#define PLUGINS_MACHINE_SMBIOSCODES_H

#include <cstddef>
#include <cstdint>
#include <optional>

namespace machine {

struct CodeRow {
  unsigned int smbios;
  std::uint16_t cim;
};

// The value-map number of `code`; absent when the code is, or when no row has it: codes that mean
// "unknown", and those that have no counterpart.
template <std::size_t N>
std::optional<std::uint16_t> Translate(const CodeRow (&rows)[N], std::optional<unsigned int> code) {
  for (const CodeRow& row : rows) {
    if (code == row.smbios) {
      return row.cim;
    }
  }
  return std::nullopt;
}

// Absent when it is one of the values by which a field says that it knows nothing.
template <class T>
std::optional<T> Known(std::optional<T> value, T unknown) {
  return value == unknown ? std::nullopt : value;
}
template <class T>
std::optional<T> Known(std::optional<T> value, T unknown, T alsoUnknown) {
  return Known(Known(value, unknown), alsoUnknown);
}

// A field in another type.
template <class To, class From>
std::optional<To> As(const std::optional<From>& value) {
  return value ? std::optional<To>(static_cast<To>(*value)) : std::nullopt;
}

// Whether bit `bit`, from 0, is set.
template <class T>
std::optional<bool> Bit(const std::optional<T>& value, unsigned int bit) {
  return value ? std::optional<bool>((*value >> bit & 1) != 0) : std::nullopt;
}

}  // namespace machine

#endif

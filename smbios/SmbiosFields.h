// Reading the fields of one structure that smBiosGetFirst or smBiosGetNext has
// delivered. Header only. The structure is hostile: each function looks at `size`
// bytes at most, and a field that lies outside the formatted area is not there.
//
// `structure` and `size` are always the buffer and the size of the delivery.
// `offset` is a field's offset as DSP0134 prints it, counted from the structure's
// first byte. Nothing here fails or throws; any thread.

#ifndef SMBIOS_SMBIOSFIELDS_H
#define SMBIOS_SMBIOSFIELDS_H

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace smbios {

// How many bytes the formatted area has: what the structure's second byte says, but
// never more than `size`. 0 when there is no whole header (DSP0134, 6.1.2: 4 bytes).
inline std::size_t FormattedLength(const void* structure, std::size_t size) {
  if (structure == nullptr || size < 4) {
    return 0;
  }
  const std::size_t stated = static_cast<const unsigned char*>(structure)[1];
  if (stated < 4) {
    return 0;
  }
  return stated < size ? stated : size;
}

// Stores the little-endian number of `width` bytes (1 to 8) at `offset`. False, with
// `*value` untouched, when the formatted area does not hold all of it: firmware of an
// earlier SMBIOS version leaves later fields out.
inline bool NumberField(const void* structure, std::size_t size, std::size_t offset,
                        std::size_t width, std::uint64_t* value) {
  const std::size_t length = FormattedLength(structure, size);
  if (width < 1 || width > 8 || offset > length || width > length - offset) {
    return false;
  }
  const unsigned char* const field = static_cast<const unsigned char*>(structure) + offset;
  std::uint64_t number = 0;
  for (std::size_t i = width; i > 0; --i) {
    number = number << 8 | field[i - 1];
  }
  *value = number;
  return true;
}

// The structure's string number `number`, counted from 1, untouched: blanks at its
// ends and bytes that are no ASCII stay. Empty for number 0, for a number that the
// set has not, and for a string whose closing NUL is missing. The text lies in the
// caller's buffer.
inline std::string_view String(const void* structure, std::size_t size, unsigned int number) {
  std::size_t begin = FormattedLength(structure, size);
  if (number == 0 || begin == 0) {
    return {};
  }
  const char* const bytes = static_cast<const char*>(structure);
  for (;;) {
    std::size_t end = begin;
    while (end < size && bytes[end] != '\0') {
      ++end;
    }
    // An empty string closes the set: what follows it is no string of this structure.
    if (end >= size || end == begin) {
      return {};
    }
    if (--number == 0) {
      return {bytes + begin, end - begin};
    }
    begin = end + 1;
  }
}

// The string whose number stands in the byte at `offset`; empty when there is none.
inline std::string_view StringField(const void* structure, std::size_t size, std::size_t offset) {
  std::uint64_t number = 0;
  if (!NumberField(structure, size, offset, 1, &number)) {
    return {};
  }
  return String(structure, size, static_cast<unsigned int>(number));
}

}  // namespace smbios

#endif

// The structures of an SMBIOS table (DMTF DSP0134), by type and by handle, with checked fields.
// They are copied out of the smbios library, so its handle need not stay open.

#ifndef PLUGINS_MACHINE_SMBIOSSTRUCTURES_H
#define PLUGINS_MACHINE_SMBIOSSTRUCTURES_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <smbios/SmbiosFields.h>

namespace machine {

// One structure; the bytes are somebody else's. `offset` is always the field's offset as DSP0134
// prints it. A field outside the formatted area is absent, as it is in tables of earlier versions.
class SmbiosStructure {
 public:
  SmbiosStructure(const unsigned char* bytes, std::size_t size) : fBytes(bytes), fSize(size) {}

  // Both 0 when there is not even a whole header.
  unsigned int Type() const { return fSize < 4 ? 0 : fBytes[0]; }
  std::uint16_t Handle() const { return Word(2).value_or(0); }
  std::size_t FormattedLength() const { return smbios::FormattedLength(fBytes, fSize); }

  std::optional<std::uint8_t> Byte(std::size_t offset) const {
    return Number<std::uint8_t>(offset);
  }
  std::optional<std::uint16_t> Word(std::size_t offset) const {
    return Number<std::uint16_t>(offset);
  }
  std::optional<std::uint32_t> Dword(std::size_t offset) const {
    return Number<std::uint32_t>(offset);
  }
  std::optional<std::uint64_t> Qword(std::size_t offset) const {
    return Number<std::uint64_t>(offset);
  }

  // The string that the byte at `offset` numbers, untouched; empty when there is none.
  std::string_view Text(std::size_t offset) const {
    return smbios::StringField(fBytes, fSize, offset);
  }
  // String number `number`, from 1; empty when there is none.
  std::string_view String(unsigned int number) const {
    return smbios::String(fBytes, fSize, number);
  }

  const unsigned char* Bytes() const { return fBytes; }
  std::size_t Size() const { return fSize; }

 private:
  template <class T>
  std::optional<T> Number(std::size_t offset) const {
    std::uint64_t value = 0;
    if (!smbios::NumberField(fBytes, fSize, offset, sizeof(T), &value)) {
      return std::nullopt;
    }
    return static_cast<T>(value);
  }

  const unsigned char* fBytes;
  std::size_t fSize;
};

class SmbiosStructures {
 public:
  typedef std::vector<SmbiosStructure> List;

  SmbiosStructures() {}
  // The structures of `table`, a handle of the smbios library (null: none), in table order.
  // Those of more than 64 KiB are left out; nothing that firmware writes is that large.
  explicit SmbiosStructures(void* table);

  SmbiosStructures(SmbiosStructures&&) = default;
  SmbiosStructures& operator=(SmbiosStructures&&) = default;

  // Those of one type (0 to 255), in table order.
  const List& OfType(unsigned int type) const;
  // The first one that has this handle; null when there is none.
  const SmbiosStructure* ByHandle(std::uint16_t handle) const;

 private:
  std::vector<unsigned char> fBytes;
  std::array<List, 256> fByType;
  std::unordered_map<std::uint16_t, SmbiosStructure> fByHandle;
};

}  // namespace machine

#endif

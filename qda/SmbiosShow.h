// How the fields of SMBIOS structures are shown: one function a kind of field. The tables of
// SmbiosFieldTables name them.

#ifndef QDA_SMBIOSSHOW_H
#define QDA_SMBIOSSHOW_H

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include <qda/SmbiosStructure.h>
#include <smbios/SmbiosFields.h>

namespace qda {

// The bytes of a structure.
struct SmbiosView {
  const unsigned char* bytes;
  std::size_t size;
  SmbiosVersion version;

  // False when the formatted area does not hold it.
  bool Number(std::size_t offset, std::size_t width, std::uint64_t* value) const {
    return smbios::NumberField(bytes, size, offset, width, value);
  }
};

// Names of successive numbers from `first` on, separated by "|"; nothing between two of them is a
// number without a name, and "#A0" goes on with A0h.
struct SmbiosNames {
  unsigned int first;
  const char* names;
};

// DSP0134, 7.5.2: the family of a processor.
extern const char kProcessorFamilies[];

struct SmbiosFieldRow;

// Called when the formatted area holds the row's field. An empty result: it is not stated.
typedef std::optional<std::string> (*SmbiosShow)(const SmbiosView& view, const SmbiosFieldRow& row);

struct SmbiosFieldRow {
  const char* name;
  std::size_t offset;  // as DSP0134 has it, from the structure's first byte
  std::size_t width;   // in bytes
  SmbiosShow show;
  SmbiosNames names;  // of enumerations
};

// The name of `number`; empty when it has none.
std::string_view FindName(const SmbiosNames& names, std::uint64_t number);

// The name of `number`, or the number.
std::string NameOf(const SmbiosNames& names, std::uint64_t number);

// A binary size in the largest unit that tells it in whole: "16 GiB", "1536 KiB".
std::string ExactSizeText(std::uint64_t bytes);

namespace show {

// The row's field, which the formatted area holds.
inline std::uint64_t Number(const SmbiosView& view, const SmbiosFieldRow& row) {
  std::uint64_t number = 0;
  view.Number(row.offset, row.width, &number);
  return number;
}

std::optional<std::string> Text(const SmbiosView& view, const SmbiosFieldRow& row);
std::optional<std::string> Decimal(const SmbiosView& view, const SmbiosFieldRow& row);
std::optional<std::string> Hexadecimal(const SmbiosView& view, const SmbiosFieldRow& row);
// Of the whole field, or of `bits` of its bits from bit `lowest` on.
std::optional<std::string> Name(const SmbiosView& view, const SmbiosFieldRow& row);
std::optional<std::string> NameOfBits(const SmbiosView& view, const SmbiosFieldRow& row,
                                      unsigned int lowest, unsigned int bits);
template <unsigned int lowest, unsigned int bits>
std::optional<std::string> NameAt(const SmbiosView& view, const SmbiosFieldRow& row) {
  return NameOfBits(view, row, lowest, bits);
}
// The names of all bits that are set and have one, by their numbers; "None" when there are none.
std::optional<std::string> SetBits(const SmbiosView& view, const SmbiosFieldRow& row);
// Yes or no, by the highest bit of a byte.
std::optional<std::string> HighBit(const SmbiosView& view, const SmbiosFieldRow& row);
// Another structure; FFFFh names none.
std::optional<std::string> Handle(const SmbiosView& view, const SmbiosFieldRow& row);
// Two bytes, or two digits of one byte; FFh and FFh are not stated.
std::optional<std::string> Release(const SmbiosView& view, const SmbiosFieldRow& row);
std::optional<std::string> BcdRelease(const SmbiosView& view, const SmbiosFieldRow& row);
// 0 is not stated.
std::optional<std::string> Megahertz(const SmbiosView& view, const SmbiosFieldRow& row);
std::optional<std::string> Nanoseconds(const SmbiosView& view, const SmbiosFieldRow& row);
std::optional<std::string> Millivolts(const SmbiosView& view, const SmbiosFieldRow& row);
std::optional<std::string> Bytes(const SmbiosView& view, const SmbiosFieldRow& row);
std::optional<std::string> Bits(const SmbiosView& view, const SmbiosFieldRow& row);
std::optional<std::string> Count(const SmbiosView& view, const SmbiosFieldRow& row);
// All bits set: it is not stated.
std::optional<std::string> KnownDecimal(const SmbiosView& view, const SmbiosFieldRow& row);
std::optional<std::string> Minutes(const SmbiosView& view, const SmbiosFieldRow& row);
// In bytes; 0 is none.
std::optional<std::string> ByteSize(const SmbiosView& view, const SmbiosFieldRow& row);
// A word, with or without a sign, with `names.first` decimals of the unit `names.names`; 8000h is
// not stated.
std::optional<std::string> Signed(const SmbiosView& view, const SmbiosFieldRow& row);
std::optional<std::string> Unsigned(const SmbiosView& view, const SmbiosFieldRow& row);
// Segment group, bus, device and function at four successive bytes and a word.
std::optional<std::string> PciAddress(const SmbiosView& view, const SmbiosFieldRow& row);

// Fields of one type each.
std::optional<std::string> BiosCharacteristics(const SmbiosView& view, const SmbiosFieldRow& row);
std::optional<std::string> BiosRomSize(const SmbiosView& view, const SmbiosFieldRow& row);
std::optional<std::string> Uuid(const SmbiosView& view, const SmbiosFieldRow& row);
std::optional<std::string> ChassisHeight(const SmbiosView& view, const SmbiosFieldRow& row);
std::optional<std::string> ChassisSku(const SmbiosView& view, const SmbiosFieldRow& row);
std::optional<std::string> ProcessorFamily(const SmbiosView& view, const SmbiosFieldRow& row);
std::optional<std::string> ProcessorId(const SmbiosView& view, const SmbiosFieldRow& row);
std::optional<std::string> ProcessorVoltage(const SmbiosView& view, const SmbiosFieldRow& row);
std::optional<std::string> ProcessorStatus(const SmbiosView& view, const SmbiosFieldRow& row);
// A count in a byte; FFh means that the word further on has it, whose offset `names.first` is.
std::optional<std::string> ProcessorCount(const SmbiosView& view, const SmbiosFieldRow& row);
std::optional<std::string> CacheLevel(const SmbiosView& view, const SmbiosFieldRow& row);
std::optional<std::string> CacheState(const SmbiosView& view, const SmbiosFieldRow& row);
std::optional<std::string> CacheMode(const SmbiosView& view, const SmbiosFieldRow& row);
// The double word that follows a size of FFFFh has the offset `names.first`.
std::optional<std::string> CacheSize(const SmbiosView& view, const SmbiosFieldRow& row);
std::optional<std::string> ArrayCapacity(const SmbiosView& view, const SmbiosFieldRow& row);
std::optional<std::string> MemorySize(const SmbiosView& view, const SmbiosFieldRow& row);
// FFFFh: the double word at the offset `names.first` has it.
std::optional<std::string> MemorySpeed(const SmbiosView& view, const SmbiosFieldRow& row);
std::optional<std::string> MemoryRank(const SmbiosView& view, const SmbiosFieldRow& row);
// An address in KiB; FFFFFFFFh: the quad word at the offset `names.first` has it in bytes.
std::optional<std::string> StartAddress(const SmbiosView& view, const SmbiosFieldRow& row);
std::optional<std::string> EndAddress(const SmbiosView& view, const SmbiosFieldRow& row);
std::optional<std::string> BatteryCapacity(const SmbiosView& view, const SmbiosFieldRow& row);
std::optional<std::string> BatteryDate(const SmbiosView& view, const SmbiosFieldRow& row);
std::optional<std::string> Revolutions(const SmbiosView& view, const SmbiosFieldRow& row);
std::optional<std::string> PowerSupplyStatus(const SmbiosView& view, const SmbiosFieldRow& row);
std::optional<std::string> BootStatus(const SmbiosView& view, const SmbiosFieldRow& row);
std::optional<std::string> SlaveAddress(const SmbiosView& view, const SmbiosFieldRow& row);
std::optional<std::string> BmcAddress(const SmbiosView& view, const SmbiosFieldRow& row);
std::optional<std::string> Watts(const SmbiosView& view, const SmbiosFieldRow& row);
std::optional<std::string> VendorId(const SmbiosView& view, const SmbiosFieldRow& row);
std::optional<std::string> TpmFirmware(const SmbiosView& view, const SmbiosFieldRow& row);

}  // namespace show
}  // namespace qda

#endif

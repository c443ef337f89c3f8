// SmbiosTable: the bytes of a structure table and where its structures lie.
//
// The table is walked once, when it is built (DSP0134, 6.1.2: structure header
// format, 6.1.3: text strings). The bytes are hostile; the walk goes forward only,
// by at least six bytes a structure, and stops for good at
//   - the end-of-table structure (type 127), which is the last one kept;
//   - a header that states fewer than the 4 bytes it has itself, as padding does;
//   - a structure whose formatted area or closing NULs are not all there: it is
//     incomplete and is not kept;
//   - the number of structures that the entry point states, if it does;
//   - 65,536 structures: handles are unique and have 16 bits, so there are no more.
//
// The walk also notes which structures have which type, so that each is found at once.
//
// Immutable once built, so any number of threads may read it.

#ifndef SMBIOS_SMBIOSTABLE_H
#define SMBIOS_SMBIOSTABLE_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace smbios {

// A whole structure: formatted area, strings and both closing NULs. It lies in its
// table and lives as long.
struct Structure {
  const unsigned char* bytes;
  std::size_t size;

  unsigned char Type() const { return bytes[0]; }
  std::size_t FormattedLength() const { return bytes[1]; }
};

// 0.0 is "not stated": there is no such SMBIOS version.
struct Version {
  int majorNumber = 0;
  int minorNumber = 0;
};

class SmbiosTable {
 public:
  enum class WalkEnd {
    kEndOfTable,    // by a structure of type 127
    kEndOfBytes,    // nothing is left, or only padding: all 0 or all FFh
    kStatedNumber,  // at the number of structures that the entry point states
    kBroken,        // at something that is no structure, or is cut
  };

  // `statedNumber` is the number of structures by the entry point, 0 when not stated.
  explicit SmbiosTable(std::vector<unsigned char> bytes, std::size_t statedNumber = 0,
                       Version version = Version());

  SmbiosTable(const SmbiosTable&) = delete;
  SmbiosTable& operator=(const SmbiosTable&) = delete;

  std::size_t Count() const { return fSpans.size(); }

  // In table order; `index` is below Count().
  Structure At(std::size_t index) const;

  // Stores structure number `nth`, from 0, among those of `type`. False when there are
  // not so many. Takes the same time in a table of any size.
  bool Find(unsigned char type, std::size_t nth, Structure* found) const;

  WalkEnd End() const { return fEnd; }
  Version StatedVersion() const { return fVersion; }

 private:
  static constexpr std::size_t kTypes = 256;

  struct Span {
    std::size_t offset;
    std::size_t size;
  };

  WalkEnd Walk(std::size_t statedNumber);
  void SortByType();

  std::vector<unsigned char> fBytes;
  std::vector<Span> fSpans;
  // Indexes into fSpans, by type, in table order within a type.
  std::vector<std::uint32_t> fByType;
  // Where each type begins in fByType; the last entry is its end.
  std::array<std::uint32_t, kTypes + 1> fFirstOfType;
  Version fVersion;
  WalkEnd fEnd;
};

}  // namespace smbios

#endif

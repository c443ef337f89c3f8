// One structure of an SMBIOS table, decoded in short: the names are those of DMTF DSP0134. The
// bytes are hostile: a field that is not inside the structure is left out, and a number that stands
// for nothing is shown as a number.

#ifndef QDA_SMBIOSSTRUCTURE_H
#define QDA_SMBIOSSTRUCTURE_H

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace qda {

struct SmbiosField {
  std::string name;
  // Empty: the structure says that it does not say.
  std::optional<std::string> value;
};

struct SmbiosStructure {
  unsigned int type = 0;
  unsigned int length = 0;  // of the formatted area
  std::uint16_t handle = 0;
  std::string name;  // of the type
  // In the order of the standard; empty for types that are not decoded.
  std::vector<SmbiosField> fields;
};

// The SMBIOS version of the table; 0.0 when it is not stated.
struct SmbiosVersion {
  int majorNumber = 0;
  int minorNumber = 0;

  bool IsStated() const { return majorNumber != 0 || minorNumber != 0; }
};

// Decodes a structure as smBiosGetNext delivers it. A table without a version is read as one of the
// latest.
SmbiosStructure DecodeStructure(const unsigned char* bytes, std::size_t size,
                                SmbiosVersion version);

}  // namespace qda

#endif

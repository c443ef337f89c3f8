// The SMBIOS harness as a function, so that the ordinary tests can replay inputs.

#ifndef FUZZ_SMBIOSTABLEFUZZ_H
#define FUZZ_SMBIOSTABLEFUZZ_H

#include <cstddef>
#include <cstdint>

namespace fuzz_smbios {

// Reads `data` as a dump file and as a firmware table, looks at everything that was
// found, and aborts when a promise of the table is broken.
void FuzzOneInput(const std::uint8_t* data, std::size_t size);

}  // namespace fuzz_smbios

#endif

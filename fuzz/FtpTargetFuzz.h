// The harness of transfer targets as a function, so that the ordinary tests can replay inputs.

#ifndef FUZZ_FTPTARGETFUZZ_H
#define FUZZ_FTPTARGETFUZZ_H

#include <cstddef>
#include <cstdint>

namespace fuzz_ftp_target {

// Takes `data` apart as the target of an upload and of a download, and aborts when a promise is
// broken.
void FuzzOneInput(const std::uint8_t* data, std::size_t size);

}  // namespace fuzz_ftp_target

#endif

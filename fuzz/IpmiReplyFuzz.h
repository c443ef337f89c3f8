// The harness of the check of IPMI replies as a function, so that the ordinary tests can replay
// inputs.

#ifndef FUZZ_IPMIREPLYFUZZ_H
#define FUZZ_IPMIREPLYFUZZ_H

#include <cstddef>
#include <cstdint>

namespace fuzz_ipmi {

// Takes `data` as a reply, checks it in every mode, and builds the requests that follow from it.
// Aborts when a promise is broken.
void FuzzOneInput(const std::uint8_t* data, std::size_t size);

}  // namespace fuzz_ipmi

#endif

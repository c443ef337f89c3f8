// The command-line harness as a function, so that the ordinary tests can replay inputs.

#ifndef FUZZ_COMMANDLINEFUZZ_H
#define FUZZ_COMMANDLINEFUZZ_H

#include <cstddef>
#include <cstdint>

namespace fuzz_command_line {

// Takes `data` apart as a command line, writes its words as lines in each way of quoting, takes
// those apart again, and aborts when a promise is broken.
void FuzzOneInput(const std::uint8_t* data, std::size_t size);

}  // namespace fuzz_command_line

#endif

#include "TextFuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz_text::FuzzMof(data, size);
  return 0;
}

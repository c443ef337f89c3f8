// The texts of the value model and of schemas that come from outside, one function a format: each
// throws nothing but TQDAException on its way, and aborts when a promise is broken.

#ifndef FUZZ_TEXTFUZZ_H
#define FUZZ_TEXTFUZZ_H

#include <cstddef>
#include <cstdint>

namespace fuzz_text {

// What is read as a date-time prints, and the print reads back to an equal value and print.
void FuzzDateTime(const std::uint8_t* data, std::size_t size);

// What is read as an object path prints, and the print reads back to an equal path and print.
void FuzzObjectPath(const std::uint8_t* data, std::size_t size);

// What is read as MOF is written, and what is written reads back and is written the same, but for
// the order of classes. What is no MOF tells where. Texts that may include files are passed over.
void FuzzMof(const std::uint8_t* data, std::size_t size);

}  // namespace fuzz_text

#endif

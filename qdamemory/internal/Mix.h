// The steps that the hashes of this library are made of. The results depend on the byte
// order of the machine and are never stored.

#ifndef QDAMEMORY_INTERNAL_MIX_H
#define QDAMEMORY_INTERNAL_MIX_H

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace NZRVQDA20 {

inline std::uint64_t LoadWord(const char* text) {
  std::uint64_t word;
  std::memcpy(&word, text, sizeof(word));
  return word;
}

inline std::uint64_t LoadByte(const char* text) { return static_cast<unsigned char>(*text); }

// All of a text of fewer than eight bytes, some of them twice; for texts of one size the results
// are as equal as the texts.
inline std::uint64_t LoadShort(const char* text, std::size_t size) {
  if (size >= 4) {
    std::uint32_t first;
    std::uint32_t last;
    std::memcpy(&first, text, sizeof(first));
    std::memcpy(&last, text + size - 4, sizeof(last));
    return static_cast<std::uint64_t>(last) << 32 | first;
  }
  return size == 0
             ? 0
             : LoadByte(text) | LoadByte(text + size / 2) << 8 | LoadByte(text + size - 1) << 16;
}

// 2 to the 64th over the golden ratio, odd.
const std::uint64_t kMultiplier = 0x9E3779B97F4A7C15u;

// Takes one more word into a hash.
inline std::uint64_t Mix(std::uint64_t hash, std::uint64_t word) {
  return (((hash << 5) | (hash >> 59)) ^ word) * kMultiplier;
}

// Makes every bit of the result depend on all that went in.
inline std::uint64_t Finish(std::uint64_t hash) {
  hash = (hash ^ hash >> 32) * kMultiplier;
  return hash ^ hash >> 29;
}

}  // namespace NZRVQDA20

#endif

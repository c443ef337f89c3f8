// Random values of every CIM type but references, with the awkward ones among them.

#ifndef TESTS_QDAMEMORY_RANDOMVALUES_H
#define TESTS_QDAMEMORY_RANDOMVALUES_H

#include <cstddef>
#include <random>
#include <string>

#include <tests/qdamemory/MemoryTestSupport.h>

namespace memory_test {

class RandomValues {
 public:
  explicit RandomValues(unsigned int seed) : fRandom(seed) {}

  std::size_t Below(std::size_t count) { return fRandom() % count; }
  bool OneIn(std::size_t count) { return Below(count) == 0; }

  // Not null, and no reference.
  TCIMValue Scalar(Type::ECIMType type);
  // Up to `size` elements, any number for 0, some of them null.
  TCIMValue Array(Type::ECIMType element, unsigned int size);

 private:
  unsigned long long Bits();
  std::string Text();

  std::mt19937 fRandom;
};

}  // namespace memory_test

#endif

#include <qdacore/cim/value/TCIMRoom.h>

#include <cstdlib>
#include <new>

namespace NZRVQDA20 {

namespace {

// The first block is for a few values, so that an instance with few is small.
const std::size_t kFirstSize = 8 + 15 * 16;
const std::size_t kNextSize = 8 + 31 * 16;

}  // namespace

void TCIMRoom::AddBlock() {
  static_assert(sizeof(void**) == kOffset, "places follow the address of the next block");
  const std::size_t size = fBlocks ? kNextSize : kFirstSize;
  void** const block = static_cast<void**>(std::malloc(size));
  if (!block) {
    throw std::bad_alloc();
  }
  *block = fBlocks;
  fBlocks = block;
  fAt = reinterpret_cast<char*>(block) + kOffset;
  fEnd = reinterpret_cast<char*>(block) + size;
}

void TCIMRoom::ReleaseBlocks() {
  while (fBlocks) {
    void** const next = static_cast<void**>(*fBlocks);
    std::free(fBlocks);
    fBlocks = next;
  }
}

}  // namespace NZRVQDA20

// TCIMRoom: memory for small objects that live and end together, such as the bodies of the values
// of one instance: a few larger blocks instead of a small one for each.
//
// Owner: whoever makes it. It must outlive everything that was made in it. What a value leaves
// behind when it is set anew stays in use until the room ends.
// Threads: no lock; one thread at a time may take.

#ifndef QDACORE_CIM_VALUE_TCIMROOM_H
#define QDACORE_CIM_VALUE_TCIMROOM_H

#include <cstddef>
#include <cstdint>

#include <qdacore/Export.h>

namespace NZRVQDA20 {

class TCIMRoom {
 public:
  TCIMRoom() : fAt(nullptr), fEnd(nullptr), fBlocks(nullptr) {}
  ~TCIMRoom() {
    if (fBlocks) {
      ReleaseBlocks();
    }
  }

  // Memory of `size` bytes, at most kMost, for what needs no more than the alignment of a pointer.
  // Throws std::bad_alloc.
  void* Take(std::size_t size) {
    const std::size_t rounded = (size + kStep - 1) / kStep * kStep;
    if (static_cast<std::size_t>(fEnd - fAt) < rounded) {
      AddBlock();
    }
    void* const place = fAt;
    fAt += rounded;
    return place;
  }

  // Whether a body stands in a room and not in a block of its own. The address tells: blocks of
  // the C runtime's heap begin at multiples of 16, places in a room eight bytes behind one.
  static bool IsIn(const void* body) {
    return (reinterpret_cast<std::uintptr_t>(body) & kOffset) != 0;
  }

  static const std::size_t kMost = 64;

 private:
  static const std::size_t kStep = 16;
  static const std::size_t kOffset = 8;

  TCIMRoom(const TCIMRoom&);
  TCIMRoom& operator=(const TCIMRoom&);

  QDACORE_EXPORT void AddBlock();
  QDACORE_EXPORT void ReleaseBlocks();

  char* fAt;
  char* fEnd;
  // Each begins with the address of the next.
  void** fBlocks;
};

}  // namespace NZRVQDA20

#endif

// TValueSlots: places for a fixed number of values, each of which comes into being when it is
// first asked for. Values never move. One allocation, and a few more for the bodies of all scalars.

#ifndef QDAMEMORY_INTERNAL_TVALUESLOTS_H
#define QDAMEMORY_INTERNAL_TVALUESLOTS_H

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <new>

#include <qdacore/cim/value/TCIMRoom.h>
#include <qdacore/cim/value/TCIMValue.h>

namespace NZRVQDA20 {

class TValueSlots {
 public:
  // What follows the values in the block is one byte each: 1 when the value is there.
  explicit TValueSlots(std::uint32_t count)
      : fValues(static_cast<TCIMValue*>(
            ::operator new(static_cast<std::size_t>(count) * (sizeof(TCIMValue) + 1)))),
        fIsMade(reinterpret_cast<unsigned char*>(fValues + count)),
        fCount(count) {
    std::memset(fIsMade, 0, count);
  }

  ~TValueSlots() {
    for (std::uint32_t slot = 0; slot < fCount; ++slot) {
      if (fIsMade[slot] != 0) {
        fValues[slot].~TCIMValue();
      }
    }
    ::operator delete(fValues);
  }

  bool IsMade(std::uint32_t slot) const { return fIsMade[slot] != 0; }
  const TCIMValue& At(std::uint32_t slot) const { return fValues[slot]; }

  // The value in `slot`; a new one is a null of that type.
  TCIMValue& Make(std::uint32_t slot, TCIMValue::TCIMType type) {
    if (fIsMade[slot] == 0) {
      new (fValues + slot) TCIMValue(type, 0);
      fIsMade[slot] = 1;
    }
    return fValues[slot];
  }

  // Makes the value in `slot`, which is not there yet, a copy.
  void MakeCopy(std::uint32_t slot, const TCIMValue& value) {
    new (fValues + slot) TCIMValue(value, fRoom);
    fIsMade[slot] = 1;
  }

 private:
  TValueSlots(const TValueSlots&);
  TValueSlots& operator=(const TValueSlots&);

  TCIMValue* fValues;
  unsigned char* fIsMade;
  std::uint32_t fCount;
  // The values are ended before it.
  TCIMRoom fRoom;
};

}  // namespace NZRVQDA20

#endif

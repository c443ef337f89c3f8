// TSharedValue: a value that is kept once however many qualifiers have it. Schemas are mostly text
// (descriptions, value maps), the same in every namespace that has the schema, so equal values of
// all namespaces of a process stand in one place, for as long as anything has them. They never
// change there. Values that can refer to classes, or that do not compare exactly, are not shared.
//
// Threads: making and releasing are guarded, so that namespaces stay independent of each other;
// reading needs no guard.

#ifndef QDAMEMORY_INTERNAL_TSHAREDVALUE_H
#define QDAMEMORY_INTERNAL_TSHAREDVALUE_H

#include <cstddef>
#include <cstdint>

#include <qdacore/cim/value/TCIMValue.h>

namespace NZRVQDA20 {

class TSharedValue {
 public:
  // As by StoreValue, which tells what it throws.
  explicit TSharedValue(const TCIMValue& value);
  ~TSharedValue();

  // Valid as long as this.
  const TCIMValue& Get() const { return fEntry->value; }

  // See StoredValue.h.
  void Release();

  // How many values are shared now, in the whole process.
  static std::size_t Count();

 private:
  friend class TSharedValuePool;

  struct TEntry {
    // In the chains of the pool's tables.
    TEntry* nextByContent;
    TEntry* nextByAddress;
    std::uint64_t hash;
    std::size_t holders;
    bool isShared;
    TCIMValue value;
  };

  TSharedValue(const TSharedValue&);
  TSharedValue& operator=(const TSharedValue&);

  TEntry* fEntry;
};

}  // namespace NZRVQDA20

#endif

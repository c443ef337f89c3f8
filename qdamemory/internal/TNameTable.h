// TNameTable: elements in order of creation, found by CIM name. T has
// `const std::string& Name() const`. The table owns nothing; its positions never change.
//
// Most tables are small, so a search runs over the hashes; only a large table gets buckets.

#ifndef QDAMEMORY_INTERNAL_TNAMETABLE_H
#define QDAMEMORY_INTERNAL_TNAMETABLE_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include <qdamemory/internal/CIMName.h>

namespace NZRVQDA20 {

template <class T>
class TNameTable {
 public:
  std::size_t Size() const { return fEntries.size(); }
  bool Empty() const { return fEntries.empty(); }
  T* At(std::size_t position) const { return fEntries[position].item; }

  // The position of `name`, or kNone. `hash` is HashCIMName(name).
  std::size_t Position(const std::string& name, std::uint32_t hash) const {
    if (fBuckets.empty()) {
      for (std::size_t at = 0; at < fEntries.size(); ++at) {
        if (Matches(at, name, hash)) {
          return at;
        }
      }
      return kNone;
    }
    const std::size_t mask = fBuckets.size() - 1;
    for (std::size_t bucket = hash & mask; fBuckets[bucket] != 0; bucket = (bucket + 1) & mask) {
      if (Matches(fBuckets[bucket] - 1, name, hash)) {
        return fBuckets[bucket] - 1;
      }
    }
    return kNone;
  }

  // The element, or null.
  T* Find(const std::string& name, std::uint32_t hash) const {
    const std::size_t position = Position(name, hash);
    return position == kNone ? 0 : fEntries[position].item;
  }

  // `item` must have a name that is not in the table. Nothing changes when this throws.
  void Add(T* item, std::uint32_t hash) {
    if (fEntries.size() == fEntries.capacity()) {
      fEntries.reserve(fEntries.empty() ? kFirstCapacity : fEntries.size() * 2);
    }
    if (fEntries.size() >= kSmall && (fEntries.size() + 1) * 2 > fBuckets.size()) {
      Rebuild((fEntries.size() + 1) * 4);
    }
    fEntries.push_back(TEntry{item, hash});
    if (!fBuckets.empty()) {
      Place(fEntries.size() - 1);
    }
  }

  // Puts another element of the same name at `position`.
  void Replace(std::size_t position, T* item) { fEntries[position].item = item; }

  // Gives back what was reserved for growth.
  void Shrink() { fEntries.shrink_to_fit(); }

  static const std::size_t kNone = static_cast<std::size_t>(-1);

 private:
  struct TEntry {
    T* item;
    std::uint32_t hash;
  };

  static const std::size_t kFirstCapacity = 4;
  static const std::size_t kSmall = 24;

  bool Matches(std::size_t at, const std::string& name, std::uint32_t hash) const {
    return fEntries[at].hash == hash && EqualCIMNames(fEntries[at].item->Name(), name);
  }

  void Rebuild(std::size_t least) {
    std::size_t count = 1;
    while (count < least) {
      count *= 2;
    }
    std::vector<std::uint32_t>(count, 0).swap(fBuckets);
    for (std::size_t at = 0; at < fEntries.size(); ++at) {
      Place(at);
    }
  }

  void Place(std::size_t position) {
    const std::size_t mask = fBuckets.size() - 1;
    std::size_t bucket = fEntries[position].hash & mask;
    while (fBuckets[bucket] != 0) {
      bucket = (bucket + 1) & mask;
    }
    fBuckets[bucket] = static_cast<std::uint32_t>(position + 1);
  }

  std::vector<TEntry> fEntries;
  // Position + 1, 0 for free; the count is a power of two.
  std::vector<std::uint32_t> fBuckets;
};

}  // namespace NZRVQDA20

#endif

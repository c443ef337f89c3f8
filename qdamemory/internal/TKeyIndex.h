// TKeyIndex: the keys of one class tree and the published instances by their key values. It
// belongs to the class that completes the set of keys; the subclasses that add none share it.
//
// Open addressing over stored hashes, so that growing touches no instance. The key values are
// not stored twice: a hit is confirmed with the values of the instance itself.

#ifndef QDAMEMORY_INTERNAL_TKEYINDEX_H
#define QDAMEMORY_INTERNAL_TKEYINDEX_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace NZRVQDA20 {

class TMemoryInstance;

class TKeyIndex {
 public:
  // `slots`: the slots of the key properties, at least one, in the order of the key text.
  explicit TKeyIndex(const std::vector<std::uint32_t>& slots);

  const std::vector<std::uint32_t>& Slots() const { return fSlots; }

  // The key text of `instance`; false when one of its keys is null.
  bool TextOf(const TMemoryInstance& instance, std::string& text) const;

  // The instance with that key text, or null.
  TMemoryInstance* Find(const std::string& text) const;

  // Makes room for one more, so that the next Insert cannot fail.
  void Reserve();
  // `text` is the key text of `instance` and not in the index.
  void Insert(const std::string& text, TMemoryInstance* instance);

  // Forgets all instances.
  void Clear();

 private:
  struct TEntry {
    std::uint64_t hash;
    // Null where the place is free.
    TMemoryInstance* instance;
  };

  void Place(const TEntry& entry);

  std::vector<std::uint32_t> fSlots;
  // The count is a power of two, or 0.
  std::vector<TEntry> fEntries;
  std::size_t fUsed;
};

}  // namespace NZRVQDA20

#endif

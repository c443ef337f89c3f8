#include <qdamemory/internal/TKeyIndex.h>

#include <qdamemory/internal/KeyText.h>
#include <qdamemory/internal/TMemoryInstance.h>

namespace NZRVQDA20 {

namespace {

const std::size_t kFirstCount = 16;

}  // namespace

TKeyIndex::TKeyIndex(const std::vector<std::uint32_t>& slots) : fSlots(slots), fUsed(0) {}

bool TKeyIndex::TextOf(const TMemoryInstance& instance, std::string& text) const {
  for (std::size_t at = 0; at < fSlots.size(); ++at) {
    const TCIMValue& value = instance.ValueAt(fSlots[at]);
    if (value.IsNull()) {
      return false;
    }
    AppendKeyText(text, value);
  }
  return true;
}

TMemoryInstance* TKeyIndex::Find(const std::string& text) const {
  if (fEntries.empty()) {
    return 0;
  }
  const std::uint64_t hash = HashKeyText(text);
  const std::size_t mask = fEntries.size() - 1;
  std::string found;
  for (std::size_t at = hash & mask; fEntries[at].instance != 0; at = (at + 1) & mask) {
    if (fEntries[at].hash == hash) {
      found.clear();
      if (TextOf(*fEntries[at].instance, found) && found == text) {
        return fEntries[at].instance;
      }
    }
  }
  return 0;
}

void TKeyIndex::Reserve() {
  // At most three quarters full.
  if ((fUsed + 1) * 4 <= fEntries.size() * 3) {
    return;
  }
  const TEntry none = {0, 0};
  std::vector<TEntry> old(fEntries.empty() ? kFirstCount : fEntries.size() * 2, none);
  old.swap(fEntries);
  for (std::size_t at = 0; at < old.size(); ++at) {
    if (old[at].instance != 0) {
      Place(old[at]);
    }
  }
}

void TKeyIndex::Insert(const std::string& text, TMemoryInstance* instance) {
  const TEntry entry = {HashKeyText(text), instance};
  Place(entry);
  ++fUsed;
}

void TKeyIndex::Clear() {
  std::vector<TEntry>().swap(fEntries);
  fUsed = 0;
}

void TKeyIndex::Place(const TEntry& entry) {
  const std::size_t mask = fEntries.size() - 1;
  std::size_t at = entry.hash & mask;
  while (fEntries[at].instance != 0) {
    at = (at + 1) & mask;
  }
  fEntries[at] = entry;
}

}  // namespace NZRVQDA20

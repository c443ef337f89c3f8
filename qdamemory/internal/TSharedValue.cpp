#include <qdamemory/internal/TSharedValue.h>

#include <memory>
#include <mutex>
#include <vector>

#include <qdamemory/internal/StoredValue.h>
#include <qdamemory/internal/ValueContent.h>

namespace NZRVQDA20 {

// A table of chains. Its lock is held for a look and a link, never while a value is copied.
class TSharedValuePool {
 public:
  typedef TSharedValue::TEntry TEntry;

  TSharedValuePool() : fBuckets(1024), fSize(0) {}

  // The entry of equal content with one more holder, or null.
  TEntry* Hold(const TCIMValue& value, std::uint64_t hash) {
    const std::lock_guard<std::mutex> guard(fLock);
    return HoldLocked(value, hash);
  }

  // Puts `entry` into the pool; unless another thread was quicker, whose entry is held instead.
  TEntry* Add(std::unique_ptr<TEntry>& entry) {
    const std::lock_guard<std::mutex> guard(fLock);
    if (TEntry* other = HoldLocked(entry->value, entry->hash)) {
      return other;
    }
    if (fSize == fBuckets.size()) {
      Grow();
    }
    TEntry*& bucket = Bucket(entry->hash);
    entry->next = bucket;
    ++fSize;
    return bucket = entry.release();
  }

  void Drop(TEntry* entry) {
    std::unique_ptr<TEntry> last;
    const std::lock_guard<std::mutex> guard(fLock);
    if (--entry->holders != 0) {
      return;
    }
    TEntry** link = &Bucket(entry->hash);
    while (*link != entry) {
      link = &(*link)->next;
    }
    *link = entry->next;
    --fSize;
    last.reset(entry);
  }

  std::size_t Size() {
    const std::lock_guard<std::mutex> guard(fLock);
    return fSize;
  }

 private:
  TEntry*& Bucket(std::uint64_t hash) { return fBuckets[hash & (fBuckets.size() - 1)]; }

  TEntry* HoldLocked(const TCIMValue& value, std::uint64_t hash) {
    for (TEntry* entry = Bucket(hash); entry != 0; entry = entry->next) {
      if (entry->hash == hash && IsSameContent(entry->value, value)) {
        ++entry->holders;
        return entry;
      }
    }
    return 0;
  }

  void Grow() {
    std::vector<TEntry*> old(fBuckets.size() * 2);
    old.swap(fBuckets);
    for (TEntry* entry : old) {
      while (entry != 0) {
        TEntry* const next = entry->next;
        TEntry*& bucket = Bucket(entry->hash);
        entry->next = bucket;
        bucket = entry;
        entry = next;
      }
    }
  }

  std::mutex fLock;
  std::vector<TEntry*> fBuckets;
  std::size_t fSize;
};

namespace {

// Never deleted: a host's own static data may hold namespaces until the very end.
TSharedValuePool& Pool() {
  static TSharedValuePool* const pool = new TSharedValuePool();
  return *pool;
}

}  // namespace

TSharedValue::TSharedValue(const TCIMValue& value) : fEntry(0) {
  const bool isShared = HasExactContent(value);
  const std::uint64_t hash = isShared ? HashContent(value) : 0;
  if (isShared && (fEntry = Pool().Hold(value, hash)) != 0) {
    return;
  }
  std::unique_ptr<TEntry> entry(new TEntry());
  entry->hash = hash;
  entry->holders = 1;
  entry->isShared = isShared;
  StoreValue(entry->value, value);
  fEntry = isShared ? Pool().Add(entry) : entry.release();
}

TSharedValue::~TSharedValue() {
  if (fEntry->isShared) {
    Pool().Drop(fEntry);
  } else {
    delete fEntry;
  }
}

void TSharedValue::Release() {
  // What is shared refers to nothing.
  if (!fEntry->isShared) {
    ReleaseReferences(fEntry->value);
  }
}

std::size_t TSharedValue::Count() { return Pool().Size(); }

}  // namespace NZRVQDA20

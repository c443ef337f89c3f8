#include <qdamemory/internal/TSharedValue.h>

#include <memory>
#include <mutex>
#include <vector>

#include <qdamemory/internal/Mix.h>
#include <qdamemory/internal/StoredValue.h>
#include <qdamemory/internal/ValueContent.h>

namespace NZRVQDA20 {

// Two tables of chains, by content and by where the value stands. Its lock is held for a look and a
// link, never while a value is copied.
class TSharedValuePool {
 public:
  typedef TSharedValue::TEntry TEntry;

  TSharedValuePool() : fByContent(1024), fByAddress(1024), fSize(0) {}

  // The entry of which `value` is the value, with one more holder; null when it is none of the
  // pool's. What is copied between namespaces mostly is, and then nobody needs to read it.
  TEntry* HoldOwn(const TCIMValue& value) {
    const std::lock_guard<std::mutex> guard(fLock);
    TEntry* entry = AddressBucket(value);
    while (entry != 0 && &entry->value != &value) {
      entry = entry->nextByAddress;
    }
    if (entry != 0) {
      ++entry->holders;
    }
    return entry;
  }

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
    if (fSize == fByContent.size()) {
      Grow();
    }
    ++fSize;
    Link(entry.get());
    return entry.release();
  }

  void Drop(TEntry* entry) {
    std::unique_ptr<TEntry> last;
    const std::lock_guard<std::mutex> guard(fLock);
    if (--entry->holders != 0) {
      return;
    }
    Unlink(ContentBucket(entry->hash), &TEntry::nextByContent, entry);
    Unlink(AddressBucket(entry->value), &TEntry::nextByAddress, entry);
    --fSize;
    last.reset(entry);
  }

  std::size_t Size() {
    const std::lock_guard<std::mutex> guard(fLock);
    return fSize;
  }

 private:
  typedef std::vector<TEntry*> TBuckets;

  TEntry*& ContentBucket(std::uint64_t hash) { return fByContent[hash & (fByContent.size() - 1)]; }
  TEntry*& AddressBucket(const TCIMValue& value) {
    const std::uint64_t hash = Finish(reinterpret_cast<std::uintptr_t>(&value));
    return fByAddress[hash & (fByAddress.size() - 1)];
  }

  TEntry* HoldLocked(const TCIMValue& value, std::uint64_t hash) {
    for (TEntry* entry = ContentBucket(hash); entry != 0; entry = entry->nextByContent) {
      if (entry->hash == hash && IsSameContent(entry->value, value)) {
        ++entry->holders;
        return entry;
      }
    }
    return 0;
  }

  void Link(TEntry* entry) {
    TEntry*& alike = ContentBucket(entry->hash);
    entry->nextByContent = alike;
    alike = entry;
    TEntry*& there = AddressBucket(entry->value);
    entry->nextByAddress = there;
    there = entry;
  }

  static void Unlink(TEntry*& bucket, TEntry* TEntry::*next, TEntry* entry) {
    TEntry** link = &bucket;
    while (*link != entry) {
      link = &((*link)->*next);
    }
    *link = entry->*next;
  }

  void Grow() {
    TBuckets old(fByContent.size() * 2);
    TBuckets(old.size()).swap(fByAddress);
    old.swap(fByContent);
    for (TEntry* entry : old) {
      while (entry != 0) {
        TEntry* const next = entry->nextByContent;
        Link(entry);
        entry = next;
      }
    }
  }

  std::mutex fLock;
  TBuckets fByContent;
  TBuckets fByAddress;
  std::size_t fSize;
};

namespace {

// Never deleted: a host's own static data may hold namespaces until the very end.
TSharedValuePool& Pool() {
  static TSharedValuePool* const pool = new TSharedValuePool();
  return *pool;
}

}  // namespace

TSharedValue::TSharedValue(const TCIMValue& value) : fEntry(Pool().HoldOwn(value)) {
  if (fEntry != 0) {
    return;
  }
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

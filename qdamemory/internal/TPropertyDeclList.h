// TPropertyDeclList: the property declarations that a class has itself, in order of creation,
// owned, and found by name. Declarations come in great numbers and few a class, so they stand in
// small blocks with their hashes in front; only a class with many gets a table over them.
// A declaration never moves.

#ifndef QDAMEMORY_INTERNAL_TPROPERTYDECLLIST_H
#define QDAMEMORY_INTERNAL_TPROPERTYDECLLIST_H

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

#include <qdamemory/internal/TMemoryPropertyDecl.h>
#include <qdamemory/internal/TNameTable.h>

namespace NZRVQDA20 {

class TPropertyDeclList {
 public:
  TPropertyDeclList() : fFirst(0), fLast(0), fSize(0), fSeen(0) {}
  ~TPropertyDeclList();

  std::uint32_t Size() const { return fSize; }
  TMemoryPropertyDecl* At(std::uint32_t position) const;

  // Calls `visit` with each; it must not add any.
  template <class TVisit>
  void ForEach(TVisit visit) const {
    std::uint32_t left = fSize;
    for (TBlock* block = fFirst; block != 0; block = block->next) {
      for (std::uint32_t place = 0; place < kBlockSize && left != 0; ++place, --left) {
        visit(*block->At(place));
      }
    }
  }

  // Null when there is none. `hash` is HashCIMName(name).
  TMemoryPropertyDecl* Find(const std::string& name, std::uint32_t hash) const;

  // Makes a declaration (see TMemoryPropertyDecl) of a name that is not in the list. Nothing
  // changes when this throws.
  TMemoryPropertyDecl* Add(TMemoryClass& cls, const std::string& name, std::uint32_t hash,
                           const TCIMValue& defaultValue, const TMemoryPropertyDecl* overridden,
                           std::uint32_t slot);

 private:
  static const std::uint32_t kBlockSize = 4;
  static const std::uint32_t kLarge = 32;

  struct TBlock {
    TBlock() : next(0) {}

    TMemoryPropertyDecl* At(std::uint32_t place) {
      return reinterpret_cast<TMemoryPropertyDecl*>(storage) + place;
    }

    TBlock* next;
    std::uint32_t hashes[kBlockSize];
    // Raw, because the last block is only partly in use.
    alignas(TMemoryPropertyDecl) unsigned char storage[kBlockSize * sizeof(TMemoryPropertyDecl)];
  };

  TPropertyDeclList(const TPropertyDeclList&);
  TPropertyDeclList& operator=(const TPropertyDeclList&);

  void BuildTable();

  // One bit of 64, by the hash.
  static std::uint64_t SeenBit(std::uint32_t hash) { return std::uint64_t(1) << (hash & 63); }

  TBlock* fFirst;
  TBlock* fLast;
  std::uint32_t fSize;
  // The bits of all in the list. Most names that are asked for are new, and most of those fail
  // here.
  std::uint64_t fSeen;
  // Once there are more than kLarge, which is a multiple of kBlockSize.
  std::unique_ptr<TNameTable<TMemoryPropertyDecl> > fTable;
};

}  // namespace NZRVQDA20

#endif

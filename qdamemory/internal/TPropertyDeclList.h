// TPropertyDeclList: the property declarations that a class has itself, in order of creation,
// owned, and found by name. Declarations come in great numbers and few a class, so they stand in
// blocks; only a class with many gets a table over them. A declaration never moves.

#ifndef QDAMEMORY_INTERNAL_TPROPERTYDECLLIST_H
#define QDAMEMORY_INTERNAL_TPROPERTYDECLLIST_H

#include <cstddef>
#include <cstdint>
#include <memory>
#include <new>
#include <string>

#include <qdamemory/internal/TMemoryPropertyDecl.h>
#include <qdamemory/internal/TNameTable.h>

namespace NZRVQDA20 {

class TPropertyDeclList {
 public:
  TPropertyDeclList() : fFirst(0), fLast(0), fNext(0), fEnd(0), fSize(0), fSeen(0) {}
  ~TPropertyDeclList();

  std::uint32_t Size() const { return fSize; }
  TMemoryPropertyDecl* At(std::uint32_t position) const;

  // Calls `visit` with each; it must not add any.
  template <class TVisit>
  void ForEach(TVisit visit) const {
    for (TBlock* block = fFirst; block != 0; block = block->next) {
      TMemoryPropertyDecl* const end = block->next == 0 ? fNext : block->End();
      for (TMemoryPropertyDecl* decl = block->Begin(); decl != end; ++decl) {
        visit(*decl);
      }
    }
  }

  // Null when there is none. `hash` is HashCIMName(name).
  TMemoryPropertyDecl* Find(const std::string& name, std::uint32_t hash) const {
    return (fSeen & SeenBits(hash)) == SeenBits(hash) ? Search(name, hash) : 0;
  }

  // Makes a declaration (see TMemoryPropertyDecl) of a name that is not in the list. Nothing
  // changes when this throws.
  TMemoryPropertyDecl* Add(TMemoryClass& cls, const std::string& name, std::uint32_t hash,
                           const TCIMValue& defaultValue, const TMemoryPropertyDecl* overridden,
                           std::uint32_t slot) {
    if (fNext == fEnd) {
      MakeRoom();
    }
    TMemoryPropertyDecl* const decl =
        new (fNext) TMemoryPropertyDecl(cls, name, hash, defaultValue, overridden, slot);
    if (fTable) {
      AddToTable(decl);
    }
    ++fNext;
    ++fSize;
    fSeen |= SeenBits(hash);
    return decl;
  }

 private:
  // A block stays below what an allocator takes for large.
  static const std::uint32_t kBlockSize = 10;
  static const std::uint32_t kLarge = 32;

  // In front of its declarations.
  struct TBlock {
    TBlock() : next(0) {}

    TMemoryPropertyDecl* Begin() { return reinterpret_cast<TMemoryPropertyDecl*>(this + 1); }
    TMemoryPropertyDecl* End() { return Begin() + kBlockSize; }

    TBlock* next;
  };
  static_assert(sizeof(TBlock) % alignof(TMemoryPropertyDecl) == 0, "declarations follow a block");

  TPropertyDeclList(const TPropertyDeclList&);
  TPropertyDeclList& operator=(const TPropertyDeclList&);

  TMemoryPropertyDecl* Search(const std::string& name, std::uint32_t hash) const;
  void MakeRoom();
  void AddToTable(TMemoryPropertyDecl* decl);

  // Two bits of 64, by the hash.
  static std::uint64_t SeenBits(std::uint32_t hash) {
    return std::uint64_t(1) << (hash & 63) | std::uint64_t(1) << (hash >> 6 & 63);
  }

  TBlock* fFirst;
  TBlock* fLast;
  // The place for the next one in the last block, and where that ends.
  TMemoryPropertyDecl* fNext;
  TMemoryPropertyDecl* fEnd;
  std::uint32_t fSize;
  // The bits of all in the list. Most names that are asked for are new, and most of those fail
  // here.
  std::uint64_t fSeen;
  // Once a block is full and there are kLarge or more.
  std::unique_ptr<TNameTable<TMemoryPropertyDecl> > fTable;
};

}  // namespace NZRVQDA20

#endif

#include <qdamemory/internal/TPropertyDeclList.h>

#include <new>
#include <utility>

namespace NZRVQDA20 {

TPropertyDeclList::~TPropertyDeclList() {
  ForEach([](TMemoryPropertyDecl& decl) { decl.~TMemoryPropertyDecl(); });
  while (fFirst != 0) {
    TBlock* next = fFirst->next;
    delete fFirst;
    fFirst = next;
  }
}

TMemoryPropertyDecl* TPropertyDeclList::At(std::uint32_t position) const {
  if (fTable) {
    return fTable->At(position);
  }
  TBlock* block = fFirst;
  for (; position >= kBlockSize; position -= kBlockSize) {
    block = block->next;
  }
  return block->At(position);
}

TMemoryPropertyDecl* TPropertyDeclList::Find(const std::string& name, std::uint32_t hash) const {
  if ((fSeen & SeenBit(hash)) == 0) {
    return 0;
  }
  if (fTable) {
    return fTable->Find(name, hash);
  }
  std::uint32_t left = fSize;
  for (TBlock* block = fFirst; block != 0; block = block->next) {
    for (std::uint32_t place = 0; place < kBlockSize && left != 0; ++place, --left) {
      if (block->hashes[place] == hash && EqualCIMNames(block->At(place)->Name(), name)) {
        return block->At(place);
      }
    }
  }
  return 0;
}

TMemoryPropertyDecl* TPropertyDeclList::Add(TMemoryClass& cls, const std::string& name,
                                            std::uint32_t hash, const TCIMValue& defaultValue,
                                            const TMemoryPropertyDecl* overridden,
                                            std::uint32_t slot) {
  if (fSize == kLarge) {
    BuildTable();
  }
  const std::uint32_t place = fSize % kBlockSize;
  std::unique_ptr<TBlock> added(place == 0 ? new TBlock() : 0);
  TBlock* block = place == 0 ? added.get() : fLast;
  TMemoryPropertyDecl* decl =
      new (block->At(place)) TMemoryPropertyDecl(cls, name, defaultValue, overridden, slot);
  if (fTable) {
    try {
      fTable->Add(decl, hash);
    } catch (...) {
      decl->~TMemoryPropertyDecl();
      throw;
    }
  }
  block->hashes[place] = hash;
  if (added) {
    (fLast == 0 ? fFirst : fLast->next) = block;
    fLast = added.release();
  }
  ++fSize;
  fSeen |= SeenBit(hash);
  return decl;
}

void TPropertyDeclList::BuildTable() {
  std::unique_ptr<TNameTable<TMemoryPropertyDecl> > table(new TNameTable<TMemoryPropertyDecl>());
  for (TBlock* block = fFirst; block != 0; block = block->next) {
    for (std::uint32_t place = 0; place < kBlockSize; ++place) {
      table->Add(block->At(place), block->hashes[place]);
    }
  }
  fTable = std::move(table);
}

}  // namespace NZRVQDA20

#include <qdamemory/internal/TPropertyDeclList.h>

#include <utility>

namespace NZRVQDA20 {

TPropertyDeclList::~TPropertyDeclList() {
  ForEach([](TMemoryPropertyDecl& decl) { decl.~TMemoryPropertyDecl(); });
  while (fFirst != 0) {
    TBlock* next = fFirst->next;
    ::operator delete(fFirst);
    fFirst = next;
  }
}

TMemoryPropertyDecl* TPropertyDeclList::At(std::uint32_t position) const {
  if (fTable) {
    return fTable->At(position);
  }
  TBlock* block = fFirst;
  for (; position >= kBlockSize; block = block->next) {
    position -= kBlockSize;
  }
  return block->Begin() + position;
}

TMemoryPropertyDecl* TPropertyDeclList::Search(const std::string& name, std::uint32_t hash) const {
  if (fTable) {
    return fTable->Find(name, hash);
  }
  TMemoryPropertyDecl* found = 0;
  ForEach([&](TMemoryPropertyDecl& decl) {
    if (decl.Hash() == hash && EqualCIMNames(decl.Name(), name)) {
      found = &decl;
    }
  });
  return found;
}

// An empty block at the end, and a table that is made too early, are no harm to anything.
void TPropertyDeclList::MakeRoom() {
  if (fSize >= kLarge && !fTable) {
    std::unique_ptr<TNameTable<TMemoryPropertyDecl> > table(new TNameTable<TMemoryPropertyDecl>());
    ForEach([&table](TMemoryPropertyDecl& decl) { table->Add(&decl, decl.Hash()); });
    fTable = std::move(table);
  }
  void* const memory = ::operator new(sizeof(TBlock) + kBlockSize * sizeof(TMemoryPropertyDecl));
  fLast = (fLast == 0 ? fFirst : fLast->next) = new (memory) TBlock();
  fNext = fLast->Begin();
  fEnd = fLast->End();
}

void TPropertyDeclList::AddToTable(TMemoryPropertyDecl* decl) {
  try {
    fTable->Add(decl, decl->Hash());
  } catch (...) {
    decl->~TMemoryPropertyDecl();
    throw;
  }
}

}  // namespace NZRVQDA20

#include <qdamemory/internal/TQualifierDeclPool.h>

#include <utility>

#include <qdamemory/internal/Fail.h>

namespace NZRVQDA20 {

TQualifierDeclPool::TQualifierDeclPool() {}

TMemoryQualifierDecl* TQualifierDeclPool::Find(const std::string& name) const {
  return fTable.Find(name, HashCIMName(name));
}

TMemoryQualifierDecl* TQualifierDeclPool::Create(const std::string& name, const TCIMValue& value,
                                                 std::int32_t scope, std::int32_t flavor) {
  const std::uint32_t hash = HashNewCIMName(name);
  if (fTable.Find(name, hash) != 0) {
    Fail(TQDAStatusCode::kQDAStatusAlreadyExists);
  }
  fDecls.push_back(std::unique_ptr<TMemoryQualifierDecl>());
  try {
    fDecls.back().reset(new TMemoryQualifierDecl(this, name, value, scope, flavor));
    fTable.Add(fDecls.back().get(), hash);
  } catch (...) {
    fDecls.pop_back();
    throw;
  }
  return fDecls.back().get();
}

void TQualifierDeclPool::Release() {
  for (std::size_t at = 0; at < fDecls.size(); ++at) {
    fDecls[at]->Release();
  }
}

}  // namespace NZRVQDA20

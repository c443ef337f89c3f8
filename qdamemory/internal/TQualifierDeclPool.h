// TQualifierDeclPool: the qualifier declarations of a namespace. The namespace and each of its
// classes share it, so that a qualifier's declaration lives as long as the qualifier does. What
// is given out shares ownership of the whole pool.

#ifndef QDAMEMORY_INTERNAL_TQUALIFIERDECLPOOL_H
#define QDAMEMORY_INTERNAL_TQUALIFIERDECLPOOL_H

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include <boost/enable_shared_from_this.hpp>
#include <boost/shared_ptr.hpp>

#include <qdamemory/internal/TMemoryQualifierDecl.h>
#include <qdamemory/internal/TNameTable.h>

namespace NZRVQDA20 {

class TQualifierDeclPool : public boost::enable_shared_from_this<TQualifierDeclPool> {
 public:
  TQualifierDeclPool();

  std::size_t Size() const { return fTable.Size(); }
  TMemoryQualifierDecl* At(std::size_t position) const { return fTable.At(position); }

  // Null when there is none.
  TMemoryQualifierDecl* Find(const std::string& name) const;

  // Throws kQDAStatusInvalidCIMName, kQDAStatusAlreadyExists.
  TMemoryQualifierDecl* Create(const std::string& name, const TCIMValue& value, std::int32_t scope,
                               std::int32_t flavor);

  // See ReleaseReferences.
  void Release();

 private:
  TQualifierDeclPool(const TQualifierDeclPool&);
  TQualifierDeclPool& operator=(const TQualifierDeclPool&);

  std::vector<std::unique_ptr<TMemoryQualifierDecl> > fDecls;
  TNameTable<TMemoryQualifierDecl> fTable;
};

}  // namespace NZRVQDA20

#endif

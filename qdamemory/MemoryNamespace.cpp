#include <qdamemory/MemoryNamespace.h>

#include <boost/make_shared.hpp>

#include <qdamemory/internal/TMemoryNamespace.h>

namespace NZRVQDA20 {

boost::shared_ptr<ICIMNamespace> CreateMemoryNamespace(const std::string& name) {
  return boost::make_shared<TMemoryNamespace>(name);
}

std::string GetMemoryNamespaceName(const ICIMNamespace& ns) {
  const TMemoryNamespace* own = dynamic_cast<const TMemoryNamespace*>(&ns);
  return own == 0 ? std::string() : own->Name();
}

}  // namespace NZRVQDA20

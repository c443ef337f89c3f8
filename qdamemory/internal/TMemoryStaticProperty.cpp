#include <qdamemory/internal/TMemoryStaticProperty.h>

#include <qdamemory/internal/TMemoryClass.h>

namespace NZRVQDA20 {

TMemoryStaticProperty::TMemoryStaticProperty(const boost::shared_ptr<const TMemoryClass>& cls,
                                             const TNode* node)
    : fClass(cls), fNode(node) {}

const TCIMValue& TMemoryStaticProperty::GetValue(TContext) const { return fNode->value; }

// Looked up each time: the class may have come to override the declaration since.
boost::shared_ptr<const ICIMPropertyDecl> TMemoryStaticProperty::GetPropertyDecl(TContext) const {
  return fClass->RequireProperty(fNode->name)->Share();
}

std::string TMemoryStaticProperty::ToString() const { return fNode->value.ToString(10); }

}  // namespace NZRVQDA20

#include <qdamemory/internal/TMemoryProperty.h>

#include <qdamemory/internal/TMemoryInstance.h>

namespace NZRVQDA20 {

TMemoryProperty::TMemoryProperty(const boost::shared_ptr<const TMemoryInstance>& instance,
                                 std::uint32_t slot)
    : fInstance(instance), fSlot(slot) {}

const TCIMValue& TMemoryProperty::GetValue(TContext) const { return fInstance->ValueAt(fSlot); }

boost::shared_ptr<const ICIMPropertyDecl> TMemoryProperty::GetPropertyDecl(TContext) const {
  return fInstance->DeclAt(fSlot)->Share();
}

std::string TMemoryProperty::ToString() const { return fInstance->ValueAt(fSlot).ToString(10); }

}  // namespace NZRVQDA20

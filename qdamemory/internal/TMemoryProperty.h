// TMemoryProperty: a property of an instance as it is given out, a live view that keeps the
// instance alive.

#ifndef QDAMEMORY_INTERNAL_TMEMORYPROPERTY_H
#define QDAMEMORY_INTERNAL_TMEMORYPROPERTY_H

#include <cstdint>
#include <string>

#include <boost/shared_ptr.hpp>

#include <qdacore/cim/object/ICIMProperty.h>
#include <qdamemory/internal/Context.h>

namespace NZRVQDA20 {

class TMemoryInstance;

class TMemoryProperty final : public ICIMProperty {
 public:
  TMemoryProperty(const boost::shared_ptr<const TMemoryInstance>& instance, std::uint32_t slot);

  virtual const TCIMValue& GetValue(TContext context) const;
  virtual boost::shared_ptr<const ICIMPropertyDecl> GetPropertyDecl(TContext context) const;
  virtual std::string ToString() const;

 private:
  boost::shared_ptr<const TMemoryInstance> fInstance;
  std::uint32_t fSlot;
};

}  // namespace NZRVQDA20

#endif

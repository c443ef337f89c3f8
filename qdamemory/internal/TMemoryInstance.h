// TMemoryInstance: an instance: its class and one slot for each property that the class has or
// inherits. A slot that was never set reads as the declaration's default. Holds its class.

#ifndef QDAMEMORY_INTERNAL_TMEMORYINSTANCE_H
#define QDAMEMORY_INTERNAL_TMEMORYINSTANCE_H

#include <cstdint>
#include <string>

#include <boost/enable_shared_from_this.hpp>
#include <boost/shared_ptr.hpp>

#include <qdacore/cim/object/ICIMInstance.h>
#include <qdamemory/internal/Context.h>
#include <qdamemory/internal/TMemoryClass.h>
#include <qdamemory/internal/TValueSlots.h>

namespace NZRVQDA20 {

class TMemoryInstance final : public ICIMInstance,
                              public boost::enable_shared_from_this<TMemoryInstance> {
 public:
  explicit TMemoryInstance(const boost::shared_ptr<TMemoryClass>& cls);

  virtual boost::shared_ptr<ICIMClass> GetClass(TContext context) const;
  virtual boost::shared_ptr<ICIMProperty> GetProperty(const std::string& name,
                                                      TContext context) const;
  virtual void SetProperty(const std::string& name, const TCIMValue& value, TContext context);
  virtual void EnumerateProperties(boost::function<bool(boost::shared_ptr<ICIMProperty>)>& visit,
                                   TContext context) const;

  const TMemoryClass& Class() const { return *fClass; }

  const TMemoryPropertyDecl* DeclAt(std::uint32_t slot) const { return fProperties.At(slot); }
  const TCIMValue& ValueAt(std::uint32_t slot) const {
    return fValues.IsMade(slot) ? fValues.At(slot) : DeclAt(slot)->DefaultValue();
  }

  // When the instance was published, counted in its namespace from 1; 0 before that.
  std::uint64_t Serial() const { return fSerial; }
  void SetSerial(std::uint64_t serial) { fSerial = serial; }

 private:
  // Null when there is none.
  const TMemoryPropertyDecl* FindToSet(const std::string& name);

  boost::shared_ptr<TMemoryClass> fClass;
  // The class's own, by slot.
  const TNameTable<TMemoryPropertyDecl>& fProperties;
  TValueSlots fValues;
  // Behind the property that was set last: who fills an instance mostly goes through them in order.
  std::uint32_t fNextSlot;
  std::uint64_t fSerial;
};

}  // namespace NZRVQDA20

#endif

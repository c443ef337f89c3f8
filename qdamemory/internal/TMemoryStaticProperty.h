// TMemoryStaticProperty: a class's static property as it is given out, a live view that keeps
// the class alive; and the node in which the class keeps the value.

#ifndef QDAMEMORY_INTERNAL_TMEMORYSTATICPROPERTY_H
#define QDAMEMORY_INTERNAL_TMEMORYSTATICPROPERTY_H

#include <string>

#include <boost/shared_ptr.hpp>

#include <qdacore/cim/object/ICIMProperty.h>
#include <qdamemory/internal/Context.h>

namespace NZRVQDA20 {

class TMemoryClass;

class TMemoryStaticProperty final : public ICIMProperty {
 public:
  struct TNode {
    // The property's name as it was first given to SetStaticProperty.
    std::string name;
    TCIMValue value;
  };

  TMemoryStaticProperty(const boost::shared_ptr<const TMemoryClass>& cls, const TNode* node);

  virtual const TCIMValue& GetValue(TContext context) const;
  virtual boost::shared_ptr<const ICIMPropertyDecl> GetPropertyDecl(TContext context) const;
  virtual std::string ToString() const;

 private:
  boost::shared_ptr<const TMemoryClass> fClass;
  const TNode* fNode;
};

}  // namespace NZRVQDA20

#endif

// TCIMArrayValueImpl: the body of an array value. It owns copies of its elements and
// gives out the vector itself, which the caller may change. Arrays are equal when their
// elements are, in order; they have no order: < throws kQDAStatusNotImplemented.

#ifndef QDACORE_CIM_VALUE_TCIMARRAYVALUEIMPL_H
#define QDACORE_CIM_VALUE_TCIMARRAYVALUEIMPL_H

#include <vector>

#include <qdacore/cim/value/TCIMValueImpl.h>

namespace NZRVQDA20 {

class QDACORE_EXPORT TCIMArrayValueImpl : public TCIMValueImpl {
 public:
  TCIMArrayValueImpl(const std::vector<TCIMValue>& elements);
  TCIMArrayValueImpl(const TCIMArrayValueImpl& other);
  virtual ~TCIMArrayValueImpl();

  virtual operator std::vector<TCIMValue>&() const;
  virtual std::string ToString(unsigned char base) const;
  virtual bool operator==(const TCIMValue& other) const;
  virtual bool operator<(const TCIMValue& other) const;

 private:
  mutable std::vector<TCIMValue> fValue;
};

}  // namespace NZRVQDA20

#endif

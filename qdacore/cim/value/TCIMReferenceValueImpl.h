// TCIMReferenceValueImpl: the body of a reference value. Its text is the object path;
// it compares by TCIMReference's own operators.

#ifndef QDACORE_CIM_VALUE_TCIMREFERENCEVALUEIMPL_H
#define QDACORE_CIM_VALUE_TCIMREFERENCEVALUEIMPL_H

#include <qdacore/cim/value/TCIMReference.h>
#include <qdacore/cim/value/TCIMValueImpl.h>

namespace NZRVQDA20 {

class QDACORE_EXPORT TCIMReferenceValueImpl : public TCIMValueImpl {
 public:
  TCIMReferenceValueImpl(const TCIMReference& value);
  TCIMReferenceValueImpl(const TCIMReferenceValueImpl& other);
  virtual ~TCIMReferenceValueImpl();

  virtual operator TCIMReference() const;
  virtual std::string ToString(unsigned char base) const;
  virtual bool operator==(const TCIMValue& other) const;
  virtual bool operator<(const TCIMValue& other) const;

 private:
  // The body of a value of this same type, or null.
  static const TCIMReferenceValueImpl* Peer(const TCIMValue& other);

  TCIMReference fValue;
};

}  // namespace NZRVQDA20

#endif

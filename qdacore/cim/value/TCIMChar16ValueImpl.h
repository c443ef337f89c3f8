// TCIMChar16ValueImpl: the body of a char16 value. Text and comparison are those of
// TCIMChar16, with all that is odd about them.

#ifndef QDACORE_CIM_VALUE_TCIMCHAR16VALUEIMPL_H
#define QDACORE_CIM_VALUE_TCIMCHAR16VALUEIMPL_H

#include <qdacore/cim/value/TCIMChar16.h>
#include <qdacore/cim/value/TCIMValueImpl.h>

namespace NZRVQDA20 {

class QDACORE_EXPORT TCIMChar16ValueImpl : public TCIMValueImpl {
 public:
  TCIMChar16ValueImpl(const TCIMChar16& value);
  TCIMChar16ValueImpl(const TCIMChar16ValueImpl& other);
  virtual ~TCIMChar16ValueImpl();

  virtual operator TCIMChar16() const;
  virtual std::string ToString(unsigned char base) const;
  virtual bool operator==(const TCIMValue& other) const;
  virtual bool operator<(const TCIMValue& other) const;

 private:
  // The body of a value of this same type, or null.
  static const TCIMChar16ValueImpl* Peer(const TCIMValue& other);

  TCIMChar16 fValue;
};

}  // namespace NZRVQDA20

#endif

// TCIMDateTimeValueImpl: the body of a datetime value. Text and comparison are those of
// TCIMDateTime and fail as they do.

#ifndef QDACORE_CIM_VALUE_TCIMDATETIMEVALUEIMPL_H
#define QDACORE_CIM_VALUE_TCIMDATETIMEVALUEIMPL_H

#include <qdacore/cim/value/TCIMDateTime.h>
#include <qdacore/cim/value/TCIMValueImpl.h>

namespace NZRVQDA20 {

class QDACORE_EXPORT TCIMDateTimeValueImpl : public TCIMValueImpl {
 public:
  TCIMDateTimeValueImpl(const TCIMDateTime& value);
  TCIMDateTimeValueImpl(const TCIMDateTimeValueImpl& other);
  virtual ~TCIMDateTimeValueImpl();

  virtual operator TCIMDateTime() const;
  virtual std::string ToString(unsigned char base) const;
  virtual bool operator==(const TCIMValue& other) const;
  virtual bool operator<(const TCIMValue& other) const;

 private:
  // The body of a value of this same type, or null.
  static const TCIMDateTimeValueImpl* Peer(const TCIMValue& other);

  TCIMDateTime fValue;
};

}  // namespace NZRVQDA20

#endif

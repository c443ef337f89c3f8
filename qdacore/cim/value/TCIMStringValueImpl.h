// TCIMStringValueImpl: the body of a string value. Its text is the string itself,
// unquoted; order is byte order, and case counts.

#ifndef QDACORE_CIM_VALUE_TCIMSTRINGVALUEIMPL_H
#define QDACORE_CIM_VALUE_TCIMSTRINGVALUEIMPL_H

#include <string>

#include <qdacore/cim/value/TCIMValueImpl.h>

namespace NZRVQDA20 {

class QDACORE_EXPORT TCIMStringValueImpl : public TCIMValueImpl {
 public:
  TCIMStringValueImpl(const std::string& value);
  TCIMStringValueImpl(const char* value);
  TCIMStringValueImpl(const TCIMStringValueImpl& other);
  virtual ~TCIMStringValueImpl();

  virtual operator std::string() const;
  virtual std::string ToString(unsigned char base) const;
  virtual bool operator==(const TCIMValue& other) const;
  virtual bool operator<(const TCIMValue& other) const;

  // The text itself, without a copy. Valid as long as the body.
  const std::string& GetText() const { return fValue; }

 private:
  // The body of a value of this same type, or null.
  static const TCIMStringValueImpl* Peer(const TCIMValue& other);

  std::string fValue;
};

}  // namespace NZRVQDA20

#endif

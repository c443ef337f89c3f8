// TCIMNumericValueImpl: the body of a boolean, integer or real value: the type and, in
// one union of eight bytes, the number. Each conversion serves exactly one type; there
// is no arithmetic conversion of any kind.

#ifndef QDACORE_CIM_VALUE_TCIMNUMERICVALUEIMPL_H
#define QDACORE_CIM_VALUE_TCIMNUMERICVALUEIMPL_H

#include <string>

#include <qdacore/cim/value/TCIMValueImpl.h>

namespace NZRVQDA20 {

class QDACORE_EXPORT TCIMNumericValueImpl : public TCIMValueImpl {
 public:
  TCIMNumericValueImpl(bool value) : fType(TCIMValue::TCIMType::kCIMTypeBoolean) {
    fValue.boolean = value;
  }
  TCIMNumericValueImpl(unsigned char value) : fType(TCIMValue::TCIMType::kCIMTypeUint8) {
    fValue.uint8 = value;
  }
  TCIMNumericValueImpl(signed char value) : fType(TCIMValue::TCIMType::kCIMTypeSint8) {
    fValue.sint8 = value;
  }
  TCIMNumericValueImpl(unsigned short value) : fType(TCIMValue::TCIMType::kCIMTypeUint16) {
    fValue.uint16 = value;
  }
  TCIMNumericValueImpl(short value) : fType(TCIMValue::TCIMType::kCIMTypeSint16) {
    fValue.sint16 = value;
  }
  TCIMNumericValueImpl(unsigned int value) : fType(TCIMValue::TCIMType::kCIMTypeUint32) {
    fValue.uint32 = value;
  }
  TCIMNumericValueImpl(int value) : fType(TCIMValue::TCIMType::kCIMTypeSint32) {
    fValue.sint32 = value;
  }
  TCIMNumericValueImpl(unsigned long long value) : fType(TCIMValue::TCIMType::kCIMTypeUint64) {
    fValue.uint64 = value;
  }
  TCIMNumericValueImpl(long long value) : fType(TCIMValue::TCIMType::kCIMTypeSint64) {
    fValue.sint64 = value;
  }
  TCIMNumericValueImpl(float value) : fType(TCIMValue::TCIMType::kCIMTypeReal32) {
    fValue.real32 = value;
  }
  TCIMNumericValueImpl(double value) : fType(TCIMValue::TCIMType::kCIMTypeReal64) {
    fValue.real64 = value;
  }
  TCIMNumericValueImpl(const TCIMNumericValueImpl& other)
      : TCIMValueImpl(other), fType(other.fType), fValue(other.fValue) {}
  virtual ~TCIMNumericValueImpl() {}

  virtual operator bool() const;
  virtual operator unsigned char() const;
  virtual operator signed char() const;
  virtual operator unsigned short() const;
  virtual operator short() const;
  virtual operator unsigned int() const;
  virtual operator int() const;
  virtual operator unsigned long long() const;
  virtual operator long long() const;
  virtual operator float() const;
  virtual operator double() const;

  // Throws kQDAStatusNotSupported for a base other than 10, 16 and 8 whatever the type,
  // and for signed and real numbers in any base but 10.
  virtual std::string ToString(unsigned char base) const;
  virtual bool operator==(const TCIMValue& other) const;
  virtual bool operator<(const TCIMValue& other) const;

 private:
  // Only the member that the type names is meaningful; all begin at the same byte.
  union UNumber {
    UNumber() : uint64(0) {}

    bool boolean;
    unsigned char uint8;
    signed char sint8;
    unsigned short uint16;
    short sint16;
    unsigned int uint32;
    int sint32;
    unsigned long long uint64;
    long long sint64;
    float real32;
    double real64;
  };

  void Require(TCIMValue::TCIMType::ECIMType type) const;

  TCIMValue::TCIMType fType;
  UNumber fValue;
};

}  // namespace NZRVQDA20

#endif

// TCIMValueImpl: the body of a non-null TCIMValue, one subclass for each kind of
// value. The base makes every conversion fail; a subclass overrides only those that
// fit what it holds. Bodies are reached through handles, which have checked null and
// type before; the checks here are a second line.
//
// The order of the virtual operations is settled: new ones can only follow.

#ifndef QDACORE_CIM_VALUE_TCIMVALUEIMPL_H
#define QDACORE_CIM_VALUE_TCIMVALUEIMPL_H

#include <cstddef>
#include <string>
#include <vector>

#include <qdacore/cim/value/TCIMValue.h>

namespace NZRVQDA20 {

class QDACORE_EXPORT TCIMValueImpl {
 public:
  TCIMValueImpl() {}
  TCIMValueImpl(const TCIMValueImpl&) {}
  virtual ~TCIMValueImpl() {}

  // A body is made and released on the library's side of a module border, whoever makes it, and
  // straight from the C runtime's heap; unless it stands in a TCIMRoom, which then keeps the
  // memory.
  static void* operator new(std::size_t size);
  static void operator delete(void* block);

  // Each throws kQDAStatusTypeMismatch unless overridden.
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
  virtual operator std::string() const;
  virtual operator TCIMChar16() const;
  virtual operator TCIMDateTime() const;
  virtual operator TCIMReference() const;
  virtual operator std::vector<TCIMValue>&() const;

  // See TCIMValue::ToString.
  virtual std::string ToString(unsigned char base) const = 0;
  // A handle of another type, or a null one, is neither equal nor less.
  virtual bool operator==(const TCIMValue& other) const = 0;
  virtual bool operator<(const TCIMValue& other) const = 0;

 protected:
  // What `handle` holds; null for a null value.
  static const TCIMValueImpl* BodyOf(const TCIMValue& handle) { return handle.fBody; }

 private:
  TCIMValueImpl& operator=(const TCIMValueImpl&);
};

}  // namespace NZRVQDA20

#endif

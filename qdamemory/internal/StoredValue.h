// How values are kept. A value that arrives is stored without the instance that a reference
// in it may have resolved and cached: two instances whose references hold each other would
// otherwise never be released.

#ifndef QDAMEMORY_INTERNAL_STOREDVALUE_H
#define QDAMEMORY_INTERNAL_STOREDVALUE_H

#include <string>

#include <boost/shared_ptr.hpp>

#include <qdacore/cim/value/TCIMValue.h>

namespace NZRVQDA20 {

// The type word without the array flag.
inline TCIMValue::TCIMType::ECIMType ElementType(const TCIMValue& value) {
  return static_cast<TCIMValue::TCIMType::ECIMType>(value.GetType() &
                                                    ~TCIMValue::TCIMType::kCIMTypeArrayFlag);
}

// True for references and arrays of references.
inline bool HoldsReferences(const TCIMValue& value) {
  return ElementType(value) == TCIMValue::TCIMType::kCIMTypeReference;
}

// Makes `slot` a copy of `value`, whatever it held before. TCIMValue's own assignment would
// keep the old value where the two compare equal, which char16 values always do, and throws
// where they cannot be compared. `value` may be `slot`, but no part of it.
// Throws kQDAStatusInvalidReference for a reference with no class. When this throws, `slot`
// may have become null.
inline void StoreValue(TCIMValue& slot, const TCIMValue& value);

// Makes a reference, or an array of them, null and lets go of every class that it held. The
// object stays where it is. Never throws. Other values are left alone.
void ReleaseReferences(TCIMValue& slot);

// True when `value` is not null and the boolean true.
bool IsTrue(const TCIMValue& value);

// True when the class or one of its ancestors has that name.
bool IsNamedOrDerived(const boost::shared_ptr<ICIMClass>& cls, const std::string& name);

// The part of StoreValue that is not simple.
void StoreOverValue(TCIMValue& slot, const TCIMValue& value);

inline void StoreValue(TCIMValue& slot, const TCIMValue& value) {
  if (slot.IsNull() && !HoldsReferences(value)) {
    slot.Set(value);
  } else {
    StoreOverValue(slot, value);
  }
}

}  // namespace NZRVQDA20

#endif

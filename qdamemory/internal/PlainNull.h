// The nulls that are the default of nearly every declaration: they tell no more than their types,
// so there is one of each in a process.

#ifndef QDAMEMORY_INTERNAL_PLAINNULL_H
#define QDAMEMORY_INTERNAL_PLAINNULL_H

#include <cstddef>
#include <vector>

#include <qdacore/cim/value/TCIMValue.h>
#include <qdamemory/internal/StoredValue.h>

namespace NZRVQDA20 {

// How many kinds of scalars there are, and as many of arrays.
const std::size_t kNullTypes = 16;

// All of them: scalars by type, then arrays by type.
const std::vector<TCIMValue>* MakePlainNulls();

// The same, made once and valid to the end of the process: a host's own static data may hold
// declarations until then.
inline const TCIMValue* PlainNulls() {
  static const std::vector<TCIMValue>* const nulls = MakePlainNulls();
  return nulls->data();
}

// The one that is the same as `value`, whose type is one that a property may have; null when
// `value` tells more.
inline const TCIMValue* PlainNull(const TCIMValue& value) {
  if (!value.IsNull() || HoldsReferences(value)) {
    return 0;
  }
  const std::size_t type = static_cast<std::size_t>(ElementType(value));
  if (!value.IsArray()) {
    return PlainNulls() + type;
  }
  return value.GetMaxArraySize() == 0 ? PlainNulls() + kNullTypes + type : 0;
}

}  // namespace NZRVQDA20

#endif

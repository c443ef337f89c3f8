// Small bodies straight from the C runtime's heap: half the cost of a small value is its one
// allocation, so no call stands around it.

#ifndef QDACORE_CIM_VALUE_INTERNAL_NEWBODY_H
#define QDACORE_CIM_VALUE_INTERNAL_NEWBODY_H

#include <cstdlib>
#include <new>
#include <type_traits>

namespace NZRVQDA20 {

// For bodies whose constructor cannot throw. A value's body is released through its virtual
// destructor, any other by ReleasePlainBody.
template <class Body, class... Arguments>
Body* NewPlainBody(const Arguments&... arguments) {
  void* const block = std::malloc(sizeof(Body));
  if (!block) {
    throw std::bad_alloc();
  }
  return ::new (block) Body(arguments...);
}

template <class Body>
void ReleasePlainBody(Body* body) {
  static_assert(std::is_trivially_destructible<Body>::value, "nothing to run at the end");
  std::free(body);
}

}  // namespace NZRVQDA20

#endif

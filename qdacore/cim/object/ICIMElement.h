// ICIMElement: what a reference denotes, a class or an instance. Nothing is called
// through it; it is passed on by TCIMReference::GetCIMElement, and its taker casts it.
//
// Of all the CIM object interfaces in this folder:
//
//   * They are implemented by namespace providers, never by the core library. What stands
//     here is the contract between the two.
//   * The order of the virtual operations is settled. A ReservedN operation holds a place
//     in that order (N is the place, counted from the destructor, which is 1) that nothing
//     here calls; it throws kQDAStatusNotImplemented unless a provider gives it a meaning.
//   * Every object is held by boost::shared_ptr. A result that is a reference stays valid
//     as long as the object that gave it.
//   * `context` is a map that the provider reads to decide how to serve a call; its keys
//     are the provider's own, but for TCIMSchemaHelper::kContextName, which names the
//     provider wanted.
//   * An enumeration calls `visit` once for each element, in its own order; true goes on,
//     false stops at once. What `visit` throws passes through to the caller.
//   * Failures are thrown as TQDAException. kQDAStatusNotFound is the one status that
//     callers test for.
//   * Nothing is promised about threads: one caller at a time.

#ifndef QDACORE_CIM_OBJECT_ICIMELEMENT_H
#define QDACORE_CIM_OBJECT_ICIMELEMENT_H

#include <qdacore/Export.h>

namespace NZRVQDA20 {

class QDACORE_EXPORT ICIMElement {
 public:
  virtual ~ICIMElement();
};

}  // namespace NZRVQDA20

#endif

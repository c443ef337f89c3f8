// A namespace's own failure, met while something was made of a MOF text, becomes a Failure with the
// place of what was made.

#ifndef QDAMEMORY_MOF_NAMESPACEFAILURE_H
#define QDAMEMORY_MOF_NAMESPACEFAILURE_H

#include <string>

#include <qdacore/frame/TQDAException.h>
#include <qdamemory/mof/MofFailure.h>

namespace NZRVQDA20 {
namespace mof {

// Calls `make` and returns what it returns.
template <class Call>
auto At(const Place& place, const std::string& what, Call make) -> decltype(make()) {
  try {
    return make();
  } catch (const TQDAException& failure) {
    Fail(place, what + " cannot be made: " + failure.what(), failure.GetStatus().GetStatusCode());
  }
}

}  // namespace mof
}  // namespace NZRVQDA20

#endif

// How reading ends at a problem, inside the library: the caller of Mof.h gets the two halves apart.

#ifndef QDAMEMORY_MOF_MOFFAILURE_H
#define QDAMEMORY_MOF_MOFFAILURE_H

#include <string>

#include <qdacore/frame/TQDAStatusCode.h>
#include <qdamemory/mof/MofSyntax.h>

namespace NZRVQDA20 {
namespace mof {

struct Failure {
  TQDAStatusCode::EQDAStatusCode status;
  Place place;
  std::string reason;
};

[[noreturn]] inline void Fail(
    const Place& place, const std::string& reason,
    TQDAStatusCode::EQDAStatusCode status = TQDAStatusCode::kQDAStatusInvalidFormat) {
  throw Failure{status, place, reason};
}

}  // namespace mof
}  // namespace NZRVQDA20

#endif

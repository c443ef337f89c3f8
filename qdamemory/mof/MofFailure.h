// How reading ends at a problem, inside the library: the caller of Mof.h gets the two halves apart.

#ifndef QDAMEMORY_MOF_MOFFAILURE_H
#define QDAMEMORY_MOF_MOFFAILURE_H

#include <cstddef>
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

// Text of any size as a reason shows it: in quotes, its beginning only where it is long.
inline std::string Quoted(const std::string& text) {
  const std::size_t most = 200;
  return text.size() <= most ? "\"" + text + "\"" : "\"" + text.substr(0, most) + "...\"";
}

}  // namespace mof
}  // namespace NZRVQDA20

#endif

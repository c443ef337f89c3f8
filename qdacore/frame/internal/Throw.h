// The one place where a status becomes an exception.

#ifndef QDACORE_FRAME_INTERNAL_THROW_H
#define QDACORE_FRAME_INTERNAL_THROW_H

#include <qdacore/frame/TQDAException.h>

namespace NZRVQDA20 {

// Kept out of line so that the checks that call it stay small.
[[noreturn]] void Throw(TQDAStatusCode::EQDAStatusCode status);

}  // namespace NZRVQDA20

#endif

// The one place that throws.

#ifndef QDAMEMORY_INTERNAL_FAIL_H
#define QDAMEMORY_INTERNAL_FAIL_H

#include <qdacore/frame/TQDAStatusCode.h>

namespace NZRVQDA20 {

// Throws TQDAException. Out of line, so that the paths that succeed stay short.
[[noreturn]] void Fail(TQDAStatusCode::EQDAStatusCode status);

}  // namespace NZRVQDA20

#endif

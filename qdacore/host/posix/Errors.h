// The one translation of errno into situations, with the numbers that Windows gives them.

#ifndef QDACORE_HOST_POSIX_ERRORS_H
#define QDACORE_HOST_POSIX_ERRORS_H

#include <qdacore/host/Situation.h>

namespace NZRVQDA20 {
namespace host {

// `error` is an errno value, saved at once after the failed call.
Outcome OutcomeOfErrno(int error);

}  // namespace host
}  // namespace NZRVQDA20

#endif

#include <errno.h>

#include <qdacore/host/posix/Errors.h>

namespace NZRVQDA20 {
namespace host {

Outcome OutcomeOfErrno(int error) {
  switch (error) {
    case EEXIST:
      return {Situation::kExists, 183};
    case EACCES:
    case EPERM:
    case EROFS:
      return {Situation::kDenied, 5};
    case ENOMEDIUM:
    case ENXIO:
      return {Situation::kNotReady, 21};
    case ENOENT:
      return {Situation::kNoFile, 2};
    case ENOTDIR:
      return {Situation::kNoPath, 3};
    default:
      // A general failure has this number there.
      return {Situation::kOther, 31};
  }
}

}  // namespace host
}  // namespace NZRVQDA20

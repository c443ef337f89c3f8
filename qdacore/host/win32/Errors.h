// The one translation of Windows' error numbers into situations.

#ifndef QDACORE_HOST_WIN32_ERRORS_H
#define QDACORE_HOST_WIN32_ERRORS_H

#include <windows.h>

#include <qdacore/host/Situation.h>

namespace NZRVQDA20 {
namespace host {

// To be called at once after the failed call.
inline Outcome OutcomeOfLastError() {
  const DWORD error = GetLastError();
  switch (error) {
    case ERROR_FILE_NOT_FOUND:
      return {Situation::kNoFile, error};
    case ERROR_PATH_NOT_FOUND:
      return {Situation::kNoPath, error};
    case ERROR_ACCESS_DENIED:
      return {Situation::kDenied, error};
    case ERROR_NOT_READY:
      return {Situation::kNotReady, error};
    case ERROR_ALREADY_EXISTS:
      return {Situation::kExists, error};
    default:
      return {Situation::kOther, error};
  }
}

}  // namespace host
}  // namespace NZRVQDA20

#endif

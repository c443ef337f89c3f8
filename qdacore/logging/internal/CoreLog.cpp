#include <qdacore/logging/internal/CoreLog.h>

#include <qdacore/frame/TRootObject.h>
#include <qdacore/frame/internal/Throw.h>

namespace NZRVQDA20 {

ILogger* TRootObject::GetCoreLogger() { return fgCoreLogger; }

void LogToCore(ILogger::EQDALogSeverity severity, const std::string& message) {
  if (ILogger* logger = TRootObject::GetCoreLogger()) {
    logger->LogMessage(severity, message);
  }
}

void LogAndThrow(ILogger::EQDALogSeverity severity, const std::string& message,
                 TQDAStatusCode::EQDAStatusCode status) {
  LogToCore(severity, message);
  Throw(status);
}

}  // namespace NZRVQDA20

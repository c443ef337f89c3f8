// Where the library itself reaches the core logger.

#ifndef QDACORE_LOGGING_INTERNAL_CORELOG_H
#define QDACORE_LOGGING_INTERNAL_CORELOG_H

#include <string>

#include <qdacore/frame/TQDAStatusCode.h>
#include <qdacore/logging/ILogger.h>

namespace NZRVQDA20 {

// The core logger, stored by TLogger::Initialize. Stands with the other static data.
extern ILogger* fgCoreLogger;

// One line in the core log. Before TLogger::Initialize there is nowhere to write, and the
// line is lost: a host that forgot the call loses words, not the process.
void LogToCore(ILogger::EQDALogSeverity severity, const std::string& message);

// The line first, then the status.
[[noreturn]] void LogAndThrow(ILogger::EQDALogSeverity severity, const std::string& message,
                              TQDAStatusCode::EQDAStatusCode status);

}  // namespace NZRVQDA20

#endif

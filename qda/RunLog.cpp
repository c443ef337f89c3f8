#include <qda/RunLog.h>

#include <qda/host/Process.h>
#include <qdacore/frame/TQDAException.h>
#include <qdacore/frame/TRootObject.h>
#include <qdacore/logging/TLogger.h>

namespace qda {

using NZRVQDA20::ILogger;
using NZRVQDA20::TLogEntry;
using NZRVQDA20::TLogger;
using NZRVQDA20::TQDAException;
using NZRVQDA20::TRootObject;

namespace {

// Lets nothing through.
const ILogger::EQDALogSeverity kNothing = static_cast<ILogger::EQDALogSeverity>(-1);

void LogNowhere(ILogger& logger) {
  try {
    logger.SetLogFilename(host::NullDevice());
  } catch (const TQDAException&) {
    // A system without a null device: then failures have nothing to quote.
    logger.SetLogThreshold(kNothing);
  }
}

}  // namespace

RunLog::RunLog(const RunOptions& options) {
  TLogger::Initialize();
  ILogger& logger = *TRootObject::GetCoreLogger();
  logger.SetLogThreshold(options.logLevel);
  if (options.logFile.empty()) {
    LogNowhere(logger);
    return;
  }
  try {
    logger.SetLogFilename(options.logFile);
  } catch (const TQDAException& failure) {
    // A logger whose file did not open must get another one before it is used or ended.
    LogNowhere(logger);
    delete &logger;
    throw TQDAException(failure);
  }
}

RunLog::~RunLog() { delete TRootObject::GetCoreLogger(); }

std::string RunLog::TakeKept(ILogger::EQDALogSeverity severity) {
  ILogger& logger = *TRootObject::GetCoreLogger();
  std::string text;
  for (const TLogEntry& entry : logger.GetLogEntries()) {
    if (entry.severity <= severity) {
      text += (text.empty() ? "" : "; ") + entry.message;
    }
  }
  logger.ClearLogEntries();
  return text;
}

}  // namespace qda

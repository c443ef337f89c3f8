// What the command line asks for.

#ifndef QDA_OPTIONS_H
#define QDA_OPTIONS_H

#include <string>

#include <qdacore/logging/ILogger.h>

namespace qda {

enum class Command { kIdentify, kProviders };
enum class Format { kTable, kJson };

struct Options {
  Command command = Command::kIdentify;
  Format format = Format::kTable;
  std::string provider = "machine";
  std::string smbiosDump;  // empty: not given
  std::string logFile;     // empty: no log
  NZRVQDA20::ILogger::EQDALogSeverity logLevel = NZRVQDA20::ILogger::kLogStatus;
};

// The exit codes of the program.
enum ExitCode { kExitDone = 0, kExitFailed = 1, kExitWrongUsage = 2 };

}  // namespace qda

#endif

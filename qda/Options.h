// What several commands are asked with, and the exit codes.

#ifndef QDA_OPTIONS_H
#define QDA_OPTIONS_H

#include <string>

#include <qdacore/logging/ILogger.h>

namespace qda {

enum class Format { kTable, kJson };

// What every run has. A command that prints no table leaves the format alone.
struct RunOptions {
  std::string command;  // its name
  Format format = Format::kTable;
  std::string logFile;  // empty: no log
  NZRVQDA20::ILogger::EQDALogSeverity logLevel = NZRVQDA20::ILogger::kLogStatus;
};

// Whose namespace a command reads.
struct SourceOptions {
  std::string provider = "machine";
  std::string smbiosDump;  // empty: not given
  // A snapshot that is read in place of any provider; empty: not given.
  std::string fromFile;
};

// The exit codes of the program.
enum ExitCode { kExitDone = 0, kExitFailed = 1, kExitWrongUsage = 2 };

}  // namespace qda

#endif

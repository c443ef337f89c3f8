// ILogger: the one log of a run, as hosts and plug-ins see it. Get it from
// TRootObject::GetCoreLogger; TLogger is the implementation and says what each operation
// does in full.
//
// Threads: none of this is guarded. A host with several threads keeps their calls apart.

#ifndef QDACORE_LOGGING_ILOGGER_H
#define QDACORE_LOGGING_ILOGGER_H

#include <cstdint>
#include <list>
#include <string>

#include <qdacore/Export.h>
#include <qdacore/cim/value/TCIMDateTime.h>

namespace NZRVQDA20 {

struct TLogEntry;

class QDACORE_EXPORT ILogger {
 public:
  // A lower number is more serious. The two high ones keep a message in the list and never
  // write it.
  enum EQDALogSeverity : std::int32_t {
    kLogError = 0,
    kLogWarning = 1,
    kLogStatus = 2,
    kLogDebug = 3,
    kLogVerbose = 4,
    kLogRecordOnly = 100,
    kLogRecordOnlyAlt = 101
  };

  virtual ~ILogger();

  // Keeps and writes a message, as severity and threshold have it.
  // Throws kQDAStatusFail for a severity that has no line tag but reaches the writing.
  virtual void LogMessage(EQDALogSeverity severity, const std::string& message) = 0;

  // Sends a message to the system's event log, whatever the threshold.
  // Throws kQDAStatusFail for a severity outside 0 to 4.
  virtual void LogSystemEvent(EQDALogSeverity severity, const std::string& message) = 0;

  // The kept messages, oldest first: live, owned by the logger, and the caller may change
  // them.
  virtual std::list<TLogEntry>& GetLogEntries() = 0;

  // Empties the list; the file is not touched.
  virtual void ClearLogEntries() = 0;

  // The most verbose severity that is still let through. A new logger has kLogStatus.
  virtual void SetLogThreshold(EQDALogSeverity threshold) = 0;
  virtual EQDALogSeverity GetLogThreshold() = 0;

  // Writes to the file `name` from now on; an earlier file stays open.
  // Throws kQDAStatusAccessDenied or kQDAStatusFileSystemError when it cannot be opened; the
  // logger then has a file name and no file, and messages for the file are lost until a later
  // call succeeds.
  virtual void SetLogFilename(std::string name) = 0;
};

// One kept message.
struct TLogEntry {
  ILogger::EQDALogSeverity severity;
  // As the caller gave it: no tag, no time, no line end.
  std::string message;
  // Local time when the entry was made.
  TCIMDateTime time;
};

}  // namespace NZRVQDA20

#endif

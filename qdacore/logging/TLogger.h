// TLogger: the core logger.
//
// A host calls TLogger::Initialize once, before anything that logs, and reaches the logger
// through TRootObject::GetCoreLogger. With a message the logger does up to two things:
//
//   keep   errors, warnings and status messages that pass the threshold go into the list of
//          entries; so do the two record-only severities, at any threshold. Debug and
//          verbose messages are never kept.
//   write  severities 0 to 4 that pass the threshold become one line, flushed at once, in the
//          log file, or in the debugger's output while no file was ever set:
//
//            FDR_[Error] 3/7/2010  9:5:2 the message
//
//          always "FDR_", the tag of the severity, month/day/year, two blanks,
//          hour:minute:second, a blank, the message and a line feed; numbers without padding.
//
// The file opens with a banner, and closes with one if the host deletes the logger (through
// ILogger's destructor); the library never does. An existing file is emptied, unless the
// environment variable ZRV_VXTPI_GUI_T exists, with whatever value: then it is continued.

#ifndef QDACORE_LOGGING_TLOGGER_H
#define QDACORE_LOGGING_TLOGGER_H

#include <cstdio>
#include <list>
#include <string>

#include <qdacore/Export.h>
#include <qdacore/frame/TQDAStatusCode.h>
#include <qdacore/logging/ILogger.h>

namespace NZRVQDA20 {

class QDACORE_EXPORT TLogger : public ILogger {
 public:
  // Makes a new core logger and always returns kQDAStatusOK. An earlier one is abandoned, not
  // deleted: whoever holds it owns it, and its file stays open.
  static TQDAStatusCode Initialize();

  virtual ~TLogger();

  virtual void LogMessage(EQDALogSeverity severity, const std::string& message);
  virtual void LogSystemEvent(EQDALogSeverity severity, const std::string& message);
  virtual std::list<TLogEntry>& GetLogEntries();
  virtual void ClearLogEntries();
  virtual void SetLogThreshold(EQDALogSeverity threshold);
  virtual EQDALogSeverity GetLogThreshold();
  virtual void SetLogFilename(std::string name);

 private:
  TLogger();
  TLogger(const TLogger&);
  TLogger& operator=(const TLogger&);

  void Keep(EQDALogSeverity severity, const std::string& message);
  void WriteLine(const std::string& line);

  EQDALogSeverity fLogThreshold;
  std::list<TLogEntry> fLogEntries;
  // Not empty: a file is in use, whether or not it could be opened.
  std::string fLogFilename;
  std::FILE* fLogFile;
};

}  // namespace NZRVQDA20

#endif

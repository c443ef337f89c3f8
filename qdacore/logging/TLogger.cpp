#include <qdacore/logging/TLogger.h>

#include <cerrno>
#include <cstdlib>

#include <qdacore/frame/internal/Throw.h>
#include <qdacore/logging/internal/CoreLog.h>
#include <qdacore/os/TOSSpecific.h>

namespace NZRVQDA20 {

namespace {

const char kOpened[] = "-- QDA Log Opened ----------------------------\n";
const char kClosed[] = "-- QDA Log Closed ----------------------------\n";

const int kEventId = 1;

const char* TagOf(ILogger::EQDALogSeverity severity) {
  switch (severity) {
    case ILogger::kLogError:
      return "[Error] ";
    case ILogger::kLogWarning:
      return "[Warning] ";
    case ILogger::kLogStatus:
      return "[Status] ";
    case ILogger::kLogDebug:
      return "[Debug] ";
    case ILogger::kLogVerbose:
      return "[Verbose] ";
    default:
      Throw(TQDAStatusCode::kQDAStatusFail);
  }
}

// Plain decimal: no filling, no fixed width.
void AppendNumber(std::string& line, unsigned number, const char* behind) {
  char digits[12];
  char* begin = digits + sizeof digits;
  do {
    *--begin = static_cast<char>('0' + number % 10);
    number /= 10;
  } while (number != 0);
  line.append(begin, digits + sizeof digits);
  line += behind;
}

// Each field comes from a reading of the clock of its own, in this order, so the six need not
// come from one instant; that is how a line has always been stamped.
void AppendTime(std::string& line) {
  const unsigned second = TOSSpecific::GetLocalTime().GetSecond();
  const unsigned minute = TOSSpecific::GetLocalTime().GetMinute();
  const unsigned hour = TOSSpecific::GetLocalTime().GetHour();
  const unsigned year = TOSSpecific::GetLocalTime().GetYear();
  const unsigned day = TOSSpecific::GetLocalTime().GetDay();
  const unsigned month = TOSSpecific::GetLocalTime().GetMonth();
  AppendNumber(line, month, "/");
  AppendNumber(line, day, "/");
  AppendNumber(line, year, "  ");
  AppendNumber(line, hour, ":");
  AppendNumber(line, minute, ":");
  AppendNumber(line, second, " ");
}

std::string FormatLine(ILogger::EQDALogSeverity severity, const std::string& message) {
  const char* tag = TagOf(severity);
  std::string line;
  line.reserve(message.size() + 48);
  line += "FDR_";
  line += tag;
  AppendTime(line);
  line += message;
  line += '\n';
  return line;
}

}  // namespace

TQDAStatusCode TLogger::Initialize() {
  // What was there before is not looked at: whoever holds it owns it.
  fgCoreLogger = new TLogger;
  return TQDAStatusCode::kQDAStatusOK;
}

TLogger::TLogger() : fLogThreshold(kLogStatus), fLogFile(nullptr) {}

TLogger::~TLogger() {
  // The name says that there is a file; there may be none after a failed SetLogFilename.
  if (!fLogFilename.empty() && fLogFile) {
    std::fputs(kClosed, fLogFile);
    std::fflush(fLogFile);
    std::fclose(fLogFile);
  }
  // A deleted logger is nobody's core logger any more.
  if (fgCoreLogger == this) {
    fgCoreLogger = nullptr;
  }
}

void TLogger::LogMessage(EQDALogSeverity severity, const std::string& message) {
  const bool recordOnly = severity == kLogRecordOnly || severity == kLogRecordOnlyAlt;
  if (!recordOnly && severity > fLogThreshold) {
    return;
  }
  // The list's rule is fixed: what is as serious as a status message, or record-only.
  if (recordOnly || severity <= kLogStatus) {
    Keep(severity, message);
  }
  if (recordOnly) {
    return;
  }
  WriteLine(FormatLine(severity, message));
}

void TLogger::Keep(EQDALogSeverity severity, const std::string& message) {
  fLogEntries.push_back(TLogEntry{severity, message, TOSSpecific::GetLocalTime()});
}

// The test is on the name and never on the stream: once a file was asked for, nothing goes to
// the debugger any more. Whether the writing works is not looked at.
void TLogger::WriteLine(const std::string& line) {
  if (fLogFilename.empty()) {
    TOSSpecific::OutputLogString(line);
  } else if (fLogFile) {
    std::fputs(line.c_str(), fLogFile);
    std::fflush(fLogFile);
  }
}

void TLogger::LogSystemEvent(EQDALogSeverity severity, const std::string& message) {
  const std::string line = FormatLine(severity, message);
  TOSSpecific::LogSELEvent(line.c_str(), severity, kEventId);
}

std::list<TLogEntry>& TLogger::GetLogEntries() { return fLogEntries; }

void TLogger::ClearLogEntries() { fLogEntries.clear(); }

void TLogger::SetLogThreshold(EQDALogSeverity threshold) { fLogThreshold = threshold; }

ILogger::EQDALogSeverity TLogger::GetLogThreshold() { return fLogThreshold; }

void TLogger::SetLogFilename(std::string name) {
  // Stored before the open on purpose: after a failure the logger holds the new name. An earlier
  // file is neither closed nor given a closing banner; that is meant too.
  fLogFilename = name;
  const char* mode = std::getenv("ZRV_VXTPI_GUI_T") ? "a+" : "w+";
  fLogFile = std::fopen(fLogFilename.c_str(), mode);
  if (!fLogFile) {
    Throw(errno == EACCES ? TQDAStatusCode::kQDAStatusAccessDenied
                          : TQDAStatusCode::kQDAStatusFileSystemError);
  }
  std::fputs(kOpened, fLogFile);
  std::fflush(fLogFile);
}

}  // namespace NZRVQDA20

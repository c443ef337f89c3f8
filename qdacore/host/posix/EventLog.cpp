#include <stdio.h>
#include <syslog.h>

#include <qdacore/host/HostServices.h>

namespace NZRVQDA20 {
namespace host {
namespace {

int Priority(EventLog::Kind kind) {
  switch (kind) {
    case EventLog::kError:
      return LOG_ERR;
    case EventLog::kWarning:
      return LOG_WARNING;
    default:
      return LOG_INFO;
  }
}

class PosixEventLog final : public EventLog {
 public:
  // Standard error has no buffer of its own, so the text is out when this returns.
  void WriteToDebugger(const char* text) override { fputs(text, stderr); }

  // syslog has no event numbers.
  void Report(const char* source, Kind kind, int /*eventId*/, const char* text) override {
    openlog(source, 0, LOG_USER);
    syslog(Priority(kind), "%s", text);
    closelog();
  }
};

}  // namespace

EventLog& SystemEventLog() {
  static PosixEventLog log;
  return log;
}

}  // namespace host
}  // namespace NZRVQDA20

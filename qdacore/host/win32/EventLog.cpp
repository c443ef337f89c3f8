#include <windows.h>

#include <qdacore/host/HostServices.h>

namespace NZRVQDA20 {
namespace host {
namespace {

WORD EventType(EventLog::Kind kind) {
  switch (kind) {
    case EventLog::kError:
      return EVENTLOG_ERROR_TYPE;
    case EventLog::kWarning:
      return EVENTLOG_WARNING_TYPE;
    default:
      return EVENTLOG_INFORMATION_TYPE;
  }
}

class WindowsEventLog final : public EventLog {
 public:
  void WriteToDebugger(const char* text) override { OutputDebugStringA(text); }

  void Report(const char* source, Kind kind, int eventId, const char* text) override {
    const HANDLE log = RegisterEventSourceA(nullptr, source);
    if (!log) {
      return;
    }
    // Whether the report arrives is not looked at: there is nowhere else to say it.
    ReportEventA(log, EventType(kind), 0, static_cast<DWORD>(eventId), nullptr, 1, 0, &text,
                 nullptr);
    DeregisterEventSource(log);
  }
};

}  // namespace

EventLog& SystemEventLog() {
  static WindowsEventLog log;
  return log;
}

}  // namespace host
}  // namespace NZRVQDA20

// What the logger needs of the host: the time, the debugger's output and the event log.

#include <qdacore/frame/internal/Throw.h>
#include <qdacore/host/Clock.h>
#include <qdacore/host/EventLog.h>
#include <qdacore/os/TOSSpecific.h>

namespace NZRVQDA20 {

namespace {

const char kEventSource[] = "VXTP";

host::EventLog::Kind KindOf(ILogger::EQDALogSeverity severity) {
  switch (severity) {
    case ILogger::kLogError:
      return host::EventLog::kError;
    case ILogger::kLogWarning:
      return host::EventLog::kWarning;
    default:
      return host::EventLog::kInformation;
  }
}

}  // namespace

TCIMDateTime TOSSpecific::GetLocalTime() {
  host::LocalNow now;
  if (!host::HostClock().ReadLocalNow(now)) {
    Throw(TQDAStatusCode::kQDAStatusInvalidDateTime);
  }
  const host::LocalReading& reading = now.reading;
  return TCIMDateTime(
      static_cast<unsigned short>(reading.year), static_cast<unsigned short>(reading.month),
      static_cast<unsigned int>(reading.day), static_cast<unsigned short>(reading.hour),
      static_cast<unsigned short>(reading.minute), static_cast<unsigned short>(reading.second),
      static_cast<unsigned int>(now.millisecond) * 1000, static_cast<short>(now.offsetMinutes));
}

void TOSSpecific::OutputLogString(std::string text) {
  host::HostEventLog().WriteToDebugger(text.c_str());
}

void TOSSpecific::LogSELEvent(const char* text, ILogger::EQDALogSeverity severity, int eventId) {
  host::HostEventLog().Report(kEventSource, KindOf(severity), eventId, text ? text : "");
}

}  // namespace NZRVQDA20

// The host's places for messages outside a log file. Nothing here throws or fails: where a
// sink is missing the text is dropped.

#ifndef QDACORE_HOST_EVENTLOG_H
#define QDACORE_HOST_EVENTLOG_H

namespace NZRVQDA20 {
namespace host {

class EventLog {
 public:
  enum Kind { kError, kWarning, kInformation };

  // To whoever debugs the process.
  virtual void WriteToDebugger(const char* text) = 0;

  // One event of the source (on some hosts: ident) `source`. The source is registered and
  // released for each event.
  virtual void Report(const char* source, Kind kind, int eventId, const char* text) = 0;

 protected:
  // Never deleted through this: the objects are static, and need no end.
  ~EventLog() = default;
};

EventLog& HostEventLog();

}  // namespace host
}  // namespace NZRVQDA20

#endif

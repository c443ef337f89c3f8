#include <qdacore/host/HostServices.h>

namespace NZRVQDA20 {
namespace host {

// Plain pointers, null from the start: no work at load.
Replacements replacements;

Clock& HostClock() { return replacements.clock ? *replacements.clock : SystemClock(); }

EventLog& HostEventLog() {
  return replacements.eventLog ? *replacements.eventLog : SystemEventLog();
}

Files& HostFiles() { return replacements.files ? *replacements.files : SystemFiles(); }

Modules& HostModules() { return replacements.modules ? *replacements.modules : SystemModules(); }

}  // namespace host
}  // namespace NZRVQDA20

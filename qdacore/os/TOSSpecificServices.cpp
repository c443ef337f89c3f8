// Who runs, on which machine, and what else a host asks of the system besides files and
// processes.

#include <qdacore/logging/internal/CoreLog.h>
#include <qdacore/os/TOSSpecific.h>

namespace NZRVQDA20 {

void TOSSpecific::DebugOut(std::string text) {
  LogToCore(ILogger::kLogDebug, "TOSSpecific debug output: " + text);
}

}  // namespace NZRVQDA20

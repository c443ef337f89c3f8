// The process's own environment.

#include <qdacore/host/Environment.h>
#include <qdacore/os/TOSSpecific.h>
#include <qdacore/os/internal/CallerPath.h>

namespace NZRVQDA20 {

namespace {

// The system's numbers for a variable that is not set and for an impossible argument.
const unsigned long kVariableNotFound = 203;
const unsigned long kInvalidParameter = 87;

}  // namespace

std::string TOSSpecific::GetEnvironment(std::string name) {
  std::string value;
  const host::Outcome read = HoldsNul(name)
                                 ? host::Outcome{host::Situation::kOther, kVariableNotFound}
                                 : host::HostEnvironment().Read(name, value);
  if (!read.Done()) {
    DebugOut("[ERROR]GetEnvironment-GetLastError():" + std::to_string(read.number));
    return std::string();
  }
  return value;
}

bool TOSSpecific::PutEnvironment(std::string name, std::string value) {
  const host::Outcome written = HoldsNul(name) || HoldsNul(value)
                                    ? host::Outcome{host::Situation::kOther, kInvalidParameter}
                                    : host::HostEnvironment().Write(name, value);
  if (!written.Done()) {
    DebugOut("[ERROR]PutEnvironment-GetLastError():" + std::to_string(written.number));
  }
  return written.Done();
}

}  // namespace NZRVQDA20

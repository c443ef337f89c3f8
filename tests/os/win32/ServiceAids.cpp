#include <tests/os/ServiceAids.h>

#include <windows.h>

namespace service_aids {

const bool kRuntimeSharesTheEnvironment = false;
const unsigned kLongestValue = 32766;

bool IsAdministrator() {
  BYTE sid[SECURITY_MAX_SID_SIZE];
  DWORD size = sizeof sid;
  BOOL member = FALSE;
  return CreateWellKnownSid(WinBuiltinAdministratorsSid, nullptr, sid, &size) &&
         CheckTokenMembership(nullptr, sid, &member) && member;
}

std::string MachineName() {
  char buffer[256] = "";
  DWORD size = sizeof buffer;
  return GetComputerNameExA(ComputerNameNetBIOS, buffer, &size) ? buffer : "";
}

}  // namespace service_aids

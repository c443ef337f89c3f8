// The calls by which Windows tells whether an account is an administrator's, as a table, so that
// tests can let each of them fail.

#ifndef QDACORE_HOST_WIN32_ACCOUNTCALLS_H
#define QDACORE_HOST_WIN32_ACCOUNTCALLS_H

#include <windows.h>

namespace NZRVQDA20 {
namespace host {

struct AccountCalls {
  decltype(&::ImpersonateSelf) impersonateSelf;
  decltype(&::OpenThreadToken) openThreadToken;
  decltype(&::GetLastError) getLastError;
  decltype(&::OpenProcessToken) openProcessToken;
  decltype(&::AllocateAndInitializeSid) allocateAndInitializeSid;
  decltype(&::LocalAlloc) localAlloc;
  decltype(&::InitializeSecurityDescriptor) initializeSecurityDescriptor;
  decltype(&::GetLengthSid) getLengthSid;
  decltype(&::InitializeAcl) initializeAcl;
  decltype(&::AddAccessAllowedAce) addAccessAllowedAce;
  decltype(&::SetSecurityDescriptorDacl) setSecurityDescriptorDacl;
  decltype(&::SetSecurityDescriptorGroup) setSecurityDescriptorGroup;
  decltype(&::SetSecurityDescriptorOwner) setSecurityDescriptorOwner;
  decltype(&::IsValidSecurityDescriptor) isValidSecurityDescriptor;
  decltype(&::AccessCheck) accessCheck;
  decltype(&::RevertToSelf) revertToSelf;
  decltype(&::LocalFree) localFree;
  decltype(&::FreeSid) freeSid;
};

// The system's own. Made when it is asked for: as static data it would have to be built at load.
AccountCalls WindowsAccountCalls();

// Whether the calling thread's account belongs to the local administrators: an access check
// against a security descriptor that grants them something, and nobody else anything.
bool IsAdministrator(const AccountCalls& calls);

}  // namespace host
}  // namespace NZRVQDA20

#endif

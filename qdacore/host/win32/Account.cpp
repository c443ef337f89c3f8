#include <qdacore/host/HostServices.h>
#include <qdacore/host/win32/AccountCalls.h>

namespace NZRVQDA20 {
namespace host {
namespace {

// The rights of the descriptor that the check is made against. They mean nothing outside it.
const DWORD kRead = 1;
const DWORD kWrite = 2;

// A thread that is impersonating itself has a token; without one the process's has to do, which
// must be had twice in a row. No token is ever closed, in no case, and this is meant.
bool OpenToken(const AccountCalls& calls, HANDLE& token) {
  if (calls.openThreadToken(GetCurrentThread(), TOKEN_QUERY, FALSE, &token)) {
    return true;
  }
  return calls.getLastError() == ERROR_NO_TOKEN &&
         calls.openProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token) &&
         calls.openProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token);
}

// What the check needs, released in one place whatever was made of it.
struct Descriptor {
  PSID administrators = nullptr;
  PSECURITY_DESCRIPTOR descriptor = nullptr;
  PACL list = nullptr;
};

bool MakeSid(const AccountCalls& calls, Descriptor& made) {
  SID_IDENTIFIER_AUTHORITY authority = {SECURITY_NT_AUTHORITY};
  return calls.allocateAndInitializeSid(&authority, 2, SECURITY_BUILTIN_DOMAIN_RID,
                                        DOMAIN_ALIAS_RID_ADMINS, 0, 0, 0, 0, 0, 0,
                                        &made.administrators) != FALSE;
}

bool MakeDescriptor(const AccountCalls& calls, Descriptor& made) {
  made.descriptor = calls.localAlloc(LPTR, SECURITY_DESCRIPTOR_MIN_LENGTH);
  return made.descriptor &&
         calls.initializeSecurityDescriptor(made.descriptor, SECURITY_DESCRIPTOR_REVISION);
}

bool MakeList(const AccountCalls& calls, Descriptor& made) {
  // The list's own header, and one entry, whose SID begins in its last field.
  const DWORD size = calls.getLengthSid(made.administrators) + 16;
  made.list = static_cast<PACL>(calls.localAlloc(LPTR, size));
  return made.list && calls.initializeAcl(made.list, size, ACL_REVISION) &&
         calls.addAccessAllowedAce(made.list, ACL_REVISION, kRead | kWrite, made.administrators);
}

bool FillDescriptor(const AccountCalls& calls, Descriptor& made) {
  return calls.setSecurityDescriptorDacl(made.descriptor, TRUE, made.list, FALSE) &&
         calls.setSecurityDescriptorGroup(made.descriptor, made.administrators, FALSE) &&
         calls.setSecurityDescriptorOwner(made.descriptor, made.administrators, FALSE) &&
         calls.isValidSecurityDescriptor(made.descriptor);
}

bool Check(const AccountCalls& calls, const Descriptor& made, HANDLE token, BOOL& granted) {
  GENERIC_MAPPING mapping = {kRead, kWrite, 0, kRead | kWrite};
  PRIVILEGE_SET privileges = {};
  DWORD size = sizeof privileges;
  DWORD rights = 0;
  return calls.accessCheck(made.descriptor, token, kRead, &mapping, &privileges, &size, &rights,
                           &granted) != FALSE;
}

void Release(const AccountCalls& calls, const Descriptor& made) {
  if (made.list) {
    calls.localFree(made.list);
  }
  if (made.descriptor) {
    calls.localFree(made.descriptor);
  }
  if (made.administrators) {
    calls.freeSid(made.administrators);
  }
}

class WindowsAccount final : public Account {
 public:
  bool IsAdministrator() override { return host::IsAdministrator(WindowsAccountCalls()); }
};

}  // namespace

AccountCalls WindowsAccountCalls() {
  return {&::ImpersonateSelf,
          &::OpenThreadToken,
          &::GetLastError,
          &::OpenProcessToken,
          &::AllocateAndInitializeSid,
          &::LocalAlloc,
          &::InitializeSecurityDescriptor,
          &::GetLengthSid,
          &::InitializeAcl,
          &::AddAccessAllowedAce,
          &::SetSecurityDescriptorDacl,
          &::SetSecurityDescriptorGroup,
          &::SetSecurityDescriptorOwner,
          &::IsValidSecurityDescriptor,
          &::AccessCheck,
          &::RevertToSelf,
          &::LocalFree,
          &::FreeSid};
}

bool IsAdministrator(const AccountCalls& calls) {
  if (!calls.impersonateSelf(SecurityImpersonation)) {
    return false;
  }
  HANDLE token = nullptr;
  if (!OpenToken(calls, token)) {
    return false;
  }
  Descriptor made;
  BOOL granted = FALSE;
  // A step that fails skips all behind it up to the release, going back to the thread's own token
  // included: the thread then goes on impersonating itself, and this is meant.
  const bool checked = MakeSid(calls, made) && MakeDescriptor(calls, made) &&
                       MakeList(calls, made) && FillDescriptor(calls, made) &&
                       Check(calls, made, token, granted) && calls.revertToSelf();
  Release(calls, made);
  return checked && granted;
}

Account& SystemAccount() {
  static WindowsAccount account;
  return account;
}

}  // namespace host
}  // namespace NZRVQDA20

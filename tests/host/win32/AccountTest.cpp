// The access check that tells administrators, call by call. Each call is recorded with its
// arguments and can be made to fail; those that do not fail are the system's own.

#include <windows.h>

#include <algorithm>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <qdacore/host/HostServices.h>
#include <qdacore/host/win32/AccountCalls.h>

namespace {

using namespace NZRVQDA20::host;

typedef std::vector<std::string> Calls;

struct Recording {
  Calls calls;
  // The call, counted from 0, that fails. -1: none.
  int failing = -1;
  DWORD tokenError = ERROR_ACCESS_DENIED;
  HANDLE token = nullptr;
  // What AccessCheck answers; without it, what the system does.
  const BOOL* granted = nullptr;
} recording;

std::string Text(unsigned long long number) { return " " + std::to_string(number); }

// Records a call; whether it is to go through.
bool Passes(const std::string& call) {
  recording.calls.push_back(call);
  return recording.failing != static_cast<int>(recording.calls.size()) - 1;
}

AccountCalls RecordedCalls() {
  AccountCalls calls = WindowsAccountCalls();
  calls.impersonateSelf = [](SECURITY_IMPERSONATION_LEVEL level) -> BOOL {
    return Passes("ImpersonateSelf" + Text(level)) && ImpersonateSelf(level);
  };
  calls.openThreadToken = [](HANDLE thread, DWORD access, BOOL asSelf, PHANDLE token) -> BOOL {
    return Passes("OpenThreadToken" + Text(thread == GetCurrentThread()) + Text(access) +
                  Text(asSelf)) &&
           OpenThreadToken(thread, access, asSelf, token) && (recording.token = *token);
  };
  calls.getLastError = []() -> DWORD { return recording.tokenError; };
  calls.openProcessToken = [](HANDLE process, DWORD access, PHANDLE token) -> BOOL {
    return Passes("OpenProcessToken" + Text(process == GetCurrentProcess()) + Text(access)) &&
           OpenProcessToken(process, access, token);
  };
  calls.allocateAndInitializeSid = [](PSID_IDENTIFIER_AUTHORITY authority, BYTE count, DWORD a,
                                      DWORD b, DWORD c, DWORD d, DWORD e, DWORD f, DWORD g, DWORD h,
                                      PSID* sid) -> BOOL {
    std::string bytes;
    for (const BYTE byte : authority->Value) {
      bytes += Text(byte);
    }
    return Passes("AllocateAndInitializeSid" + bytes + Text(count) + Text(a) + Text(b)) &&
           AllocateAndInitializeSid(authority, count, a, b, c, d, e, f, g, h, sid);
  };
  calls.localAlloc = [](UINT flags, SIZE_T size) -> HLOCAL {
    return Passes("LocalAlloc" + Text(flags) + Text(size)) ? LocalAlloc(flags, size) : nullptr;
  };
  calls.initializeSecurityDescriptor = [](PSECURITY_DESCRIPTOR descriptor, DWORD revision) -> BOOL {
    return Passes("InitializeSecurityDescriptor" + Text(revision)) &&
           InitializeSecurityDescriptor(descriptor, revision);
  };
  calls.initializeAcl = [](PACL list, DWORD size, DWORD revision) -> BOOL {
    return Passes("InitializeAcl" + Text(size) + Text(revision)) &&
           InitializeAcl(list, size, revision);
  };
  calls.addAccessAllowedAce = [](PACL list, DWORD revision, DWORD mask, PSID sid) -> BOOL {
    return Passes("AddAccessAllowedAce" + Text(revision) + Text(mask)) &&
           AddAccessAllowedAce(list, revision, mask, sid);
  };
  calls.setSecurityDescriptorDacl = [](PSECURITY_DESCRIPTOR descriptor, BOOL present, PACL list,
                                       BOOL defaulted) -> BOOL {
    return Passes("SetSecurityDescriptorDacl" + Text(present) + Text(defaulted)) &&
           SetSecurityDescriptorDacl(descriptor, present, list, defaulted);
  };
  calls.setSecurityDescriptorGroup = [](PSECURITY_DESCRIPTOR descriptor, PSID sid,
                                        BOOL defaulted) -> BOOL {
    return Passes("SetSecurityDescriptorGroup" + Text(defaulted)) &&
           SetSecurityDescriptorGroup(descriptor, sid, defaulted);
  };
  calls.setSecurityDescriptorOwner = [](PSECURITY_DESCRIPTOR descriptor, PSID sid,
                                        BOOL defaulted) -> BOOL {
    return Passes("SetSecurityDescriptorOwner" + Text(defaulted)) &&
           SetSecurityDescriptorOwner(descriptor, sid, defaulted);
  };
  calls.isValidSecurityDescriptor = [](PSECURITY_DESCRIPTOR descriptor) -> BOOL {
    return Passes("IsValidSecurityDescriptor") && IsValidSecurityDescriptor(descriptor);
  };
  calls.accessCheck = [](PSECURITY_DESCRIPTOR descriptor, HANDLE token, DWORD access,
                         PGENERIC_MAPPING mapping, PPRIVILEGE_SET privileges, LPDWORD size,
                         LPDWORD rights, LPBOOL granted) -> BOOL {
    if (!Passes("AccessCheck" + Text(access) + Text(mapping->GenericRead) +
                Text(mapping->GenericWrite) + Text(mapping->GenericExecute) +
                Text(mapping->GenericAll) + Text(*size))) {
      return FALSE;
    }
    if (recording.granted) {
      *granted = *recording.granted;
      return TRUE;
    }
    return AccessCheck(descriptor, token, access, mapping, privileges, size, rights, granted);
  };
  calls.revertToSelf = []() -> BOOL { return Passes("RevertToSelf") && RevertToSelf(); };
  // A failure here changes nothing, and what was made is released all the same.
  calls.localFree = [](HLOCAL block) -> HLOCAL {
    Passes("LocalFree");
    return LocalFree(block);
  };
  calls.freeSid = [](PSID sid) -> PVOID {
    Passes("FreeSid");
    return FreeSid(sid);
  };
  return calls;
}

// Every step with its arguments. The SID has 16 bytes.
const Calls kSteps = {"ImpersonateSelf 2",
                      "OpenThreadToken 1 8 0",
                      "AllocateAndInitializeSid 0 0 0 0 0 5 2 32 544",
                      "LocalAlloc 64 40",
                      "InitializeSecurityDescriptor 1",
                      "LocalAlloc 64 32",
                      "InitializeAcl 32 2",
                      "AddAccessAllowedAce 2 3",
                      "SetSecurityDescriptorDacl 1 0",
                      "SetSecurityDescriptorGroup 0",
                      "SetSecurityDescriptorOwner 0",
                      "IsValidSecurityDescriptor",
                      "AccessCheck 1 1 2 0 3 20",
                      "RevertToSelf"};
const int kStepCount = 14;
const Calls kRelease = {"LocalFree", "LocalFree", "FreeSid"};

class AccountCheck : public testing::Test {
 protected:
  AccountCheck() { recording = Recording(); }
  // Some failures leave the thread impersonating itself.
  ~AccountCheck() override { RevertToSelf(); }

  static bool IsImpersonating() {
    HANDLE token = nullptr;
    if (!OpenThreadToken(GetCurrentThread(), TOKEN_QUERY, TRUE, &token)) {
      return false;
    }
    CloseHandle(token);
    return true;
  }
};

TEST_F(AccountCheck, TakesAllStepsInTheirOrder) {
  const bool answer = IsAdministrator(RecordedCalls());
  Calls expected = kSteps;
  expected.insert(expected.end(), kRelease.begin(), kRelease.end());
  EXPECT_EQ(expected, recording.calls);
  EXPECT_EQ(SystemAccount().IsAdministrator(), answer);
  EXPECT_FALSE(IsImpersonating());
}

TEST_F(AccountCheck, AnswerIsTheStatusWord) {
  const BOOL no = FALSE;
  const BOOL yes = TRUE;
  recording.granted = &no;
  EXPECT_FALSE(IsAdministrator(RecordedCalls()));
  recording.granted = &yes;
  EXPECT_TRUE(IsAdministrator(RecordedCalls()));
}

// After the token, what was made up to the failure is released, and nothing else is called.
TEST_F(AccountCheck, FailedStepSkipsAllUpToTheRelease) {
  const BOOL yes = TRUE;
  for (int failing = 0; failing < kStepCount; ++failing) {
    SCOPED_TRACE(kSteps[static_cast<std::size_t>(failing)]);
    RevertToSelf();
    recording = Recording();
    recording.granted = &yes;
    recording.failing = failing;
    EXPECT_FALSE(IsAdministrator(RecordedCalls()));

    Calls expected(kSteps.begin(), kSteps.begin() + failing + 1);
    const bool hasSid = failing > 2;
    const bool hasDescriptor = failing > 3;
    const bool hasList = failing > 5;
    expected.insert(expected.end(), hasDescriptor + hasList, "LocalFree");
    expected.insert(expected.end(), hasSid, "FreeSid");
    EXPECT_EQ(expected, recording.calls);
    // The thread is itself again only when the step for it has run.
    EXPECT_EQ(failing > 0, IsImpersonating());
  }
}

TEST_F(AccountCheck, ProcessTokenStandsInTwiceForAMissingOne) {
  recording.failing = 1;
  recording.tokenError = ERROR_NO_TOKEN;
  const BOOL yes = TRUE;
  recording.granted = &yes;
  EXPECT_TRUE(IsAdministrator(RecordedCalls()));
  Calls expected = {kSteps[0], kSteps[1], "OpenProcessToken 1 8", "OpenProcessToken 1 8"};
  expected.insert(expected.end(), kSteps.begin() + 2, kSteps.end());
  expected.insert(expected.end(), kRelease.begin(), kRelease.end());
  EXPECT_EQ(expected, recording.calls);
}

TEST_F(AccountCheck, BothProcessTokensAreNeeded) {
  AccountCalls calls = RecordedCalls();
  calls.openThreadToken = [](HANDLE, DWORD, BOOL, PHANDLE) -> BOOL { return FALSE; };
  for (const int failing : {1, 2}) {
    recording = Recording();
    recording.tokenError = ERROR_NO_TOKEN;
    recording.failing = failing;
    EXPECT_FALSE(IsAdministrator(calls));
    Calls expected = {"ImpersonateSelf 2"};
    expected.insert(expected.end(), static_cast<std::size_t>(failing), "OpenProcessToken 1 8");
    EXPECT_EQ(expected, recording.calls);
    RevertToSelf();
  }
}

TEST_F(AccountCheck, OtherTokenErrorIsNoReasonForTheProcessToken) {
  recording.failing = 1;
  recording.tokenError = ERROR_ACCESS_DENIED;
  EXPECT_FALSE(IsAdministrator(RecordedCalls()));
  EXPECT_EQ((Calls{kSteps[0], kSteps[1]}), recording.calls);
}

TEST_F(AccountCheck, TokenStaysOpen) {
  IsAdministrator(RecordedCalls());
  ASSERT_NE(nullptr, recording.token);
  DWORD flags = 0;
  EXPECT_TRUE(GetHandleInformation(recording.token, &flags));
  EXPECT_TRUE(CloseHandle(recording.token));
}

}  // namespace

// The calls behind the event log. The import table's entries are this program's own, so that what
// would go to the system is seen.

#include <windows.h>

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <qdacore/host/HostServices.h>

namespace {

std::vector<std::string> calls;
bool sourceIsMissing = false;
const HANDLE kLog = reinterpret_cast<HANDLE>(0x1234);

HANDLE WINAPI FakeRegister(LPCSTR server, LPCSTR source) {
  calls.push_back(std::string("register ") + (server ? server : "(local)") + " " + source);
  return sourceIsMissing ? nullptr : kLog;
}

BOOL WINAPI FakeReport(HANDLE log, WORD type, WORD category, DWORD eventId, PSID user, WORD strings,
                       DWORD dataSize, LPCSTR* texts, LPVOID data) {
  EXPECT_EQ(kLog, log);
  EXPECT_EQ(nullptr, user);
  EXPECT_EQ(nullptr, data);
  EXPECT_EQ(0u, dataSize);
  EXPECT_EQ(1, strings);
  calls.push_back("report type " + std::to_string(type) + " category " + std::to_string(category) +
                  " event " + std::to_string(eventId) + ": " + texts[0]);
  return TRUE;
}

BOOL WINAPI FakeDeregister(HANDLE log) {
  EXPECT_EQ(kLog, log);
  calls.push_back("deregister");
  return TRUE;
}

}  // namespace

extern "C" {
extern void* const __imp_RegisterEventSourceA = reinterpret_cast<void*>(FakeRegister);
extern void* const __imp_ReportEventA = reinterpret_cast<void*>(FakeReport);
extern void* const __imp_DeregisterEventSource = reinterpret_cast<void*>(FakeDeregister);
}

namespace {

using namespace NZRVQDA20;

typedef std::vector<std::string> Calls;

struct Row {
  host::EventLog::Kind kind;
  const char* report;
};

TEST(WindowsEventLog, SourceIsRegisteredAndReleasedForEachEvent) {
  for (const Row& row :
       {Row{host::EventLog::kError, "report type 1 category 0 event 1: text"},
        Row{host::EventLog::kWarning, "report type 2 category 0 event 1: text"},
        Row{host::EventLog::kInformation, "report type 4 category 0 event 1: text"}}) {
    calls.clear();
    host::SystemEventLog().Report("VXTP", row.kind, 1, "text");
    EXPECT_EQ((Calls{"register (local) VXTP", row.report, "deregister"}), calls);
  }
}

TEST(WindowsEventLog, WithoutTheSourceNothingIsReported) {
  calls.clear();
  sourceIsMissing = true;
  host::SystemEventLog().Report("VXTP", host::EventLog::kError, 7, "text");
  sourceIsMissing = false;
  EXPECT_EQ(Calls{"register (local) VXTP"}, calls);
}

}  // namespace

// The calls behind SpawnProcess and CaptureFile, with their arguments. The import table's entries
// are this program's own; they record while a test wants it, and pass on to the system.

#include <windows.h>

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <qdacore/frame/TQDAException.h>
#include <qdacore/os/TOSSpecific.h>
#include <tests/os/Children.h>
#include <tests/support/TemporaryFolder.h>

namespace {

typedef std::vector<std::string> Calls;

Calls calls;
bool recording = false;
// What the next ReadFile says, once: failed with so many bytes, and this error. 0: nothing.
DWORD failedBytes = 0;

void Record(const std::string& call) {
  if (recording) {
    calls.push_back(call);
  }
}

std::string Number(unsigned long long number) { return " " + std::to_string(number); }

// A handle by the order in which it came up, from 1.
std::vector<HANDLE> seen;
std::string Name(HANDLE handle) {
  if (handle == INVALID_HANDLE_VALUE) {
    return " self";
  }
  // The latest of that value: a value that was closed is given again.
  for (std::size_t at = seen.size(); at > 0; --at) {
    if (seen[at - 1] == handle) {
      return " #" + std::to_string(at);
    }
  }
  return " unknown";
}
std::string NewName(HANDLE handle) {
  if (recording) {
    seen.push_back(handle);
  }
  return Name(handle);
}

template <class Function>
Function* System(const char* name) {
  return reinterpret_cast<Function*>(
      reinterpret_cast<void (*)()>(GetProcAddress(GetModuleHandleA("kernel32.dll"), name)));
}

HANDLE WINAPI OwnGetStdHandle(DWORD which) {
  Record("GetStdHandle" + Number(which));
  return System<decltype(GetStdHandle)>("GetStdHandle")(which);
}

BOOL WINAPI OwnCreatePipe(PHANDLE readEnd, PHANDLE writeEnd, LPSECURITY_ATTRIBUTES attributes,
                          DWORD size) {
  const BOOL done = System<decltype(CreatePipe)>("CreatePipe")(readEnd, writeEnd, attributes, size);
  std::string ends = NewName(*readEnd);
  ends += NewName(*writeEnd);
  Record("CreatePipe" + ends + " size" + Number(size) + " inherit" +
         Number(static_cast<unsigned>(attributes->bInheritHandle)) +
         (attributes->lpSecurityDescriptor ? " described" : "") +
         (attributes->nLength == sizeof *attributes ? "" : " of another length"));
  return done;
}

BOOL WINAPI OwnDuplicateHandle(HANDLE fromProcess, HANDLE from, HANDLE toProcess, LPHANDLE to,
                               DWORD access, BOOL inherit, DWORD options) {
  const std::string source = Name(fromProcess) + Name(from) + Name(toProcess);
  const BOOL done = System<decltype(DuplicateHandle)>("DuplicateHandle")(
      fromProcess, from, toProcess, to, access, inherit, options);
  Record("DuplicateHandle" + source + " ->" + NewName(*to) + " access" + Number(access) +
         " inherit" + Number(static_cast<unsigned>(inherit)) + " options" + Number(options));
  return done;
}

BOOL WINAPI OwnCloseHandle(HANDLE handle) {
  Record("CloseHandle" + Name(handle));
  return System<decltype(CloseHandle)>("CloseHandle")(handle);
}

BOOL WINAPI OwnCreateProcess(LPCSTR application, LPSTR line, LPSECURITY_ATTRIBUTES process,
                             LPSECURITY_ATTRIBUTES thread, BOOL inherit, DWORD flags,
                             LPVOID environment, LPCSTR folder, LPSTARTUPINFOA startup,
                             LPPROCESS_INFORMATION started) {
  const std::string text =
      std::string("CreateProcessA ") +
      (application || process || thread || environment || folder ? "more, " : "") +
      "line ends in " + std::string(line).substr(std::string(line).size() - 9) + ", inherit" +
      Number(static_cast<unsigned>(inherit)) + " flags" + Number(flags) + " startup flags" +
      Number(startup->dwFlags) + " show" + Number(startup->wShowWindow) + Name(startup->hStdInput) +
      Name(startup->hStdOutput) + Name(startup->hStdError) +
      (startup->cb == sizeof *startup ? "" : " of another length");
  const BOOL done = System<decltype(CreateProcessA)>("CreateProcessA")(
      application, line, process, thread, inherit, flags, environment, folder, startup, started);
  std::string names = NewName(started->hProcess);
  names += NewName(started->hThread);
  Record(text + " ->" + names);
  return done;
}

DWORD WINAPI OwnWaitForSingleObject(HANDLE handle, DWORD limit) {
  // The C++ runtime waits for things of its own.
  if (Name(handle) != " unknown") {
    Record("WaitForSingleObject" + Name(handle) +
           (limit == INFINITE ? " without limit" : " limited"));
  }
  return System<decltype(WaitForSingleObject)>("WaitForSingleObject")(handle, limit);
}

BOOL WINAPI OwnGetExitCodeProcess(HANDLE process, LPDWORD code) {
  Record("GetExitCodeProcess" + Name(process));
  return System<decltype(GetExitCodeProcess)>("GetExitCodeProcess")(process, code);
}

HANDLE WINAPI OwnCreateFile(LPCSTR name, DWORD access, DWORD share, LPSECURITY_ATTRIBUTES security,
                            DWORD disposition, DWORD attributes, HANDLE model) {
  const HANDLE file = System<decltype(CreateFileA)>("CreateFileA")(name, access, share, security,
                                                                   disposition, attributes, model);
  Record("CreateFileA" + (file == INVALID_HANDLE_VALUE ? " failed" : NewName(file)) + " access" +
         Number(access) + " share" + Number(share) + " disposition" + Number(disposition) +
         " attributes" + Number(attributes) + (security || model ? " more" : ""));
  return file;
}

BOOL WINAPI OwnReadFile(HANDLE file, LPVOID buffer, DWORD size, LPDWORD count,
                        LPOVERLAPPED overlapped) {
  if (recording && failedBytes != 0) {
    *count = failedBytes;
    failedBytes = 0;
    Record("ReadFile fails");
    SetLastError(ERROR_CRC);
    return FALSE;
  }
  const BOOL done = System<decltype(ReadFile)>("ReadFile")(file, buffer, size, count, overlapped);
  Record("ReadFile" + Name(file) + " up to" + Number(size) + (overlapped ? " overlapped" : "") +
         " ->" + Number(*count));
  return done;
}

DWORD WINAPI OwnFormatMessage(DWORD flags, LPCVOID source, DWORD message, DWORD language,
                              LPSTR buffer, DWORD size, va_list* arguments) {
  Record("FormatMessageA flags" + Number(flags) + " message" + Number(message) + " language" +
         Number(language) + (source || arguments ? " more" : ""));
  return System<decltype(FormatMessageA)>("FormatMessageA")(flags, source, message, language,
                                                            buffer, size, arguments);
}

HLOCAL WINAPI OwnLocalFree(HLOCAL memory) {
  Record("LocalFree");
  return System<decltype(LocalFree)>("LocalFree")(memory);
}

}  // namespace

extern "C" {
extern void* const __imp_GetStdHandle = reinterpret_cast<void*>(OwnGetStdHandle);
extern void* const __imp_CreatePipe = reinterpret_cast<void*>(OwnCreatePipe);
extern void* const __imp_DuplicateHandle = reinterpret_cast<void*>(OwnDuplicateHandle);
extern void* const __imp_CloseHandle = reinterpret_cast<void*>(OwnCloseHandle);
extern void* const __imp_CreateProcessA = reinterpret_cast<void*>(OwnCreateProcess);
extern void* const __imp_WaitForSingleObject = reinterpret_cast<void*>(OwnWaitForSingleObject);
extern void* const __imp_GetExitCodeProcess = reinterpret_cast<void*>(OwnGetExitCodeProcess);
extern void* const __imp_CreateFileA = reinterpret_cast<void*>(OwnCreateFile);
extern void* const __imp_ReadFile = reinterpret_cast<void*>(OwnReadFile);
extern void* const __imp_FormatMessageA = reinterpret_cast<void*>(OwnFormatMessage);
extern void* const __imp_LocalFree = reinterpret_cast<void*>(OwnLocalFree);
}

namespace {

using namespace NZRVQDA20;
using test_support::TemporaryFolder;

class Recording {
 public:
  Recording() {
    calls.clear();
    seen.clear();
    recording = true;
  }
  ~Recording() { recording = false; }
};

const std::string kProgram = os_tests::ChildCommand("PrintsArguments");

// Handles: 1 and 2 the output pipe, 3 its private end, 4 and 5 the input pipe, 6 its private end, 7
// and 8 process and thread. STD_OUTPUT_HANDLE is -11; 2 is DUPLICATE_SAME_ACCESS.
const Calls kPipes = {"GetStdHandle 4294967285",
                      "CreatePipe #1 #2 size 0 inherit 1",
                      "DuplicateHandle self #1 self -> #3 access 0 inherit 0 options 2",
                      "CloseHandle #1",
                      "CreatePipe #4 #5 size 0 inherit 1",
                      "DuplicateHandle self #5 self -> #6 access 0 inherit 0 options 2",
                      "CloseHandle #5"};

Calls AfterPipes(const Calls& rest) {
  Calls all = kPipes;
  all.insert(all.end(), rest.begin(), rest.end());
  return all;
}

TEST(WindowsProcessCalls, ExitCodeForm) {
  std::string output;
  {
    Recording scope;
    TOSSpecific::SpawnProcess(kProgram, {"a", "b"}, output, 0);
  }
  EXPECT_EQ("<a><b>", output);
  // 257: STARTF_USESTDHANDLES and STARTF_USESHOWWINDOW, and SW_HIDE is 0.
  EXPECT_EQ(
      AfterPipes({"CreateProcessA line ends in ments a b, inherit 1 flags 0 startup flags 257 "
                  "show 0 #4 #2 #2 -> #7 #8",
                  "CloseHandle #2", "ReadFile #3 up to 4096 -> 6", "ReadFile #3 up to 4096 -> 0",
                  "CloseHandle #3", "WaitForSingleObject #7 without limit", "GetExitCodeProcess #7",
                  "CloseHandle #7", "CloseHandle #8"}),
      calls);
}

TEST(WindowsProcessCalls, TextForm) {
  {
    Recording scope;
    TOSSpecific::SpawnProcess(kProgram, {"a", "b"}, 0);
  }
  EXPECT_EQ(
      AfterPipes({"CreateProcessA line ends in ments a b, inherit 1 flags 0 startup flags 256 "
                  "show 0 #4 #2 #2 -> #7 #8",
                  "CloseHandle #2", "ReadFile #3 up to 4096 -> 6", "ReadFile #3 up to 4096 -> 0",
                  "CloseHandle #3", "WaitForSingleObject #7 without limit", "CloseHandle #7",
                  "CloseHandle #8", "CloseHandle #4", "CloseHandle #6"}),
      calls);
}

// 2147483648: GENERIC_READ; 1: FILE_SHARE_READ; 3: OPEN_EXISTING; 128: FILE_ATTRIBUTE_NORMAL.
TEST(WindowsProcessCalls, CaptureFile) {
  TemporaryFolder folder;
  const std::string path = folder.Write("file", std::string(4096, 'x'));
  {
    Recording scope;
    TOSSpecific::CaptureFile(path);
  }
  EXPECT_EQ((Calls{"CreateFileA #1 access 2147483648 share 1 disposition 3 attributes 128",
                   "ReadFile #1 up to 4096 -> 4096", "ReadFile #1 up to 4096 -> 0"}),
            calls);
  // Left open by the call; the folder could not go.
  CloseHandle(seen.at(0));
}

TEST(WindowsProcessCalls, LoaderReadsAlsoAfterAFailedOpening) {
  TemporaryFolder folder;
  const std::string missing = folder.PathOf("missing");
  {
    Recording scope;
    TOSSpecific::CaptureFileLoader(missing, true);
  }
  EXPECT_EQ((Calls{"CreateFileA failed access 2147483648 share 1 disposition 3 attributes 128",
                   "ReadFile self up to 4096 -> 0"}),
            calls);
}

// 4352 is 0x1100, 1024 is 0x400. The buffer is not released.
TEST(WindowsProcessCalls, FailedReadIsPutIntoWordsOnce) {
  TemporaryFolder folder;
  const std::string path = folder.Write("file", "contents");
  {
    Recording scope;
    failedBytes = 3;
    EXPECT_EQ("", TOSSpecific::CaptureFileLoader(path, false));
  }
  EXPECT_EQ((Calls{"CreateFileA #1 access 2147483648 share 1 disposition 3 attributes 128",
                   "ReadFile fails", "FormatMessageA flags 4352 message 23 language 1024"}),
            calls);
  CloseHandle(seen.at(0));
}

}  // namespace

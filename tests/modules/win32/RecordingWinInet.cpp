// A wininet.dll that reaches nothing: it prints what each of its functions is given, and answers
// what the words of the environment variable WININET_ANSWERS ask for:
//
//   no-session        InternetOpenA gives null
//   no-connection     InternetConnectA gives null, always
//   no-first          InternetConnectA gives null until it is called again
//   no-directory      FtpGetCurrentDirectoryA fails
//   long-directory    it fills its buffer and sets no NUL
//   no-entry          FtpSetCurrentDirectoryA fails
//   no-transfer       FtpPutFileA, FtpGetFileA fail
//   extended          the thread's last error behind FtpPutFileA is 12003; otherwise 5
//   no-reply          InternetGetLastResponseInfoA fails
//   long-reply        it fills its buffer and sets no NUL
//
// LACKS says which function is missing, by its place below; 0: none.

#include <windows.h>

#include <cstdio>
#include <cstring>
#include <string>

#include <tests/modules/ModuleExport.h>

namespace {

// Their addresses are what the calls are recognised by.
int session;
int connection;

bool IsAsked(const char* word) {
  char text[256] = {};
  GetEnvironmentVariableA("WININET_ANSWERS", text, sizeof text);
  return (" " + std::string(text) + " ").find(" " + std::string(word) + " ") != std::string::npos;
}

std::string Text(const char* text) {
  return text == nullptr ? "null" : "'" + std::string(text) + "'";
}

std::string Handle(const void* handle) {
  return handle == &session ? "session" : handle == &connection ? "connection" : "another handle";
}

std::string Number(unsigned long long number) {
  char text[32];
  std::snprintf(text, sizeof text, "0x%llx", number);
  return text;
}

void Tell(const std::string& call) {
  std::printf("%s\n", call.c_str());
  std::fflush(stdout);
}

// Fills all of the buffer, or writes `text` there.
void Answer(bool isLong, const char* text, char* buffer, DWORD* size) {
  if (isLong) {
    std::memset(buffer, 'x', *size);
    return;
  }
  std::snprintf(buffer, *size, "%s", text);
  *size = static_cast<DWORD>(std::strlen(text));
}

}  // namespace

#if LACKS != 1
MODULE_EXPORT void* WINAPI InternetOpenA(const char* agent, DWORD access, const char* proxy,
                                         const char* bypass, DWORD flags) {
  Tell("InternetOpenA " + Text(agent) + " " + Number(access) + " " + Text(proxy) + " " +
       Text(bypass) + " " + Number(flags));
  return IsAsked("no-session") ? nullptr : &session;
}
#endif

#if LACKS != 2
MODULE_EXPORT void* WINAPI InternetConnectA(void* handle, const char* server, WORD port,
                                            const char* user, const char* password, DWORD service,
                                            DWORD flags, DWORD_PTR context) {
  Tell("InternetConnectA " + Handle(handle) + " " + Text(server) + " " + std::to_string(port) +
       " " + Text(user) + " " + Text(password) + " " + Number(service) + " " + Number(flags) + " " +
       Number(context));
  static int calls = 0;
  ++calls;
  const bool fails = IsAsked("no-connection") || (calls == 1 && IsAsked("no-first"));
  return fails ? nullptr : &connection;
}
#endif

#if LACKS != 3
MODULE_EXPORT BOOL WINAPI FtpPutFileA(void* handle, const char* localFile, const char* remoteFile,
                                      DWORD flags, DWORD_PTR context) {
  Tell("FtpPutFileA " + Handle(handle) + " " + Text(localFile) + " " + Text(remoteFile) + " " +
       Number(flags) + " " + Number(context));
  SetLastError(IsAsked("extended") ? 12003 : 5);
  return IsAsked("no-transfer") ? FALSE : 7;
}
#endif

#if LACKS != 4
MODULE_EXPORT BOOL WINAPI FtpGetFileA(void* handle, const char* remoteFile, const char* localFile,
                                      BOOL failIfExists, DWORD attributes, DWORD flags,
                                      DWORD_PTR context) {
  Tell("FtpGetFileA " + Handle(handle) + " " + Text(remoteFile) + " " + Text(localFile) + " " +
       (failIfExists ? "new" : "any") + " " + Number(attributes) + " " + Number(flags) + " " +
       Number(context));
  return IsAsked("no-transfer") ? FALSE : 7;
}
#endif

#if LACKS != 5
MODULE_EXPORT BOOL WINAPI FtpGetCurrentDirectoryA(void* handle, char* buffer, DWORD* size) {
  Tell("FtpGetCurrentDirectoryA " + Handle(handle) + " " + std::to_string(*size));
  Answer(IsAsked("long-directory"), "/home", buffer, size);
  return IsAsked("no-directory") ? FALSE : TRUE;
}
#endif

#if LACKS != 6
MODULE_EXPORT BOOL WINAPI FtpSetCurrentDirectoryA(void* handle, const char* directory) {
  Tell("FtpSetCurrentDirectoryA " + Handle(handle) + " " + Text(directory));
  return IsAsked("no-entry") ? FALSE : TRUE;
}
#endif

#if LACKS != 7
MODULE_EXPORT BOOL WINAPI InternetGetLastResponseInfoA(DWORD* error, char* buffer, DWORD* size) {
  Tell("InternetGetLastResponseInfoA " + std::to_string(*size));
  *error = 0;
  Answer(IsAsked("long-reply"), "550 Not today.", buffer, size);
  return IsAsked("no-reply") ? FALSE : TRUE;
}
#endif

// Nobody is to call this.
MODULE_EXPORT BOOL WINAPI InternetCloseHandle(void* handle) {
  Tell("InternetCloseHandle " + Handle(handle));
  return TRUE;
}

// `reserved` is null when the module goes while the process stays.
extern "C" BOOL WINAPI DllMain(HINSTANCE, DWORD reason, void* reserved) {
  if (reason == DLL_PROCESS_DETACH && reserved == nullptr) {
    Tell("unloaded");
  }
  return TRUE;
}

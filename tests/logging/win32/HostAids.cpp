#include <tests/logging/HostAids.h>

#include <windows.h>

#include <cstdio>

namespace {

// The text travels as an exception that a debugger takes.
const DWORD kDebuggerText = 0x40010006;

LONG CALLBACK PrintDebuggerText(EXCEPTION_POINTERS* pointers) {
  const EXCEPTION_RECORD& record = *pointers->ExceptionRecord;
  if (record.ExceptionCode != kDebuggerText) {
    return EXCEPTION_CONTINUE_SEARCH;
  }
  std::fputs(reinterpret_cast<const char*>(record.ExceptionInformation[1]), stderr);
  std::fflush(stderr);
  return EXCEPTION_CONTINUE_EXECUTION;
}

}  // namespace

void ShowDebuggerOutput() { AddVectoredExceptionHandler(1, PrintDebuggerText); }

// Held open, and shared with nobody, until the process ends.
bool DenyOpening(const std::string& path) {
  return CreateFileA(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL,
                     nullptr) != INVALID_HANDLE_VALUE;
}

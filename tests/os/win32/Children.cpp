#include <tests/os/Children.h>

#include <windows.h>

namespace os_tests {

namespace {

void WriteAll(DWORD handle, const std::string& text) {
  std::size_t written = 0;
  while (written < text.size()) {
    DWORD count = 0;
    if (!WriteFile(GetStdHandle(handle), text.data() + written,
                   static_cast<DWORD>(text.size() - written), &count, nullptr)) {
      EndNow(98);
    }
    written += count;
  }
}

}  // namespace

void WriteOutput(const std::string& text) { WriteAll(STD_OUTPUT_HANDLE, text); }

void WriteError(const std::string& text) { WriteAll(STD_ERROR_HANDLE, text); }

std::string ReadInput() {
  char buffer[64];
  DWORD count = 0;
  return ReadFile(GetStdHandle(STD_INPUT_HANDLE), buffer, sizeof buffer, &count, nullptr)
             ? std::string(buffer, count)
             : std::string();
}

void StartAndLeave(const std::string& program, const std::vector<std::string>& arguments) {
  std::string line = "\"" + program + "\"";
  for (const std::string& argument : arguments) {
    line += " " + argument;
  }
  STARTUPINFOA startup = {};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESTDHANDLES;
  startup.hStdInput = GetStdHandle(STD_INPUT_HANDLE);
  startup.hStdOutput = GetStdHandle(STD_OUTPUT_HANDLE);
  startup.hStdError = GetStdHandle(STD_ERROR_HANDLE);
  PROCESS_INFORMATION process = {};
  if (!CreateProcessA(nullptr, &line[0], nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup,
                      &process)) {
    EndNow(97);
  }
  CloseHandle(process.hProcess);
  CloseHandle(process.hThread);
}

void EndNow(int code) {
  TerminateProcess(GetCurrentProcess(), static_cast<UINT>(code));
  // It ends before the call returns, which the compiler cannot know.
  for (;;) {
    Sleep(INFINITE);
  }
}

}  // namespace os_tests

#include <tests/support/ChildProcess.h>

#include <windows.h>

#include <memory>
#include <thread>

#include <tests/support/ScopedEnvironment.h>

namespace test_support {

namespace {

const DWORD kLimitMs = 60000;

// By the rules by which the C runtime takes a command line apart again.
std::string Quoted(const std::string& argument) {
  std::string text = "\"";
  std::size_t backslashes = 0;
  for (const char character : argument) {
    if (character == '\\') {
      ++backslashes;
    } else {
      if (character == '"') {
        text.append(backslashes + 1, '\\');
      }
      backslashes = 0;
    }
    text += character;
  }
  text.append(backslashes, '\\');
  return text + "\"";
}

void ReadToEnd(HANDLE pipe, std::string& text) {
  char buffer[4096];
  DWORD count = 0;
  while (ReadFile(pipe, buffer, sizeof buffer, &count, nullptr) && count > 0) {
    for (DWORD at = 0; at < count; ++at) {
      if (buffer[at] != '\r') {
        text += buffer[at];
      }
    }
  }
}

struct Pipe {
  HANDLE readEnd = nullptr;
  HANDLE writeEnd = nullptr;

  bool Make() {
    SECURITY_ATTRIBUTES inherit = {sizeof inherit, nullptr, TRUE};
    return CreatePipe(&readEnd, &writeEnd, &inherit, 0) &&
           SetHandleInformation(readEnd, HANDLE_FLAG_INHERIT, 0);
  }
};

}  // namespace

std::string OwnProgram() {
  char buffer[4096];
  return std::string(buffer, GetModuleFileNameA(nullptr, buffer, sizeof buffer));
}

ChildResult RunProgram(const std::string& program, const std::vector<std::string>& arguments,
                       const std::vector<EnvironmentChange>& environment,
                       const std::string& folder) {
  ChildResult result = {-1, false, "", ""};
  // The child gets a copy of our environment at its start.
  std::vector<std::unique_ptr<ScopedEnvironment>> changes;
  for (const EnvironmentChange& change : environment) {
    changes.emplace_back(new ScopedEnvironment(change.name, change.value));
  }
  std::string commandLine = Quoted(program);
  for (const std::string& argument : arguments) {
    commandLine += " " + Quoted(argument);
  }
  Pipe output;
  Pipe error;
  if (!output.Make() || !error.Make()) {
    return result;
  }
  STARTUPINFOA startup = {};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESTDHANDLES;
  startup.hStdOutput = output.writeEnd;
  startup.hStdError = error.writeEnd;
  PROCESS_INFORMATION process = {};
  const BOOL started =
      CreateProcessA(nullptr, &commandLine[0], nullptr, nullptr, TRUE, 0, nullptr,
                     folder.empty() ? nullptr : folder.c_str(), &startup, &process);
  CloseHandle(output.writeEnd);
  CloseHandle(error.writeEnd);
  if (started) {
    std::thread outputReader(ReadToEnd, output.readEnd, std::ref(result.output));
    std::thread errorReader(ReadToEnd, error.readEnd, std::ref(result.error));
    if (WaitForSingleObject(process.hProcess, kLimitMs) != WAIT_OBJECT_0) {
      result.timedOut = true;
      TerminateProcess(process.hProcess, 1);
      WaitForSingleObject(process.hProcess, INFINITE);
    }
    outputReader.join();
    errorReader.join();
    DWORD code = 0;
    if (!result.timedOut && GetExitCodeProcess(process.hProcess, &code)) {
      result.exitCode = static_cast<int>(code);
    }
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
  }
  CloseHandle(output.readEnd);
  CloseHandle(error.readEnd);
  return result;
}

}  // namespace test_support

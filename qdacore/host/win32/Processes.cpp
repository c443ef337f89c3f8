#include <windows.h>

#include <qdacore/host/HostServices.h>
#include <qdacore/host/win32/Errors.h>

namespace NZRVQDA20 {
namespace host {
namespace {

// The upper half of a handle only repeats its sign.
HANDLE Wide(Processes::Handle handle) {
  return reinterpret_cast<HANDLE>(static_cast<INT_PTR>(handle));
}

Processes::Handle Narrow(HANDLE handle) {
  return static_cast<Processes::Handle>(reinterpret_cast<INT_PTR>(handle));
}

class WindowsProcesses final : public Processes {
 public:
  // Asked for as ever, and not used.
  void AskForStandardOutput() override { static_cast<void>(GetStdHandle(STD_OUTPUT_HANDLE)); }

  bool MakePipe(Pipe& pipe) override {
    SECURITY_ATTRIBUTES inheritable = {sizeof inheritable, nullptr, TRUE};
    HANDLE readEnd = nullptr;
    HANDLE writeEnd = nullptr;
    if (!CreatePipe(&readEnd, &writeEnd, &inheritable, 0)) {
      return false;
    }
    pipe.readEnd = Narrow(readEnd);
    pipe.writeEnd = Narrow(writeEnd);
    return true;
  }

  bool MakePrivate(Handle& end) override {
    HANDLE own = nullptr;
    if (!DuplicateHandle(GetCurrentProcess(), Wide(end), GetCurrentProcess(), &own, 0, FALSE,
                         DUPLICATE_SAME_ACCESS)) {
      return false;
    }
    // Whether this works is not looked at.
    CloseHandle(Wide(end));
    end = Narrow(own);
    return true;
  }

  bool Start(const std::string& commandLine, Window window, const StandardHandles& handles,
             Child& child) override {
    STARTUPINFOA startup = {};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    if (window == Window::kHidden) {
      startup.dwFlags |= STARTF_USESHOWWINDOW;
      startup.wShowWindow = SW_HIDE;
    }
    startup.hStdInput = Wide(handles.input);
    startup.hStdOutput = Wide(handles.output);
    startup.hStdError = Wide(handles.output);
    PROCESS_INFORMATION process = {};
    // The call may write to the line.
    std::string line = commandLine;
    if (!CreateProcessA(nullptr, &line[0], nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup,
                        &process)) {
      return false;
    }
    child.process = Narrow(process.hProcess);
    child.thread = Narrow(process.hThread);
    return true;
  }

  bool Close(Handle handle) override { return CloseHandle(Wide(handle)) != FALSE; }

  Outcome OpenFile(const std::string& path, Handle& handle) override {
    const HANDLE opened = CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                      OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (opened == INVALID_HANDLE_VALUE) {
      return OutcomeOfLastError();
    }
    handle = Narrow(opened);
    return Success();
  }

  // Not asked for here.
  std::size_t ExpectedSize(Handle) override { return 0; }

  ReadResult Read(Handle handle, char* buffer, std::size_t size) override {
    DWORD count = 0;
    if (!ReadFile(Wide(handle), buffer, static_cast<DWORD>(size), &count, nullptr)) {
      return {false, count, GetLastError()};
    }
    return {true, count, 0};
  }

  std::string ErrorText(unsigned long error) override {
    char* text = nullptr;
    const DWORD length = FormatMessageA(FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM,
                                        nullptr, error, MAKELANGID(LANG_NEUTRAL, SUBLANG_DEFAULT),
                                        reinterpret_cast<LPSTR>(&text), 0, nullptr);
    // The system's buffer is not released: that is how it has always been.
    return text ? std::string(text, length) : std::string();
  }

  void Wait(Child& child) override { WaitForSingleObject(Wide(child.process), INFINITE); }

  int ExitCode(const Child& child) override {
    DWORD code = static_cast<DWORD>(kNoExitCode);
    GetExitCodeProcess(Wide(child.process), &code);
    return static_cast<int>(code);
  }

  void Release(Child& child) override {
    CloseHandle(Wide(child.process));
    CloseHandle(Wide(child.thread));
    child = Child();
  }
};

}  // namespace

Processes& SystemProcesses() {
  static WindowsProcesses processes;
  return processes;
}

}  // namespace host
}  // namespace NZRVQDA20

// Running an outside program to its end.

#include <qdacore/frame/TRootObject.h>
#include <qdacore/host/Processes.h>
#include <qdacore/logging/internal/CoreLog.h>
#include <qdacore/os/TOSSpecific.h>
#include <qdacore/os/internal/CallerPath.h>

namespace NZRVQDA20 {

namespace {

using host::Processes;

[[noreturn]] void Fail(const char* text) {
  LogAndThrow(ILogger::kLogError, text, TQDAStatusCode::kQDAStatusFail);
}

// Nothing is quoted or escaped: a caller whose path holds blanks quotes it.
std::string CommandLine(const std::string& program, const std::vector<std::string>& arguments) {
  std::size_t length = program.size();
  for (const std::string& argument : arguments) {
    length += 1 + argument.size();
  }
  std::string line;
  line.reserve(length);
  line += program;
  for (const std::string& argument : arguments) {
    line += ' ';
    line += argument;
  }
  return line;
}

// One child, from its start until its handles are closed.
class ChildRun {
 public:
  enum class InputPipe { kClosedAtTheEnd, kLeftOpen };

  // A failed step throws, and what was opened up to it stays open: that is meant.
  ChildRun(const std::string& commandLine, Processes::Window window, InputPipe inputPipe)
      : fProcesses(host::HostProcesses()), fInputPipe(inputPipe) {
    fProcesses.AskForStandardOutput();
    if (!fProcesses.MakePipe(fOutput)) {
      Fail("ERROR: Stdout pipe creation failed");
    }
    if (!fProcesses.MakePrivate(fOutput.readEnd)) {
      Fail("ERROR: Stdout DuplicateHandle failed");
    }
    if (!fProcesses.MakePipe(fInput)) {
      Fail("ERROR: Stdin pipe creation failed");
    }
    if (!fProcesses.MakePrivate(fInput.writeEnd)) {
      Fail("ERROR: Stdin DuplicateHandle failed");
    }
    if (HoldsNul(commandLine) ||
        !fProcesses.Start(commandLine, window, {fInput.readEnd, fOutput.writeEnd}, fChild)) {
      Fail("ERROR: CreateProcess Failed");
    }
    // The child's copy is the only one from here on, so that reading finds an end.
    if (!fProcesses.Close(fOutput.writeEnd)) {
      Fail("ERROR: CloseHandle failed");
    }
  }

  // The last steps, in their order. The read end is still open only when reading it threw; the
  // child then finds nobody to write to.
  ~ChildRun() {
    CloseOutput();
    fProcesses.Release(fChild);
    if (fInputPipe == InputPipe::kClosedAtTheEnd) {
      fProcesses.Close(fInput.readEnd);
      fProcesses.Close(fInput.writeEnd);
    }
  }
  ChildRun(const ChildRun&) = delete;
  ChildRun& operator=(const ChildRun&) = delete;

  Processes::Handle Output() const { return fOutput.readEnd; }

  // Without a limit. Nothing was written to the child's input, and its other end is still open
  // here: a child that reads it is waited for as long as it reads.
  void WaitForEnd() {
    CloseOutput();
    fProcesses.Wait(fChild);
  }

  int ExitCode() const { return fProcesses.ExitCode(fChild); }

 private:
  void CloseOutput() {
    if (fOutput.readEnd != Processes::kNoHandle) {
      fProcesses.Close(fOutput.readEnd);
      fOutput.readEnd = Processes::kNoHandle;
    }
  }

  Processes& fProcesses;
  const InputPipe fInputPipe;
  Processes::Pipe fOutput;
  Processes::Pipe fInput;
  Processes::Child fChild;
};

}  // namespace

int TOSSpecific::SpawnProcess(std::string program, std::vector<std::string> arguments,
                              std::string& output, int) {
  // The input pipe outlives the call in this form only; its sibling below closes it.
  ChildRun child(CommandLine(program, arguments), Processes::Window::kHidden,
                 ChildRun::InputPipe::kLeftOpen);
  output = GetFileContents(child.Output(), std::string(), true);
  child.WaitForEnd();
  return child.ExitCode();
}

std::string TOSSpecific::SpawnProcess(std::string program, std::vector<std::string> arguments,
                                      int) {
  ChildRun child(CommandLine(program, arguments), Processes::Window::kAsItLikes,
                 ChildRun::InputPipe::kClosedAtTheEnd);
  std::string text = GetFileContents(child.Output(), std::string(), true);
  // Asked for first: without a logger there is no use for a second copy of the text.
  if (TRootObject::GetCoreLogger()) {
    LogToCore(ILogger::kLogDebug, "Debug (win toss): GetFileContents() Returned: " + text);
  }
  child.WaitForEnd();
  // The exit code is not asked for: here a failing child is like any other.
  return text;
}

std::string TOSSpecific::SpawnProcess(std::string program, int ignored) {
  return SpawnProcess(program, std::vector<std::string>(), ignored);
}

}  // namespace NZRVQDA20

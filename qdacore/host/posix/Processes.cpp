#include <errno.h>
#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <string.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <vector>

#include <qdacore/host/HostServices.h>
#include <qdacore/host/Paths.h>
#include <qdacore/host/posix/CommandLine.h>
#include <qdacore/host/posix/Errors.h>

namespace NZRVQDA20 {
namespace host {
namespace {

const int kFirstOther = STDERR_FILENO + 1;

// In a process that has closed a standard descriptor a new one may take its number; in the child
// it would be overwritten when the standard ones are put in their places.
int MovedAboveStandard(int descriptor) {
  if (descriptor >= kFirstOther) {
    return descriptor;
  }
  const int moved = fcntl(descriptor, F_DUPFD_CLOEXEC, kFirstOther);
  close(descriptor);
  return moved;
}

// What happens in the child before its program begins.
class SpawnPlan {
 public:
  SpawnPlan() {
    posix_spawn_file_actions_init(&fActions);
    posix_spawnattr_init(&fAttributes);
  }
  ~SpawnPlan() {
    posix_spawn_file_actions_destroy(&fActions);
    posix_spawnattr_destroy(&fAttributes);
  }
  SpawnPlan(const SpawnPlan&) = delete;
  SpawnPlan& operator=(const SpawnPlan&) = delete;

  // False when memory runs out. What else is open here is closed in the child, whoever opened it.
  bool Hand(const Processes::StandardHandles& handles) {
    return posix_spawn_file_actions_adddup2(&fActions, handles.input, STDIN_FILENO) == 0 &&
           posix_spawn_file_actions_adddup2(&fActions, handles.output, STDOUT_FILENO) == 0 &&
           posix_spawn_file_actions_adddup2(&fActions, handles.output, STDERR_FILENO) == 0 &&
           posix_spawn_file_actions_addclosefrom_np(&fActions, kFirstOther) == 0;
  }

  // The signals that this thread blocks are no business of the child's, nor is it that we may not
  // want to end when a reader goes.
  void ResetSignals() {
    sigset_t none;
    sigset_t brokenPipe;
    sigemptyset(&none);
    sigemptyset(&brokenPipe);
    sigaddset(&brokenPipe, SIGPIPE);
    posix_spawnattr_setsigmask(&fAttributes, &none);
    posix_spawnattr_setsigdefault(&fAttributes, &brokenPipe);
    posix_spawnattr_setflags(&fAttributes, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
  }

  // 0, or the errno of why the program could not be started. No shell is ever tried.
  int Run(std::vector<std::string>& words, pid_t& pid) {
    std::string& program = words[0];
    if (program.find_first_of("/\\") == std::string::npos) {
      return posix_spawnp(&pid, program.c_str(), &fActions, &fAttributes, Pointers(words), environ);
    }
    int error = Spawn(words, pid);
    const std::string other = FromCaller(program);
    if ((error == ENOENT || error == ENOTDIR) && other != program) {
      program = other;
      error = Spawn(words, pid);
    }
    return error;
  }

 private:
  int Spawn(std::vector<std::string>& words, pid_t& pid) {
    return posix_spawn(&pid, words[0].c_str(), &fActions, &fAttributes, Pointers(words), environ);
  }

  char** Pointers(std::vector<std::string>& words) {
    fPointers.clear();
    fPointers.reserve(words.size() + 1);
    for (std::string& word : words) {
      fPointers.push_back(&word[0]);
    }
    fPointers.push_back(nullptr);
    return fPointers.data();
  }

  posix_spawn_file_actions_t fActions;
  posix_spawnattr_t fAttributes;
  std::vector<char*> fPointers;
};

class PosixProcesses final : public Processes {
 public:
  // Nothing here needs it.
  void AskForStandardOutput() override {}

  bool MakePipe(Pipe& pipe) override {
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) {
      return false;
    }
    pipe.readEnd = MovedAboveStandard(ends[0]);
    pipe.writeEnd = MovedAboveStandard(ends[1]);
    if (pipe.readEnd != kNoHandle && pipe.writeEnd != kNoHandle) {
      return true;
    }
    close(pipe.readEnd);
    close(pipe.writeEnd);
    pipe = Pipe();
    return false;
  }

  // It is private already.
  bool MakePrivate(Handle&) override { return true; }

  bool Start(const std::string& commandLine, Window, const StandardHandles& handles,
             Child& child) override {
    std::vector<std::string> words = SplitCommandLine(commandLine);
    SpawnPlan plan;
    if (words.empty() || !plan.Hand(handles)) {
      return false;
    }
    plan.ResetSignals();
    pid_t pid = kNoHandle;
    if (plan.Run(words, pid) != 0) {
      return false;
    }
    child.process = pid;
    return true;
  }

  bool Close(Handle handle) override { return close(handle) == 0; }

  Outcome OpenFile(const std::string& path, Handle& handle) override {
    const int descriptor = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY);
    if (descriptor < 0) {
      return OutcomeOfErrno(errno);
    }
    struct stat facts;
    if (fstat(descriptor, &facts) == 0 && S_ISDIR(facts.st_mode)) {
      close(descriptor);
      return OutcomeOfErrno(EACCES);
    }
    handle = descriptor;
    return Success();
  }

  std::size_t ExpectedSize(Handle handle) override {
    struct stat facts;
    return fstat(handle, &facts) == 0 && S_ISREG(facts.st_mode) && facts.st_size > 0
               ? static_cast<std::size_t>(facts.st_size)
               : 0;
  }

  ReadResult Read(Handle handle, char* buffer, std::size_t size) override {
    ssize_t count;
    do {
      count = read(handle, buffer, size);
    } while (count < 0 && errno == EINTR);
    if (count < 0) {
      return {false, 0, static_cast<unsigned long>(errno)};
    }
    return {true, static_cast<std::size_t>(count), 0};
  }

  std::string ErrorText(unsigned long error) override {
    char buffer[256];
    return strerror_r(static_cast<int>(error), buffer, sizeof buffer);
  }

  void Wait(Child& child) override {
    int status = 0;
    pid_t ended;
    do {
      ended = waitpid(child.process, &status, 0);
    } while (ended < 0 && errno == EINTR);
    // Where the host has its children forgotten (SIGCHLD ignored) there is nothing to be told.
    if (ended == child.process) {
      child.exitCode = WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
    }
  }

  int ExitCode(const Child& child) override { return child.exitCode; }

  // A process has no handle here: waiting for it released it.
  void Release(Child&) override {}
};

}  // namespace

Processes& SystemProcesses() {
  static PosixProcesses processes;
  return processes;
}

}  // namespace host
}  // namespace NZRVQDA20

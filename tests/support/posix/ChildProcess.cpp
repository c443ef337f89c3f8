#include <tests/support/ChildProcess.h>

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <stdlib.h>
#include <sys/wait.h>
#include <time.h>
#include <unistd.h>

namespace test_support {

namespace {

const int kLimitMs = 60000;

int MillisecondsNow() {
  struct timespec now;
  clock_gettime(CLOCK_MONOTONIC, &now);
  return static_cast<int>(now.tv_sec % 1000000 * 1000 + now.tv_nsec / 1000000);
}

[[noreturn]] void BecomeProgram(const std::string& program,
                                const std::vector<std::string>& arguments,
                                const std::vector<EnvironmentChange>& environment,
                                const std::string& folder) {
  for (const EnvironmentChange& change : environment) {
    if (change.value) {
      setenv(change.name.c_str(), change.value, 1);
    } else {
      unsetenv(change.name.c_str());
    }
  }
  std::vector<char*> argv = {const_cast<char*>(program.c_str())};
  for (const std::string& argument : arguments) {
    argv.push_back(const_cast<char*>(argument.c_str()));
  }
  argv.push_back(nullptr);
  if (folder.empty() || chdir(folder.c_str()) == 0) {
    execv(program.c_str(), argv.data());
  }
  _exit(127);
}

// Reads what is there; false at the end.
bool Drain(int descriptor, std::string& text) {
  char buffer[4096];
  const ssize_t count = read(descriptor, buffer, sizeof buffer);
  if (count > 0) {
    text.append(buffer, static_cast<std::size_t>(count));
  }
  return count > 0;
}

}  // namespace

std::string OwnProgram() {
  char buffer[4096];
  const ssize_t length = readlink("/proc/self/exe", buffer, sizeof buffer);
  return std::string(buffer, length < 0 ? 0 : static_cast<std::size_t>(length));
}

ChildResult RunProgram(const std::string& program, const std::vector<std::string>& arguments,
                       const std::vector<EnvironmentChange>& environment,
                       const std::string& folder) {
  ChildResult result = {-1, false, "", ""};
  int output[2];
  int error[2];
  if (pipe2(output, O_CLOEXEC) != 0 || pipe2(error, O_CLOEXEC) != 0) {
    return result;
  }
  const pid_t child = fork();
  if (child == 0) {
    const int nothing = open("/dev/null", O_RDONLY);
    dup2(nothing, 0);
    dup2(output[1], 1);
    dup2(error[1], 2);
    BecomeProgram(program, arguments, environment, folder);
  }
  close(output[1]);
  close(error[1]);
  const int begin = MillisecondsNow();
  pollfd streams[2] = {{output[0], POLLIN, 0}, {error[0], POLLIN, 0}};
  while (streams[0].fd >= 0 || streams[1].fd >= 0) {
    const int left = kLimitMs - (MillisecondsNow() - begin);
    if (left <= 0 || poll(streams, 2, left) <= 0) {
      result.timedOut = true;
      kill(child, SIGKILL);
      break;
    }
    if (streams[0].revents && !Drain(output[0], result.output)) {
      streams[0].fd = -1;
    }
    if (streams[1].revents && !Drain(error[0], result.error)) {
      streams[1].fd = -1;
    }
  }
  close(output[0]);
  close(error[0]);
  int status = 0;
  waitpid(child, &status, 0);
  if (!result.timedOut) {
    result.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
  }
  return result;
}

}  // namespace test_support

// What this host's pipes, files and children are made of.

#include <errno.h>
#include <fcntl.h>
#include <signal.h>
#include <stdio.h>
#include <stdlib.h>
#include <sys/wait.h>
#include <unistd.h>

#include <string>

#include <gtest/gtest.h>

#include <qdacore/host/HostServices.h>
#include <tests/support/ChildProcess.h>
#include <tests/support/TemporaryFolder.h>

namespace {

using namespace NZRVQDA20::host;
using namespace test_support;

bool IsPrivate(int descriptor) { return (fcntl(descriptor, F_GETFD) & FD_CLOEXEC) != 0; }

TEST(PosixProcesses, DescriptorsArePrivateFromBirth) {
  Processes& processes = SystemProcesses();
  Processes::Pipe pipe;
  ASSERT_TRUE(processes.MakePipe(pipe));
  EXPECT_TRUE(IsPrivate(pipe.readEnd));
  EXPECT_TRUE(IsPrivate(pipe.writeEnd));
  const Processes::Pipe made = pipe;
  EXPECT_TRUE(processes.MakePrivate(pipe.readEnd));
  EXPECT_TRUE(processes.MakePrivate(pipe.writeEnd));
  EXPECT_EQ(made.readEnd, pipe.readEnd);
  EXPECT_EQ(made.writeEnd, pipe.writeEnd);
  processes.Close(pipe.readEnd);
  processes.Close(pipe.writeEnd);

  TemporaryFolder folder;
  Processes::Handle file = Processes::kNoHandle;
  ASSERT_TRUE(processes.OpenFile(folder.Write("file", "12345"), file).Done());
  EXPECT_TRUE(IsPrivate(file));
  EXPECT_EQ(5u, processes.ExpectedSize(file));
  processes.Close(file);
}

TEST(PosixProcesses, FolderIsNotAFileToRead) {
  TemporaryFolder folder;
  Processes::Handle handle = Processes::kNoHandle;
  const Outcome outcome = SystemProcesses().OpenFile(folder.Path(), handle);
  EXPECT_EQ(Situation::kDenied, outcome.situation);
  EXPECT_EQ(5u, outcome.number);
}

// Runs `line` with our standard descriptors `closed` and returns what it wrote.
QDACORE_CHILD(SpawnsWithClosedDescriptors) {
  const int saved = fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 10);
  for (const char descriptor : arguments.at(0)) {
    close(descriptor - '0');
  }
  Processes& processes = SystemProcesses();
  Processes::Pipe output;
  Processes::Pipe input;
  if (!processes.MakePipe(output) || !processes.MakePipe(input)) {
    return 1;
  }
  for (const int end : {output.readEnd, output.writeEnd, input.readEnd, input.writeEnd}) {
    if (end <= STDERR_FILENO || !IsPrivate(end)) {
      return 2;
    }
  }
  Processes::Child child;
  if (!processes.Start("sh -c 'echo out; echo err >&2; ls -l /proc/self/fd/0 | grep -c pipe'",
                       Processes::Window::kHidden, {input.readEnd, output.writeEnd}, child)) {
    return 3;
  }
  processes.Close(output.writeEnd);
  char buffer[64];
  for (Processes::ReadResult read = processes.Read(output.readEnd, buffer, sizeof buffer);
       read.count > 0; read = processes.Read(output.readEnd, buffer, sizeof buffer)) {
    if (write(saved, buffer, read.count) < 0) {
      return 4;
    }
  }
  processes.Wait(child);
  return processes.ExitCode(child);
}

TEST(PosixProcesses, ChildHasAllThreeHandlesWhenWeHaveNone) {
  for (const char* closed : {"0", "1", "2", "01", "02", "12", "012"}) {
    SCOPED_TRACE(closed);
    const ChildResult result = RunChild("SpawnsWithClosedDescriptors", {}, {closed});
    EXPECT_EQ(0, result.exitCode);
    EXPECT_EQ("out\nerr\n1\n", result.output);
  }
}

// 0, or the number of what is wrong.
int MakePipesWithoutDescriptors() {
  Processes& processes = SystemProcesses();
  Processes::Pipe pipe;
  // The first call of all, because a sanitizer needs descriptors to look at the object.
  if (!processes.MakePipe(pipe) || !processes.Close(pipe.readEnd) ||
      !processes.Close(pipe.writeEnd)) {
    return 6;
  }
  pipe = Processes::Pipe();
  const int last = dup(0);
  while (dup(0) >= 0) {
  }
  if (processes.MakePipe(pipe) || pipe.readEnd != Processes::kNoHandle) {
    return 1;
  }
  // One that is free is not enough, and is free again afterwards.
  close(last);
  if (processes.MakePipe(pipe) || pipe.readEnd != Processes::kNoHandle) {
    return 2;
  }
  if (dup(0) != last) {
    return 3;
  }
  // Two that are standard ones, and room to move one of them only.
  close(STDIN_FILENO);
  close(STDOUT_FILENO);
  close(last);
  if (processes.MakePipe(pipe) || pipe.readEnd != Processes::kNoHandle) {
    return 4;
  }
  return dup(STDERR_FILENO) == STDIN_FILENO && dup(STDERR_FILENO) == STDOUT_FILENO &&
                 dup(STDERR_FILENO) == last
             ? 0
             : 5;
}

QDACORE_CHILD(LacksDescriptors) {
  const int wrong = MakePipesWithoutDescriptors();
  // A sanitizer looks at the process at its end, and needs some.
  for (int descriptor = STDERR_FILENO + 1; descriptor < 64; ++descriptor) {
    close(descriptor);
  }
  return wrong;
}

TEST(PosixProcesses, PipeThatCannotBeMadeLeavesNothing) {
  EXPECT_EQ(0, RunProgram("/bin/sh", {"-c", "ulimit -n 64; exec \"$0\" \"$@\"", OwnProgram(),
                                      "--run-as-child", "LacksDescriptors"})
                   .exitCode);
}

QDACORE_CHILD(IgnoresItsChildren) {
  signal(SIGCHLD, SIG_IGN);
  Processes& processes = SystemProcesses();
  Processes::Pipe pipe;
  Processes::Child child;
  if (!processes.MakePipe(pipe) ||
      !processes.Start("true", Processes::Window::kHidden, {pipe.readEnd, pipe.writeEnd}, child)) {
    return 1;
  }
  processes.Wait(child);
  printf("%d", processes.ExitCode(child));
  return 0;
}

TEST(PosixProcesses, ExitCodeThatTheHostForgetsIsMinusOne) {
  EXPECT_EQ("-1", RunChild("IgnoresItsChildren").output);
}

// A signal that interrupts the reading, or the waiting, ends neither.
void DoNothing(int) {}

QDACORE_CHILD(IsInterrupted) {
  struct sigaction action = {};
  action.sa_handler = DoNothing;
  sigaction(SIGALRM, &action, nullptr);
  Processes& processes = SystemProcesses();
  Processes::Pipe pipe;
  Processes::Pipe none;
  Processes::Child child;
  ualarm(20000, 20000);
  if (!processes.MakePipe(pipe) || !processes.MakePipe(none) ||
      !processes.Start("sh -c 'sleep 0.2; echo late; exec >/dev/null 2>&1; sleep 0.2; exit 7'",
                       Processes::Window::kHidden, {none.readEnd, pipe.writeEnd}, child)) {
    return 1;
  }
  processes.Close(pipe.writeEnd);
  char buffer[16] = "";
  const Processes::ReadResult read = processes.Read(pipe.readEnd, buffer, sizeof buffer - 1);
  const Processes::ReadResult end = processes.Read(pipe.readEnd, buffer + 8, 1);
  processes.Wait(child);
  ualarm(0, 0);
  printf("%d %s%d %d", read.done, buffer, end.done && end.count == 0, processes.ExitCode(child));
  return 0;
}

TEST(PosixProcesses, InterruptedCallsGoOn) {
  EXPECT_EQ("1 late\n1 7", RunChild("IsInterrupted").output);
}

}  // namespace

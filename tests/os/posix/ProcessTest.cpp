// What only this host's children have: descriptors, signals, PATH, scripts. The other host's tests
// of the same operations stand beside them.

#include <errno.h>
#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <thread>

#include <gtest/gtest.h>

#include <qdacore/os/TOSSpecific.h>
#include <tests/os/Children.h>
#include <tests/support/ChildProcess.h>
#include <tests/support/ExpectStatus.h>
#include <tests/support/LogCapture.h>
#include <tests/support/ScopedEnvironment.h>

namespace {

using namespace NZRVQDA20;
using namespace test_support;
using os_tests::ChildCommand;

int ExitCodeOf(const std::string& program, const std::vector<std::string>& arguments = {}) {
  std::string output;
  return TOSSpecific::SpawnProcess(program, arguments, output, 0);
}

// A program that prints `text`, and the path of it.
std::string WriteScript(const TemporaryFolder& folder, const std::string& name,
                        const std::string& text) {
  const std::string path = folder.Write(name, "#!/bin/sh\necho " + text + "\n");
  chmod(path.c_str(), 0755);
  return path;
}

// --- What a child inherits -----------------------------------------------------------

QDACORE_CHILD(ListsItsDescriptors) {
  std::vector<std::string> lines;
  for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
    const std::string target = std::filesystem::read_symlink(entry.path()).string();
    // Less the one that reads the folder.
    if (target.find("/fd") == std::string::npos) {
      lines.push_back(entry.path().filename().string() + " " + target.substr(0, target.find(':')) +
                      "\n");
    }
  }
  std::sort(lines.begin(), lines.end());
  for (const std::string& line : lines) {
    os_tests::WriteOutput(line);
  }
  return 0;
}

TEST(SpawnProcessOnPosix, ChildInheritsTheStandardHandlesAndNothingElse) {
  // Whatever is open here: a log file, pipes of earlier children, what a host opened carelessly.
  LogCapture log;
  ExitCodeOf("true");
  const int careless = open("/dev/null", O_RDONLY);
  const int high = fcntl(careless, F_DUPFD, 700);
  ASSERT_EQ(700, high);
  const char expected[] = "0 pipe\n1 pipe\n2 pipe\n";
  std::string output;
  EXPECT_EQ(0, TOSSpecific::SpawnProcess(ChildCommand("ListsItsDescriptors"), {}, output, 0));
  EXPECT_EQ(expected, output);
  EXPECT_EQ(expected, TOSSpecific::SpawnProcess(ChildCommand("ListsItsDescriptors"), 0));
  close(high);
  close(careless);
}

TEST(SpawnProcessOnPosix, OutputAndErrorAreOnePipeAndInputIsAnother) {
  EXPECT_EQ("same\nother\n",
            TOSSpecific::SpawnProcess(
                "sh -c 'f=/proc/$$/fd; a=$(readlink $f/0); b=$(readlink $f/1); c=$(readlink $f/2); "
                "[ \"$b\" = \"$c\" ] && echo same; [ \"$a\" = \"$b\" ] || echo other'",
                0));
}

TEST(SpawnProcessOnPosix, WhatTheExitCodeFormLeavesOpenAreTheTwoEndsOfOnePipe) {
  EXPECT_EQ("read and write", RunChild("LooksAtWhatIsLeftOpen").output);
}

QDACORE_CHILD(LooksAtWhatIsLeftOpen) {
  ExitCodeOf("true");
  std::string text;
  for (int end = STDERR_FILENO + 1; end < 64; ++end) {
    const int flags = fcntl(end, F_GETFL);
    struct stat facts;
    if (flags >= 0 && fstat(end, &facts) == 0 && S_ISFIFO(facts.st_mode)) {
      text += (flags & O_ACCMODE) == O_RDONLY ? "read" : " and write";
      text += fcntl(end, F_GETFD) & FD_CLOEXEC ? "" : " (inherited)";
    }
  }
  os_tests::WriteOutput(text);
  return 0;
}

// --- Signals -------------------------------------------------------------------------

TEST(SpawnProcessOnPosix, SignalThatEndedTheChildIsItsExitCodeFrom128On) {
  const struct {
    int signal;
    int exitCode;
  } rows[] = {{SIGHUP, 129}, {SIGKILL, 137}, {SIGTERM, 143}, {SIGUSR1, 138}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.signal);
    EXPECT_EQ(row.exitCode, ExitCodeOf(ChildCommand("EndsBySignal"), {std::to_string(row.signal)}));
  }
}

QDACORE_CHILD(EndsBySignal) {
  const int number = std::stoi(arguments.at(0));
  signal(number, SIG_DFL);
  kill(getpid(), number);
  return 1;
}

TEST(SpawnProcessOnPosix, TextBeforeASignalIsKept) {
  std::string output;
  EXPECT_EQ(137, TOSSpecific::SpawnProcess("sh -c 'echo text; kill -9 $$'", {}, output, 0));
  EXPECT_EQ("text\n", output);
  EXPECT_EQ("text\n", TOSSpecific::SpawnProcess("sh -c 'echo text; kill -9 $$'", 0));
}

// Else a child that is asked to end, or whose reader has gone, would run for ever.
TEST(SpawnProcessOnPosix, ChildDoesNotBlockTheSignalsThatWeBlock) {
  EXPECT_EQ("143 141", RunChild("SpawnsWithSignalsBlocked").output);
}

QDACORE_CHILD(SpawnsWithSignalsBlocked) {
  sigset_t all;
  sigfillset(&all);
  sigprocmask(SIG_BLOCK, &all, nullptr);
  signal(SIGPIPE, SIG_IGN);
  const int asked = ExitCodeOf("sh -c 'kill -TERM $$; exit 1'");
  const int broken = ExitCodeOf("sh -c 'kill -PIPE $$; exit 1'");
  os_tests::WriteOutput(std::to_string(asked) + " " + std::to_string(broken));
  return 0;
}

TEST(SpawnProcessOnPosix, NoFormLeavesAZombie) {
  EXPECT_EQ("no child", RunChild("SpawnsAndLooksForChildren").output);
}

QDACORE_CHILD(SpawnsAndLooksForChildren) {
  ExitCodeOf("true");
  TOSSpecific::SpawnProcess("true", 0);
  ThrownStatus([] { TOSSpecific::SpawnProcess("no-such-program-anywhere", 0); });
  const bool none = waitpid(-1, nullptr, WNOHANG) == -1 && errno == ECHILD;
  os_tests::WriteOutput(none ? "no child" : "a child is left");
  return 0;
}

// --- Which program it is -------------------------------------------------------------

TEST(SpawnProcessOnPosix, NameWithoutASeparatorIsLookedUpOnPath) {
  TemporaryFolder folder;
  WriteScript(folder, "first/qdacore-word", "first");
  WriteScript(folder, "second/qdacore-word", "second");
  const std::string path = folder.PathOf("none") + ":" + folder.PathOf("second") + ":" +
                           folder.PathOf("first") + ":/bin:/usr/bin";
  ScopedEnvironment scope("PATH", path.c_str());
  EXPECT_EQ("second\n", TOSSpecific::SpawnProcess("qdacore-word", 0));
  EXPECT_EQ("first\n", TOSSpecific::SpawnProcess(folder.PathOf("first/qdacore-word"), 0));
}

// The other separator is a separator too: a name that holds one is a path.
TEST(SpawnProcessOnPosix, BothSeparatorsAreAcceptedInTheProgram) {
  TemporaryFolder folder;
  WriteScript(folder, "sub/word", "slash");
  EXPECT_EQ("slash\n", TOSSpecific::SpawnProcess("\"" + folder.Path() + "\\sub/word\"", 0));
  // A file of that very name comes first.
  WriteScript(folder, "sub\\word", "backslash");
  EXPECT_EQ("backslash\n", TOSSpecific::SpawnProcess("\"" + folder.Path() + "/sub\\word\"", 0));
  // And is not looked up on PATH.
  ScopedEnvironment scope("PATH", (folder.Path() + ":/bin:/usr/bin").c_str());
  EXPECT_STATUS(kQDAStatusFail, TOSSpecific::SpawnProcess("sub\\word", 0));
}

void ExpectNotStarted(const std::string& program) {
  SCOPED_TRACE(program);
  LogCapture log;
  EXPECT_STATUS(kQDAStatusFail, TOSSpecific::SpawnProcess(program, 0));
  EXPECT_EQ(std::vector<std::string>{"[Error] ERROR: CreateProcess Failed"}, log.Lines());
}

std::string WriteExecutable(const TemporaryFolder& folder, const std::string& name,
                            const std::string& contents) {
  const std::string path = folder.Write(name, contents);
  chmod(path.c_str(), 0755);
  return path;
}

TEST(SpawnProcessOnPosix, ScriptNeedsAnInterpreterLineThatHolds) {
  TemporaryFolder folder;
  ExpectNotStarted(WriteExecutable(folder, "without", "echo a shell was asked\n"));
  ExpectNotStarted(WriteExecutable(folder, "empty", ""));
  ExpectNotStarted(WriteExecutable(folder, "missing", "#!/no/such/interpreter\n"));
  ExpectNotStarted(WriteExecutable(folder, "nothing", "#!\n"));
  ExpectNotStarted(WriteExecutable(folder, "folder", "#!" + folder.Path() + "\n"));
  ScopedEnvironment scope("PATH", folder.Path().c_str());
  for (const char* name : {"without", "empty", "missing", "nothing", "folder"}) {
    ExpectNotStarted(name);
  }
}

// Root too may run a file only when someone may.
TEST(SpawnProcessOnPosix, FileThatMayNotBeRunIsNotStarted) {
  TemporaryFolder folder;
  const std::string path = WriteScript(folder, "program", "ran");
  chmod(path.c_str(), 0644);
  ExpectNotStarted(path);
  ExpectNotStarted("\"\"");
  ExpectNotStarted("'' a");
  ExpectNotStarted("");
  ExpectNotStarted(" \t ");
  ExpectNotStarted(std::string(5000, 'x'));
  ExpectNotStarted("/" + std::string(5000, 'x'));
}

TEST(SpawnProcessOnPosix, LineThatIsTooLongIsNotStarted) {
  ExpectNotStarted("true " + std::string(4 << 20, 'x'));
}

TEST(SpawnProcessOnPosix, NothingIsExpanded) {
  EXPECT_EQ("<$HOME><*><~><;><>>", TOSSpecific::SpawnProcess(ChildCommand("PrintsArguments"),
                                                             {"$HOME", "*", "~", ";", ">"}, 0));
}

// --- Capture -------------------------------------------------------------------------

TEST(CaptureFileOnPosix, FileWithoutASizeIsReadToItsEnd) {
  const std::string text = TOSSpecific::CaptureFile("/proc/self/status");
  EXPECT_EQ(0u, text.find("Name:"));
  EXPECT_EQ('\n', text.back());
}

TEST(CaptureFileOnPosix, PipeIsReadUntilItsWriterGoes) {
  TemporaryFolder folder;
  const std::string path = folder.PathOf("pipe");
  ASSERT_EQ(0, mkfifo(path.c_str(), 0600));
  std::thread writer([&path] {
    const int pipe = open(path.c_str(), O_WRONLY | O_CLOEXEC);
    for (const char* part : {"two ", "parts"}) {
      EXPECT_LT(0, write(pipe, part, 4));
      usleep(50000);
    }
    close(pipe);
  });
  EXPECT_EQ("two part", TOSSpecific::CaptureFile(path));
  writer.join();
}

TEST(CaptureFileOnPosix, ReadThatFailsAtOnceIsAnEnd) {
  LogCapture log;
  EXPECT_EQ("", TOSSpecific::CaptureFile("/proc/self/mem"));
  EXPECT_EQ(std::vector<std::string>(), log.Lines());
}

TEST(CaptureFileOnPosix, NameWithABackslashIsTakenAsItStands) {
  TemporaryFolder folder;
  folder.Write("a/b", "slash");
  EXPECT_EQ("slash", TOSSpecific::CaptureFile(folder.PathOf("a\\b")));
  folder.Write("a\\b", "backslash");
  EXPECT_EQ("backslash", TOSSpecific::CaptureFile(folder.PathOf("a\\b")));
}

// As an ordinary user, because nothing is denied to root.
TEST(CaptureFileOnPosix, FileThatMayNotBeReadIsNotFound) {
  TemporaryFolder folder;
  const std::string path = folder.Write("locked", "secret");
  ASSERT_EQ(0, chmod(path.c_str(), 0));
  ASSERT_EQ(0, chmod(folder.Path().c_str(), 0755));
  EXPECT_EQ("kQDAStatusFileNotFound []", RunChild("CapturesAsAnOrdinaryUser", {}, {path}).output);
}

QDACORE_CHILD(CapturesAsAnOrdinaryUser) {
  const uid_t nobody = 65534;
  if (geteuid() == 0 && setuid(nobody) != 0) {
    return 1;
  }
  os_tests::WriteOutput(ThrownStatus([&] { TOSSpecific::CaptureFile(arguments.at(0)); }) + " [" +
                        TOSSpecific::CaptureFileLoader(arguments.at(0), true) + "]");
  return 0;
}

}  // namespace

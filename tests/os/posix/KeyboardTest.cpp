// Standard input as the keyboard: a terminal of the test's own, pipes, and what has ended.

#include <fcntl.h>
#include <poll.h>
#include <pthread.h>
#include <signal.h>
#include <stdlib.h>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

#include <chrono>
#include <functional>
#include <string>
#include <thread>

#include <gtest/gtest.h>

#include <qdacore/os/TOSSpecific.h>
#include <tests/support/ChildProcess.h>
#include <tests/support/TemporaryFolder.h>

namespace {

using namespace NZRVQDA20;
using namespace test_support;

// Until it holds; ten seconds at the most.
bool Becomes(const std::function<bool()>& condition) {
  for (int round = 0; round < 2000; ++round) {
    if (condition()) {
      return true;
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
  return false;
}

// Another standard input, until the end of the scope. Takes the descriptor over.
class ScopedInput {
 public:
  explicit ScopedInput(int descriptor) : fBefore(fcntl(0, F_DUPFD_CLOEXEC, 3)) {
    dup2(descriptor, 0);
    close(descriptor);
  }
  ~ScopedInput() {
    if (fBefore < 0) {
      close(0);
      return;
    }
    dup2(fBefore, 0);
    close(fBefore);
  }
  ScopedInput(const ScopedInput&) = delete;
  ScopedInput& operator=(const ScopedInput&) = delete;

 private:
  int fBefore;
};

int OpenMaster() {
  const int master = posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
  EXPECT_EQ(0, grantpt(master));
  EXPECT_EQ(0, unlockpt(master));
  return master;
}

class Terminal : public testing::Test {
 protected:
  Terminal()
      : fMaster(OpenMaster()), fInput(open(ptsname(fMaster), O_RDWR | O_NOCTTY | O_CLOEXEC)) {}
  ~Terminal() override { close(fMaster); }

  void Type(const std::string& keys) {
    ASSERT_EQ(static_cast<ssize_t>(keys.size()), write(fMaster, keys.data(), keys.size()));
  }
  static struct termios Mode() {
    struct termios mode = {};
    EXPECT_EQ(0, tcgetattr(0, &mode));
    return mode;
  }
  static bool Echoes() { return (Mode().c_lflag & ECHO) != 0; }

  // What the terminal shows its user.
  std::string Shown() {
    std::string shown;
    struct pollfd screen = {fMaster, POLLIN, 0};
    while (poll(&screen, 1, 50) == 1 && (screen.revents & POLLIN)) {
      char byte = 0;
      if (read(fMaster, &byte, 1) != 1) {
        break;
      }
      shown += byte;
    }
    return shown;
  }

  // Types while GetKeyboardChar waits, and returns what it gives.
  int KeyWhileWaiting(const std::string& keys) {
    int key = -2;
    std::thread waiting([&] { key = TOSSpecific::GetKeyboardChar(); });
    EXPECT_TRUE(Becomes([] { return !Echoes(); }));
    Type(keys);
    waiting.join();
    return key;
  }

  int fMaster;
  ScopedInput fInput;
};

TEST_F(Terminal, KeyWaitsWithoutALineEnd) {
  EXPECT_FALSE(TOSSpecific::IsKeyWaiting());
  Type("x");
  EXPECT_TRUE(Becomes([] { return TOSSpecific::IsKeyWaiting(); }));
  EXPECT_TRUE(TOSSpecific::IsKeyWaiting());
  EXPECT_EQ('x', TOSSpecific::GetKeyboardChar());
  EXPECT_FALSE(TOSSpecific::IsKeyWaiting());
}

TEST_F(Terminal, KeyIsNotEchoed) {
  EXPECT_EQ('k', KeyWhileWaiting("k"));
  EXPECT_EQ("", Shown());
}

TEST_F(Terminal, HasItsModeBackAfterwards) {
  const struct termios before = Mode();
  TOSSpecific::IsKeyWaiting();
  KeyWhileWaiting("k");
  const struct termios after = Mode();
  EXPECT_EQ(before.c_iflag, after.c_iflag);
  EXPECT_EQ(before.c_oflag, after.c_oflag);
  EXPECT_EQ(before.c_lflag, after.c_lflag);
  EXPECT_EQ(before.c_cc[VMIN], after.c_cc[VMIN]);
  EXPECT_EQ(before.c_cc[VTIME], after.c_cc[VTIME]);
  EXPECT_TRUE(Echoes());
}

TEST_F(Terminal, EnterAndControlCAreKeys) {
  EXPECT_EQ(13, KeyWhileWaiting("\r"));
  EXPECT_EQ(3, KeyWhileWaiting("\x03"));
  EXPECT_EQ(4, KeyWhileWaiting("\x04"));
}

TEST_F(Terminal, KeysAboveAsciiArePositive) {
  EXPECT_EQ(0xE9, KeyWhileWaiting("\xE9"));
  EXPECT_EQ(0xFF, KeyWhileWaiting("\xFF"));
}

TEST_F(Terminal, KeysComeOneByOne) {
  Type("ab");
  EXPECT_TRUE(Becomes([] { return TOSSpecific::IsKeyWaiting(); }));
  EXPECT_EQ('a', TOSSpecific::GetKeyboardChar());
  EXPECT_TRUE(TOSSpecific::IsKeyWaiting());
  EXPECT_EQ('b', TOSSpecific::GetKeyboardChar());
}

void Ignore(int) {}

TEST_F(Terminal, SignalDoesNotEndTheWait) {
  struct sigaction interrupting = {};
  interrupting.sa_handler = Ignore;
  struct sigaction before;
  sigaction(SIGUSR1, &interrupting, &before);
  int key = -2;
  std::thread waiting([&] { key = TOSSpecific::GetKeyboardChar(); });
  EXPECT_TRUE(Becomes([] { return !Echoes(); }));
  for (int times = 0; times < 5; ++times) {
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
    pthread_kill(waiting.native_handle(), SIGUSR1);
  }
  Type("k");
  waiting.join();
  sigaction(SIGUSR1, &before, nullptr);
  EXPECT_EQ('k', key);
}

// A job in the background would be stopped when it touched its terminal.
QDACORE_CHILD(AsksInTheBackground) {
  setsid();
  const int master = OpenMaster();
  const int terminal = open(ptsname(master), O_RDWR);
  dup2(terminal, 0);
  if (terminal < 0 || ioctl(0, TIOCSCTTY, 0) != 0) {
    return 90;
  }
  if (write(master, "x", 1) != 1) {
    return 91;
  }
  const pid_t job = fork();
  if (job == 0) {
    setpgid(0, 0);
    _exit(TOSSpecific::IsKeyWaiting() ? 1 : 0);
  }
  int status = 0;
  waitpid(job, &status, WUNTRACED);
  if (WIFSTOPPED(status)) {
    kill(job, SIGKILL);
    return 92;
  }
  return WEXITSTATUS(status);
}

TEST(Keyboard, HasNoKeysForTheBackground) {
  EXPECT_EQ(0, RunChild("AsksInTheBackground").exitCode);
}

TEST(Keyboard, MayBeAPipe) {
  int ends[2];
  ASSERT_EQ(0, pipe2(ends, O_CLOEXEC));
  const ScopedInput input(ends[0]);
  EXPECT_FALSE(TOSSpecific::IsKeyWaiting());
  ASSERT_EQ(3, write(ends[1], "a\n\xFE", 3));
  EXPECT_TRUE(TOSSpecific::IsKeyWaiting());
  EXPECT_EQ('a', TOSSpecific::GetKeyboardChar());
  // No terminal, so nothing makes line feeds of an Enter key.
  EXPECT_EQ('\n', TOSSpecific::GetKeyboardChar());
  EXPECT_EQ(0xFE, TOSSpecific::GetKeyboardChar());
  EXPECT_FALSE(TOSSpecific::IsKeyWaiting());
  close(ends[1]);
  EXPECT_FALSE(TOSSpecific::IsKeyWaiting());
  EXPECT_EQ(-1, TOSSpecific::GetKeyboardChar());
}

TEST(Keyboard, MayBeAPipeThatDoesNotBlock) {
  int ends[2];
  ASSERT_EQ(0, pipe2(ends, O_CLOEXEC | O_NONBLOCK));
  const ScopedInput input(ends[0]);
  std::thread typing([&] {
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    EXPECT_EQ(1, write(ends[1], "k", 1));
  });
  EXPECT_EQ('k', TOSSpecific::GetKeyboardChar());
  typing.join();
  close(ends[1]);
}

TEST(Keyboard, MayBeAFile) {
  const TemporaryFolder folder;
  const ScopedInput input(open(folder.Write("keys", "k").c_str(), O_RDONLY | O_CLOEXEC));
  EXPECT_TRUE(TOSSpecific::IsKeyWaiting());
  EXPECT_EQ('k', TOSSpecific::GetKeyboardChar());
  EXPECT_FALSE(TOSSpecific::IsKeyWaiting());
  EXPECT_EQ(-1, TOSSpecific::GetKeyboardChar());
}

TEST(Keyboard, MayBeMissing) {
  {
    const ScopedInput input(open("/dev/null", O_RDONLY | O_CLOEXEC));
    EXPECT_FALSE(TOSSpecific::IsKeyWaiting());
    EXPECT_EQ(-1, TOSSpecific::GetKeyboardChar());
  }
  const ScopedInput input(open("/dev/null", O_RDONLY | O_CLOEXEC));
  close(0);
  EXPECT_FALSE(TOSSpecific::IsKeyWaiting());
  EXPECT_EQ(-1, TOSSpecific::GetKeyboardChar());
}

}  // namespace

// The hidden prompt, at a terminal of the test's own.

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <stdlib.h>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

#include <chrono>
#include <string>

#include <gtest/gtest.h>

#include <qda/Secret.h>

namespace {

using std::chrono::steady_clock;

// Exit codes of the process that asks.
enum { kRead = 0, kUnread = 9 };

// Asks, and writes "<secret>" to the terminal. It is in a session of its own: `terminal` is its
// terminal, or it has none.
[[noreturn]] void AskInChild(const char* terminal, int output) {
  setsid();
  if (terminal) {
    // The first terminal that a session opens becomes its own.
    const int opened = open(terminal, O_RDWR);
    ioctl(opened, TIOCSCTTY, 0);
  }
  unsetenv("QDA_TEST_PASSWORD");
  dup2(output, 2);
  std::string secret;
  const bool isRead = qda::ReadSecret({"", "QDA_TEST_PASSWORD", "Password of \x1Bme: "}, &secret);
  if (isRead) {
    dprintf(2, "<%s>", secret.c_str());
  }
  _exit(isRead ? kRead : kUnread);
}

class SecretPrompt : public testing::Test {
 protected:
  void SetUp() override {
    fMaster = posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
    ASSERT_GE(fMaster, 0);
    ASSERT_EQ(0, grantpt(fMaster));
    ASSERT_EQ(0, unlockpt(fMaster));
    fName = ptsname(fMaster);
    // Held open, or the terminal's state would end with the child.
    fSlave = open(fName.c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC);
    ASSERT_GE(fSlave, 0);
    ASSERT_EQ(0, pipe2(fErrors, O_CLOEXEC));
  }

  void TearDown() override {
    if (fChild > 0) {
      kill(fChild, SIGKILL);
      waitpid(fChild, nullptr, 0);
    }
    for (const int descriptor : {fMaster, fSlave, fErrors[0], fErrors[1]}) {
      close(descriptor);
    }
  }

  void Start(bool withTerminal) {
    fChild = fork();
    if (fChild == 0) {
      AskInChild(withTerminal ? fName.c_str() : nullptr, fErrors[1]);
    }
  }

  void WaitForPrompt() {
    while (fShown.find("me: ") == std::string::npos && ReadMore(fMaster, &fShown)) {
    }
  }

  void Type(const std::string& text) {
    ASSERT_EQ(static_cast<ssize_t>(text.size()), write(fMaster, text.data(), text.size()));
  }

  // The exit code of the child, 128 and the signal's number when one ended it. 20 seconds at most.
  int End() {
    int status = 0;
    const steady_clock::time_point limit = steady_clock::now() + std::chrono::seconds(20);
    while (waitpid(fChild, &status, WNOHANG) == 0) {
      if (steady_clock::now() > limit) {
        return -1;
      }
      usleep(1000);
    }
    fChild = -1;
    while (ReadMore(fErrors[0], &fSaid, 0)) {
    }
    while (ReadMore(fMaster, &fShown, 0)) {
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
  }

  bool ShowsWhatIsTyped() const {
    termios state;
    return tcgetattr(fSlave, &state) == 0 && (state.c_lflag & ECHO) != 0;
  }

  bool ReadMore(int from, std::string* text, int timeoutMs = 20000) {
    pollfd input = {from, POLLIN, 0};
    char buffer[512];
    if (poll(&input, 1, timeoutMs) != 1) {
      return false;
    }
    const ssize_t count = read(from, buffer, sizeof buffer);
    text->append(buffer, count > 0 ? static_cast<std::size_t>(count) : 0);
    return count > 0;
  }

  int fMaster = -1;
  int fSlave = -1;
  int fErrors[2] = {-1, -1};
  std::string fName;
  pid_t fChild = -1;
  std::string fShown;  // at the terminal
  std::string fSaid;   // on standard error
};

TEST_F(SecretPrompt, HidesWhatIsTyped) {
  ASSERT_TRUE(ShowsWhatIsTyped());
  Start(true);
  WaitForPrompt();
  EXPECT_FALSE(ShowsWhatIsTyped());
  Type("s3cret \n");
  EXPECT_EQ(kRead, End());
  EXPECT_EQ("<s3cret >", fSaid);
  // The prompt is harmless text, and all that is seen of the answer is that the line has ended.
  EXPECT_EQ("Password of \\x1Bme: \r\n", fShown);
  EXPECT_TRUE(ShowsWhatIsTyped());
}

TEST_F(SecretPrompt, TakesAnEmptyLine) {
  Start(true);
  WaitForPrompt();
  Type("\n");
  EXPECT_EQ(kRead, End());
  EXPECT_EQ("<>", fSaid);
}

TEST_F(SecretPrompt, DoesNotTakeWhatWasTypedBefore) {
  Type("ls -l\n");
  // It reaches the terminal in its own time.
  pollfd arrived = {fSlave, POLLIN, 0};
  ASSERT_EQ(1, poll(&arrived, 1, 20000));
  Start(true);
  WaitForPrompt();
  Type("right\n");
  EXPECT_EQ(kRead, End());
  EXPECT_EQ("<right>", fSaid);
}

TEST_F(SecretPrompt, EndOfInputIsNone) {
  Start(true);
  WaitForPrompt();
  Type("\x04");
  EXPECT_EQ(kUnread, End());
  EXPECT_EQ("qda: password: none was entered (kQDAStatusNotFound)\n", fSaid);
  EXPECT_TRUE(ShowsWhatIsTyped());
}

TEST_F(SecretPrompt, InterruptEndsTheProgramAndShowsTypingAgain) {
  Start(true);
  WaitForPrompt();
  Type("half\x03");
  EXPECT_EQ(128 + SIGINT, End());
  EXPECT_EQ("", fSaid);
  EXPECT_TRUE(ShowsWhatIsTyped());
}

TEST_F(SecretPrompt, TerminationEndsTheProgramAndShowsTypingAgain) {
  Start(true);
  WaitForPrompt();
  kill(fChild, SIGTERM);
  EXPECT_EQ(128 + SIGTERM, End());
  EXPECT_TRUE(ShowsWhatIsTyped());
}

TEST_F(SecretPrompt, WithoutATerminalSaysWhatToDo) {
  Start(false);
  EXPECT_EQ(kUnread, End());
  EXPECT_EQ(
      "qda: password: none is given, and there is no terminal to ask at (kQDAStatusNotFound); use "
      "--password-file FILE, or set the environment variable QDA_TEST_PASSWORD\n",
      fSaid);
}

TEST_F(SecretPrompt, LineThatIsTooLongIsRefused) {
  Start(true);
  WaitForPrompt();
  Type(std::string(1025, 'x') + "\n");
  EXPECT_EQ(kUnread, End());
  EXPECT_EQ("qda: password: it is longer than 1024 characters (kQDAStatusInvalidFormat)\n", fSaid);
}

}  // namespace

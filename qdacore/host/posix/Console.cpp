#include <errno.h>
#include <poll.h>
#include <stdlib.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

#include <qdacore/host/HostServices.h>

namespace NZRVQDA20 {
namespace host {
namespace {

// While it lives, a terminal on standard input gives each key at once and echoes none, Ctrl+C
// among them: then no key can end the process and leave the terminal like this.
class KeyMode {
 public:
  KeyMode() : fIsTerminal(tcgetattr(STDIN_FILENO, &fBefore) == 0) {
    if (fIsTerminal) {
      struct termios keys = fBefore;
      keys.c_lflag &= ~static_cast<tcflag_t>(ICANON | ECHO | ISIG);
      keys.c_cc[VMIN] = 1;
      keys.c_cc[VTIME] = 0;
      tcsetattr(STDIN_FILENO, TCSANOW, &keys);
    }
  }
  ~KeyMode() {
    if (fIsTerminal) {
      tcsetattr(STDIN_FILENO, TCSANOW, &fBefore);
    }
  }
  KeyMode(const KeyMode&) = delete;
  KeyMode& operator=(const KeyMode&) = delete;

  bool IsTerminal() const { return fIsTerminal; }

 private:
  struct termios fBefore;
  bool fIsTerminal;
};

// A background job is stopped when it touches its terminal's mode.
bool IsInBackground() {
  const pid_t foreground = tcgetpgrp(STDIN_FILENO);
  return foreground >= 0 && foreground != getpgrp();
}

const char* VariableOr(const char* name, const char* otherwise) {
  const char* const value = getenv(name);
  return value && *value != '\0' ? value : otherwise;
}

class PosixConsole final : public Console {
 public:
  // Asks for the number of bytes: at its end a file or pipe counts as readable, but has none.
  bool IsKeyWaiting() override {
    if (IsInBackground()) {
      return false;
    }
    const KeyMode mode;
    int waiting = 0;
    return ioctl(STDIN_FILENO, FIONREAD, &waiting) == 0 && waiting > 0;
  }

  int ReadKey() override {
    const KeyMode mode;
    unsigned char key = 0;
    ssize_t count = 0;
    while ((count = read(STDIN_FILENO, &key, 1)) < 0) {
      if (errno == EAGAIN) {
        // Somebody made standard input non-blocking.
        struct pollfd input = {STDIN_FILENO, POLLIN, 0};
        poll(&input, 1, -1);
      } else if (errno != EINTR) {
        break;
      }
    }
    if (count != 1) {
      return -1;
    }
    // The terminal makes a line feed of the Enter key; on every host the key is 13.
    return mode.IsTerminal() && key == '\n' ? '\r' : key;
  }

  std::string Editor() override { return VariableOr("VISUAL", VariableOr("EDITOR", "vi")); }

  std::string Shell() override { return VariableOr("SHELL", "sh"); }

  void Run(const std::string& command) override {
    if (system(command.c_str()) != 0) {
      // Nobody is told how it ended.
    }
  }
};

}  // namespace

Console& SystemConsole() {
  static PosixConsole console;
  return console;
}

}  // namespace host
}  // namespace NZRVQDA20

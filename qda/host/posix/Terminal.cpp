#include <qda/host/Terminal.h>

#include <errno.h>
#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <termios.h>
#include <unistd.h>

namespace qda {
namespace host {

namespace {

// What would end or stop the process while the terminal shows nothing.
const int kSignals[] = {SIGHUP, SIGINT, SIGQUIT, SIGTERM, SIGTSTP};

volatile sig_atomic_t caughtSignal = 0;

void NoteSignal(int number) { caughtSignal = number; }

// While it lives, the signals arrive in Wait only, and there they are noted. At its end a noted one
// does what it would have done.
class HeldSignals {
 public:
  HeldSignals() {
    caughtSignal = 0;
    sigset_t held;
    sigemptyset(&held);
    for (const int number : kSignals) {
      sigaddset(&held, number);
    }
    sigprocmask(SIG_BLOCK, &held, &fMask);
    struct sigaction note = {};
    note.sa_handler = NoteSignal;
    for (int i = 0; i < kCount; ++i) {
      sigaction(kSignals[i], nullptr, &fActions[i]);
      // One that is ignored stays so.
      if (fActions[i].sa_handler != SIG_IGN) {
        sigaction(kSignals[i], &note, nullptr);
      }
    }
  }

  ~HeldSignals() {
    for (int i = 0; i < kCount; ++i) {
      sigaction(kSignals[i], &fActions[i], nullptr);
    }
    if (caughtSignal) {
      raise(caughtSignal);
    }
    sigprocmask(SIG_SETMASK, &fMask, nullptr);
  }

  HeldSignals(const HeldSignals&) = delete;
  HeldSignals& operator=(const HeldSignals&) = delete;

  // False when a signal came before there was something to read.
  bool Wait(int descriptor) const {
    pollfd input = {descriptor, POLLIN, 0};
    while (ppoll(&input, 1, nullptr, &fMask) < 0) {
      if (errno != EINTR || caughtSignal) {
        return false;
      }
    }
    return true;
  }

 private:
  static const int kCount = sizeof kSignals / sizeof kSignals[0];
  sigset_t fMask;
  struct sigaction fActions[kCount];
};

bool WriteAll(int descriptor, const std::string& text) {
  for (std::size_t at = 0; at < text.size();) {
    const ssize_t count = write(descriptor, text.data() + at, text.size() - at);
    if (count < 0 && errno != EINTR) {
      return false;
    }
    at += count > 0 ? static_cast<std::size_t>(count) : 0;
  }
  return true;
}

// A line that is too long is read to its end all the same: the rest is not for the shell.
Answer ReadLine(const HeldSignals& signals, int terminal, std::size_t longest, std::string* line) {
  std::string text;
  char character = 0;
  while (signals.Wait(terminal) && read(terminal, &character, 1) == 1) {
    if (character == '\n') {
      if (text.size() > longest) {
        return Answer::kTooLong;
      }
      *line = text;
      return Answer::kGiven;
    }
    if (text.size() <= longest) {
      text += character;
    }
  }
  return Answer::kNone;
}

Answer AskAt(int terminal, const std::string& prompt, std::size_t longest, std::string* line) {
  const HeldSignals signals;
  termios before;
  if (tcgetattr(terminal, &before) != 0) {
    return Answer::kNoTerminal;
  }
  termios hidden = before;
  hidden.c_lflag &= ~static_cast<tcflag_t>(ECHO | ECHOE | ECHOK);
  hidden.c_lflag |= ICANON | ECHONL;
  // What was typed before the question is no answer to it.
  if (tcsetattr(terminal, TCSAFLUSH, &hidden) != 0) {
    return Answer::kNoTerminal;
  }
  const Answer answer =
      WriteAll(terminal, prompt) ? ReadLine(signals, terminal, longest, line) : Answer::kNone;
  if (answer == Answer::kNone) {
    WriteAll(terminal, "\n");
  }
  tcsetattr(terminal, TCSAFLUSH, &before);
  return answer;
}

}  // namespace

Answer AskHidden(const std::string& prompt, std::size_t longest, std::string* line) {
  const int terminal = open("/dev/tty", O_RDWR | O_NOCTTY | O_CLOEXEC);
  if (terminal < 0) {
    return Answer::kNoTerminal;
  }
  const Answer answer = AskAt(terminal, prompt, longest, line);
  close(terminal);
  return answer;
}

bool ErrorIsWatched() { return isatty(STDERR_FILENO) == 1; }

}  // namespace host
}  // namespace qda

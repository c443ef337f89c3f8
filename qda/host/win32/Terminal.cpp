#include <qda/host/Terminal.h>

#include <windows.h>

namespace qda {
namespace host {

namespace {

class Console {
 public:
  explicit Console(const char* name)
      : fHandle(CreateFileA(name, GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                            nullptr, OPEN_EXISTING, 0, nullptr)) {}
  ~Console() {
    if (IsOpen()) {
      CloseHandle(fHandle);
    }
  }
  Console(const Console&) = delete;
  Console& operator=(const Console&) = delete;

  bool IsOpen() const { return fHandle != INVALID_HANDLE_VALUE; }
  HANDLE Handle() const { return fHandle; }

 private:
  HANDLE fHandle;
};

void Write(const Console& output, const std::string& text) {
  DWORD written = 0;
  WriteConsoleA(output.Handle(), text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
}

// The system's ANSI code page, as for what stands on the command line.
std::string Narrow(const std::wstring& text) {
  std::string narrow(text.size() * 4, '\0');
  const int size =
      text.empty()
          ? 0
          : WideCharToMultiByte(CP_ACP, 0, text.data(), static_cast<int>(text.size()), &narrow[0],
                                static_cast<int>(narrow.size()), nullptr, nullptr);
  narrow.resize(static_cast<std::size_t>(size));
  return narrow;
}

// A line that is too long is read to its end all the same: the rest is not for the shell.
Answer ReadLine(const Console& input, std::size_t longest, std::string* line) {
  std::wstring text;
  wchar_t character = 0;
  DWORD count = 0;
  while (ReadConsoleW(input.Handle(), &character, 1, &count, nullptr) && count == 1) {
    const bool atStart = text.empty();
    if (character == L'\n') {
      const std::string narrow = Narrow(text);
      if (narrow.size() > longest) {
        return Answer::kTooLong;
      }
      *line = narrow;
      return Answer::kGiven;
    }
    // Control-Z is the end of the input here.
    if (atStart && character == 0x1A) {
      break;
    }
    if (character != L'\r' && text.size() <= longest) {
      text += character;
    }
  }
  return Answer::kNone;
}

}  // namespace

Answer AskHidden(const std::string& prompt, std::size_t longest, std::string* line) {
  const Console input("CONIN$");
  const Console output("CONOUT$");
  DWORD before = 0;
  if (!input.IsOpen() || !output.IsOpen() || !GetConsoleMode(input.Handle(), &before) ||
      !SetConsoleMode(input.Handle(), (before | ENABLE_LINE_INPUT | ENABLE_PROCESSED_INPUT) &
                                          ~static_cast<DWORD>(ENABLE_ECHO_INPUT))) {
    return Answer::kNoTerminal;
  }
  FlushConsoleInputBuffer(input.Handle());
  Write(output, prompt);
  const Answer answer = ReadLine(input, longest, line);
  Write(output, "\r\n");
  SetConsoleMode(input.Handle(), before);
  return answer;
}

bool ErrorIsWatched() {
  // A console takes no escape sequences until it is told to, and older ones never do. The null
  // device, which the C runtime takes for a terminal, is none.
  const HANDLE error = GetStdHandle(STD_ERROR_HANDLE);
  DWORD mode = 0;
  return GetConsoleMode(error, &mode) &&
         SetConsoleMode(error, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
}

}  // namespace host
}  // namespace qda

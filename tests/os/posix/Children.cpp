#include <tests/os/Children.h>

#include <spawn.h>
#include <unistd.h>

namespace os_tests {

namespace {

void WriteAll(int descriptor, const std::string& text) {
  std::size_t written = 0;
  while (written < text.size()) {
    const ssize_t count = write(descriptor, text.data() + written, text.size() - written);
    if (count <= 0) {
      EndNow(98);
    }
    written += static_cast<std::size_t>(count);
  }
}

}  // namespace

void WriteOutput(const std::string& text) { WriteAll(STDOUT_FILENO, text); }

void WriteError(const std::string& text) { WriteAll(STDERR_FILENO, text); }

std::string ReadInput() {
  char buffer[64];
  const ssize_t count = read(STDIN_FILENO, buffer, sizeof buffer);
  return count > 0 ? std::string(buffer, static_cast<std::size_t>(count)) : std::string();
}

void StartAndLeave(const std::string& program, const std::vector<std::string>& arguments) {
  std::vector<char*> words = {const_cast<char*>(program.c_str())};
  for (const std::string& argument : arguments) {
    words.push_back(const_cast<char*>(argument.c_str()));
  }
  words.push_back(nullptr);
  pid_t pid = 0;
  if (posix_spawn(&pid, program.c_str(), nullptr, nullptr, words.data(), environ) != 0) {
    EndNow(97);
  }
}

void EndNow(int code) { _exit(code); }

}  // namespace os_tests

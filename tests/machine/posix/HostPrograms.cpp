#include <tests/machine/posix/HostPrograms.h>

#include <gtest/gtest.h>

#include <tests/support/ChildProcess.h>

namespace machine_test {

std::string OutputOf(const std::string& command) {
  std::string text = test_support::RunProgram(
                         "/bin/sh", {"-c", "PATH=$PATH:/usr/sbin:/sbin; LC_ALL=C; export LC_ALL; " +
                                               command + " 2>/dev/null"})
                         .output;
  text.erase(text.find_last_not_of('\n') + 1);
  return text;
}

std::string NoProgramReason(const std::string& program) {
  return OutputOf("command -v " + program).empty() ? "no " + program + " on this machine" : "";
}

nlohmann::json JsonOf(const std::string& command) {
  const nlohmann::json found = nlohmann::json::parse(OutputOf(command), nullptr, false);
  EXPECT_FALSE(found.is_discarded()) << command;
  return found.is_discarded() ? nlohmann::json() : found;
}

std::string Quoted(const std::string& text) {
  std::string quoted = "'";
  for (const char character : text) {
    quoted += character == '\'' ? "'\\''" : std::string(1, character);
  }
  return quoted + "'";
}

}  // namespace machine_test

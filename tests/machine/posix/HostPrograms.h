// The programs of a Linux system that tell facts about it, as a second opinion.

#ifndef TESTS_MACHINE_POSIX_HOSTPROGRAMS_H
#define TESTS_MACHINE_POSIX_HOSTPROGRAMS_H

#include <string>

#include <nlohmann/json.hpp>

namespace machine_test {

// What the shell command prints, without the line feeds at its end. Programs of administrators
// are found too.
std::string OutputOf(const std::string& command);

// Why the program cannot be asked; empty when it can.
std::string NoProgramReason(const std::string& program);

// What the command prints, as JSON; fails the test and gives a null when it is none.
nlohmann::json JsonOf(const std::string& command);

// `text` as one word of a shell command.
std::string Quoted(const std::string& text);

}  // namespace machine_test

#define SKIP_WITHOUT(program)                                            \
  do {                                                                   \
    const std::string reason = ::machine_test::NoProgramReason(program); \
    if (!reason.empty()) {                                               \
      GTEST_SKIP() << reason;                                            \
    }                                                                    \
  } while (false)

#endif

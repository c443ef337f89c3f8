// This very machine, against what its own commands say.

#include <plugins/machine/host/OperatingSystem.h>

#include <gtest/gtest.h>

#include <plugins/machine/OperatingSystemFacts.h>
#include <tests/support/ChildProcess.h>
#include <tests/support/ScopedEnvironment.h>

namespace {

using machine::OperatingSystemFacts;
using machine::host::ReadOperatingSystem;
using test_support::RunProgram;

std::string OutputOf(const std::string& script) {
  std::string text = RunProgram("/bin/sh", {"-c", script}).output;
  text.erase(text.find_last_not_of('\n') + 1);
  return text;
}

// A shell reads os-release too; the format is made for it.
std::string FromShell(const std::string& name) {
  return OutputOf("f=/etc/os-release; test -e $f || f=/usr/lib/os-release; . $f; echo \"$" + name +
                  "\"");
}

TEST(ThisLinux, HasTheHostNameThatUnameTells) {
  EXPECT_EQ(OutputOf("uname -n"), machine::UnderstandReading(ReadOperatingSystem()).hostName);
}

TEST(ThisLinux, HasTheNameAndVersionThatAShellReads) {
  if (FromShell("NAME").empty()) {
    GTEST_SKIP() << "this machine has no os-release file with a NAME";
  }
  const OperatingSystemFacts facts = machine::UnderstandReading(ReadOperatingSystem());
  EXPECT_EQ(FromShell("NAME"), facts.name);
  EXPECT_EQ(FromShell("VERSION_ID"), facts.version.value_or(""));
}

TEST(ThisLinux, IsLinux) { EXPECT_EQ(36, machine::UnderstandReading(ReadOperatingSystem()).type); }

TEST(ReadVariableTest, GivesTheTextOrNothing) {
  const test_support::ScopedEnvironment set("QDA_SOME_VARIABLE", "some text");
  const test_support::ScopedEnvironment empty("QDA_EMPTY_VARIABLE", "");
  EXPECT_EQ("some text", machine::host::ReadVariable("QDA_SOME_VARIABLE"));
  EXPECT_EQ("", machine::host::ReadVariable("QDA_EMPTY_VARIABLE"));
  EXPECT_EQ("", machine::host::ReadVariable("QDA_NO_SUCH_VARIABLE"));
}

}  // namespace

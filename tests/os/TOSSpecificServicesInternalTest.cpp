// The host's services with a host of the test's own.

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <qdacore/os/TOSSpecific.h>
#include <tests/host/HostFakes.h>
#include <tests/host/ServiceFakes.h>
#include <tests/support/ExpectStatus.h>
#include <tests/support/LogCapture.h>

namespace {

using namespace NZRVQDA20;
using namespace host_fakes;
using namespace test_support;
using namespace std::string_literals;

typedef std::vector<std::string> Lines;

TEST(HostServices, IsAdminIsTheHostsAnswer) {
  FakeAccount account;
  host::Replacements fakes;
  fakes.account = &account;
  const ScopedHost scope(fakes);
  EXPECT_FALSE(TOSSpecific::IsAdmin());
  account.isAdministrator = true;
  EXPECT_TRUE(TOSSpecific::IsAdmin());
}

class MachineServices : public testing::Test {
 protected:
  MachineServices() { host::replacements.machine = &fMachine; }
  ~MachineServices() override { host::replacements = {}; }

  FakeMachine fMachine;
};

TEST_F(MachineServices, NameIsTheHosts) {
  fMachine.name = "some-machine";
  EXPECT_EQ("some-machine", TOSSpecific::GetMachineName());
  EXPECT_EQ("some-machine", TOSSpecific::GetOperatingSystemName());
}

TEST_F(MachineServices, MissingNameIsAFailure) {
  const LogCapture log;
  fMachine.hasName = false;
  EXPECT_STATUS(kQDAStatusFail, TOSSpecific::GetMachineName());
  EXPECT_STATUS(kQDAStatusFail, TOSSpecific::GetOperatingSystemName());
  EXPECT_EQ(Lines(), log.Lines());
}

TEST_F(MachineServices, SleepIsNotConverted) {
  for (const unsigned int milliseconds : {0u, 1u, 1000u, 4294967295u}) {
    TOSSpecific::USleep(milliseconds);
  }
  EXPECT_EQ((std::vector<unsigned int>{0, 1, 1000, 4294967295}), fMachine.sleeps);
}

class EnvironmentServices : public testing::Test {
 protected:
  EnvironmentServices() { host::replacements.environment = &fEnvironment; }
  ~EnvironmentServices() override { host::replacements = {}; }

  FakeEnvironment fEnvironment;
};

TEST_F(EnvironmentServices, NamesAndValuesAreTheCallers) {
  fEnvironment.text = " text ";
  EXPECT_EQ(" text ", TOSSpecific::GetEnvironment("NAME"));
  EXPECT_TRUE(TOSSpecific::PutEnvironment("NAME", "VALUE"));
  EXPECT_EQ((Lines{"read NAME", "write NAME=VALUE"}), fEnvironment.calls);
}

TEST_F(EnvironmentServices, FailureShowsTheHostsNumber) {
  for (const unsigned long number : {0ul, 5ul, 203ul, 4294967295ul}) {
    const LogCapture log;
    fEnvironment.outcome = {host::Situation::kOther, number};
    fEnvironment.text = "not to be seen";
    EXPECT_EQ("", TOSSpecific::GetEnvironment("NAME"));
    EXPECT_FALSE(TOSSpecific::PutEnvironment("NAME", "VALUE"));
    const std::string shown = std::to_string(number);
    EXPECT_EQ(
        (Lines{"[Debug] TOSSpecific debug output: [ERROR]GetEnvironment-GetLastError():" + shown,
               "[Debug] TOSSpecific debug output: [ERROR]PutEnvironment-GetLastError():" + shown}),
        log.Lines());
  }
}

TEST_F(EnvironmentServices, NulNeverReachesTheHost) {
  EXPECT_EQ("", TOSSpecific::GetEnvironment("NA\0ME"s));
  EXPECT_FALSE(TOSSpecific::PutEnvironment("NA\0ME"s, "VALUE"));
  EXPECT_FALSE(TOSSpecific::PutEnvironment("NAME", "VAL\0UE"s));
  EXPECT_EQ(Lines(), fEnvironment.calls);
}

class ConsoleServices : public testing::Test {
 protected:
  ConsoleServices() { host::replacements.console = &fConsole; }
  ~ConsoleServices() override { host::replacements = {}; }

  FakeConsole fConsole;
};

TEST_F(ConsoleServices, KeysAreTheHosts) {
  EXPECT_FALSE(TOSSpecific::IsKeyWaiting());
  fConsole.isKeyWaiting = true;
  EXPECT_TRUE(TOSSpecific::IsKeyWaiting());
  for (const int key : {-1, 0, 65, 224, 255}) {
    fConsole.key = key;
    EXPECT_EQ(key, TOSSpecific::GetKeyboardChar());
  }
}

TEST_F(ConsoleServices, EditorCommandIsNotQuoted) {
  fConsole.editor = "notepad";
  TOSSpecific::LaunchTextEditor("C:\\my files\\a.txt");
  TOSSpecific::LaunchTextEditor("\"quoted\"");
  TOSSpecific::LaunchTextEditor("");
  EXPECT_EQ((Lines{"notepad C:\\my files\\a.txt", "notepad \"quoted\"", "notepad "}),
            fConsole.commands);
}

TEST_F(ConsoleServices, EditorIsNotStartedForAPathWithANul) {
  TOSSpecific::LaunchTextEditor("a\0b"s);
  EXPECT_EQ(Lines(), fConsole.commands);
}

TEST_F(ConsoleServices, ShellCommandIsTheShell) {
  fConsole.shell = "cmd";
  TOSSpecific::LaunchCommandShell();
  EXPECT_EQ(Lines{"cmd"}, fConsole.commands);
}

}  // namespace

// qda bmc with a terminal for its standard error.

#include <fcntl.h>
#include <poll.h>
#include <stdlib.h>
#include <sys/wait.h>
#include <unistd.h>

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tests/ipmi/ScriptedBmc.h>
#include <tests/support/ScopedEnvironment.h>

namespace {

using namespace ipmi_test;

// What stands at the terminal when qda has ended.
std::string RunAtTerminal(const std::string& address, int* exitCode) {
  const test_support::ScopedEnvironment password("QDA_BMC_PASSWORD", "secret");
  const int master = posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
  if (master < 0 || grantpt(master) != 0 || unlockpt(master) != 0) {
    ADD_FAILURE() << "no terminal to be had";
    return "";
  }
  const int slave = open(ptsname(master), O_RDWR | O_NOCTTY | O_CLOEXEC);
  const pid_t child = fork();
  if (child == 0) {
    const int nothing = open("/dev/null", O_RDWR);
    dup2(nothing, 0);
    dup2(nothing, 1);
    dup2(slave, 2);
    execl(QDA_FILE, QDA_FILE, "bmc", address.c_str(), "--user", "admin",
          static_cast<char*>(nullptr));
    _exit(127);
  }
  close(slave);
  std::string shown;
  char buffer[512];
  pollfd input = {master, POLLIN, 0};
  // The terminal hangs up when its last user has gone.
  while (poll(&input, 1, 20000) == 1) {
    const ssize_t count = read(master, buffer, sizeof buffer);
    if (count <= 0) {
      break;
    }
    shown.append(buffer, static_cast<std::size_t>(count));
  }
  int status = 0;
  waitpid(child, &status, 0);
  *exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  close(master);
  return shown;
}

TEST(BmcTerminal, ShowsWhatIsWaitedForAndWipesIt) {
  std::vector<BmcStep> script = GoodScript();
  // The line comes when half a second has passed.
  script[0].delayMs = 1200;
  ScriptedBmc bmc(script);
  QDA_NEEDS_BMC(bmc);
  int exitCode = -1;
  const std::string shown = RunAtTerminal(bmc.Address(), &exitCode);
  const std::string wipe = "\r\x1B[K";
  EXPECT_THAT(shown, testing::StartsWith(wipe + "waiting for the BMC at " + bmc.Address() +
                                         ", 20 s at the most, 0 s"));
  EXPECT_THAT(shown, testing::EndsWith(wipe));
  EXPECT_EQ(0, exitCode);
}

}  // namespace

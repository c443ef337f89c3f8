// What only this host's sockets have: signals, and numbers that are files too.

#include <qdacore/host/Network.h>

#include <errno.h>
#include <fcntl.h>
#include <signal.h>
#include <sys/time.h>
#include <time.h>
#include <unistd.h>

#include <gtest/gtest.h>

namespace {

using NZRVQDA20::host::HostNetwork;
using NZRVQDA20::host::Network;

int signalCount = 0;

void CountSignal(int) { ++signalCount; }

// A signal each 50 ms while it lives.
class Alarms {
 public:
  Alarms() {
    signalCount = 0;
    struct sigaction action = {};
    action.sa_handler = CountSignal;
    sigaction(SIGALRM, &action, &fBefore);
    SetInterval(50000);
  }
  ~Alarms() {
    SetInterval(0);
    sigaction(SIGALRM, &fBefore, nullptr);
  }

 private:
  static void SetInterval(suseconds_t microseconds) {
    const itimerval timer = {{0, microseconds}, {0, microseconds}};
    setitimer(ITIMER_REAL, &timer, nullptr);
  }
  struct sigaction fBefore;
};

TEST(PosixNetwork, SignalsNeitherEndNorProlongTheWait) {
  const Network::Socket socket = HostNetwork().OpenDatagram();
  ASSERT_TRUE(HostNetwork().SetReceiveTimeout(socket, 400));
  const Alarms alarms;
  timespec begin;
  timespec end;
  clock_gettime(CLOCK_MONOTONIC, &begin);
  unsigned char bytes[1];
  int error = 0;
  EXPECT_FALSE(HostNetwork().Receive(socket, bytes, sizeof bytes, error));
  clock_gettime(CLOCK_MONOTONIC, &end);
  EXPECT_EQ(EAGAIN, error);
  EXPECT_GE(signalCount, 2);
  const double waited = static_cast<double>(end.tv_sec - begin.tv_sec) +
                        static_cast<double>(end.tv_nsec - begin.tv_nsec) * 1e-9;
  EXPECT_GE(waited, 0.35);
  EXPECT_TRUE(HostNetwork().Close(socket));
}

TEST(PosixNetwork, NumberThatIsAFileByNowIsNotClosed) {
  const int file = open("/dev/null", O_RDONLY | O_CLOEXEC);
  ASSERT_GE(file, 0);
  EXPECT_FALSE(HostNetwork().Close(static_cast<Network::Socket>(file)));
  EXPECT_EQ(0, close(file));
}

TEST(PosixNetwork, ChildrenDoNotInheritASocket) {
  const Network::Socket socket = HostNetwork().OpenDatagram();
  EXPECT_EQ(FD_CLOEXEC, fcntl(static_cast<int>(socket), F_GETFD));
  EXPECT_TRUE(HostNetwork().Close(socket));
}

}  // namespace

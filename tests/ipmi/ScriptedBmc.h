// A BMC of the test's own at port 623 of a loopback address that nobody else uses. It keeps every
// request, byte by byte, and answers the N-th as the N-th step of its script has it.

#ifndef TESTS_IPMI_SCRIPTEDBMC_H
#define TESTS_IPMI_SCRIPTEDBMC_H

#include <atomic>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include <tests/ipmi/UdpSocket.h>

namespace ipmi_test {

// Binds port 623 of a free loopback address; one that is taken by somebody else is tried again, for
// as long as another test may run.
UdpSocket::Binding BindBmcPort(UdpSocket* socket);

struct BmcStep {
  // Sent in order; none: no answer.
  std::vector<std::string> replies;
  int delayMs = 0;
};

// The four good replies of SampleFrames.h.
std::vector<BmcStep> GoodScript();

// A test cannot go on without its BMC, and says why.
#define QDA_NEEDS_BMC(bmc)          \
  if (!(bmc).IsUp()) {              \
    GTEST_SKIP() << (bmc).Reason(); \
  }

class ScriptedBmc {
 public:
  explicit ScriptedBmc(const std::vector<BmcStep>& script);
  ~ScriptedBmc();
  ScriptedBmc(const ScriptedBmc&) = delete;
  ScriptedBmc& operator=(const ScriptedBmc&) = delete;

  // False: no port, and the test is to be skipped for the reason.
  bool IsUp() const { return fBinding == UdpSocket::kBound; }
  std::string Reason() const;

  std::string Address() const { return fSocket.Bound().Text(); }
  std::vector<std::string> Requests() const;
  // All requests came from one and the same port.
  bool HadOnePeer() const;

 private:
  void Serve();

  std::vector<BmcStep> fScript;
  UdpSocket fSocket;
  UdpSocket::Binding fBinding;
  mutable std::mutex fMutex;
  std::vector<std::string> fRequests;
  std::vector<UdpAddress> fPeers;
  std::atomic<bool> fStop{false};
  std::thread fThread;
};

}  // namespace ipmi_test

#endif

// ipmi_sim, the simulator of Debian's package openipmi, as a process of the test's own; and a relay
// in front of it.

#ifndef TESTS_IPMI_POSIX_SIMULATOR_H
#define TESTS_IPMI_POSIX_SIMULATOR_H

#include <sys/types.h>

#include <atomic>
#include <cstdint>
#include <string>
#include <thread>
#include <vector>

#include <tests/ipmi/UdpSocket.h>
#include <tests/support/TemporaryFolder.h>

namespace ipmi_test {

// A BMC with one user, "admin", whose password is "secret", and one entry in its event log.
class Simulator {
 public:
  Simulator();
  ~Simulator();
  Simulator(const Simulator&) = delete;
  Simulator& operator=(const Simulator&) = delete;

  static bool IsInstalled();

  // False when it did not come up.
  bool IsUp() const { return fIsUp; }
  UdpAddress Address() const { return fAddress; }

 private:
  void Start();
  bool WaitForAnswer() const;

  test_support::TemporaryFolder fFolder;
  UdpAddress fAddress;
  pid_t fProcess = -1;
  bool fIsUp = false;
};

// Stands at port 623 of a loopback address. The simulator insists on the sequence number that it
// asked for in its reply to Activate Session. The relay, when it mends, puts that number and those
// that follow into the requests of the session: bytes 5 to 8, which a straight password does not
// sign.
class Relay {
 public:
  Relay(const UdpAddress& server, bool mends);
  ~Relay();
  Relay(const Relay&) = delete;
  Relay& operator=(const Relay&) = delete;

  UdpSocket::Binding Binding() const { return fBinding; }
  std::string Address() const { return fFront.Bound().Text(); }
  // Those that came, as they came, and those that went back. Not while the relay is in use.
  const std::vector<std::string>& Requests() const { return fRequests; }
  const std::vector<std::string>& Replies() const { return fReplies; }

 private:
  void Serve();
  void Mend(std::string* request);
  void Note(const std::string& reply);

  bool fMends;
  UdpAddress fServer;
  UdpSocket fFront;
  UdpSocket fBack;
  UdpSocket::Binding fBinding;
  std::uint32_t fNextNumber = 0;
  std::vector<std::string> fRequests;
  std::vector<std::string> fReplies;
  std::atomic<bool> fStop{false};
  std::thread fThread;
};

}  // namespace ipmi_test

#endif

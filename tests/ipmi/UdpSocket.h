// A UDP socket of a test's own, on loopback, the same on every platform.

#ifndef TESTS_IPMI_UDPSOCKET_H
#define TESTS_IPMI_UDPSOCKET_H

#include <cstdint>
#include <string>

namespace ipmi_test {

struct UdpAddress {
  std::uint32_t ip = 0;  // most significant byte first: 0x7F000001 is 127.0.0.1
  std::uint16_t port = 0;

  std::string Text() const;  // of the IP address
};

class UdpSocket {
 public:
  // kDenied: the port takes rights that this process lacks. kTaken: somebody else has it.
  enum Binding { kBound, kDenied, kTaken, kFailed };

  UdpSocket();
  ~UdpSocket();
  UdpSocket(const UdpSocket&) = delete;
  UdpSocket& operator=(const UdpSocket&) = delete;

  // Port 0: any.
  Binding Bind(const UdpAddress& address);
  UdpAddress Bound() const;

  // Where the last datagram came from goes to `from`. False when none came in time.
  bool Receive(std::string* bytes, UdpAddress* from, int timeoutMs);
  bool Send(const std::string& bytes, const UdpAddress& to);

 private:
  std::uint64_t fSocket;
};

// The host's number of the error, 0 for those that it does not name: a timeout, a datagram that is
// too long.
int TimedOutError();
int TooLongError();

}  // namespace ipmi_test

#endif

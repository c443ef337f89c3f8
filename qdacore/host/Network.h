// The host's sockets, as far as datagrams go. Errors are the host's raw socket errors: errno, or
// what WSAGetLastError tells. Nothing here throws anything of ours.

#ifndef QDACORE_HOST_NETWORK_H
#define QDACORE_HOST_NETWORK_H

#include <cstddef>
#include <cstdint>

namespace NZRVQDA20 {
namespace host {

class Network {
 public:
  typedef std::uint64_t Socket;
  enum : Socket { kNoSocket = ~static_cast<Socket>(0) };

  // A sockaddr_in of the host takes this many bytes, everywhere.
  enum : std::size_t { kAddressSize = 16 };

  // Asks for version `version` of the host's sockets (0x0202 is 2.2) and gives the version that
  // was granted. Where sockets need no start it is the one asked for.
  virtual std::uint16_t Start(std::uint16_t version) = 0;

  // A datagram socket for IPv4, bound to nothing; kNoSocket on failure.
  virtual Socket OpenDatagram() = 0;

  // Makes a sockaddr_in of an IPv4 address in dotted decimal form. A text that is none gives the
  // address that the host's inet_addr gives, 255.255.255.255.
  virtual void MakeAddress(const char* dotted, std::uint16_t port,
                           unsigned char (&address)[kAddressSize]) = 0;

  virtual bool SetReceiveTimeout(Socket socket, std::uint32_t milliseconds) = 0;

  virtual bool Send(Socket socket, const unsigned char (&address)[kAddressSize],
                    const unsigned char* bytes, std::size_t size) = 0;

  // Waits for a datagram as long as the socket's timeout has it, and stores its bytes. One that is
  // larger than `size` fails as too long, with its first `size` bytes stored. On failure `error` is
  // the socket error, otherwise it is untouched.
  virtual bool Receive(Socket socket, unsigned char* bytes, std::size_t size, int& error) = 0;

  // False when `socket` was none.
  virtual bool Close(Socket socket) = 0;

 protected:
  // Never deleted through this: the objects are static, and need no end.
  ~Network() = default;
};

Network& HostNetwork();

}  // namespace host
}  // namespace NZRVQDA20

#endif

#include <string.h>
// Before <windows.h>, which brings the older sockets otherwise.
#include <winsock2.h>

#include <qdacore/host/HostServices.h>

namespace NZRVQDA20 {
namespace host {
namespace {

static_assert(sizeof(sockaddr_in) == Network::kAddressSize, "an address has the size told");
static_assert(Network::kNoSocket == INVALID_SOCKET, "no socket is the host's own");

class WindowsNetwork final : public Network {
 public:
  std::uint16_t Start(std::uint16_t version) override {
    WSADATA data = {};
    WSAStartup(version, &data);
    return data.wVersion;
  }

  Socket OpenDatagram() override { return socket(AF_INET, SOCK_DGRAM, 0); }

  void MakeAddress(const char* dotted, std::uint16_t port,
                   unsigned char (&address)[kAddressSize]) override {
    sockaddr_in made = {};
    made.sin_family = AF_INET;
    made.sin_port = htons(port);
    made.sin_addr.s_addr = inet_addr(dotted);
    memcpy(address, &made, sizeof made);
  }

  bool SetReceiveTimeout(Socket socket, std::uint32_t milliseconds) override {
    // The number is the first; the length of 8 bytes is told on purpose.
    const DWORD timeout[2] = {milliseconds, 0};
    return setsockopt(socket, SOL_SOCKET, SO_RCVTIMEO, reinterpret_cast<const char*>(timeout), 8) ==
           0;
  }

  bool Send(Socket socket, const unsigned char (&address)[kAddressSize], const unsigned char* bytes,
            std::size_t size) override {
    sockaddr_in to;
    memcpy(&to, address, sizeof to);
    return sendto(socket, reinterpret_cast<const char*>(bytes), static_cast<int>(size), 0,
                  reinterpret_cast<const sockaddr*>(&to), sizeof to) != SOCKET_ERROR;
  }

  bool Receive(Socket socket, unsigned char* bytes, std::size_t size, int& error) override {
    if (recvfrom(socket, reinterpret_cast<char*>(bytes), static_cast<int>(size), 0, nullptr,
                 nullptr) != SOCKET_ERROR) {
      return true;
    }
    error = WSAGetLastError();
    return false;
  }

  bool Close(Socket socket) override { return closesocket(socket) == 0; }
};

}  // namespace

Network& SystemNetwork() {
  static WindowsNetwork network;
  return network;
}

}  // namespace host
}  // namespace NZRVQDA20

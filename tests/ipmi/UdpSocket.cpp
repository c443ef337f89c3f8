#include <tests/ipmi/UdpSocket.h>

#include <cstring>

#if defined(_WIN32)
#include <winsock2.h>
#else
#include <arpa/inet.h>
#include <errno.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>
#endif

namespace ipmi_test {

namespace {

#if defined(_WIN32)
typedef int AddressSize;
int LastError() { return WSAGetLastError(); }
const int kAccess = WSAEACCES;
const int kInUse = WSAEADDRINUSE;
const int kTimedOut = WSAETIMEDOUT;
const int kTooLong = WSAEMSGSIZE;

// Sockets need a start, once in a process.
void Start() {
  static const int started = [] {
    WSADATA data;
    return WSAStartup(0x0202, &data);
  }();
  static_cast<void>(started);
}
void CloseNative(std::uint64_t socket) { closesocket(socket); }
bool WaitNative(std::uint64_t socket, int timeoutMs) {
  fd_set input;
  FD_ZERO(&input);
  FD_SET(socket, &input);
  timeval timeout = {timeoutMs / 1000, timeoutMs % 1000 * 1000};
  return select(0, &input, nullptr, nullptr, &timeout) == 1;
}
SOCKET Native(std::uint64_t socket) { return socket; }
#else
typedef socklen_t AddressSize;
int LastError() { return errno; }
const int kAccess = EACCES;
const int kInUse = EADDRINUSE;
const int kTimedOut = EAGAIN;
const int kTooLong = EMSGSIZE;
void Start() {}
int Native(std::uint64_t socket) { return static_cast<int>(socket); }
void CloseNative(std::uint64_t socket) { close(Native(socket)); }
bool WaitNative(std::uint64_t socket, int timeoutMs) {
  pollfd input = {Native(socket), POLLIN, 0};
  return poll(&input, 1, timeoutMs) == 1;
}
#endif

sockaddr_in ToNative(const UdpAddress& address) {
  sockaddr_in native;
  std::memset(&native, 0, sizeof native);
  native.sin_family = AF_INET;
  native.sin_port = htons(address.port);
  native.sin_addr.s_addr = htonl(address.ip);
  return native;
}

UdpAddress FromNative(const sockaddr_in& native) {
  UdpAddress address;
  address.ip = ntohl(native.sin_addr.s_addr);
  address.port = ntohs(native.sin_port);
  return address;
}

}  // namespace

std::string UdpAddress::Text() const {
  return std::to_string(ip >> 24) + "." + std::to_string(ip >> 16 & 255) + "." +
         std::to_string(ip >> 8 & 255) + "." + std::to_string(ip & 255);
}

UdpSocket::UdpSocket() {
  Start();
  fSocket = static_cast<std::uint64_t>(socket(AF_INET, SOCK_DGRAM, 0));
}

UdpSocket::~UdpSocket() { CloseNative(fSocket); }

UdpSocket::Binding UdpSocket::Bind(const UdpAddress& address) {
  const sockaddr_in native = ToNative(address);
  if (bind(Native(fSocket), reinterpret_cast<const sockaddr*>(&native), sizeof native) == 0) {
    return kBound;
  }
  const int error = LastError();
  return error == kAccess ? kDenied : error == kInUse ? kTaken : kFailed;
}

UdpAddress UdpSocket::Bound() const {
  sockaddr_in native = {};
  AddressSize size = sizeof native;
  getsockname(Native(fSocket), reinterpret_cast<sockaddr*>(&native), &size);
  return FromNative(native);
}

bool UdpSocket::Receive(std::string* bytes, UdpAddress* from, int timeoutMs) {
  if (!WaitNative(fSocket, timeoutMs)) {
    return false;
  }
  char buffer[2048];
  sockaddr_in native = {};
  AddressSize size = sizeof native;
  const auto count = recvfrom(Native(fSocket), buffer, sizeof buffer, 0,
                              reinterpret_cast<sockaddr*>(&native), &size);
  if (count < 0) {
    return false;
  }
  bytes->assign(buffer, static_cast<std::size_t>(count));
  *from = FromNative(native);
  return true;
}

bool UdpSocket::Send(const std::string& bytes, const UdpAddress& to) {
  const sockaddr_in native = ToNative(to);
  return sendto(Native(fSocket), bytes.data(), static_cast<AddressSize>(bytes.size()), 0,
                reinterpret_cast<const sockaddr*>(&native), sizeof native) >= 0;
}

int TimedOutError() { return kTimedOut; }
int TooLongError() { return kTooLong; }

}  // namespace ipmi_test

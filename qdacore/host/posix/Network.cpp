#include <arpa/inet.h>
#include <errno.h>
#include <limits.h>
#include <netinet/in.h>
#include <poll.h>
#include <string.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <time.h>
#include <unistd.h>

#include <qdacore/host/HostServices.h>

namespace NZRVQDA20 {
namespace host {
namespace {

static_assert(sizeof(sockaddr_in) == Network::kAddressSize, "an address has the size told");

// -1, which every call refuses, for what is no descriptor.
int Descriptor(Network::Socket socket) { return socket > INT_MAX ? -1 : static_cast<int>(socket); }

long long MillisecondsNow() {
  timespec now;
  clock_gettime(CLOCK_MONOTONIC, &now);
  return now.tv_sec * 1000LL + now.tv_nsec / 1000000;
}

// Waits for the rest of the socket's timeout, which began at `begin`. False, with errno, when
// nothing came.
bool WaitForRest(int descriptor, long long begin) {
  timeval timeout = {0, 0};
  socklen_t size = sizeof timeout;
  getsockopt(descriptor, SOL_SOCKET, SO_RCVTIMEO, &timeout, &size);
  const long long wholeMs = timeout.tv_sec * 1000LL + timeout.tv_usec / 1000;
  const long long leftMs = begin + wholeMs - MillisecondsNow();
  // No timeout is an endless wait.
  const int waitMs = wholeMs == 0 ? -1 : leftMs > 0 ? static_cast<int>(leftMs) : 0;
  pollfd input = {descriptor, POLLIN, 0};
  const int count = poll(&input, 1, waitMs);
  if (count == 0) {
    errno = EAGAIN;
  }
  return count > 0;
}

class PosixNetwork final : public Network {
 public:
  std::uint16_t Start(std::uint16_t version) override { return version; }

  Socket OpenDatagram() override {
    const int descriptor = socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    return descriptor < 0 ? Socket(kNoSocket) : static_cast<Socket>(descriptor);
  }

  void MakeAddress(const char* dotted, std::uint16_t port,
                   unsigned char (&address)[kAddressSize]) override {
    sockaddr_in made = {};
    made.sin_family = AF_INET;
    made.sin_port = htons(port);
    made.sin_addr.s_addr = inet_addr(dotted);
    memcpy(address, &made, sizeof made);
  }

  bool SetReceiveTimeout(Socket socket, std::uint32_t milliseconds) override {
    timeval timeout;
    timeout.tv_sec = milliseconds / 1000;
    timeout.tv_usec = milliseconds % 1000 * 1000;
    return setsockopt(Descriptor(socket), SOL_SOCKET, SO_RCVTIMEO, &timeout, sizeof timeout) == 0;
  }

  bool Send(Socket socket, const unsigned char (&address)[kAddressSize], const unsigned char* bytes,
            std::size_t size) override {
    sockaddr_in to;
    memcpy(&to, address, sizeof to);
    return sendto(Descriptor(socket), bytes, size, 0, reinterpret_cast<const sockaddr*>(&to),
                  sizeof to) >= 0;
  }

  bool Receive(Socket socket, unsigned char* bytes, std::size_t size, int& error) override {
    const int descriptor = Descriptor(socket);
    const long long begin = MillisecondsNow();
    // Tells the size that the datagram had, so that one that was cut is found out.
    ssize_t count = recvfrom(descriptor, bytes, size, MSG_TRUNC, nullptr, nullptr);
    // A signal is no answer, and no reason to wait longer.
    while (count < 0 && errno == EINTR) {
      if (WaitForRest(descriptor, begin)) {
        count = recvfrom(descriptor, bytes, size, MSG_TRUNC | MSG_DONTWAIT, nullptr, nullptr);
      }
    }
    if (count < 0) {
      error = errno;
      return false;
    }
    if (static_cast<std::size_t>(count) > size) {
      error = EMSGSIZE;
      return false;
    }
    return true;
  }

  bool Close(Socket socket) override {
    const int descriptor = Descriptor(socket);
    int type = 0;
    socklen_t size = sizeof type;
    // A number that was closed before may be somebody's file by now.
    return getsockopt(descriptor, SOL_SOCKET, SO_TYPE, &type, &size) == 0 && close(descriptor) == 0;
  }
};

}  // namespace

Network& SystemNetwork() {
  static PosixNetwork network;
  return network;
}

}  // namespace host
}  // namespace NZRVQDA20

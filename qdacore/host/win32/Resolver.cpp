// Winsock before Windows' own header, which would bring the older one.
#include <winsock2.h>
// Winsock 2's additions.
#include <ws2tcpip.h>

#include <windows.h>

#include <atomic>

#include <qdacore/host/HostServices.h>
#include <qdacore/host/Resolver.h>

namespace NZRVQDA20 {
namespace host {
namespace {

typedef int(WSAAPI* GetAddrInfo)(const char*, const char*, const addrinfo*, addrinfo**);

// Found at the first use and kept. Two first uses at once store the same value.
std::atomic<GetAddrInfo> getAddrInfo(nullptr);

GetAddrInfo FindGetAddrInfo() {
  GetAddrInfo found = getAddrInfo.load(std::memory_order_relaxed);
  if (!found) {
    if (const HMODULE sockets = GetModuleHandleA("ws2_32.dll")) {
      found = reinterpret_cast<GetAddrInfo>(
          reinterpret_cast<void (*)()>(GetProcAddress(sockets, "getaddrinfo")));
      getAddrInfo.store(found, std::memory_order_relaxed);
    }
  }
  return found;
}

class WindowsResolver final : public Resolver {
 public:
  int Start() override {
    WSADATA data;
    return WSAStartup(MAKEWORD(2, 2), &data);
  }

  void Stop() override { WSACleanup(); }

  int Resolve(const std::string& name, const std::string& service) override {
    if (name.find('\0') != std::string::npos) {
      return WSAHOST_NOT_FOUND;
    }
    if (service.find('\0') != std::string::npos) {
      return WSATYPE_NOT_FOUND;
    }
    const GetAddrInfo resolve = FindGetAddrInfo();
    if (!resolve) {
      return WSASYSNOTREADY;
    }
    addrinfo hints = {};
    hints.ai_family = AF_INET;
    hints.ai_socktype = SOCK_STREAM;
    hints.ai_protocol = IPPROTO_TCP;
    addrinfo* addresses = nullptr;
    // The list is not freed, and this is meant: whoever replaces the function that is found above
    // may hand out a list of its own.
    return resolve(name.c_str(), service.c_str(), &hints, &addresses);
  }

  void SetLastError(int code) override { WSASetLastError(code); }
};

}  // namespace

Resolver& SystemResolver() {
  static WindowsResolver resolver;
  return resolver;
}

}  // namespace host
}  // namespace NZRVQDA20

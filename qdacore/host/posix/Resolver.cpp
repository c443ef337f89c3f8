#include <qdacore/host/Resolver.h>

#include <errno.h>
#include <netdb.h>
#include <netinet/in.h>
#include <sys/socket.h>

#include <qdacore/host/HostServices.h>

namespace NZRVQDA20 {
namespace host {
namespace {

class PosixResolver final : public Resolver {
 public:
  int Start() override { return 0; }
  void Stop() override {}

  int Resolve(const std::string& name, const std::string& service) override {
    if (name.find('\0') != std::string::npos) {
      return EAI_NONAME;
    }
    if (service.find('\0') != std::string::npos) {
      return EAI_SERVICE;
    }
    addrinfo hints = {};
    hints.ai_family = AF_INET;
    hints.ai_socktype = SOCK_STREAM;
    hints.ai_protocol = IPPROTO_TCP;
    addrinfo* addresses = nullptr;
    const int code = getaddrinfo(name.c_str(), service.c_str(), &hints, &addresses);
    if (code == 0) {
      freeaddrinfo(addresses);
    }
    return code;
  }

  void SetLastError(int code) override { errno = code; }
};

}  // namespace

Resolver& SystemResolver() {
  static PosixResolver resolver;
  return resolver;
}

}  // namespace host
}  // namespace NZRVQDA20

// The host's resolver of names. Nothing here throws or logs.

#ifndef QDACORE_HOST_RESOLVER_H
#define QDACORE_HOST_RESOLVER_H

#include <string>

namespace NZRVQDA20 {
namespace host {

class Resolver {
 public:
  // Starts the socket library; 0, or its error code. A start that worked is followed by Stop. On
  // Linux there is nothing to start.
  virtual int Start() = 0;
  virtual void Stop() = 0;

  // 0 when `name` has an IPv4 address for TCP and `service` is known, otherwise the resolver's own
  // code. A text that holds a NUL names nothing.
  virtual int Resolve(const std::string& name, const std::string& service) = 0;

  // Makes `code` the thread's last socket error (on Linux: errno).
  virtual void SetLastError(int code) = 0;

 protected:
  // Never deleted through this: the objects are static, and need no end.
  ~Resolver() = default;
};

Resolver& HostResolver();

}  // namespace host
}  // namespace NZRVQDA20

#endif

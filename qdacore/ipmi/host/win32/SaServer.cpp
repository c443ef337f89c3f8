// The one operation of IIPMILan that needs the host's own type of an address.

#include <string.h>

#include <qdacore/ipmi/IIPMILan.h>
#include <winsock2.h>

namespace NZRVQDA20 {

sockaddr_in IIPMILan::getSaServer() const {
  static_assert(sizeof(sockaddr_in) == sizeof fSaServer && alignof(sockaddr_in) == 4,
                "an address takes the room that the header gives it");
  sockaddr_in address;
  memcpy(&address, fSaServer, sizeof address);
  return address;
}

}  // namespace NZRVQDA20

// The network ports of a folder that is laid out like /sys/class/net.

#ifndef PLUGINS_MACHINE_HOST_POSIX_SYSNET_H
#define PLUGINS_MACHINE_HOST_POSIX_SYSNET_H

#include <string>
#include <vector>

#include <plugins/machine/host/NetworkPorts.h>

namespace machine {
namespace host {

// Without what drivers have to be asked for.
std::vector<NetworkPortReading> ReadNetworkPortsIn(const std::string& folder);

}  // namespace host
}  // namespace machine

#endif

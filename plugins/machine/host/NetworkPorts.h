// The seam to the host: what it says about its network ports, raw. Nothing here throws anything
// but std::bad_alloc, logs or decides.

#ifndef PLUGINS_MACHINE_HOST_NETWORKPORTS_H
#define PLUGINS_MACHINE_HOST_NETWORKPORTS_H

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace machine {
namespace host {

// What a driver says about the speeds of a port (Linux's ETHTOOL_GLINKSETTINGS): the bit map of
// the link modes that the port supports, 32 bits in a word, bit 0 of word 0 the first.
typedef std::vector<std::uint32_t> LinkModes;

// One port. What could not be read, or what this kind of host does not have, is absent.
struct NetworkPortReading {
  std::string name;                        // "eth0"; on Windows the adapter's GUID in braces
  std::optional<std::string> title;        // Windows: "Ethernet", as its user named it
  std::optional<std::string> description;  // Windows: "Intel(R) I350 Gigabit Network Connection"
  bool isWireless = false;

  // Linux: the text of these files of /sys/class/net/NAME.
  std::optional<std::string> type;     // ARP hardware type
  std::optional<std::string> address;  // "02:fc:00:00:00:01"
  std::optional<std::string> speed;    // Mbit/s
  std::optional<std::string> duplex;
  std::optional<std::string> mtu;
  std::optional<std::string> flags;  // IFF_..., "0x1003"
  std::optional<LinkModes> supportedModes;

  // Windows: the type of the IANA interface types; sizes in bytes, speeds in bit/s.
  std::optional<std::uint32_t> interfaceType;
  std::optional<std::uint64_t> bitsPerSecond;
  std::optional<std::uint32_t> transmissionUnit;
  std::optional<bool> enabled;
  std::optional<std::string> addressBytes;

  // Both: the bytes of the address that the hardware came with.
  std::optional<std::string> permanentBytes;
};

// Ports that have a device of their own, not what is made of others or of nothing.
std::vector<NetworkPortReading> ReadNetworkPorts();

}  // namespace host
}  // namespace machine

#endif

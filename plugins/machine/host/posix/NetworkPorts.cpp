#include <plugins/machine/host/NetworkPorts.h>

#include <linux/ethtool.h>
#include <linux/sockios.h>
#include <net/if.h>
#include <string.h>
#include <sys/ioctl.h>
#include <sys/socket.h>

#include <cstddef>

#include <plugins/machine/host/posix/SysNet.h>
#include <plugins/machine/host/posix/TextFile.h>

namespace machine {
namespace host {

namespace {

// Asks the driver of port `name`; `question` is one of the structures of <linux/ethtool.h>.
bool Ask(int socket, const std::string& name, void* question) {
  struct ifreq request = {};
  if (name.size() >= sizeof request.ifr_name) {
    return false;
  }
  memcpy(request.ifr_name, name.data(), name.size());
  request.ifr_data = static_cast<char*>(question);
  return ioctl(socket, SIOCETHTOOL, &request) == 0;
}

// A structure of <linux/ethtool.h> and what follows it in memory.
template <class Head>
class Question {
 public:
  Question(const Head& head, std::size_t roomBytes) : fWords((sizeof head + roomBytes) / 4 + 1) {
    memcpy(fWords.data(), &head, sizeof head);
  }

  void* Data() { return fWords.data(); }

  Head GetHead() const {
    Head head;
    memcpy(&head, fWords.data(), sizeof head);
    return head;
  }

  const char* Rest() const { return reinterpret_cast<const char*>(fWords.data()) + sizeof(Head); }

 private:
  std::vector<std::uint32_t> fWords;
};

std::optional<std::string> ReadPermanentAddress(int socket, const std::string& name) {
  const std::size_t most = 32;  // MAX_ADDR_LEN of the kernel
  struct ethtool_perm_addr head = {};
  head.cmd = ETHTOOL_GPERMADDR;
  head.size = most;
  Question<struct ethtool_perm_addr> question(head, most);
  if (!Ask(socket, name, question.Data()) || question.GetHead().size > most) {
    return std::nullopt;
  }
  return std::string(question.Rest(), question.GetHead().size);
}

std::optional<LinkModes> ReadLinkModes(int socket, const std::string& name) {
  typedef Question<struct ethtool_link_settings> Settings;
  // Three bit maps; the number of words in each is a signed byte.
  const std::size_t most = 3 * 127 * sizeof(std::uint32_t);
  struct ethtool_link_settings head = {};
  head.cmd = ETHTOOL_GLINKSETTINGS;
  // The first answer is that number, below zero; the second are the maps.
  Settings first(head, most);
  if (!Ask(socket, name, first.Data()) || first.GetHead().link_mode_masks_nwords >= 0 ||
      first.GetHead().link_mode_masks_nwords < -127) {
    return std::nullopt;
  }
  head.link_mode_masks_nwords = static_cast<__s8>(-first.GetHead().link_mode_masks_nwords);
  Settings second(head, most);
  if (!Ask(socket, name, second.Data()) ||
      second.GetHead().link_mode_masks_nwords != head.link_mode_masks_nwords) {
    return std::nullopt;
  }
  LinkModes supported(static_cast<std::size_t>(head.link_mode_masks_nwords));
  memcpy(supported.data(), second.Rest(), supported.size() * sizeof supported[0]);
  return supported;
}

NetworkPortReading ReadPort(const std::string& folder, const std::string& name) {
  NetworkPortReading reading;
  reading.name = name;
  reading.isWireless = IsThere(folder + "/wireless") || IsThere(folder + "/phy80211");
  reading.type = ReadSysText(folder, "type");
  reading.address = ReadSysText(folder, "address");
  reading.speed = ReadSysText(folder, "speed");
  reading.duplex = ReadSysText(folder, "duplex");
  reading.mtu = ReadSysText(folder, "mtu");
  reading.flags = ReadSysText(folder, "flags");
  return reading;
}

}  // namespace

std::vector<NetworkPortReading> ReadNetworkPortsIn(const std::string& folder) {
  std::vector<NetworkPortReading> ports;
  for (const std::string& name : NamesOfDevicesIn(folder)) {
    ports.push_back(ReadPort(folder + "/" + name, name));
  }
  return ports;
}

std::vector<NetworkPortReading> ReadNetworkPorts() {
  std::vector<NetworkPortReading> ports = ReadNetworkPortsIn("/sys/class/net");
  const Descriptor any(ports.empty() ? -1 : socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0));
  if (any.Get() >= 0) {
    for (NetworkPortReading& port : ports) {
      port.permanentBytes = ReadPermanentAddress(any.Get(), port.name);
      port.supportedModes = ReadLinkModes(any.Get(), port.name);
    }
  }
  return ports;
}

}  // namespace host
}  // namespace machine

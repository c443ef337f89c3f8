// What is known about the Ethernet and wireless ports. Pure; property names are those of
// CIM_NetworkPort (DMTF CIM Schema 2.49).

#ifndef PLUGINS_MACHINE_NETWORKPORTFACTS_H
#define PLUGINS_MACHINE_NETWORKPORTFACTS_H

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <plugins/machine/host/NetworkPorts.h>

namespace machine {

// A fact that could not be read is absent.
struct NetworkPortFacts {
  std::string deviceId;
  std::optional<std::string> name;
  std::optional<std::string> description;
  bool isWireless = false;
  std::uint16_t linkTechnology = 0;  // a number of the value map of LinkTechnology
  // Twelve hexadecimal digits in upper case, as in the description of
  // CIM_EthernetPort.NetworkAddresses.
  std::optional<std::string> permanentAddress;
  std::vector<std::string> networkAddresses;
  std::optional<std::uint64_t> speed;     // bit/s; absent for a port without a link
  std::optional<std::uint64_t> maxSpeed;  // bit/s
  std::optional<bool> fullDuplex;
  std::optional<bool> autoSense;
  std::optional<std::uint64_t> activeMaximumTransmissionUnit;  // bytes
  std::optional<std::uint16_t> enabledState;  // of CIM_EnabledLogicalElement: 2 or 3
};

// The Ethernet and the wireless ports; of other kinds there are none here.
std::vector<NetworkPortFacts> UnderstandNetworkPorts(
    const std::vector<host::NetworkPortReading>& readings);

// Six bytes as twelve hexadecimal digits. Absent for another length, and for all bytes 00h or
// all FFh, which are nobody's address.
std::optional<std::string> FormatAddress(std::string_view bytes);

// The same from a text such as "02:fc:00:00:00:01".
std::optional<std::string> FormatAddressText(std::string_view text);

// The speed, in Mbit/s, of the fastest of these link modes (numbers of Linux's ethtool
// interface). Absent when there is none, and when one is not in our list: a mode that is newer
// than the list may be the fastest.
std::optional<std::uint64_t> FastestOf(const host::LinkModes& modes);

}  // namespace machine

#endif

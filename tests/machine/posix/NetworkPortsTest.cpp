// This very machine, against what ip says; and folders laid out like /sys/class/net.

#include <plugins/machine/host/NetworkPorts.h>

#include <algorithm>
#include <map>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <plugins/machine/NetworkPortFacts.h>
#include <plugins/machine/host/posix/SysNet.h>
#include <tests/machine/posix/HostPrograms.h>
#include <tests/support/TemporaryFolder.h>

namespace {

using machine::NetworkPortFacts;
using machine::UnderstandNetworkPorts;
using machine::host::ReadNetworkPorts;
using machine::host::ReadNetworkPortsIn;
using machine_test::JsonOf;
using testing::ElementsAre;

// "02:fc:00:00:00:01" as twelve digits.
std::string Digits(std::string address) {
  address.erase(std::remove(address.begin(), address.end(), ':'), address.end());
  std::transform(address.begin(), address.end(), address.begin(), [](char c) {
    return c >= 'a' && c <= 'f' ? static_cast<char>(c - 'a' + 'A') : c;
  });
  return address;
}

TEST(TheseNetworkPorts, AreWhatIpTells) {
  SKIP_WITHOUT("ip");
  std::map<std::string, nlohmann::json> told;
  for (const nlohmann::json& row : JsonOf("ip -j link")) {
    told[row["ifname"]] = row;
  }
  for (const NetworkPortFacts& facts : UnderstandNetworkPorts(ReadNetworkPorts())) {
    ASSERT_EQ(1u, told.count(facts.deviceId)) << facts.deviceId;
    const nlohmann::json& row = told[facts.deviceId];
    EXPECT_EQ("ether", row["link_type"]);
    const std::string address = Digits(row["address"]);
    EXPECT_THAT(facts.networkAddresses, ElementsAre(address));
    EXPECT_EQ(row["mtu"], facts.activeMaximumTransmissionUnit.value_or(0));
    const nlohmann::json& flags = row["flags"];
    EXPECT_EQ(std::find(flags.begin(), flags.end(), "UP") != flags.end(), facts.enabledState == 2);
    // ip tells the permanent address only where it is another one.
    if (facts.permanentAddress) {
      EXPECT_EQ(row.contains("permaddr") ? Digits(row["permaddr"]) : address,
                *facts.permanentAddress);
    }
  }
}

TEST(TheseNetworkPorts, MissNoneThatHasADevice) {
  SKIP_WITHOUT("ip");
  std::vector<std::string> names;
  for (const NetworkPortFacts& facts : UnderstandNetworkPorts(ReadNetworkPorts())) {
    names.push_back(facts.deviceId);
  }
  // ip tells the bus of what has a device ("parentbus"), in versions that know it.
  for (const nlohmann::json& row : JsonOf("ip -j -d link")) {
    if (row.contains("parentbus") && row["link_type"] == "ether") {
      EXPECT_THAT(names, testing::Contains(row["ifname"].get<std::string>()));
    }
    if (row.contains("linkinfo") && row["linkinfo"].contains("info_kind")) {
      EXPECT_THAT(names, testing::Not(testing::Contains(row["ifname"].get<std::string>())));
    }
  }
}

TEST(ReadNetworkPortsIn, ReadsEachFile) {
  const test_support::TemporaryFolder folder;
  folder.MakeFolder("eth0/device");
  folder.Write("eth0/type", "1\n");
  folder.Write("eth0/address", "02:fc:00:00:00:01\n");
  folder.Write("eth0/speed", "1000\n");
  folder.Write("eth0/duplex", "half\n");
  folder.Write("eth0/mtu", "1400\n");
  folder.Write("eth0/flags", "0x1002\n");
  folder.MakeFolder("wlan0/device");
  folder.MakeFolder("wlan0/wireless");
  folder.Write("wlan0/type", "1\n");
  folder.MakeFolder("wlan1/device");
  folder.MakeFolder("wlan1/phy80211");
  folder.Write("wlan1/type", "1\n");
  folder.Write("br0/type", "1\n");
  folder.Write("bonding_masters", "");
  folder.MakeFolder("ib0/device");
  folder.Write("ib0/type", "32\n");
  const std::vector<NetworkPortFacts> found =
      UnderstandNetworkPorts(ReadNetworkPortsIn(folder.Path()));
  ASSERT_EQ(3u, found.size());
  EXPECT_EQ("eth0", found[0].deviceId);
  EXPECT_FALSE(found[0].isWireless);
  EXPECT_THAT(found[0].networkAddresses, ElementsAre("02FC00000001"));
  EXPECT_EQ(1000000000u, found[0].speed);
  EXPECT_EQ(false, found[0].fullDuplex);
  EXPECT_EQ(1400u, found[0].activeMaximumTransmissionUnit);
  EXPECT_EQ(3, found[0].enabledState);
  EXPECT_TRUE(found[1].isWireless);
  EXPECT_TRUE(found[2].isWireless);
  EXPECT_TRUE(ReadNetworkPortsIn(folder.PathOf("nothing")).empty());
}

}  // namespace

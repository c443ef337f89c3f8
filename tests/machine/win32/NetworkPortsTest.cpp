// This very machine, against what wmic and an older call say.

#include <plugins/machine/host/NetworkPorts.h>

#include <algorithm>
#include <set>

#include <gtest/gtest.h>

#include <plugins/machine/NetworkPortFacts.h>
#include <tests/machine/win32/Wmic.h>

#include <winsock2.h>

#include <windows.h>

#include <iphlpapi.h>

namespace {

using machine::NetworkPortFacts;
using machine::UnderstandNetworkPorts;
using machine::host::ReadNetworkPorts;
using machine_test::AskWmic;

// "02:fc:00:00:00:01" as twelve digits.
std::string Digits(std::string address) {
  address.erase(std::remove(address.begin(), address.end(), ':'), address.end());
  std::transform(address.begin(), address.end(), address.begin(), [](char c) {
    return c >= 'a' && c <= 'f' ? static_cast<char>(c - 'a' + 'A') : c;
  });
  return address;
}

TEST(TheseNetworkPorts, HaveTheAddressesThatWmicTells) {
  const std::vector<std::string> lines = AskWmic("nic", "MACAddress");
  const std::vector<std::string> names = AskWmic("nic", "GUID");
  if (lines.empty() || names.empty()) {
    GTEST_SKIP() << "wmic does not tell";
  }
  std::set<std::string> told;
  for (const std::string& line : lines) {
    told.insert(Digits(line));
  }
  for (const NetworkPortFacts& facts : UnderstandNetworkPorts(ReadNetworkPorts())) {
    EXPECT_NE(names.end(), std::find(names.begin(), names.end(), facts.deviceId)) << facts.deviceId;
    for (const std::string& address : facts.networkAddresses) {
      EXPECT_EQ(1u, told.count(address)) << address;
    }
  }
}

TEST(TheseNetworkPorts, HaveTheSizesAndStatesOfTheOlderTable) {
  ULONG size = 0;
  GetIfTable(nullptr, &size, FALSE);
  std::vector<MIB_IFTABLE> table(size / sizeof(MIB_IFTABLE) + 1);
  ASSERT_EQ(static_cast<DWORD>(NO_ERROR), GetIfTable(table.data(), &size, FALSE));
  std::size_t compared = 0;
  for (const NetworkPortFacts& facts : UnderstandNetworkPorts(ReadNetworkPorts())) {
    for (DWORD at = 0; at < table[0].dwNumEntries; ++at) {
      const MIB_IFROW& row = table[0].table[at];
      const std::string bytes(reinterpret_cast<const char*>(row.bPhysAddr), row.dwPhysAddrLen);
      if (facts.networkAddresses.empty() ||
          machine::FormatAddress(bytes) != facts.networkAddresses[0]) {
        continue;
      }
      ++compared;
      EXPECT_EQ(row.dwMtu, facts.activeMaximumTransmissionUnit);
      EXPECT_EQ(row.dwAdminStatus == MIB_IF_ADMIN_STATUS_UP ? 2 : 3, facts.enabledState);
    }
  }
  if (compared == 0) {
    GTEST_SKIP() << "this machine has no port with an address";
  }
}

}  // namespace

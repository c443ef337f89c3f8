#include <plugins/machine/NetworkPortFacts.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using machine::FastestOf;
using machine::FormatAddress;
using machine::FormatAddressText;
using machine::NetworkPortFacts;
using machine::UnderstandNetworkPorts;
using machine::host::LinkModes;
using machine::host::NetworkPortReading;
using testing::ElementsAre;
using testing::IsEmpty;

NetworkPortReading Ethernet() {
  NetworkPortReading reading;
  reading.name = "eth0";
  reading.type = "1\n";
  reading.address = "02:fc:00:00:00:01\n";
  reading.speed = "1000\n";
  reading.duplex = "full\n";
  reading.mtu = "1500\n";
  reading.flags = "0x1003\n";
  return reading;
}

NetworkPortFacts Understand(const NetworkPortReading& reading) {
  const std::vector<NetworkPortFacts> found = UnderstandNetworkPorts({reading});
  EXPECT_EQ(1u, found.size());
  return found.empty() ? NetworkPortFacts() : found[0];
}

TEST(UnderstandNetworkPorts, ReadsALinuxPort) {
  NetworkPortReading reading = Ethernet();
  reading.permanentBytes = std::string("\x02\xAB\xCD\xEF\x00\x01", 6);
  reading.supportedModes = LinkModes{0x0000106F, 0, 0};
  const NetworkPortFacts facts = Understand(reading);
  EXPECT_EQ("eth0", facts.deviceId);
  EXPECT_EQ("eth0", facts.name);
  EXPECT_EQ(std::nullopt, facts.description);
  EXPECT_FALSE(facts.isWireless);
  EXPECT_EQ(2, facts.linkTechnology);
  EXPECT_EQ("02ABCDEF0001", facts.permanentAddress);
  EXPECT_THAT(facts.networkAddresses, ElementsAre("02FC00000001"));
  EXPECT_EQ(1000000000u, facts.speed);
  EXPECT_EQ(10000000000u, facts.maxSpeed);
  EXPECT_EQ(true, facts.fullDuplex);
  EXPECT_EQ(true, facts.autoSense);
  EXPECT_EQ(1500u, facts.activeMaximumTransmissionUnit);
  EXPECT_EQ(2, facts.enabledState);
}

TEST(UnderstandNetworkPorts, ReadsAWindowsPort) {
  NetworkPortReading reading;
  reading.name = "{GUID}";
  reading.title = "Ethernet 2";
  reading.description = "Some Adapter";
  reading.interfaceType = 6;
  reading.bitsPerSecond = 2500000000;
  reading.transmissionUnit = 9000;
  reading.enabled = false;
  reading.addressBytes = std::string("\x02\xFC\x00\x00\x00\x01", 6);
  reading.permanentBytes = std::string("\x02\xFC\x00\x00\x00\x02", 6);
  const NetworkPortFacts facts = Understand(reading);
  EXPECT_EQ("{GUID}", facts.deviceId);
  EXPECT_EQ("Ethernet 2", facts.name);
  EXPECT_EQ("Some Adapter", facts.description);
  EXPECT_EQ(2500000000u, facts.speed);
  EXPECT_EQ(9000u, facts.activeMaximumTransmissionUnit);
  EXPECT_EQ(3, facts.enabledState);
  EXPECT_THAT(facts.networkAddresses, ElementsAre("02FC00000001"));
  EXPECT_EQ("02FC00000002", facts.permanentAddress);
  EXPECT_EQ(std::nullopt, facts.maxSpeed);
  EXPECT_EQ(std::nullopt, facts.fullDuplex);
}

TEST(UnderstandNetworkPorts, WhatWindowsDoesNotKnowIsAbsent) {
  NetworkPortReading reading;
  reading.name = "{GUID}";
  reading.interfaceType = 71;
  reading.bitsPerSecond = UINT64_MAX;
  reading.transmissionUnit = UINT32_MAX;
  reading.addressBytes = "";
  const NetworkPortFacts facts = Understand(reading);
  EXPECT_TRUE(facts.isWireless);
  EXPECT_EQ(11, facts.linkTechnology);
  EXPECT_EQ(std::nullopt, facts.speed);
  EXPECT_EQ(std::nullopt, facts.activeMaximumTransmissionUnit);
  EXPECT_EQ(std::nullopt, facts.enabledState);
  EXPECT_EQ(std::nullopt, facts.permanentAddress);
  EXPECT_THAT(facts.networkAddresses, IsEmpty());
}

TEST(UnderstandNetworkPorts, TakesEthernetAndWirelessOnly) {
  const struct {
    const char* type;
    std::optional<std::uint32_t> interfaceType;
    std::size_t count;
  } rows[] = {{"1", {}, 1}, {"772", {}, 0}, {"32", {}, 0}, {"", {}, 0},
              {"", 6, 1},   {"", 71, 1},    {"", 24, 0},   {"", 131, 0}};
  for (const auto& row : rows) {
    NetworkPortReading reading;
    reading.name = "x";
    reading.type = row.type;
    reading.interfaceType = row.interfaceType;
    EXPECT_EQ(row.count, UnderstandNetworkPorts({reading}).size()) << row.type;
  }
  NetworkPortReading nameless = Ethernet();
  nameless.name = "";
  EXPECT_THAT(UnderstandNetworkPorts({nameless}), IsEmpty());
}

TEST(UnderstandNetworkPorts, APortWithoutALinkHasNoSpeed) {
  for (const char* speed : {"-1\n", "4294967295\n", "0\n", "", "fast", "99999999999"}) {
    NetworkPortReading reading = Ethernet();
    reading.speed = speed;
    EXPECT_EQ(std::nullopt, Understand(reading).speed) << speed;
  }
}

TEST(UnderstandNetworkPorts, TheDuplexIsOneOfTwoWords) {
  NetworkPortReading reading = Ethernet();
  reading.duplex = "half\n";
  EXPECT_EQ(false, Understand(reading).fullDuplex);
  reading.duplex = "unknown\n";
  EXPECT_EQ(std::nullopt, Understand(reading).fullDuplex);
  reading.duplex.reset();
  EXPECT_EQ(std::nullopt, Understand(reading).fullDuplex);
}

TEST(UnderstandNetworkPorts, TheFlagsTellWhetherItIsEnabled) {
  const struct {
    const char* flags;
    std::optional<std::uint16_t> state;
  } rows[] = {{"0x1", 2},  {"0x1002\n", 3}, {"0xfffFFFFF", 2}, {"1", {}},          {"0x", {}},
              {"0xg", {}}, {"", {}},        {"0x-1", {}},      {"0x100000001", {}}};
  for (const auto& row : rows) {
    NetworkPortReading reading = Ethernet();
    reading.flags = row.flags;
    EXPECT_EQ(row.state, Understand(reading).enabledState) << row.flags;
  }
}

TEST(UnderstandNetworkPorts, ADriverWithoutModesTellsNothing) {
  NetworkPortReading reading = Ethernet();
  reading.supportedModes = LinkModes{0, 0, 0};
  EXPECT_EQ(std::nullopt, Understand(reading).autoSense);
  EXPECT_EQ(std::nullopt, Understand(reading).maxSpeed);
  reading.supportedModes = LinkModes{1u << 5};
  EXPECT_EQ(false, Understand(reading).autoSense);
  EXPECT_EQ(1000000000u, Understand(reading).maxSpeed);
}

TEST(FastestOf, KnowsTheSpeedOfEachMode) {
  const struct {
    unsigned int bit;
    std::optional<std::uint64_t> megabits;
  } rows[] = {{0, 10},      {1, 10},      {2, 100},     {3, 100},     {4, 1000},    {5, 1000},
              {6, {}},      {11, {}},     {12, 10000},  {13, {}},     {15, 2500},   {16, {}},
              {17, 1000},   {20, 10000},  {21, 20000},  {26, 40000},  {27, 56000},  {31, 25000},
              {35, 50000},  {36, 100000}, {40, 50000},  {41, 1000},   {46, 10000},  {47, 2500},
              {48, 5000},   {49, {}},     {52, 50000},  {57, 100000}, {62, 200000}, {67, 100},
              {68, 1000},   {69, 400000}, {73, 400000}, {74, {}},     {75, 100000}, {80, 200000},
              {85, 400000}, {90, 100},    {92, 10},     {93, {}},     {4063, {}}};
  for (const auto& row : rows) {
    LinkModes modes(row.bit / 32 + 1);
    modes[row.bit / 32] = 1u << row.bit % 32;
    EXPECT_EQ(row.megabits, FastestOf(modes)) << row.bit;
  }
}

TEST(FastestOf, AModeThatIsNotInTheListMayBeTheFastest) {
  EXPECT_EQ(1000u, FastestOf(LinkModes{0x0000002F, 0, 0, 0}));
  EXPECT_EQ(std::nullopt, FastestOf(LinkModes{0x0000002F, 0, 0, 1}));
  EXPECT_EQ(std::nullopt, FastestOf(LinkModes{}));
}

struct AddressRow {
  const char* text;
  std::optional<std::string> address;
};

void PrintTo(const AddressRow& row, std::ostream* stream) { *stream << '"' << row.text << '"'; }

class AddressText : public testing::TestWithParam<AddressRow> {};

TEST_P(AddressText, IsTwelveDigitsOrNothing) {
  EXPECT_EQ(GetParam().address, FormatAddressText(GetParam().text));
}

INSTANTIATE_TEST_SUITE_P(
    Texts, AddressText,
    testing::Values(AddressRow{"02:fc:00:aB:9f:01", "02FC00AB9F01"},
                    AddressRow{" 02:fc:00:ab:9f:01\n", "02FC00AB9F01"},
                    AddressRow{"00:00:00:00:00:00", {}}, AddressRow{"ff:ff:ff:ff:ff:ff", {}},
                    AddressRow{"00:00:00:00:00:01", "000000000001"},
                    AddressRow{"02:fc:00:ab:9f", {}}, AddressRow{"02:fc:00:ab:9f:01:02", {}},
                    AddressRow{"02:fc:00:ab:9f:1", {}}, AddressRow{"02-fc-00-ab-9f-01", {}},
                    AddressRow{"02:fc:00:ab:9f:0g", {}}, AddressRow{":::::", {}},
                    AddressRow{"", {}}));

TEST(FormatAddress, TakesSixBytesOnly) {
  EXPECT_EQ("80FF00000001", FormatAddress(std::string_view("\x80\xFF\0\0\0\x01", 6)));
  EXPECT_EQ(std::nullopt, FormatAddress(std::string_view("\x80\xFF\0\0\0", 5)));
  EXPECT_EQ(std::nullopt, FormatAddress(std::string_view("\x80\xFF\0\0\0\0\0\0", 8)));
  EXPECT_EQ(std::nullopt, FormatAddress(std::string_view("\0\0\0\0\0\0", 6)));
  EXPECT_EQ(std::nullopt, FormatAddress(""));
}

}  // namespace

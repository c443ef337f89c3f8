#include <plugins/machine/NetworkPortFacts.h>

#include <algorithm>
#include <cstddef>

#include <plugins/machine/HostText.h>

namespace machine {

namespace {

// CIM_NetworkPort.LinkTechnology and CIM_EnabledLogicalElement.EnabledState.
const std::uint16_t kEthernet = 2;
const std::uint16_t kWirelessLan = 11;
const std::uint16_t kEnabled = 2;
const std::uint16_t kDisabled = 3;

const std::uint64_t kArpEthernet = 1;         // RFC 1700, "Hardware Type"
const std::uint32_t kInterfaceEthernet = 6;   // IANA ifType ethernetCsmacd
const std::uint32_t kInterfaceWireless = 71;  // IANA ifType ieee80211
const unsigned long kInterfaceUp = 1;         // IFF_UP
const std::uint64_t kBitsPerMegabit = 1000000;
const std::uint64_t kUnknownSpeedOnLinux = UINT32_MAX;  // older kernels' way to print -1

// Linux's link modes, first to last of a row; 0 Mbit/s are modes that tell no speed.
struct ModeRow {
  std::uint8_t first;
  std::uint8_t last;
  std::uint32_t megabits;
};

const std::size_t kAutonegotiation = 6;
const ModeRow kModes[] = {
    {0, 1, 10},       {2, 3, 100},      {4, 5, 1000},     {6, 11, 0},       {12, 12, 10000},
    {13, 14, 0},      {15, 15, 2500},   {16, 16, 0},      {17, 17, 1000},   {18, 20, 10000},
    {21, 22, 20000},  {23, 26, 40000},  {27, 30, 56000},  {31, 33, 25000},  {34, 35, 50000},
    {36, 39, 100000}, {40, 40, 50000},  {41, 41, 1000},   {42, 46, 10000},  {47, 47, 2500},
    {48, 48, 5000},   {49, 51, 0},      {52, 56, 50000},  {57, 61, 100000}, {62, 66, 200000},
    {67, 67, 100},    {68, 68, 1000},   {69, 73, 400000}, {74, 74, 0},      {75, 79, 100000},
    {80, 84, 200000}, {85, 89, 400000}, {90, 91, 100},    {92, 92, 10},
};

bool Has(const host::LinkModes& modes, std::size_t bit) {
  return bit / 32 < modes.size() && (modes[bit / 32] >> bit % 32 & 1) != 0;
}

const ModeRow* RowOf(std::size_t bit) {
  for (const ModeRow& row : kModes) {
    if (bit >= row.first && bit <= row.last) {
      return &row;
    }
  }
  return nullptr;
}

int DigitIn(char character) {
  const std::string_view digits = "0123456789abcdef0123456789ABCDEF";
  const std::size_t at = digits.find(character);
  return at == std::string_view::npos ? -1 : static_cast<int>(at % 16);
}

bool IsEthernetOrWireless(const host::NetworkPortReading& reading) {
  if (reading.interfaceType) {
    return *reading.interfaceType == kInterfaceEthernet ||
           *reading.interfaceType == kInterfaceWireless;
  }
  return DecimalIn(reading.type) == kArpEthernet;
}

std::optional<std::uint16_t> EnabledState(const std::optional<std::string>& flags) {
  const std::string_view text = Trimmed(flags ? std::string_view(*flags) : std::string_view());
  if (text.size() < 3 || text.size() > 10 || text.substr(0, 2) != "0x") {
    return std::nullopt;
  }
  unsigned long number = 0;
  for (const char character : text.substr(2)) {
    const int digit = DigitIn(character);
    if (digit < 0) {
      return std::nullopt;
    }
    number = number << 4 | static_cast<unsigned long>(digit);
  }
  return (number & kInterfaceUp) != 0 ? kEnabled : kDisabled;
}

void UnderstandSys(const host::NetworkPortReading& reading, NetworkPortFacts* facts) {
  if (reading.address) {
    if (const std::optional<std::string> address = FormatAddressText(*reading.address)) {
      facts->networkAddresses.push_back(*address);
    }
  }
  const std::optional<std::uint64_t> megabits = DecimalIn(reading.speed, kUnknownSpeedOnLinux - 1);
  if (megabits && *megabits != 0) {
    facts->speed = *megabits * kBitsPerMegabit;
  }
  const std::optional<std::string> duplex = NameIn(reading.duplex);
  if (duplex == "full" || duplex == "half") {
    facts->fullDuplex = duplex == "full";
  }
  facts->activeMaximumTransmissionUnit = DecimalIn(reading.mtu, UINT32_MAX);
  facts->enabledState = EnabledState(reading.flags);
  // A driver that lists no modes at all tells nothing.
  if (reading.supportedModes &&
      std::any_of(reading.supportedModes->begin(), reading.supportedModes->end(),
                  [](std::uint32_t word) { return word != 0; })) {
    facts->autoSense = Has(*reading.supportedModes, kAutonegotiation);
    facts->maxSpeed = Product(FastestOf(*reading.supportedModes), kBitsPerMegabit);
  }
}

void UnderstandWindows(const host::NetworkPortReading& reading, NetworkPortFacts* facts) {
  facts->isWireless = reading.interfaceType == kInterfaceWireless;
  if (reading.addressBytes) {
    if (const std::optional<std::string> address = FormatAddress(*reading.addressBytes)) {
      facts->networkAddresses.push_back(*address);
    }
  }
  // All bits set is how Windows says that it does not know.
  if (reading.bitsPerSecond && *reading.bitsPerSecond != 0 &&
      *reading.bitsPerSecond != UINT64_MAX) {
    facts->speed = reading.bitsPerSecond;
  }
  if (reading.transmissionUnit && *reading.transmissionUnit != UINT32_MAX) {
    facts->activeMaximumTransmissionUnit = *reading.transmissionUnit;
  }
  if (reading.enabled) {
    facts->enabledState = *reading.enabled ? kEnabled : kDisabled;
  }
}

NetworkPortFacts Understand(const host::NetworkPortReading& reading) {
  NetworkPortFacts facts;
  facts.deviceId = reading.name;
  facts.name = reading.title ? NameIn(reading.title) : std::optional<std::string>(reading.name);
  facts.description = NameIn(reading.description);
  facts.isWireless = reading.isWireless;
  if (reading.interfaceType) {
    UnderstandWindows(reading, &facts);
  } else {
    UnderstandSys(reading, &facts);
  }
  facts.linkTechnology = facts.isWireless ? kWirelessLan : kEthernet;
  if (reading.permanentBytes) {
    facts.permanentAddress = FormatAddress(*reading.permanentBytes);
  }
  return facts;
}

}  // namespace

std::optional<std::string> FormatAddress(std::string_view bytes) {
  if (bytes.size() != 6 || bytes == std::string_view("\0\0\0\0\0\0", 6) ||
      bytes == "\xFF\xFF\xFF\xFF\xFF\xFF") {
    return std::nullopt;
  }
  std::string text;
  for (const char byte : bytes) {
    text += "0123456789ABCDEF"[static_cast<unsigned char>(byte) >> 4];
    text += "0123456789ABCDEF"[static_cast<unsigned char>(byte) & 0x0F];
  }
  return text;
}

std::optional<std::string> FormatAddressText(std::string_view text) {
  std::string bytes;
  for (const std::string_view part : Split(Trimmed(text), ':')) {
    const int high = part.size() == 2 ? DigitIn(part[0]) : -1;
    const int low = part.size() == 2 ? DigitIn(part[1]) : -1;
    if (high < 0 || low < 0) {
      return std::nullopt;
    }
    bytes += static_cast<char>(high << 4 | low);
  }
  return FormatAddress(bytes);
}

std::optional<std::uint64_t> FastestOf(const host::LinkModes& modes) {
  std::uint32_t fastest = 0;
  for (std::size_t bit = 0; bit < modes.size() * 32; ++bit) {
    if (!Has(modes, bit)) {
      continue;
    }
    const ModeRow* const row = RowOf(bit);
    if (row == nullptr) {
      return std::nullopt;
    }
    fastest = std::max(fastest, row->megabits);
  }
  return fastest != 0 ? std::optional<std::uint64_t>(fastest) : std::nullopt;
}

std::vector<NetworkPortFacts> UnderstandNetworkPorts(
    const std::vector<host::NetworkPortReading>& readings) {
  std::vector<NetworkPortFacts> ports;
  for (const host::NetworkPortReading& reading : readings) {
    if (!reading.name.empty() && IsEthernetOrWireless(reading)) {
      ports.push_back(Understand(reading));
    }
  }
  return ports;
}

}  // namespace machine

#include <plugins/machine/host/NetworkPorts.h>

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
// Before <windows.h>, and <iphlpapi.h> after it.
#include <winsock2.h>

#include <ws2ipdef.h>

#include <windows.h>

#include <iphlpapi.h>
#include <netioapi.h>

#include <cstddef>

#include <plugins/machine/host/win32/Text.h>

namespace machine {
namespace host {

namespace {

// Adapters, without the addresses that we do not ask for.
const ULONG kFlags = GAA_FLAG_SKIP_UNICAST | GAA_FLAG_SKIP_ANYCAST | GAA_FLAG_SKIP_MULTICAST |
                     GAA_FLAG_SKIP_DNS_SERVER;

typedef std::vector<IP_ADAPTER_ADDRESSES> Buffer;

// The chain of adapters lies in `buffer`; null when there is none.
const IP_ADAPTER_ADDRESSES* ReadAdapters(Buffer* buffer) {
  ULONG size = 16384;
  for (int attempt = 0; attempt < 4; ++attempt) {
    buffer->resize(size / sizeof(IP_ADAPTER_ADDRESSES) + 1);
    const ULONG result = GetAdaptersAddresses(AF_UNSPEC, kFlags, nullptr, buffer->data(), &size);
    if (result == ERROR_SUCCESS) {
      return buffer->data();
    }
    // An adapter may come between two attempts.
    if (result != ERROR_BUFFER_OVERFLOW) {
      return nullptr;
    }
  }
  return nullptr;
}

std::string Bytes(const unsigned char* bytes, std::size_t count, std::size_t most) {
  return std::string(reinterpret_cast<const char*>(bytes), count < most ? count : most);
}

NetworkPortReading ReadPort(const IP_ADAPTER_ADDRESSES& adapter, const MIB_IF_ROW2& row) {
  NetworkPortReading reading;
  reading.name = adapter.AdapterName ? adapter.AdapterName : "";
  if (adapter.FriendlyName) {
    reading.title = FromWide(adapter.FriendlyName);
  }
  if (adapter.Description) {
    reading.description = FromWide(adapter.Description);
  }
  reading.interfaceType = adapter.IfType;
  reading.bitsPerSecond = adapter.TransmitLinkSpeed;
  reading.transmissionUnit = adapter.Mtu;
  reading.enabled = row.AdminStatus == NET_IF_ADMIN_STATUS_UP;
  reading.addressBytes =
      Bytes(adapter.PhysicalAddress, adapter.PhysicalAddressLength, sizeof adapter.PhysicalAddress);
  reading.permanentBytes = Bytes(row.PermanentPhysicalAddress, row.PhysicalAddressLength,
                                 sizeof row.PermanentPhysicalAddress);
  return reading;
}

}  // namespace

std::vector<NetworkPortReading> ReadNetworkPorts() {
  std::vector<NetworkPortReading> ports;
  Buffer buffer;
  for (const IP_ADAPTER_ADDRESSES* adapter = ReadAdapters(&buffer); adapter != nullptr;
       adapter = adapter->Next) {
    MIB_IF_ROW2 row = {};
    row.InterfaceLuid = adapter->Luid;
    if (GetIfEntry2(&row) == NO_ERROR && row.InterfaceAndOperStatusFlags.HardwareInterface) {
      ports.push_back(ReadPort(*adapter, row));
    }
  }
  return ports;
}

}  // namespace host
}  // namespace machine

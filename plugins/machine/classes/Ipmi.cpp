// IPMI Device Information (DSP0134, 7.39, type 38): how to reach the management controller. DMTF
// has a class for the controller, and none of these properties.

#include <cstdint>
#include <optional>
#include <string>

#include <plugins/machine/SmbiosCodes.h>
#include <plugins/machine/classes/BaseClasses.h>
#include <plugins/machine/classes/Families.h>

namespace machine {

namespace {

const unsigned int kIpmiDevice = 38;

const ClassRow kController("CIM_ManagementController", &kLogicalDevice);
const PropertyRow kIpmiProperties[] = {
    {"InterfaceType", kUint16}, {"SpecificationVersion", kString},  {"I2CSlaveAddress", kUint8},
    {"BaseAddress", kUint64},   {"BaseAddressIsIOSpace", kBoolean}, {"RegisterSpacing", kUint16},
    {"InterruptNumber", kUint8}};
const ClassRow kIpmiController("ZRVSG_IPMIController", &kController, kIpmiProperties);

// BMC Interface Type (7.39.1): 0 unknown, 1 KCS, 2 SMIC, 3 BT, 4 SSIF.
const std::uint8_t kLastInterface = 4;
const std::uint8_t kSsif = 4;

// Base Address Modifier (7.39, 10h), bits 7:6, to bytes between two registers.
const CodeRow kSpacings[] = {{0, 1}, {1, 4}, {2, 16}};

// Two halves of a byte: major and minor number.
std::string VersionText(std::uint8_t byte) {
  return std::to_string(byte >> 4) + "." + std::to_string(byte & 0x0F);
}

// Bit 0 says that the address is one of I/O space; the register's own lowest bit stands in the
// modifier, bit 4. SSIF has an I2C address here instead, in the lowest byte.
void SetAddress(NewObject* object, const SmbiosStructure& ipmi) {
  const std::optional<std::uint64_t> address = Known<std::uint64_t>(ipmi.Qword(0x08), 0);
  if (!address) {
    return;
  }
  if (ipmi.Byte(0x04) == kSsif) {
    object->Set("BaseAddress", *address >> 1 & 0x7F);
    return;
  }
  const std::optional<std::uint8_t> modifier = ipmi.Byte(0x10);
  const std::uint64_t lowest = modifier ? *modifier >> 4 & 1u : 0u;
  object->Set("BaseAddress", (*address & ~std::uint64_t{1}) | lowest)
      .Set("BaseAddressIsIOSpace", (*address & 1) != 0);
  if (modifier) {
    object->Set("RegisterSpacing", Translate(kSpacings, *modifier >> 6 & 3u));
  }
}

}  // namespace

void AddIpmi(NamespaceBuilder& builder, const MachineFacts& facts) {
  builder.Declare(kIpmiController);
  builder.Declare(kSystemDevice);
  unsigned int number = 0;
  for (const SmbiosStructure& ipmi : facts.smbios.OfType(kIpmiDevice)) {
    NewObject device = CreateDevice(builder, kIpmiController, facts,
                                    "IPMI Controller " + std::to_string(number++));
    const auto type = Known<std::uint8_t>(ipmi.Byte(0x04), 0);
    if (type && *type <= kLastInterface) {
      device.Set("InterfaceType", As<std::uint16_t>(type));
    }
    if (const std::optional<std::uint8_t> version = ipmi.Byte(0x05)) {
      device.Set("SpecificationVersion", VersionText(*version));
    }
    if (const std::optional<std::uint8_t> address = Known<std::uint8_t>(ipmi.Byte(0x06), 0)) {
      device.Set("I2CSlaveAddress", *address);
    }
    SetAddress(&device, ipmi);
    device.Set("InterruptNumber", Known<std::uint8_t>(ipmi.Byte(0x11), 0));
    PublishDevice(builder, device);
  }
}

}  // namespace machine

// System Power Supply (DSP0134, 7.40, type 39) and Portable Battery (7.23, type 22).

#include <cstdint>
#include <optional>
#include <string>

#include <plugins/machine/SmbiosCodes.h>
#include <plugins/machine/classes/BaseClasses.h>
#include <plugins/machine/classes/Families.h>

namespace machine {

namespace {

const unsigned int kBatteryStructure = 22;
const unsigned int kSupplyStructure = 39;

// CIM_PhysicalPackage.PackageType.
const std::uint16_t kSupplyPackage = 6;

const PropertyRow kSupplyProperties[] = {{"TotalOutputPower", kUint32},
                                         {"IsSwitchingSupply", kBoolean}};
const ClassRow kSupply("CIM_PowerSupply", &kLogicalDevice, kSupplyProperties);

const PropertyRow kBatteryProperties[] = {
    {"Chemistry", kUint16}, {"DesignCapacity", kUint32}, {"DesignVoltage", kUint64}};
const ClassRow kBattery("CIM_Battery", &kLogicalDevice, kBatteryProperties);

const std::uint32_t kMilliwattsPerWatt = 1000;

// Power Supply Characteristics (7.40.1): type in bits 13:10, unplugged 2, present 1, can be
// replaced while running 0.
const unsigned int kLinear = 3;
const unsigned int kSwitching = 4;

bool IsPresent(const SmbiosStructure& supply) { return Bit(supply.Word(0x0E), 1).value_or(true); }

void AddSupply(NamespaceBuilder& builder, const MachineFacts& facts, const SmbiosStructure& supply,
               const std::string& id) {
  NewObject device = CreateDevice(builder, kSupply, facts, id);
  device.Text("ElementName", supply.Text(0x06));
  // Watts; 8000h is unknown.
  if (const auto watts = Known<std::uint16_t>(supply.Word(0x0C), 0x8000, 0)) {
    device.Set("TotalOutputPower", *watts * kMilliwattsPerWatt);
  }
  const unsigned int type = supply.Word(0x0E).value_or(0) >> 10 & 0xFu;
  if (type == kLinear || type == kSwitching) {
    device.Set("IsSwitchingSupply", type == kSwitching);
  }
  const Object object = PublishDevice(builder, device);
  const Object package = CreatePhysical(builder, kPhysicalPackage, id)
                             .Text("ElementName", supply.Text(0x05))
                             .Text("Manufacturer", supply.Text(0x07))
                             .Text("SerialNumber", supply.Text(0x08))
                             .Text("OtherIdentifyingInfo", supply.Text(0x09))
                             .Text("PartNumber", supply.Text(0x0A))
                             .Text("Version", supply.Text(0x0B))
                             .Set("HotSwappable", Bit(supply.Word(0x0E), 0))
                             .Set("PackageType", kSupplyPackage)
                             .Publish();
  builder.Keep(kPhysicalRole, supply.Handle(), package);
  builder.Associate(kRealizes, package, object);
}

// Device Chemistry (7.23.1) has the numbers of CIM_Battery.Chemistry; 2 is unknown.
const std::uint8_t kLastChemistry = 8;

void AddBattery(NamespaceBuilder& builder, const MachineFacts& facts,
                const SmbiosStructure& battery, const std::string& id) {
  NewObject device = CreateDevice(builder, kBattery, facts, id);
  const auto chemistry = Known<std::uint8_t>(battery.Byte(0x09), 2, 0);
  device.Text("ElementName", battery.Text(0x08))
      .Set("DesignVoltage", As<std::uint64_t>(Known<std::uint16_t>(battery.Word(0x0C), 0)));
  if (chemistry && *chemistry <= kLastChemistry) {
    device.Set("Chemistry", As<std::uint16_t>(chemistry));
  }
  // Milliwatt-hours, times a factor that came with SMBIOS 2.2.
  if (const auto capacity = Known<std::uint16_t>(battery.Word(0x0A), 0)) {
    device.Set("DesignCapacity",
               Known<std::uint32_t>(*capacity * std::uint32_t{battery.Byte(0x15).value_or(1)}, 0));
  }
  PublishDevice(builder, device);
}

}  // namespace

void AddPower(NamespaceBuilder& builder, const MachineFacts& facts) {
  builder.Declare(kSupply);
  builder.Declare(kBattery);
  builder.Declare(kPhysicalPackage);
  builder.Declare(kSystemDevice);
  builder.Declare(kRealizes);
  unsigned int number = 0;
  for (const SmbiosStructure& supply : facts.smbios.OfType(kSupplyStructure)) {
    const std::string id = "Power Supply " + std::to_string(number++);
    if (IsPresent(supply)) {
      AddSupply(builder, facts, supply, id);
    }
  }
  number = 0;
  for (const SmbiosStructure& battery : facts.smbios.OfType(kBatteryStructure)) {
    AddBattery(builder, facts, battery, "Battery " + std::to_string(number++));
  }
}

}  // namespace machine

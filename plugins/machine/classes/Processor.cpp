// Processor Information (DSP0134, 7.5, type 4). A socket without a processor is none.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include <plugins/machine/SmbiosCodes.h>
#include <plugins/machine/classes/BaseClasses.h>
#include <plugins/machine/classes/Families.h>

namespace machine {

namespace {

const unsigned int kProcessorInformation = 4;

const PropertyRow kProcessorProperties[] = {
    {"Role", kString},
    {"Family", kUint16},
    {"UpgradeMethod", kUint16},
    {"MaxClockSpeed", kUint32},
    {"CurrentClockSpeed", kUint32},
    {"ExternalBusClockSpeed", kUint32},
    {"DataWidth", kUint16},
    {"AddressWidth", kUint16},
    {"Stepping", kString},
    {"CPUStatus", kUint16},
    {"Characteristics", ArrayOf(kUint16)},
    {"NumberOfEnabledCores", kUint16},
};

const PropertyRow kCapabilitiesProperties[] = {{"InstanceID", kString, kKey}};
const ClassRow kCapabilities("CIM_Capabilities", &kManagedElement, kCapabilitiesProperties,
                             kAbstract);
const PropertyRow kProcessorCapabilitiesProperties[] = {{"NumberOfProcessorCores", kUint16},
                                                        {"NumberOfHardwareThreads", kUint16}};
// Processor Type (7.5.1).
const char* const kRoles[] = {
    nullptr,          "Other",         nullptr,          "Central Processor",
    "Math Processor", "DSP Processor", "Video Processor"};

// Processor Characteristics (7.5.9), by bit, to CIM_Processor.Characteristics. Several cores,
// bit 3, have no number there; NumberOfProcessorCores tells them.
const CodeRow kCharacteristics[] = {{2, 2}, {4, 5}, {5, 6}, {6, 4}, {7, 7}};
const unsigned int kCharacteristicsUnknown = 1;

// Processor Upgrade (7.5.5). CIM_Processor.UpgradeMethod has the same numbers, up to 56 (38h).
const std::uint8_t kUpgradeUnknown = 2;
const std::uint8_t kLastUpgrade = 56;
const std::uint16_t kOtherUpgrade = 1;

// Processor Family (7.5.2). 2 is unknown; FEh says that the family stands in Processor Family 2.
const std::uint8_t kFamilyUnknown = 2;
const std::uint8_t kFamilyInSecondField = 0xFE;

// CPU Status (7.5, 18h, bits 2:0) has the numbers of CIM_Processor.CPUStatus; 5 and 6 are reserved
// in both.
const CodeRow kStatuses[] = {{1, 1}, {2, 2}, {3, 3}, {4, 4}, {7, 7}};

std::string_view RoleOf(const SmbiosStructure& processor) {
  const std::size_t type = processor.Byte(0x05).value_or(0);
  const bool isKnown = type < sizeof(kRoles) / sizeof(kRoles[0]) && kRoles[type] != nullptr;
  return isKnown ? kRoles[type] : "";
}

std::optional<std::uint16_t> FamilyOf(const SmbiosStructure& processor) {
  const std::optional<std::uint8_t> family = processor.Byte(0x06);
  if (family == kFamilyInSecondField) {
    return Known<std::uint16_t>(processor.Word(0x28), kFamilyUnknown, 0);
  }
  return As<std::uint16_t>(Known<std::uint8_t>(family, kFamilyUnknown, 0));
}

std::optional<std::uint16_t> UpgradeOf(const SmbiosStructure& processor) {
  const std::optional<std::uint8_t> code =
      Known<std::uint8_t>(processor.Byte(0x19), kUpgradeUnknown, 0);
  return code && *code > kLastUpgrade ? std::optional<std::uint16_t>(kOtherUpgrade)
                                      : As<std::uint16_t>(code);
}

std::optional<std::uint32_t> Megahertz(const SmbiosStructure& processor, std::size_t offset) {
  return As<std::uint32_t>(Known<std::uint16_t>(processor.Word(offset), 0));
}

// A number of one byte, or of two in a later field when the byte is FFh. 0 is unknown.
std::optional<std::uint16_t> Count(const SmbiosStructure& processor, std::size_t offset,
                                   std::size_t laterOffset) {
  const std::optional<std::uint8_t> count = processor.Byte(offset);
  if (count == 0xFF && processor.Word(laterOffset)) {
    return Known<std::uint16_t>(processor.Word(laterOffset), 0, 0xFFFF);
  }
  return As<std::uint16_t>(Known<std::uint8_t>(count, 0));
}

std::vector<std::uint16_t> CharacteristicsOf(const SmbiosStructure& processor) {
  std::vector<std::uint16_t> numbers;
  const std::uint16_t bits = processor.Word(0x26).value_or(0);
  if (bits >> kCharacteristicsUnknown & 1) {
    return numbers;
  }
  for (const CodeRow& row : kCharacteristics) {
    if (bits >> row.smbios & 1) {
      numbers.push_back(row.cim);
    }
  }
  return numbers;
}

Object AddChip(NamespaceBuilder& builder, const SmbiosStructure& processor,
               const std::string& tag) {
  return CreatePhysical(builder, kChip, tag)
      .Text("ElementName", processor.Text(0x04))
      .Text("Manufacturer", processor.Text(0x07))
      .Text("Model", processor.Text(0x10))
      .Text("SerialNumber", processor.Text(0x20))
      .Text("OtherIdentifyingInfo", processor.Text(0x21))
      .Text("PartNumber", processor.Text(0x22))
      .Publish();
}

Object AddDevice(NamespaceBuilder& builder, const MachineFacts& facts,
                 const SmbiosStructure& processor, const std::string& id) {
  NewObject device = CreateDevice(builder, kProcessor, facts, id);
  device.Text("ElementName", processor.Text(0x10))
      .Text("Role", RoleOf(processor))
      .Set("Family", FamilyOf(processor))
      .Set("UpgradeMethod", UpgradeOf(processor))
      .Set("ExternalBusClockSpeed", Megahertz(processor, 0x12))
      .Set("MaxClockSpeed", Megahertz(processor, 0x14))
      .Set("CurrentClockSpeed", Megahertz(processor, 0x16))
      .Array("Characteristics", kUint16, CharacteristicsOf(processor))
      .Set("NumberOfEnabledCores", Count(processor, 0x24, 0x2C));
  if (const std::optional<std::uint8_t> status = processor.Byte(0x18)) {
    device.Set("CPUStatus", Translate(kStatuses, *status & 7u));
  }
  return PublishDevice(builder, device);
}

void AddCapabilities(NamespaceBuilder& builder, const SmbiosStructure& processor,
                     const std::string& id, const Object& device) {
  const Object capabilities = builder.Create(kProcessorCapabilities)
                                  .Key("InstanceID", "ZRVSG:" + id)
                                  .Set("NumberOfProcessorCores", Count(processor, 0x23, 0x2A))
                                  .Set("NumberOfHardwareThreads", Count(processor, 0x25, 0x2E))
                                  .Publish();
  builder.Associate(kElementCapabilities, device, capabilities);
}

// Bit 6 of the status (7.5, 18h). A structure too short to have it is a processor.
bool IsPopulated(const SmbiosStructure& processor) {
  return Bit(processor.Byte(0x18), 6).value_or(true);
}

}  // namespace

const ClassRow kProcessorCapabilities("CIM_ProcessorCapabilities", &kCapabilities,
                                      kProcessorCapabilitiesProperties);
const AssociationRow kElementCapabilities("CIM_ElementCapabilities",
                                          {"ManagedElement", &kManagedElement},
                                          {"Capabilities", &kCapabilities});

const ClassRow kProcessor("CIM_Processor", &kLogicalDevice, kProcessorProperties);

void AddProcessors(NamespaceBuilder& builder, const MachineFacts& facts) {
  builder.Declare(kProcessor);
  builder.Declare(kSystemDevice);
  builder.Declare(kProcessorCapabilities);
  builder.Declare(kChip);
  builder.Declare(kElementCapabilities);
  builder.Declare(kRealizes);
  std::uint32_t number = 0;
  for (const SmbiosStructure& processor : facts.smbios.OfType(kProcessorInformation)) {
    if (!IsPopulated(processor)) {
      continue;
    }
    const std::string id = "Processor " + std::to_string(number);
    const Object device = AddDevice(builder, facts, processor, id);
    builder.Keep(kProcessorRole, number++, device);
    builder.Keep(kSocketRole, processor.Handle(), device);
    const Object chip = AddChip(builder, processor, id);
    builder.Keep(kPhysicalRole, processor.Handle(), chip);
    builder.Associate(kRealizes, chip, device);
    AddCapabilities(builder, processor, id, device);
  }
}

}  // namespace machine

// Memory: Physical Memory Array (DSP0134, 7.17, type 16), Memory Device (7.18, type 17), Memory
// Array Mapped Address (7.20, type 19), Memory Device Mapped Address (7.21, type 20). A socket
// without a module is no memory; MaximumCapacity of the array tells how many there are.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

#include <plugins/machine/SmbiosCodes.h>
#include <plugins/machine/classes/BaseClasses.h>
#include <plugins/machine/classes/Families.h>

namespace machine {

namespace {

const unsigned int kMemoryArray = 16;
const unsigned int kMemoryDevice = 17;
const unsigned int kArrayAddress = 19;
const unsigned int kDeviceAddress = 20;

// By SMBIOS handle: the CIM_Memory of an array, the CIM_PhysicalMemory of a device.
const char kArrayRole[] = "memory array";
const char kModuleRole[] = "memory module";

const PropertyRow kPhysicalMemoryProperties[] = {
    {"MemoryType", kUint16},        {"TotalWidth", kUint16},
    {"DataWidth", kUint16},         {"Speed", kUint32},
    {"MaxMemorySpeed", kUint32},    {"ConfiguredMemoryClockSpeed", kUint32},
    {"IsSpeedInMhz", kBoolean},     {"Capacity", kUint64},
    {"BankLabel", kString},         {"PositionInRow", kUint32},
    {"InterleavePosition", kUint32}};
const ClassRow kPhysicalMemory("CIM_PhysicalMemory", &kChip, kPhysicalMemoryProperties);

const PropertyRow kMemoryCapacityProperties[] = {
    {"Name", kString, kKey}, {"MemoryType", kUint16, kKey}, {"MaximumMemoryCapacity", kUint64}};
const PropertyRow kSlotCapacityProperties[] = {
    {"Name", kString, kKey}, {"ObjectType", kUint16, kKey}, {"MaximumCapacity", kUint64}};
const ClassRow kPhysicalCapacity("CIM_PhysicalCapacity", &kManagedElement, kAbstract);
const ClassRow kMemoryCapacity("CIM_MemoryCapacity", &kPhysicalCapacity, kMemoryCapacityProperties);
const ClassRow kConfigurationCapacity("CIM_ConfigurationCapacity", &kPhysicalCapacity,
                                      kSlotCapacityProperties);
const AssociationRow kElementCapacity("CIM_ElementCapacity", {"Capacity", &kPhysicalCapacity},
                                      {"Element", &kPhysicalElement});
const AssociationRow kBasedOn("CIM_BasedOn", {"Antecedent", &kStorageExtent},
                              {"Dependent", &kStorageExtent});

// CIM_MemoryCapacity.MemoryType, CIM_ConfigurationCapacity.ObjectType.
const std::uint16_t kUnknownMemoryType = 0;
const std::uint16_t kMemorySlots = 6;

// Form Factor (7.18.1) to CIM_Chip.FormFactor, Memory Type (7.18.2) to
// CIM_PhysicalMemory.MemoryType. Those that have no number there are 1, "Other".
const CodeRow kFormFactors[] = {{0x01, 1},  {0x03, 7}, {0x04, 2}, {0x05, 1}, {0x06, 3},  {0x07, 4},
                                {0x08, 6},  {0x09, 8}, {0x0A, 9}, {0x0B, 1}, {0x0C, 11}, {0x0D, 12},
                                {0x0E, 13}, {0x0F, 1}, {0x10, 1}, {0x11, 1}};
const CodeRow kMemoryTypes[] = {
    {0x01, 1},  {0x03, 2},  {0x04, 6},  {0x05, 7},  {0x06, 8},  {0x07, 9},  {0x08, 10}, {0x09, 11},
    {0x0A, 12}, {0x0B, 13}, {0x0C, 14}, {0x0D, 15}, {0x0E, 16}, {0x0F, 17}, {0x10, 18}, {0x11, 19},
    {0x12, 20}, {0x13, 21}, {0x14, 23}, {0x18, 24}, {0x19, 25}, {0x1A, 26}, {0x1B, 27}, {0x1C, 28},
    {0x1D, 29}, {0x1E, 30}, {0x1F, 1},  {0x20, 1},  {0x21, 1},  {0x22, 1},  {0x23, 1},  {0x24, 1}};

// Memory Array - Error Correction Types (7.17.3).
const char* const kErrorCorrections[] = {nullptr,  "Other",          nullptr,         "None",
                                         "Parity", "Single-bit ECC", "Multi-bit ECC", "CRC"};

std::string_view ErrorCorrectionOf(const SmbiosStructure& array) {
  const std::size_t code = array.Byte(0x06).value_or(0);
  const bool isKnown = code < sizeof(kErrorCorrections) / sizeof(kErrorCorrections[0]) &&
                       kErrorCorrections[code] != nullptr;
  return isKnown ? kErrorCorrections[code] : "";
}

bool IsEmptySocket(const SmbiosStructure& device) { return device.Word(0x0C) == 0; }

// Size (7.18, 0Ch): FFFFh is unknown, 7FFFh stands for Extended Size (1Ch), which has to state one;
// the top bit says that the rest counts KiB, not MiB.
std::optional<std::uint64_t> CapacityOf(const SmbiosStructure& device) {
  const std::optional<std::uint16_t> size = Known<std::uint16_t>(device.Word(0x0C), 0xFFFF, 0);
  if (!size) {
    return std::nullopt;
  }
  if (size == 0x7FFF && device.Dword(0x1C)) {
    return Known<std::uint64_t>(std::uint64_t{*device.Dword(0x1C) & 0x7FFFFFFFu} << 20, 0);
  }
  return std::uint64_t{*size & 0x7FFFu} << (*size & 0x8000u ? 10 : 20);
}

// A speed in MT/s, which DMTF calls megahertz: 0 is unknown, FFFFh stands for the later field.
std::optional<std::uint32_t> SpeedOf(const SmbiosStructure& device, std::size_t offset,
                                     std::size_t laterOffset) {
  const std::optional<std::uint16_t> speed = Known<std::uint16_t>(device.Word(offset), 0);
  if (speed != 0xFFFF) {
    return As<std::uint32_t>(speed);
  }
  const std::optional<std::uint32_t> later = device.Dword(laterOffset);
  return later ? Known<std::uint32_t>(*later & 0x7FFFFFFFu, 0) : std::nullopt;
}

// The first mapped address that a device has; null when it has none. Interleaved devices have
// several, all with the same positions.
typedef std::unordered_map<std::uint16_t, const SmbiosStructure*> MappedDevices;

MappedDevices FindMappedDevices(const SmbiosStructures& smbios) {
  MappedDevices found;
  for (const SmbiosStructure& mapped : smbios.OfType(kDeviceAddress)) {
    if (const std::optional<std::uint16_t> device = mapped.Word(0x0C)) {
      found.emplace(*device, &mapped);
    }
  }
  return found;
}

void SetPositions(NewObject* object, const SmbiosStructure& mapped) {
  object->Set("PositionInRow", As<std::uint32_t>(Known<std::uint8_t>(mapped.Byte(0x10), 0xFF, 0)));
  object->Set("InterleavePosition",
              As<std::uint32_t>(Known<std::uint8_t>(mapped.Byte(0x11), 0xFF)));
}

Object AddModule(NamespaceBuilder& builder, const SmbiosStructure& device, const std::string& tag,
                 const MappedDevices& mappedDevices) {
  NewObject object = CreatePhysical(builder, kPhysicalMemory, tag);
  object.Text("ElementName", device.Text(0x10))
      .Text("BankLabel", device.Text(0x11))
      .Text("Manufacturer", device.Text(0x17))
      .Text("SerialNumber", device.Text(0x18))
      .Text("OtherIdentifyingInfo", device.Text(0x19))
      .Text("PartNumber", device.Text(0x1A))
      .Set("TotalWidth", Known<std::uint16_t>(device.Word(0x08), 0xFFFF, 0))
      .Set("DataWidth", Known<std::uint16_t>(device.Word(0x0A), 0xFFFF))
      .Set("Capacity", CapacityOf(device))
      .Set("FormFactor", Translate(kFormFactors, device.Byte(0x0E)))
      .Set("MemoryType", Translate(kMemoryTypes, device.Byte(0x12)))
      .Set("ConfiguredMemoryClockSpeed", SpeedOf(device, 0x20, 0x58));
  if (const std::optional<std::uint32_t> speed = SpeedOf(device, 0x15, 0x54)) {
    // CIM_PhysicalMemory demands a Speed of 0, which counts nanoseconds, beside a speed in MHz.
    object.Set("MaxMemorySpeed", *speed).Set("IsSpeedInMhz", true).Set("Speed", std::uint32_t{0});
  }
  const auto mapped = mappedDevices.find(device.Handle());
  if (mapped != mappedDevices.end()) {
    SetPositions(&object, *mapped->second);
  }
  return object.Publish();
}

// The capacity of an array, in KiB: 80000000h stands for Extended Maximum Capacity (7.17, 0Fh),
// which is in bytes.
std::optional<std::uint64_t> MaximumKilobytes(const SmbiosStructure& array) {
  const std::optional<std::uint32_t> kilobytes = Known<std::uint32_t>(array.Dword(0x07), 0);
  if (kilobytes != 0x80000000u) {
    return As<std::uint64_t>(kilobytes);
  }
  const std::optional<std::uint64_t> bytes = array.Qword(0x0F);
  return bytes ? Known<std::uint64_t>(*bytes >> 10, 0) : std::nullopt;
}

// How much memory the modules of each array have; absent when one does not say it, or when it is
// more than the number holds, as in no array that is.
typedef std::unordered_map<std::uint16_t, std::optional<std::uint64_t> > ArrayBytes;

void AddArray(NamespaceBuilder& builder, const MachineFacts& facts, const SmbiosStructure& array,
              const std::string& id, const ArrayBytes& arrayBytes) {
  NewObject device = CreateDevice(builder, kMemory, facts, id);
  device.Set("BlockSize", std::uint64_t{1}).Text("ErrorMethodology", ErrorCorrectionOf(array));
  const auto bytes = arrayBytes.find(array.Handle());
  if (bytes != arrayBytes.end()) {
    device.Set("NumberOfBlocks", bytes->second);
  }
  builder.Keep(kArrayRole, array.Handle(), PublishDevice(builder, device));

  const Object& chassis = builder.Kept(kMainChassisRole);
  builder.Associate(kElementCapacity,
                    builder.Create(kMemoryCapacity)
                        .Key("Name", id)
                        .Key("MemoryType", kUnknownMemoryType)
                        .Set("MaximumMemoryCapacity", MaximumKilobytes(array))
                        .Publish(),
                    chassis);
  builder.Associate(
      kElementCapacity,
      builder.Create(kConfigurationCapacity)
          .Key("Name", id)
          .Key("ObjectType", kMemorySlots)
          .Set("MaximumCapacity", As<std::uint64_t>(Known<std::uint16_t>(array.Word(0x0D), 0)))
          .Publish(),
      chassis);
}

// An address in KiB: FFFFFFFFh stands for the later field, which is in bytes.
std::optional<std::uint64_t> Kilobytes(const SmbiosStructure& range, std::size_t offset,
                                       std::size_t laterOffset) {
  const std::optional<std::uint32_t> address = range.Dword(offset);
  if (address != 0xFFFFFFFFu) {
    return As<std::uint64_t>(address);
  }
  const std::optional<std::uint64_t> bytes = range.Qword(laterOffset);
  return bytes ? std::optional<std::uint64_t>(*bytes >> 10) : std::nullopt;
}

void AddRange(NamespaceBuilder& builder, const MachineFacts& facts, const SmbiosStructure& range,
              const std::string& id) {
  NewObject device = CreateDevice(builder, kMemory, facts, id);
  device.Set("StartingAddress", Kilobytes(range, 0x04, 0x0F))
      .Set("EndingAddress", Kilobytes(range, 0x08, 0x17));
  const Object object = PublishDevice(builder, device);
  if (const std::optional<std::uint16_t> array = range.Word(0x0C)) {
    builder.Associate(kBasedOn, builder.Kept(kArrayRole, *array), object);
  }
}

void AddModules(NamespaceBuilder& builder, const MachineFacts& facts, ArrayBytes* arrayBytes) {
  const MappedDevices mappedDevices = FindMappedDevices(facts.smbios);
  unsigned int number = 0;
  for (const SmbiosStructure& device : facts.smbios.OfType(kMemoryDevice)) {
    const std::string tag = "Memory Device " + std::to_string(number++);
    if (IsEmptySocket(device)) {
      continue;
    }
    builder.Keep(kModuleRole, device.Handle(), AddModule(builder, device, tag, mappedDevices));
    builder.Keep(kPhysicalRole, device.Handle(), builder.Kept(kModuleRole, device.Handle()));
    if (const std::optional<std::uint16_t> array = device.Word(0x04)) {
      const std::optional<std::uint64_t> bytes = CapacityOf(device);
      std::optional<std::uint64_t>& sum =
          arrayBytes->emplace(*array, std::uint64_t{0}).first->second;
      sum = sum && bytes && *bytes <= UINT64_MAX - *sum
                ? std::optional<std::uint64_t>(*sum + *bytes)
                : std::nullopt;
    }
  }
}

}  // namespace

void AddPhysicalMemory(NamespaceBuilder& builder, const MachineFacts& facts) {
  builder.Declare(kPhysicalMemory);
  builder.Declare(kMemory);
  builder.Declare(kSystemDevice);
  builder.Declare(kMemoryCapacity);
  builder.Declare(kConfigurationCapacity);
  builder.Declare(kElementCapacity);
  builder.Declare(kBasedOn);
  builder.Declare(kRealizes);
  ArrayBytes arrayBytes;
  AddModules(builder, facts, &arrayBytes);
  unsigned int number = 0;
  for (const SmbiosStructure& array : facts.smbios.OfType(kMemoryArray)) {
    AddArray(builder, facts, array, "Memory Array " + std::to_string(number++), arrayBytes);
  }
  for (const SmbiosStructure& device : facts.smbios.OfType(kMemoryDevice)) {
    if (const std::optional<std::uint16_t> array = device.Word(0x04)) {
      builder.Associate(kRealizes, builder.Kept(kModuleRole, device.Handle()),
                        builder.Kept(kArrayRole, *array));
    }
  }
  number = 0;
  for (const SmbiosStructure& range : facts.smbios.OfType(kArrayAddress)) {
    AddRange(builder, facts, range, "Memory Range " + std::to_string(number++));
  }
}

}  // namespace machine

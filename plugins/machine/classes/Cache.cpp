// Cache Information (DSP0134, 7.8, type 7), and which processor has which cache (7.5, 1Ah to 1Eh).
// A cache of which nothing is installed is none.

#include <cstdint>
#include <optional>
#include <string>

#include <plugins/machine/SmbiosCodes.h>
#include <plugins/machine/classes/BaseClasses.h>
#include <plugins/machine/classes/Families.h>

namespace machine {

namespace {

using NZRVQDA20::TCIMValue;

const unsigned int kProcessorInformation = 4;
const unsigned int kCacheInformation = 7;

const char kCacheRole[] = "cache";

const PropertyRow kCacheProperties[] = {{"Level", kUint16},
                                        {"OtherLevelDescription", kString},
                                        {"WritePolicy", kUint16},
                                        {"CacheType", kUint16},
                                        {"Associativity", kUint16}};
const AssociationRow kAssociatedCache("CIM_AssociatedCacheMemory", {"Antecedent", &kMemory},
                                      {"Dependent", &kLogicalElement}, kCacheProperties);

// To CIM_AssociatedCacheMemory's value maps. Configuration (7.8, 05h), bits 2:0 and 9:8.
const CodeRow kLevels[] = {{0, 3}, {1, 4}, {2, 5}, {3, 1}, {4, 1}, {5, 1}, {6, 1}, {7, 1}};
const unsigned int kLastNamedLevel = 2;
const CodeRow kWritePolicies[] = {{0, 3}, {1, 2}, {2, 4}};
// System Cache Type (7.8.4) and Associativity (7.8.5).
const CodeRow kTypes[] = {{1, 1}, {3, 2}, {4, 3}, {5, 4}};
const CodeRow kAssociativities[] = {{1, 1}, {3, 2},  {4, 3},   {5, 4},   {6, 5},   {7, 6},  {8, 7},
                                    {9, 8}, {10, 9}, {11, 10}, {12, 11}, {13, 12}, {14, 13}};
// Error Correction Type (7.8.3).
const char* const kErrorCorrections[] = {nullptr,  "Other",          nullptr,        "None",
                                         "Parity", "Single-bit ECC", "Multi-bit ECC"};

// A size in bytes: the top bit says that the rest counts units of 64 KiB, not of 1 KiB.
std::uint64_t Bytes(std::uint64_t size, unsigned int topBit) {
  const std::uint64_t units = size & ((std::uint64_t{1} << topBit) - 1);
  return units << (size >> topBit & 1 ? 16 : 10);
}

// FFFFh is a size that stands in Installed Cache Size 2 (7.8, 17h).
std::optional<std::uint64_t> InstalledBytes(const SmbiosStructure& cache) {
  const std::optional<std::uint16_t> size = cache.Word(0x09);
  if (size == 0xFFFF && cache.Dword(0x17)) {
    return Bytes(*cache.Dword(0x17), 31);
  }
  return size ? std::optional<std::uint64_t>(Bytes(*size, 15)) : std::nullopt;
}

std::string_view ErrorCorrectionOf(const SmbiosStructure& cache) {
  const std::size_t code = cache.Byte(0x10).value_or(0);
  const bool isKnown = code < sizeof(kErrorCorrections) / sizeof(kErrorCorrections[0]) &&
                       kErrorCorrections[code] != nullptr;
  return isKnown ? kErrorCorrections[code] : "";
}

void AddCache(NamespaceBuilder& builder, const MachineFacts& facts, const SmbiosStructure& cache,
              const std::string& id) {
  const std::optional<std::uint64_t> bytes = InstalledBytes(cache);
  if (bytes == std::uint64_t{0}) {
    return;
  }
  const std::optional<bool> isEnabled = Bit(cache.Word(0x05), 7);
  NewObject device = CreateDevice(builder, kMemory, facts, id);
  device.Text("ElementName", cache.Text(0x04))
      .Set("BlockSize", std::uint64_t{1})
      .Set("NumberOfBlocks", bytes)
      .Set("Volatile", true)
      .Text("ErrorMethodology", ErrorCorrectionOf(cache));
  if (isEnabled) {
    device.Set("EnabledState", *isEnabled ? kEnabled : kDisabled);
  }
  builder.Keep(kCacheRole, cache.Handle(), PublishDevice(builder, device));
}

void AddNumber(NamespaceBuilder::Properties* properties, const char* name,
               const std::optional<std::uint16_t>& number) {
  if (number) {
    properties->emplace_back(name, TCIMValue(*number));
  }
}

NamespaceBuilder::Properties PropertiesOf(const SmbiosStructure& cache) {
  NamespaceBuilder::Properties properties;
  if (const std::optional<std::uint16_t> configuration = cache.Word(0x05)) {
    const unsigned int level = *configuration & 7u;
    AddNumber(&properties, "Level", Translate(kLevels, level));
    if (level > kLastNamedLevel) {
      properties.emplace_back("OtherLevelDescription", TCIMValue("L" + std::to_string(level + 1)));
    }
    AddNumber(&properties, "WritePolicy", Translate(kWritePolicies, *configuration >> 8 & 3u));
  }
  AddNumber(&properties, "CacheType", Translate(kTypes, cache.Byte(0x11)));
  AddNumber(&properties, "Associativity", Translate(kAssociativities, cache.Byte(0x12)));
  return properties;
}

// The three handles of a processor's caches; FFFFh, and what names no cache, is none.
void Connect(NamespaceBuilder& builder, const SmbiosStructures& smbios,
             const SmbiosStructure& processor) {
  for (const std::size_t offset : {0x1A, 0x1C, 0x1E}) {
    const std::optional<std::uint16_t> handle = processor.Word(offset);
    const SmbiosStructure* const cache = handle ? smbios.ByHandle(*handle) : nullptr;
    if (cache != nullptr && cache->Type() == kCacheInformation) {
      builder.Associate(kAssociatedCache, builder.Kept(kCacheRole, *handle),
                        builder.Kept(kSocketRole, processor.Handle()), PropertiesOf(*cache));
    }
  }
}

}  // namespace

void AddCaches(NamespaceBuilder& builder, const MachineFacts& facts) {
  builder.Declare(kMemory);
  builder.Declare(kSystemDevice);
  builder.Declare(kAssociatedCache);
  unsigned int number = 0;
  for (const SmbiosStructure& cache : facts.smbios.OfType(kCacheInformation)) {
    AddCache(builder, facts, cache, "Cache " + std::to_string(number++));
  }
  for (const SmbiosStructure& processor : facts.smbios.OfType(kProcessorInformation)) {
    Connect(builder, facts.smbios, processor);
  }
}

}  // namespace machine

// What holds everything else: System Enclosure (DSP0134, 7.4, type 3) and Baseboard Information
// (7.3, type 2).

#include <cstdint>
#include <optional>
#include <string>

#include <plugins/machine/SmbiosCodes.h>
#include <plugins/machine/classes/BaseClasses.h>
#include <plugins/machine/classes/Families.h>

namespace machine {

namespace {

const unsigned int kBaseboard = 2;
const unsigned int kEnclosure = 3;

const char kEnclosureRole[] = "enclosure";  // by SMBIOS handle: CIM_Chassis

// CIM_PhysicalPackage.PackageType.
const std::uint16_t kChassisPackage = 3;
const std::uint16_t kCardPackage = 9;

// CIM_PhysicalFrame.LockPresent stands here: there is no other frame.
const PropertyRow kChassisProperties[] = {{"LockPresent", kBoolean},
                                          {"ChassisPackageType", kUint16},
                                          {"ChassisTypeDescription", kString},
                                          {"NumberOfPowerCords", kUint16}};
const ClassRow kChassis("CIM_Chassis", &kPhysicalPackage, kChassisProperties);

const PropertyRow kCardProperties[] = {{"HostingBoard", kBoolean},
                                       {"RequiresDaughterBoard", kBoolean}};
const ClassRow kCard("CIM_Card", &kPhysicalPackage, kCardProperties);

const PropertyRow kContainerProperties[] = {{"LocationWithinContainer", kString}};
const AssociationRow kPackageInChassis("CIM_PackageInChassis", {"GroupComponent", &kChassis},
                                       {"PartComponent", &kPhysicalPackage}, kContainerProperties);

const PropertyRow kSystemPackageProperties[] = {{"PlatformGUID", kString}};
const AssociationRow kSystemPackage("CIM_ComputerSystemPackage", {"Antecedent", &kPhysicalPackage},
                                    {"Dependent", &kComputerSystem}, kSystemPackageProperties);

// System Enclosure or Chassis Types (7.4.1). Those that CIM_Chassis.ChassisPackageType has no
// number for are "Other"; the name stands in ChassisTypeDescription.
struct ChassisType {
  std::uint16_t cim;
  const char* name;
};
const std::uint16_t kOther = 1;
const ChassisType kChassisTypes[] = {
    {1, "Other"},
    {0, nullptr},  // unknown
    {3, "Desktop"},
    {4, "Low Profile Desktop"},
    {5, "Pizza Box"},
    {6, "Mini Tower"},
    {7, "Tower"},
    {8, "Portable"},
    {9, "Laptop"},
    {10, "Notebook"},
    {11, "Hand Held"},
    {12, "Docking Station"},
    {13, "All In One"},
    {14, "Sub Notebook"},
    {15, "Space-saving"},
    {16, "Lunch Box"},
    {17, "Main Server Chassis"},
    {18, "Expansion Chassis"},
    {19, "Sub Chassis"},
    {20, "Bus Expansion Chassis"},
    {21, "Peripheral Chassis"},
    {22, "RAID Chassis"},
    {kOther, "Rack Mount Chassis"},
    {24, "Sealed-case PC"},
    {kOther, "Multi-system"},
    {26, "CompactPCI"},
    {27, "AdvancedTCA"},
    {kOther, "Blade"},
    {28, "Blade Enclosing"},
    {30, "Tablet"},
    {31, "Convertible"},
    {32, "Detachable"},
    {33, "IoT Gateway"},
    {34, "Embedded PC"},
    {35, "Mini PC"},
    {36, "Stick PC"},
};
const unsigned int kLockBit = 7;

void SetType(NewObject* object, const SmbiosStructure& enclosure) {
  const std::optional<std::uint8_t> byte = enclosure.Byte(0x05);
  if (!byte) {
    return;
  }
  object->Set("LockPresent", Bit(byte, kLockBit));
  const std::size_t number = *byte & 0x7Fu;
  if (number >= 1 && number <= sizeof(kChassisTypes) / sizeof(kChassisTypes[0])) {
    const ChassisType& type = kChassisTypes[number - 1];
    if (type.name != nullptr) {
      object->Set("ChassisPackageType", type.cim).Set("ChassisTypeDescription", type.name);
    }
  }
}

// The SKU number's string stands behind the contained elements, as many as there are (7.4,
// 15h+n*m).
std::string_view SkuOf(const SmbiosStructure& enclosure) {
  const std::optional<std::uint8_t> count = enclosure.Byte(0x13);
  const std::optional<std::uint8_t> length = enclosure.Byte(0x14);
  return count && length ? enclosure.Text(0x15 + std::size_t{*count} * *length)
                         : std::string_view();
}

// One rack unit, in inches.
const float kRackUnit = 1.75f;

void AddChassis(NamespaceBuilder& builder, const MachineFacts& facts) {
  unsigned int number = 0;
  for (const SmbiosStructure& enclosure : facts.smbios.OfType(kEnclosure)) {
    NewObject object = CreatePhysical(builder, kChassis, "Chassis " + std::to_string(number++));
    SetType(&object, enclosure);
    object.Text("Manufacturer", enclosure.Text(0x04))
        .Text("Version", enclosure.Text(0x06))
        .Text("SerialNumber", enclosure.Text(0x07))
        .Text("OtherIdentifyingInfo", enclosure.Text(0x08))
        .Text("SKU", SkuOf(enclosure))
        .Set("PackageType", kChassisPackage)
        .Set("NumberOfPowerCords", As<std::uint16_t>(Known<std::uint8_t>(enclosure.Byte(0x12), 0)));
    if (const auto height = Known<std::uint8_t>(enclosure.Byte(0x11), 0)) {
      object.Set("Height", static_cast<float>(*height) * kRackUnit);
    }
    const Object chassis = object.Publish();
    builder.Keep(kPhysicalRole, enclosure.Handle(), chassis);
    builder.Keep(kMainChassisRole, 0, chassis);
    builder.Keep(kEnclosureRole, enclosure.Handle(), chassis);
    // The others hold the first one, or stand in it: only of that one is it said that it is the
    // system's.
    if (number == 1) {
      NamespaceBuilder::Properties guid;
      if (facts.system.uuid) {
        guid.emplace_back("PlatformGUID", NZRVQDA20::TCIMValue(*facts.system.uuid));
      }
      builder.Associate(kSystemPackage, chassis, builder.Kept(kSystemRole), guid);
    }
  }
}

void AddCards(NamespaceBuilder& builder, const MachineFacts& facts) {
  unsigned int number = 0;
  for (const SmbiosStructure& board : facts.smbios.OfType(kBaseboard)) {
    const std::optional<std::uint8_t> features = board.Byte(0x09);
    const Object card = CreatePhysical(builder, kCard, "Card " + std::to_string(number++))
                            .Text("Manufacturer", board.Text(0x04))
                            .Text("Model", board.Text(0x05))
                            .Text("Version", board.Text(0x06))
                            .Text("SerialNumber", board.Text(0x07))
                            .Text("OtherIdentifyingInfo", board.Text(0x08))
                            .Set("HostingBoard", Bit(features, 0))
                            .Set("RequiresDaughterBoard", Bit(features, 1))
                            .Set("Removable", Bit(features, 2))
                            .Set("Replaceable", Bit(features, 3))
                            .Set("HotSwappable", Bit(features, 4))
                            .Set("PackageType", kCardPackage)
                            .Publish();
    builder.Keep(kPhysicalRole, board.Handle(), card);
    NamespaceBuilder::Properties location;
    const std::string_view place = board.Text(0x0A);
    if (!place.empty()) {
      location.emplace_back("LocationWithinContainer", NZRVQDA20::TCIMValue(std::string(place)));
    }
    // A handle that names no enclosure is in no association.
    if (const std::optional<std::uint16_t> chassis = board.Word(0x0B)) {
      builder.Associate(kPackageInChassis, builder.Kept(kEnclosureRole, *chassis), card, location);
    }
  }
}

}  // namespace

void AddEnclosure(NamespaceBuilder& builder, const MachineFacts& facts) {
  builder.Declare(kChassis);
  builder.Declare(kCard);
  builder.Declare(kPackageInChassis);
  builder.Declare(kSystemPackage);
  AddChassis(builder, facts);
  AddCards(builder, facts);
}

}  // namespace machine

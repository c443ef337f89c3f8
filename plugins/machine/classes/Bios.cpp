// BIOS Information (DSP0134, 7.1, type 0) and BIOS Language Information (7.14, type 13).

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include <plugins/machine/SmbiosCodes.h>
#include <plugins/machine/SmbiosDate.h>
#include <plugins/machine/classes/BaseClasses.h>
#include <plugins/machine/classes/Families.h>

namespace machine {

namespace {

const unsigned int kBiosInformation = 0;
const unsigned int kBiosLanguage = 13;

// CIM_SoftwareElement.SoftwareElementState and .TargetOperatingSystem.
const std::uint16_t kRunning = 3;
const std::uint16_t kNotApplicable = 66;

// CIM_SoftwareIdentity.Classifications.
const std::uint16_t kFirmware = 10;
const std::uint16_t kBiosOrFCode = 11;

const PropertyRow kSoftwareElementProperties[] = {{"Name", kString, kKey},
                                                  {"Version", kString, kKey},
                                                  {"SoftwareElementState", kUint16, kKey},
                                                  {"SoftwareElementID", kString, kKey},
                                                  {"TargetOperatingSystem", kUint16, kKey},
                                                  {"Manufacturer", kString}};
const ClassRow kSoftwareElement("CIM_SoftwareElement", &kLogicalElement,
                                kSoftwareElementProperties);

const PropertyRow kBiosProperties[] = {{"PrimaryBIOS", kBoolean},
                                       {"ReleaseDate", kDateTime},
                                       {"LoadedStartingAddress", kUint64},
                                       {"LoadedEndingAddress", kUint64},
                                       {"ListOfLanguages", ArrayOf(kString)},
                                       {"CurrentLanguage", kString}};
const ClassRow kBios("CIM_BIOSElement", &kSoftwareElement, kBiosProperties);

const PropertyRow kFeatureProperties[] = {{"IdentifyingNumber", kString, kKey},
                                          {"ProductName", kString, kKey},
                                          {"Vendor", kString, kKey},
                                          {"Version", kString, kKey},
                                          {"Name", kString, kKey}};
const ClassRow kSoftwareFeature("CIM_SoftwareFeature", &kLogicalElement, kFeatureProperties);
const PropertyRow kBiosFeatureProperties[] = {{"Characteristics", ArrayOf(kUint16)}};
const ClassRow kBiosFeature("CIM_BIOSFeature", &kSoftwareFeature, kBiosFeatureProperties);

const PropertyRow kIdentityProperties[] = {{"InstanceID", kString, kKey},
                                           {"ElementName", kString},
                                           {"MajorVersion", kUint16},
                                           {"MinorVersion", kUint16},
                                           {"Classifications", ArrayOf(kUint16)}};
const ClassRow kSoftwareIdentity("CIM_SoftwareIdentity", &kLogicalElement, kIdentityProperties);

const AssociationRow kSystemBios("CIM_SystemBIOS", {"GroupComponent", &kComputerSystem},
                                 {"PartComponent", &kBios});
const AssociationRow kFeatureOfBios("CIM_BIOSFeatureBIOSElements",
                                    {"GroupComponent", &kBiosFeature}, {"PartComponent", &kBios});
const AssociationRow kInstalledIdentity("CIM_InstalledSoftwareIdentity", {"System", &kSystem},
                                        {"InstalledSoftware", &kSoftwareIdentity});

// Bit of BIOS Characteristics (7.1.1) to CIM_BIOSFeature.Characteristics.
const CodeRow kCharacteristics[] = {{4, 4},   {5, 5},   {6, 6},   {7, 7},   {8, 8},   {9, 9},
                                    {10, 10}, {11, 11}, {12, 12}, {13, 13}, {14, 14}, {15, 27},
                                    {16, 28}, {17, 29}, {18, 30}, {19, 31}, {31, 160}};
const unsigned int kCharacteristicsNotSupported = 3;

// Bit of extension byte 1 (7.1.2.1) to the same.
const CodeRow kExtended[] = {{0, 16}, {1, 18}, {2, 19}, {3, 17},
                             {4, 15}, {5, 25}, {6, 26}, {7, 24}};

std::vector<std::uint16_t> CharacteristicsOf(const SmbiosStructure& bios) {
  std::vector<std::uint16_t> features;
  const std::optional<std::uint64_t> bits = bios.Qword(0x0A);
  if (bits && (*bits >> kCharacteristicsNotSupported & 1) == 0) {
    for (const CodeRow& row : kCharacteristics) {
      if (*bits >> row.smbios & 1) {
        features.push_back(row.cim);
      }
    }
  }
  const std::uint8_t extended = bios.Byte(0x12).value_or(0);
  for (const CodeRow& row : kExtended) {
    if (extended >> row.smbios & 1) {
      features.push_back(row.cim);
    }
  }
  return features;
}

// The BIOS runs from its segment up to the end of the first megabyte. A segment of 0 is a BIOS
// that is not there, as on systems that start by UEFI alone.
void SetAddresses(NewObject* object, const SmbiosStructure& bios) {
  if (const auto segment = Known<std::uint16_t>(bios.Word(0x06), 0)) {
    object->Set("LoadedStartingAddress", std::uint64_t{*segment} << 4);
    object->Set("LoadedEndingAddress", std::uint64_t{0xFFFFF});
  }
}

void SetLanguages(NewObject* object, const SmbiosStructures& smbios) {
  if (smbios.OfType(kBiosLanguage).empty()) {
    return;
  }
  const SmbiosStructure& languages = smbios.OfType(kBiosLanguage).front();
  std::vector<std::string> names;
  const unsigned int count = languages.Byte(0x04).value_or(0);
  for (unsigned int number = 1; number <= count; ++number) {
    const std::string_view name = languages.String(number);
    // No string of a set is empty (6.1.3): behind one that is not there none is.
    if (name.empty()) {
      break;
    }
    names.push_back(std::string(name));
  }
  object->Array("ListOfLanguages", kString, names).Text("CurrentLanguage", languages.Text(0x15));
}

// A firmware's release as two numbers; FFh is a release that is not known.
void AddIdentity(NamespaceBuilder& builder, const SmbiosStructure& bios, const char* name,
                 std::uint16_t classification, std::size_t majorAt) {
  const auto majorNumber = Known<std::uint8_t>(bios.Byte(majorAt), 0xFF);
  const auto minorNumber = Known<std::uint8_t>(bios.Byte(majorAt + 1), 0xFF);
  if (!majorNumber || !minorNumber) {
    return;
  }
  const Object identity =
      builder.Create(kSoftwareIdentity)
          .Key("InstanceID", std::string("ZRVSG:") + name)
          .Set("ElementName", name)
          .Set("MajorVersion", As<std::uint16_t>(majorNumber))
          .Set("MinorVersion", As<std::uint16_t>(minorNumber))
          .Array("Classifications", kUint16, std::vector<std::uint16_t>{classification})
          .Publish();
  builder.Associate(kInstalledIdentity, builder.Kept(kSystemRole), identity);
}

}  // namespace

void AddBios(NamespaceBuilder& builder, const MachineFacts& facts) {
  builder.Declare(kBios);
  builder.Declare(kBiosFeature);
  builder.Declare(kSoftwareIdentity);
  builder.Declare(kSystemBios);
  builder.Declare(kFeatureOfBios);
  builder.Declare(kInstalledIdentity);
  if (facts.smbios.OfType(kBiosInformation).empty()) {
    return;
  }
  const SmbiosStructure& bios = facts.smbios.OfType(kBiosInformation).front();
  // A key has a value: a firmware without a version has an empty one.
  const std::string version(bios.Text(0x05));
  NewObject object = builder.Create(kBios);
  object.Key("Name", "BIOS")
      .Key("Version", version)
      .Key("SoftwareElementState", kRunning)
      .Key("SoftwareElementID", "BIOS")
      .Key("TargetOperatingSystem", kNotApplicable)
      .Text("Manufacturer", bios.Text(0x04))
      .Set("PrimaryBIOS", true)
      .Set("ReleaseDate", SmbiosDate(bios.Text(0x08)));
  SetAddresses(&object, bios);
  SetLanguages(&object, facts.smbios);
  const Object element = object.Publish();
  builder.Associate(kSystemBios, builder.Kept(kSystemRole), element);

  const Object feature = builder.Create(kBiosFeature)
                             .Key("IdentifyingNumber", "")
                             .Key("ProductName", "BIOS")
                             .Key("Vendor", std::string(bios.Text(0x04)))
                             .Key("Version", version)
                             .Key("Name", "BIOS")
                             .Array("Characteristics", kUint16, CharacteristicsOf(bios))
                             .Publish();
  builder.Associate(kFeatureOfBios, feature, element);
  AddIdentity(builder, bios, "BIOS", kBiosOrFCode, 0x14);
  AddIdentity(builder, bios, "Embedded controller", kFirmware, 0x16);
}

}  // namespace machine

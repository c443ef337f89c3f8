#include <plugins/machine/classes/BaseClasses.h>

#include <plugins/machine/classes/Families.h>

namespace machine {

namespace {

const PropertyRow kSystemProperties[] = {{"CreationClassName", kString, kKey},
                                         {"Name", kString, kKey}};

const PropertyRow kZrvComputerSystemProperties[] = {{"ProductName", kString},
                                                    {"SerialNumber", kString},
                                                    {"Manufacturer", kString},
                                                    {"UUID", kString}};

const PropertyRow kOperatingSystemProperties[] = {{"CSCreationClassName", kString, kKey},
                                                  {"CSName", kString, kKey},
                                                  {"CreationClassName", kString, kKey},
                                                  {"Name", kString, kKey},
                                                  {"OSType", kUint16},
                                                  {"Version", kString},
                                                  {"TotalVisibleMemorySize", kUint64},
                                                  {"TotalVirtualMemorySize", kUint64},
                                                  {"SizeStoredInPagingFiles", kUint64},
                                                  {"MaxProcessMemorySize", kUint64},
                                                  {"MaxNumberOfProcesses", kUint32},
                                                  {"LastBootUpTime", kDateTime}};

const PropertyRow kLogicalDeviceProperties[] = {{"SystemCreationClassName", kString, kKey},
                                                {"SystemName", kString, kKey},
                                                {"CreationClassName", kString, kKey},
                                                {"DeviceID", kString, kKey},
                                                {"ElementName", kString},
                                                {"EnabledState", kUint16}};

const PropertyRow kPhysicalElementProperties[] = {{"CreationClassName", kString, kKey},
                                                  {"Tag", kString, kKey},
                                                  {"ElementName", kString},
                                                  {"Manufacturer", kString},
                                                  {"Model", kString},
                                                  {"SKU", kString},
                                                  {"SerialNumber", kString},
                                                  {"Version", kString},
                                                  {"PartNumber", kString},
                                                  {"OtherIdentifyingInfo", kString},
                                                  {"Description", kString}};

const PropertyRow kPhysicalPackageProperties[] = {{"Removable", kBoolean},
                                                  {"Replaceable", kBoolean},
                                                  {"HotSwappable", kBoolean},
                                                  {"Height", kReal32},
                                                  {"PackageType", kUint16}};

const PropertyRow kChipProperties[] = {{"FormFactor", kUint16}};

const PropertyRow kStorageExtentProperties[] = {
    {"BlockSize", kUint64}, {"NumberOfBlocks", kUint64}, {"ErrorMethodology", kString}};

const PropertyRow kMemoryProperties[] = {
    {"Volatile", kBoolean}, {"StartingAddress", kUint64}, {"EndingAddress", kUint64}};

}  // namespace

const ClassRow kManagedElement("CIM_ManagedElement", nullptr, kAbstract);
const ClassRow kLogicalElement("CIM_LogicalElement", &kManagedElement, kAbstract);
const ClassRow kSystem("CIM_System", &kLogicalElement, kSystemProperties, kAbstract);
const ClassRow kComputerSystem("CIM_ComputerSystem", &kSystem);
const ClassRow kZrvComputerSystem("ZRVSG_ComputerSystem", &kComputerSystem,
                                  kZrvComputerSystemProperties);
const ClassRow kOperatingSystem("CIM_OperatingSystem", &kLogicalElement,
                                kOperatingSystemProperties);
const ClassRow kLogicalDevice("CIM_LogicalDevice", &kLogicalElement, kLogicalDeviceProperties,
                              kAbstract);
const ClassRow kPhysicalElement("CIM_PhysicalElement", &kManagedElement, kPhysicalElementProperties,
                                kAbstract);

const ClassRow kPhysicalPackage("CIM_PhysicalPackage", &kPhysicalElement,
                                kPhysicalPackageProperties);
const ClassRow kChip("CIM_Chip", &kPhysicalElement, kChipProperties);
const ClassRow kStorageExtent("CIM_StorageExtent", &kLogicalDevice, kStorageExtentProperties);
const ClassRow kMemory("CIM_Memory", &kStorageExtent, kMemoryProperties);

const AssociationRow kRealizes("CIM_Realizes", {"Antecedent", &kPhysicalElement},
                               {"Dependent", &kLogicalDevice});
const AssociationRow kSystemDevice("CIM_SystemDevice", {"GroupComponent", &kSystem},
                                   {"PartComponent", &kLogicalDevice});

NewObject CreateDevice(NamespaceBuilder& builder, const ClassRow& row, const MachineFacts& facts,
                       const std::string& deviceId) {
  NewObject device = builder.Create(row);
  device.Key("SystemCreationClassName", kZrvComputerSystem.name)
      .Key("SystemName", facts.operatingSystem.hostName)
      .Key("CreationClassName", row.name)
      .Key("DeviceID", deviceId);
  return device;
}

Object PublishDevice(NamespaceBuilder& builder, NewObject& device) {
  const Object object = device.Publish();
  builder.Associate(kSystemDevice, builder.Kept(kSystemRole), object);
  return object;
}

NewObject CreatePhysical(NamespaceBuilder& builder, const ClassRow& row, const std::string& tag) {
  NewObject element = builder.Create(row);
  element.Key("CreationClassName", row.name).Key("Tag", tag);
  return element;
}

}  // namespace machine

// The classes and associations that several families share. Of DMTF's class tree (CIM Schema
// 2.49) those are here that an association refers to or that have properties which are filled;
// a class without either is left out, and its subclass stands under the next one above.

#ifndef PLUGINS_MACHINE_CLASSES_BASECLASSES_H
#define PLUGINS_MACHINE_CLASSES_BASECLASSES_H

#include <cstdint>
#include <string>

#include <plugins/machine/MachineFacts.h>
#include <plugins/machine/NamespaceBuilder.h>
#include <plugins/machine/SchemaRows.h>

namespace machine {

extern const ClassRow kManagedElement;     // CIM_ManagedElement, abstract
extern const ClassRow kLogicalElement;     // CIM_LogicalElement, abstract
extern const ClassRow kSystem;             // CIM_System, abstract: CreationClassName*, Name*
extern const ClassRow kComputerSystem;     // CIM_ComputerSystem
extern const ClassRow kOperatingSystem;    // CIM_OperatingSystem
extern const ClassRow kZrvComputerSystem;  // ZRVSG_ComputerSystem

// CIM_LogicalDevice, abstract: SystemCreationClassName*, SystemName*, CreationClassName*,
// DeviceID*, ElementName, EnabledState
extern const ClassRow kLogicalDevice;

// CIM_PhysicalElement, abstract: CreationClassName*, Tag*, ElementName, Manufacturer, Model, SKU,
// SerialNumber, Version, PartNumber, OtherIdentifyingInfo, Description
extern const ClassRow kPhysicalElement;

// CIM_PhysicalPackage: Removable, Replaceable, HotSwappable, Height (inches), PackageType
extern const ClassRow kPhysicalPackage;
// CIM_Chip: FormFactor
extern const ClassRow kChip;
// CIM_StorageExtent: BlockSize, NumberOfBlocks, ErrorMethodology
extern const ClassRow kStorageExtent;
// CIM_Memory: Volatile, StartingAddress, EndingAddress
extern const ClassRow kMemory;

// CIM_Processor; its properties stand in Processor.cpp
extern const ClassRow kProcessor;
// CIM_ProcessorCapabilities: InstanceID*, NumberOfProcessorCores, NumberOfHardwareThreads
extern const ClassRow kProcessorCapabilities;
// CIM_ElementCapabilities: ManagedElement CIM_ManagedElement, Capabilities CIM_Capabilities
extern const AssociationRow kElementCapabilities;

// CIM_EnabledLogicalElement.EnabledState
const std::uint16_t kEnabled = 2;
const std::uint16_t kDisabled = 3;

// CIM_Realizes: Antecedent CIM_PhysicalElement, Dependent CIM_LogicalDevice
extern const AssociationRow kRealizes;
// CIM_SystemDevice: GroupComponent CIM_System, PartComponent CIM_LogicalDevice
extern const AssociationRow kSystemDevice;

// A new CIM_LogicalDevice of the computer system: all four keys are set. `row` is its class,
// `deviceId` unique in that class.
NewObject CreateDevice(NamespaceBuilder& builder, const ClassRow& row, const MachineFacts& facts,
                       const std::string& deviceId);

// Publishes `device` as a part of the computer system (CIM_SystemDevice).
Object PublishDevice(NamespaceBuilder& builder, NewObject& device);

// A new CIM_PhysicalElement: both keys are set. `tag` is unique in the class of `row`.
NewObject CreatePhysical(NamespaceBuilder& builder, const ClassRow& row, const std::string& tag);

}  // namespace machine

#endif

// The families of classes that the provider serves: each one source, each one function of the
// builder and the facts. To add a family, write its source, declare its function here and give it
// a row in Families.cpp.
//
// A family runs once a namespace, in the order of the rows. It declares all its classes, whatever
// the facts are, takes what earlier families have kept, and keeps what others may need.

#ifndef PLUGINS_MACHINE_CLASSES_FAMILIES_H
#define PLUGINS_MACHINE_CLASSES_FAMILIES_H

#include <plugins/machine/MachineFacts.h>
#include <plugins/machine/NamespaceBuilder.h>

namespace machine {

// Runs the families that `scope` asks for.
void AddFamilies(NamespaceBuilder& builder, const MachineFacts& facts, Scope scope);

// What families keep for each other, with NamespaceBuilder::Keep.
const char kSystemRole[] = "system";        // number 0: ZRVSG_ComputerSystem
const char kOperatingSystemRole[] = "os";   // number 0: ZRVSG_OperatingSystem
const char kPhysicalRole[] = "smbios";      // by SMBIOS handle: a CIM_PhysicalElement
const char kSocketRole[] = "socket";        // by SMBIOS handle: the same CIM_Processor
const char kProcessorRole[] = "processor";  // by number from 0: CIM_Processor
const char kMainChassisRole[] = "chassis";  // number 0: the first CIM_Chassis
const char kExtentRole[] = "extent";        // by place in HostFacts::disks: CIM_StorageExtent

void AddComputerSystem(NamespaceBuilder& builder, const MachineFacts& facts);
void AddOperatingSystem(NamespaceBuilder& builder, const MachineFacts& facts);
void AddProduct(NamespaceBuilder& builder, const MachineFacts& facts);
void AddBios(NamespaceBuilder& builder, const MachineFacts& facts);
void AddEnclosure(NamespaceBuilder& builder, const MachineFacts& facts);
void AddProcessors(NamespaceBuilder& builder, const MachineFacts& facts);
void AddCaches(NamespaceBuilder& builder, const MachineFacts& facts);
void AddPhysicalMemory(NamespaceBuilder& builder, const MachineFacts& facts);
void AddConnectors(NamespaceBuilder& builder, const MachineFacts& facts);
void AddPower(NamespaceBuilder& builder, const MachineFacts& facts);
void AddIpmi(NamespaceBuilder& builder, const MachineFacts& facts);
void AddFirmwareStrings(NamespaceBuilder& builder, const MachineFacts& facts);
void AddRunningSystem(NamespaceBuilder& builder, const MachineFacts& facts);
void AddHostProcessors(NamespaceBuilder& builder, const MachineFacts& facts);
void AddDrives(NamespaceBuilder& builder, const MachineFacts& facts);
void AddNetworkPorts(NamespaceBuilder& builder, const MachineFacts& facts);
void AddFileSystems(NamespaceBuilder& builder, const MachineFacts& facts);

}  // namespace machine

#endif

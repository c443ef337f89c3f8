// How the computer system and the operating system that runs on it belong together.

#include <plugins/machine/classes/BaseClasses.h>
#include <plugins/machine/classes/Families.h>

namespace machine {

namespace {

const AssociationRow kRunningOS = {
    "CIM_RunningOS", {"Antecedent", &kOperatingSystem}, {"Dependent", &kComputerSystem}};
const AssociationRow kInstalledOS = {
    "CIM_InstalledOS", {"GroupComponent", &kComputerSystem}, {"PartComponent", &kOperatingSystem}};

}  // namespace

void AddRunningSystem(NamespaceBuilder& builder, const MachineFacts&) {
  const Object& system = builder.Kept(kSystemRole);
  const Object& operatingSystem = builder.Kept(kOperatingSystemRole);
  builder.Associate(kRunningOS, operatingSystem, system);
  builder.Associate(kInstalledOS, system, operatingSystem);
}

}  // namespace machine

#include <plugins/machine/classes/Families.h>

namespace machine {

namespace {

struct Family {
  void (*add)(NamespaceBuilder& builder, const MachineFacts& facts);
  Scope scope;  // the smallest one that it belongs to
};

const Family kFamilies[] = {
    {AddComputerSystem, Scope::kSystem},
    {AddOperatingSystem, Scope::kSystem},
    {AddProduct, Scope::kSystem},
    {AddBios, Scope::kAll},
    {AddEnclosure, Scope::kAll},
    {AddProcessors, Scope::kAll},
    {AddCaches, Scope::kAll},  // behind the processors that they belong to
    {AddPhysicalMemory, Scope::kAll},
    {AddConnectors, Scope::kAll},
    {AddPower, Scope::kAll},
    {AddIpmi, Scope::kAll},
    {AddFirmwareStrings, Scope::kAll},
    {AddRunningSystem, Scope::kAll},
    {AddHostProcessors, Scope::kAll},
    {AddDrives, Scope::kAll},
    {AddNetworkPorts, Scope::kAll},
    {AddFileSystems, Scope::kAll},  // behind the drives that they lie on
};

}  // namespace

void AddFamilies(NamespaceBuilder& builder, const MachineFacts& facts, Scope scope) {
  for (const Family& family : kFamilies) {
    if (scope == Scope::kAll || family.scope == scope) {
      family.add(builder, facts);
    }
  }
}

}  // namespace machine

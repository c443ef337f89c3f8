#include <plugins/machine/classes/BaseClasses.h>
#include <plugins/machine/classes/Families.h>

namespace machine {

void AddComputerSystem(NamespaceBuilder& builder, const MachineFacts& facts) {
  const Object system = builder.Create(kZrvComputerSystem)
                            .Key("CreationClassName", kZrvComputerSystem.name)
                            .Key("Name", facts.operatingSystem.hostName)
                            .Set("ProductName", facts.system.productName)
                            .Set("SerialNumber", facts.system.serialNumber)
                            .Set("Manufacturer", facts.system.manufacturer)
                            .Set("UUID", facts.system.uuid)
                            .Publish();
  builder.Keep(kSystemRole, 0, system);
}

}  // namespace machine

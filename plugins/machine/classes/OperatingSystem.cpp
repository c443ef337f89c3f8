#include <plugins/machine/classes/BaseClasses.h>
#include <plugins/machine/classes/Families.h>

namespace machine {

namespace {

const ClassRow kZrvOperatingSystem("ZRVSG_OperatingSystem", &kOperatingSystem);

}  // namespace

void AddOperatingSystem(NamespaceBuilder& builder, const MachineFacts& facts) {
  const OperatingSystemFacts& os = facts.operatingSystem;
  const Object object = builder.Create(kZrvOperatingSystem)
                            .Key("CSCreationClassName", kZrvComputerSystem.name)
                            .Key("CSName", os.hostName)
                            .Key("CreationClassName", kZrvOperatingSystem.name)
                            .Key("Name", os.name)
                            .Set("Version", os.version)
                            .Set("OSType", os.type)
                            .Publish();
  builder.Keep(kOperatingSystemRole, 0, object);
}

}  // namespace machine

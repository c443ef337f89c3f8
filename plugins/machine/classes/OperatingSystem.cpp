#include <optional>

#include <plugins/machine/DateTime.h>
#include <plugins/machine/classes/BaseClasses.h>
#include <plugins/machine/classes/Families.h>

namespace machine {

namespace {

const ClassRow kZrvOperatingSystem("ZRVSG_OperatingSystem", &kOperatingSystem);

std::optional<NZRVQDA20::TCIMDateTime> LastBootUpTime(const ResourceFacts& facts) {
  return facts.lastBootSeconds ? DateTimeAt(*facts.lastBootSeconds) : std::nullopt;
}

}  // namespace

void AddOperatingSystem(NamespaceBuilder& builder, const MachineFacts& facts) {
  const OperatingSystemFacts& os = facts.operatingSystem;
  const ResourceFacts& resources = facts.host.resources;
  const Object object = builder.Create(kZrvOperatingSystem)
                            .Key("CSCreationClassName", kZrvComputerSystem.name)
                            .Key("CSName", os.hostName)
                            .Key("CreationClassName", kZrvOperatingSystem.name)
                            .Key("Name", os.name)
                            .Set("Version", os.version)
                            .Set("OSType", os.type)
                            .Set("TotalVisibleMemorySize", resources.totalVisibleMemorySize)
                            .Set("TotalVirtualMemorySize", resources.totalVirtualMemorySize)
                            .Set("SizeStoredInPagingFiles", resources.sizeStoredInPagingFiles)
                            .Set("MaxProcessMemorySize", resources.maxProcessMemorySize)
                            .Set("MaxNumberOfProcesses", resources.maxNumberOfProcesses)
                            .Set("LastBootUpTime", LastBootUpTime(resources))
                            .Publish();
  builder.Keep(kOperatingSystemRole, 0, object);
}

}  // namespace machine

#include <plugins/machine/HostFacts.h>

namespace machine {

HostFacts ReadHostFacts(ProcessorSource processors) {
  HostFacts facts;
  facts.resources = UnderstandResources(host::ReadResources());
  if (processors == ProcessorSource::kHost) {
    facts.processors = UnderstandProcessors(host::ReadProcessors());
  }
  facts.disks = UnderstandDisks(host::ReadDisks());
  facts.networkPorts = UnderstandNetworkPorts(host::ReadNetworkPorts());
  facts.fileSystems = ReadFileSystemFacts();
  return facts;
}

}  // namespace machine

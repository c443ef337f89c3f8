// What the operating system knows about the machine, all of it.

#ifndef PLUGINS_MACHINE_HOSTFACTS_H
#define PLUGINS_MACHINE_HOSTFACTS_H

#include <vector>

#include <plugins/machine/DiskFacts.h>
#include <plugins/machine/FileSystemFacts.h>
#include <plugins/machine/NetworkPortFacts.h>
#include <plugins/machine/ProcessorFacts.h>
#include <plugins/machine/ResourceFacts.h>

namespace machine {

struct HostFacts {
  ResourceFacts resources;
  std::vector<ProcessorFacts> processors;
  std::vector<DiskFacts> disks;
  std::vector<NetworkPortFacts> networkPorts;
  std::vector<FileSystemFacts> fileSystems;
};

enum class ProcessorSource { kFirmware, kHost };

// Reads them; the processors only for kHost, because they are dear to read.
HostFacts ReadHostFacts(ProcessorSource processors);

}  // namespace machine

#endif

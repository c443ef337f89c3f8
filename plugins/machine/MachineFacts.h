// Everything that is known about a machine before it is put into classes. Facts are gathered
// once, by parsers over bytes and by the host seam; the families of classes only read them.

#ifndef PLUGINS_MACHINE_MACHINEFACTS_H
#define PLUGINS_MACHINE_MACHINEFACTS_H

#include <plugins/machine/HostFacts.h>
#include <plugins/machine/OperatingSystemFacts.h>
#include <plugins/machine/SmbiosFacts.h>
#include <plugins/machine/SmbiosStructures.h>

namespace machine {

// How much of the machine is asked for.
enum class Scope {
  kSystem,  // what identifies it: computer system, operating system, the collector itself
  kAll,
};

struct MachineFacts {
  SystemFacts system;
  // Empty for Scope::kSystem, and when there is no table.
  SmbiosStructures smbios;
  OperatingSystemFacts operatingSystem;
  // Empty for Scope::kSystem; without processors when the table has some.
  HostFacts host;
};

}  // namespace machine

#endif

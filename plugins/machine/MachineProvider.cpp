#include <plugins/machine/MachineProvider.h>

#include <plugins/machine/OperatingSystemFacts.h>
#include <plugins/machine/Schema.h>
#include <plugins/machine/SmbiosFacts.h>
#include <plugins/machine/host/OperatingSystem.h>
#include <qdacore/cim/object/ICIMNamespace.h>

namespace machine {

using NZRVQDA20::ICIMNamespace;
using NZRVQDA20::TCIMValue;

MachineProvider::MachineProvider() : fName("machine") {}

const std::string& MachineProvider::GetName(std::map<std::string, TCIMValue>) const {
  return fName;
}

boost::shared_ptr<ICIMNamespace> MachineProvider::GetNamespace(std::map<std::string, TCIMValue>) {
  if (!fNamespace) {
    MachineFacts facts;
    facts.system = ReadSystemFacts();
    facts.operatingSystem = UnderstandReading(host::ReadOperatingSystem());
    fNamespace = BuildNamespace(facts);
  }
  return fNamespace;
}

}  // namespace machine

#include <plugins/machine/MachineProvider.h>

#include <utility>

#include <plugins/machine/OperatingSystemFacts.h>
#include <plugins/machine/Schema.h>
#include <plugins/machine/SmbiosFacts.h>
#include <plugins/machine/host/OperatingSystem.h>
#include <qdacore/cim/object/ICIMNamespace.h>

namespace machine {

using NZRVQDA20::ICIMNamespace;
using NZRVQDA20::TCIMValue;

namespace {

const unsigned int kProcessorInformation = 4;  // the SMBIOS type (DSP0134, 7.5)

Scope ScopeOf(const std::map<std::string, TCIMValue>& context) {
  const auto found = context.find("scope");
  const bool isSystem = found != context.end() && !found->second.IsNull() &&
                        found->second.GetType() == TCIMValue::TCIMType::kCIMTypeString &&
                        found->second.operator std::string() == "system";
  return isSystem ? Scope::kSystem : Scope::kAll;
}

boost::shared_ptr<ICIMNamespace> Read(Scope scope) {
  SmbiosReading smbios = ReadSmbios(scope == Scope::kAll);
  MachineFacts facts;
  facts.system = smbios.system;
  facts.smbios = std::move(smbios.structures);
  facts.operatingSystem = UnderstandReading(host::ReadOperatingSystem());
  if (scope == Scope::kAll) {
    facts.host = ReadHostFacts(facts.smbios.OfType(kProcessorInformation).empty()
                                   ? ProcessorSource::kHost
                                   : ProcessorSource::kFirmware);
  }
  return BuildNamespace(facts, scope);
}

}  // namespace

MachineProvider::MachineProvider() : fName("machine") {}

const std::string& MachineProvider::GetName(std::map<std::string, TCIMValue>) const {
  return fName;
}

boost::shared_ptr<ICIMNamespace> MachineProvider::GetNamespace(
    std::map<std::string, TCIMValue> context) {
  const Scope scope = ScopeOf(context);
  if (!fWhole && scope == Scope::kAll) {
    fWhole = Read(scope);
  }
  if (!fWhole && !fSystem) {
    fSystem = Read(scope);
  }
  return fWhole ? fWhole : fSystem;
}

}  // namespace machine

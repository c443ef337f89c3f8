#include <qda/IdentifyCommand.h>

#include <map>
#include <string>
#include <vector>

#include <boost/shared_ptr.hpp>

#include <fmt/format.h>

#include <qda/Identity.h>
#include <qda/IdentityOutput.h>
#include <qda/ProviderModules.h>
#include <qda/RunLog.h>
#include <qda/Text.h>
#include <qda/host/Process.h>
#include <qdacore/cim/object/ICIMNamespace.h>
#include <qdacore/frame/TQDAException.h>
#include <qdacore/frame/TRootObject.h>
#include <qdacore/os/TOSSpecific.h>
#include <qdacore/plugin/INamespaceProviderManager.h>
#include <qdacore/plugin/INamespaceSource.h>

namespace qda {

using boost::shared_ptr;
using NZRVQDA20::ICIMNamespace;
using NZRVQDA20::ILogger;
using NZRVQDA20::INamespaceSource;
using NZRVQDA20::TCIMValue;
using NZRVQDA20::TOSSpecific;
using NZRVQDA20::TQDAException;
using NZRVQDA20::TQDAStatusCode;
using NZRVQDA20::TRootObject;

namespace {

// What the log has kept, as the end of a message.
std::string Kept() {
  const std::string kept = RunLog::TakeKept(ILogger::kLogWarning);
  return kept.empty() ? kept : ": " + kept;
}

// Modules that did not load are told and passed over: the provider may be in another one.
void LoadModules() {
  const std::vector<ProviderModule> modules = LoadProviderModules();
  for (const ProviderModule& module : modules) {
    if (!module.failure.empty()) {
      Complain(fmt::format("provider module \"{}\": {} ({})", module.name, module.failure,
                           module.status));
    }
  }
  if (modules.empty()) {
    Complain(
        fmt::format("no provider module (*.nsp.dll) stands in \"{}\" (kQDAStatusNotFound); a "
                    "module must stand beside the program",
                    TOSSpecific::GetQDARootPath()));
  }
}

shared_ptr<INamespaceSource> FindSource(const std::string& name) {
  shared_ptr<INamespaceSource> source;
  try {
    const shared_ptr<NZRVQDA20::INamespaceProvider> provider =
        TRootObject::GetNamespaceProviderManager()->GetNamespaceProvider(name);
    source = boost::dynamic_pointer_cast<INamespaceSource>(provider);
    if (!source) {
      Complain(
          fmt::format("provider \"{}\": it serves no namespace that a host can read "
                      "(kQDAStatusNotSupported)",
                      name));
    }
  } catch (const TQDAException& failure) {
    const std::vector<std::string> registered = RegisteredProviders();
    Complain(
        fmt::format("provider \"{}\": none of that name is registered ({}); registered: {}; "
                    "see \"qda providers\"",
                    name, failure.what(),
                    registered.empty() ? "none" : fmt::format("{}", fmt::join(registered, ", "))));
  }
  // What the lookup logged is said already.
  RunLog::TakeKept(ILogger::kLogWarning);
  return source;
}

shared_ptr<ICIMNamespace> ReadNamespace(INamespaceSource& source, const Options& options) {
  shared_ptr<ICIMNamespace> ns;
  try {
    ns = source.GetNamespace(std::map<std::string, TCIMValue>());
    if (!ns) {
      Complain(fmt::format("provider \"{}\": it gives no namespace (kQDAStatusNotFound)",
                           options.provider));
    }
  } catch (const TQDAException& failure) {
    Complain(fmt::format("provider \"{}\": it gives no namespace ({}){}", options.provider,
                         failure.what(), Kept()));
  }
  return ns;
}

// Says why there is no machine type and model.
void ExplainMachineType(const Identity& identity, const Options& options) {
  const char* const asked = "machine type and model";
  const auto status = identity.machineTypeModel.status;
  const std::string name = TQDAStatusCode(status).TranslateStatusCode();
  if (identity.productName.value) {
    Complain(fmt::format("{}: product name \"{}\" carries no type and model ({})", asked,
                         *identity.productName.value, name));
    return;
  }
  if (identity.productName.IsUnknown()) {
    Complain(fmt::format("{}: product name is unknown ({}){}{}", asked, name, Kept(),
                         options.smbiosDump.empty()
                             ? "; a dump of another machine can be read with "
                               "--smbios-dump FILE"
                             : ""));
    return;
  }
  Complain(fmt::format("{}: {}{}", asked, name, Kept()));
}

// A fact that is merely unknown is no failure. True when there was none.
template <class T>
bool CheckFact(const char* asked, const Fact<T>& fact) {
  if (fact.value || fact.IsUnknown()) {
    return true;
  }
  Complain(fmt::format("{}: what the provider serves cannot be read ({})", asked,
                       TQDAStatusCode(fact.status).TranslateStatusCode()));
  return false;
}

bool CheckIdentity(const Identity& identity, const Options& options) {
  bool isGood = static_cast<bool>(identity.machineTypeModel.value);
  if (!isGood) {
    ExplainMachineType(identity, options);
  }
  isGood &= CheckFact("serial number", identity.serialNumber);
  isGood &= CheckFact("system name", identity.systemName);
  isGood &= CheckFact("operating system", identity.operatingSystemName);
  isGood &= CheckFact("operating system version", identity.operatingSystemVersion);
  isGood &= CheckFact("operating system type", identity.operatingSystemType);
  return isGood;
}

}  // namespace

int RunIdentify(const Options& options) {
  if (!options.smbiosDump.empty() && !host::SetVariable("QDA_SMBIOS_DUMP", options.smbiosDump)) {
    Complain("the environment variable QDA_SMBIOS_DUMP cannot be set");
    return kExitFailed;
  }
  LoadModules();
  const shared_ptr<INamespaceSource> source = FindSource(options.provider);
  const shared_ptr<ICIMNamespace> ns =
      source ? ReadNamespace(*source, options) : shared_ptr<ICIMNamespace>();
  if (!ns) {
    return kExitFailed;
  }
  const Identity identity = AskIdentity(ns);
  const bool isPrinted =
      Print(options.format == Format::kJson ? IdentityJson(identity, options.provider)
                                            : IdentityTable(identity));
  if (!isPrinted) {
    Complain("standard output: the result cannot be written");
  }
  return CheckIdentity(identity, options) && isPrinted ? kExitDone : kExitFailed;
}

}  // namespace qda

#include <qda/SourceNamespace.h>

#include <map>
#include <vector>

#include <fmt/format.h>

#include <qda/ProviderModules.h>
#include <qda/RunLog.h>
#include <qda/SnapshotFile.h>
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
using NZRVQDA20::TRootObject;

void LoadModules(const std::string& provider) {
  const std::vector<ProviderModule> modules =
      provider.empty() ? LoadProviderModules() : LoadProviderModulesFor(provider);
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

namespace {

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

shared_ptr<ICIMNamespace> ReadNamespace(INamespaceSource& source, const std::string& provider,
                                        const std::string& scope) {
  shared_ptr<ICIMNamespace> ns;
  try {
    std::map<std::string, TCIMValue> context;
    if (!scope.empty()) {
      context["scope"] = TCIMValue(scope);
    }
    ns = source.GetNamespace(context);
    if (!ns) {
      Complain(
          fmt::format("provider \"{}\": it gives no namespace (kQDAStatusNotFound)", provider));
    }
  } catch (const TQDAException& failure) {
    Complain(fmt::format("provider \"{}\": it gives no namespace ({}){}", provider, failure.what(),
                         KeptWarnings()));
  }
  return ns;
}

}  // namespace

bool UseSmbiosDump(const std::string& file) {
  if (file.empty() || host::SetVariable("QDA_SMBIOS_DUMP", file)) {
    return true;
  }
  Complain(fmt::format(
      "the SMBIOS dump \"{}\": the environment variable QDA_SMBIOS_DUMP cannot be set to "
      "it (kQDAStatusFail)",
      file));
  return false;
}

std::string KeptWarnings() {
  const std::string kept = RunLog::TakeKept(ILogger::kLogWarning);
  return kept.empty() ? kept : ": " + kept;
}

shared_ptr<ICIMNamespace> OpenNamespace(const SourceOptions& source, const std::string& scope) {
  if (!source.fromFile.empty()) {
    return ReadSnapshot(source.fromFile);
  }
  if (!UseSmbiosDump(source.smbiosDump)) {
    return shared_ptr<ICIMNamespace>();
  }
  LoadModules(source.provider);
  return OpenLoadedNamespace(source.provider, scope);
}

shared_ptr<ICIMNamespace> OpenLoadedNamespace(const std::string& provider,
                                              const std::string& scope) {
  const shared_ptr<INamespaceSource> found = FindSource(provider);
  return found ? ReadNamespace(*found, provider, scope) : shared_ptr<ICIMNamespace>();
}

}  // namespace qda

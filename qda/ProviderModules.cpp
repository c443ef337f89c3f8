#include <qda/ProviderModules.h>

#include <algorithm>
#include <iterator>
#include <map>

#include <boost/function.hpp>
#include <boost/shared_ptr.hpp>

#include <qda/RunLog.h>
#include <qdacore/frame/TQDAException.h>
#include <qdacore/frame/TRootObject.h>
#include <qdacore/os/TOSSpecific.h>
#include <qdacore/plugin/INamespaceProvider.h>
#include <qdacore/plugin/INamespaceProviderManager.h>

namespace qda {

using NZRVQDA20::ILogger;
using NZRVQDA20::INamespaceProvider;
using NZRVQDA20::TCIMValue;
using NZRVQDA20::TOSSpecific;
using NZRVQDA20::TQDAException;
using NZRVQDA20::TRootObject;

namespace {

ProviderModule Load(const std::string& name) {
  ProviderModule module;
  module.name = name;
  const std::vector<std::string> before = RegisteredProviders();
  try {
    TOSSpecific::LoadNSPLibrary(name);
  } catch (const TQDAException& failure) {
    module.status = failure.what();
    module.failure = RunLog::TakeKept(ILogger::kLogError);
    if (module.failure.empty()) {
      module.failure = "it does not load";
    }
  }
  const std::vector<std::string> after = RegisteredProviders();
  std::set_difference(after.begin(), after.end(), before.begin(), before.end(),
                      std::back_inserter(module.providers));
  return module;
}

std::vector<std::string> FindModules() {
  std::vector<std::string> names = TOSSpecific::FindNSPs();
  std::sort(names.begin(), names.end());
  return names;
}

bool Registers(const ProviderModule& module, const std::string& provider) {
  return std::find(module.providers.begin(), module.providers.end(), provider) !=
         module.providers.end();
}

}  // namespace

std::vector<ProviderModule> LoadProviderModules() {
  std::vector<ProviderModule> modules;
  for (const std::string& name : FindModules()) {
    modules.push_back(Load(name));
  }
  return modules;
}

std::vector<ProviderModule> LoadProviderModulesFor(const std::string& provider) {
  std::vector<std::string> names = FindModules();
  const auto own = std::find(names.begin(), names.end(), provider);
  if (own != names.end()) {
    std::rotate(names.begin(), own, own + 1);
  }
  std::vector<ProviderModule> modules;
  for (const std::string& name : names) {
    modules.push_back(Load(name));
    if (name == provider && Registers(modules.back(), provider)) {
      break;
    }
  }
  return modules;
}

std::vector<std::string> RegisteredProviders() {
  std::vector<std::string> names;
  boost::function<bool(boost::shared_ptr<INamespaceProvider>)> collect =
      [&names](boost::shared_ptr<INamespaceProvider> provider) {
        names.push_back(provider->GetName(std::map<std::string, TCIMValue>()));
        return true;
      };
  TRootObject::GetNamespaceProviderManager()->EnumerateNamespaceProviders(collect);
  return names;
}

}  // namespace qda

#include <qdacore/plugin/TNamespaceProviderManager.h>

#include <utility>

#include <qdacore/cim/value/TCIMValue.h>
#include <qdacore/frame/TRootObject.h>
#include <qdacore/logging/internal/CoreLog.h>
#include <qdacore/plugin/INamespaceProvider.h>

namespace NZRVQDA20 {

boost::shared_ptr<INamespaceProviderManager> TRootObject::GetNamespaceProviderManager() {
  return TNamespaceProviderManager::GetInstance();
}

boost::shared_ptr<TNamespaceProviderManager> TNamespaceProviderManager::GetInstance() {
  if (!fgInstance) {
    fgInstance.reset(new TNamespaceProviderManager);
  }
  return fgInstance;
}

TNamespaceProviderManager::TNamespaceProviderManager() {}

TNamespaceProviderManager::TNamespaceProviderManager(const TNamespaceProviderManager& other)
    : INamespaceProviderManager(other), fProviders(other.fProviders) {}

TNamespaceProviderManager& TNamespaceProviderManager::operator=(
    const TNamespaceProviderManager& other) {
  fProviders = other.fProviders;
  return *this;
}

TNamespaceProviderManager::~TNamespaceProviderManager() {}

void TNamespaceProviderManager::RegisterNamespaceProvider(
    boost::shared_ptr<INamespaceProvider> provider) {
  const std::string& name = provider->GetName(std::map<std::string, TCIMValue>());
  // Under a name that is taken the first provider stays; nobody is told, on purpose.
  fProviders.insert(std::make_pair(name, provider));
}

boost::shared_ptr<INamespaceProvider> TNamespaceProviderManager::GetNamespaceProvider(
    const std::string& name) const {
  const auto found = fProviders.find(name);
  if (found == fProviders.end()) {
    LogAndThrow(ILogger::kLogError, "Failed to find nsp named " + name,
                TQDAStatusCode::kQDAStatusNotFound);
  }
  return found->second;
}

void TNamespaceProviderManager::EnumerateNamespaceProviders(
    boost::function<bool(boost::shared_ptr<INamespaceProvider>)>& visitor) const {
  for (const auto& entry : fProviders) {
    if (!visitor(entry.second)) {
      return;
    }
  }
}

}  // namespace NZRVQDA20

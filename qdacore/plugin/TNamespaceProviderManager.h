// TNamespaceProviderManager: the one registry of a process. See INamespaceProviderManager.h
// for what its operations do.

#ifndef QDACORE_PLUGIN_TNAMESPACEPROVIDERMANAGER_H
#define QDACORE_PLUGIN_TNAMESPACEPROVIDERMANAGER_H

#include <map>
#include <string>

#include <boost/function.hpp>
#include <boost/shared_ptr.hpp>

#include <qdacore/Export.h>
#include <qdacore/plugin/INamespaceProviderManager.h>

namespace NZRVQDA20 {

class QDACORE_EXPORT TNamespaceProviderManager : public INamespaceProviderManager {
 public:
  // The registry, made at the first call: an unguarded test and create, so the first call
  // must come from one thread. Whoever holds the result keeps the registry past the library's
  // own reference, which ends at exit.
  static boost::shared_ptr<TNamespaceProviderManager> GetInstance();

  TNamespaceProviderManager(const TNamespaceProviderManager& other);
  TNamespaceProviderManager& operator=(const TNamespaceProviderManager& other);
  virtual ~TNamespaceProviderManager();

  virtual void RegisterNamespaceProvider(boost::shared_ptr<INamespaceProvider> provider);
  virtual boost::shared_ptr<INamespaceProvider> GetNamespaceProvider(const std::string& name) const;
  virtual void EnumerateNamespaceProviders(
      boost::function<bool(boost::shared_ptr<INamespaceProvider>)>& visitor) const;

 private:
  TNamespaceProviderManager();

  static boost::shared_ptr<TNamespaceProviderManager> fgInstance;

  std::map<std::string, boost::shared_ptr<INamespaceProvider> > fProviders;
};

}  // namespace NZRVQDA20

#endif

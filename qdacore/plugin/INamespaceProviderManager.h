// INamespaceProviderManager: the registry of namespace providers, as hosts and plug-ins see
// it. Get it from TRootObject::GetNamespaceProviderManager.
//
// Threads: no lock. A registration (and so the loading of a provider module) must not run at
// the same time as a lookup or a walk.

#ifndef QDACORE_PLUGIN_INAMESPACEPROVIDERMANAGER_H
#define QDACORE_PLUGIN_INAMESPACEPROVIDERMANAGER_H

#include <string>

#include <boost/function.hpp>
#include <boost/shared_ptr.hpp>

#include <qdacore/Export.h>

namespace NZRVQDA20 {

class INamespaceProvider;

class QDACORE_EXPORT INamespaceProviderManager {
 public:
  virtual ~INamespaceProviderManager();

  // Enters the provider under its own name and keeps it until the registry ends. When the
  // name is taken the first provider stays and nothing tells the caller. A null pointer is a
  // failed assertion.
  virtual void RegisterNamespaceProvider(boost::shared_ptr<INamespaceProvider> provider) = 0;

  // The provider of exactly this name; case counts. Throws kQDAStatusNotFound, after one error
  // line in the core log, when there is none.
  virtual boost::shared_ptr<INamespaceProvider> GetNamespaceProvider(
      const std::string& name) const = 0;

  // Calls `visitor` with each provider in ascending order of names, byte by byte, until it
  // returns false. What it throws passes through. An empty visitor is boost::bad_function_call
  // at the first provider.
  virtual void EnumerateNamespaceProviders(
      boost::function<bool(boost::shared_ptr<INamespaceProvider>)>& visitor) const = 0;
};

}  // namespace NZRVQDA20

#endif

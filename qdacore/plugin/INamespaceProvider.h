// INamespaceProvider: a plug-in object that serves a CIM namespace. The registry asks it for
// its name and nothing else; a provider that a host can read implements INamespaceSource.
//
// A provider module registers its provider while it is loaded, and does nothing else then. No
// exception may leave its start-up, for the loader cannot pass it on:
//
//   struct Registration {
//     Registration() {
//       try {
//         TRootObject::GetNamespaceProviderManager()->RegisterNamespaceProvider(
//             boost::shared_ptr<INamespaceProvider>(new DiskProvider));
//       } catch (...) {
//         // Not registered: a host that looks for it learns that it is not there.
//       }
//     }
//   } registration;

#ifndef QDACORE_PLUGIN_INAMESPACEPROVIDER_H
#define QDACORE_PLUGIN_INAMESPACEPROVIDER_H

#include <map>
#include <string>

#include <qdacore/Export.h>
#include <qdacore/cim/value/TCIMValue.h>

namespace NZRVQDA20 {

class QDACORE_EXPORT INamespaceProvider {
 public:
  virtual ~INamespaceProvider();

  // The name under which the provider is registered; valid as long as the provider. The
  // registry passes an empty context.
  virtual const std::string& GetName(std::map<std::string, TCIMValue> context) const = 0;
};

}  // namespace NZRVQDA20

#endif

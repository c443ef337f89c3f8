// What the module does when it is loaded: it registers its provider, and nothing else.

#include <boost/shared_ptr.hpp>

#include <plugins/mof/MofProvider.h>
#include <qdacore/frame/TRootObject.h>
#include <qdacore/plugin/INamespaceProviderManager.h>

namespace {

struct Registration {
  Registration() {
    try {
      NZRVQDA20::TRootObject::GetNamespaceProviderManager()->RegisterNamespaceProvider(
          boost::shared_ptr<NZRVQDA20::INamespaceProvider>(new mof_provider::MofProvider));
    } catch (...) {
      // An exception from a loading module would end the process. The host sees that nothing was
      // registered.
    }
  }
};

const Registration registration;

}  // namespace

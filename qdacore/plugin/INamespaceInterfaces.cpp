// The out-of-line operations of the plug-in interfaces, which anchor their tables and types
// in this library, so that casts and catches work across modules.

#include <qdacore/plugin/INamespaceConsumer.h>
#include <qdacore/plugin/INamespaceProvider.h>
#include <qdacore/plugin/INamespaceProviderManager.h>
#include <qdacore/plugin/INamespaceSource.h>

namespace NZRVQDA20 {

INamespaceProvider::~INamespaceProvider() {}

INamespaceSource::~INamespaceSource() {}

INamespaceProviderManager::~INamespaceProviderManager() {}

INamespaceConsumer::INamespaceConsumer() {}
INamespaceConsumer::INamespaceConsumer(const INamespaceConsumer&) {}
INamespaceConsumer& INamespaceConsumer::operator=(const INamespaceConsumer&) { return *this; }
INamespaceConsumer::~INamespaceConsumer() {}

}  // namespace NZRVQDA20

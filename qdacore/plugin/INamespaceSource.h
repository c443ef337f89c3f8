// INamespaceSource: a namespace provider that a host can read. A host finds a provider in the
// registry and casts it (boost::dynamic_pointer_cast) to this interface.

#ifndef QDACORE_PLUGIN_INAMESPACESOURCE_H
#define QDACORE_PLUGIN_INAMESPACESOURCE_H

#include <map>
#include <string>

#include <boost/shared_ptr.hpp>

#include <qdacore/Export.h>
#include <qdacore/plugin/INamespaceProvider.h>

namespace NZRVQDA20 {

class ICIMNamespace;

class QDACORE_EXPORT INamespaceSource : public INamespaceProvider {
 public:
  virtual ~INamespaceSource();

  // The namespace that the provider serves; shared with the provider. A provider may gather
  // its facts at the first call. Throws TQDAException when it cannot.
  virtual boost::shared_ptr<ICIMNamespace> GetNamespace(
      std::map<std::string, TCIMValue> context) = 0;
};

}  // namespace NZRVQDA20

#endif

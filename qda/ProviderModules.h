// The provider modules beside the program, loaded one by one.

#ifndef QDA_PROVIDERMODULES_H
#define QDA_PROVIDERMODULES_H

#include <string>
#include <vector>

namespace qda {

struct ProviderModule {
  std::string name;
  std::string failure;                 // why it did not load; empty when it did
  std::string status;                  // the status of that failure
  std::vector<std::string> providers;  // what it registered
};

// Finds the provider modules in the program's folder and loads each, in ascending order of their
// names. Throws TQDAException when the folder cannot be searched; a module that does not load is
// told in its row. Needs a core logger.
std::vector<ProviderModule> LoadProviderModules();

// The same, until a provider of that name is there: the module that is named like it comes first,
// and when it registers the provider, it is the only one. A provider may stand in a module of
// another name, so all the others are loaded when it does not.
std::vector<ProviderModule> LoadProviderModulesFor(const std::string& provider);

// The names in the registry, ascending.
std::vector<std::string> RegisteredProviders();

}  // namespace qda

#endif

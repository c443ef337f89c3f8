// A provider with a name and nothing behind it, and registries of a test's own.

#ifndef TESTS_PLUGIN_NAMEDPROVIDER_H
#define TESTS_PLUGIN_NAMEDPROVIDER_H

#include <map>
#include <string>

#include <boost/shared_ptr.hpp>

#include <qdacore/plugin/INamespaceProvider.h>
#include <qdacore/plugin/TNamespaceProviderManager.h>

class NamedProvider : public NZRVQDA20::INamespaceProvider {
 public:
  explicit NamedProvider(const std::string& name) : fName(name) {}

  const std::string& GetName(std::map<std::string, NZRVQDA20::TCIMValue> context) const override {
    ++fTimesAsked;
    fContextSize += context.size();
    return fName;
  }

  int TimesAsked() const { return fTimesAsked; }
  // Of all contexts together.
  std::size_t ContextSize() const { return fContextSize; }

 private:
  std::string fName;
  mutable int fTimesAsked = 0;
  mutable std::size_t fContextSize = 0;
};

inline boost::shared_ptr<NamedProvider> MakeProvider(const std::string& name) {
  return boost::shared_ptr<NamedProvider>(new NamedProvider(name));
}

// An empty registry: a copy of the process's own, which no test of this program fills. (It cannot
// be emptied again, so what fills it runs as a child.)
inline NZRVQDA20::TNamespaceProviderManager EmptyRegistry() {
  return NZRVQDA20::TNamespaceProviderManager(*NZRVQDA20::TNamespaceProviderManager::GetInstance());
}

#endif

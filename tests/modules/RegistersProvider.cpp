// A provider module: registers "test.disk" while it is loaded. Built twice; the second to be
// loaded finds the name taken.

#include <qdacore/frame/TRootObject.h>
#include <qdacore/plugin/INamespaceProvider.h>
#include <qdacore/plugin/INamespaceProviderManager.h>
#include <tests/modules/ModuleExport.h>

namespace {

using namespace NZRVQDA20;

class Provider : public INamespaceProvider {
 public:
  ~Provider() override {
    std::puts("provider of " MODULE_NAME " ends");
    std::fflush(stdout);
  }
  const std::string& GetName(std::map<std::string, TCIMValue>) const override { return fName; }

 private:
  std::string fName = "test.disk";
};

struct Registration {
  Registration() {
    TRootObject::GetNamespaceProviderManager()->RegisterNamespaceProvider(
        boost::shared_ptr<INamespaceProvider>(new Provider));
  }
} registration;

}  // namespace

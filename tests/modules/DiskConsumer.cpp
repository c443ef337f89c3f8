// A consumer module, disk.nsc.dll.

#include <ostream>

#include <qdacore/plugin/INamespaceConsumer.h>
#include <tests/modules/ModuleExport.h>

namespace {

using namespace NZRVQDA20;

class Consumer : public INamespaceConsumer {
 public:
  const std::string& GetName(std::map<std::string, TCIMValue>) const override { return fName; }
  std::string GetDescription(std::map<std::string, TCIMValue>) const override {
    return "a consumer for tests";
  }
  void Consume(boost::shared_ptr<ICIMNamespace>, std::ostream& output,
               std::map<std::string, TCIMValue>) override {
    output << "consumed";
  }

 private:
  std::string fName = "disk consumer";
};

}  // namespace

MODULE_EXPORT INamespaceConsumer* disk_CreateINamespaceConsumer() { return new Consumer; }

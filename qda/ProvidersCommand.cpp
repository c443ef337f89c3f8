#include <qda/ProvidersCommand.h>

#include <algorithm>
#include <string>
#include <vector>

#include <qda/ProviderModules.h>
#include <qda/ProvidersOutput.h>
#include <qda/Text.h>
#include <qdacore/os/TOSSpecific.h>

namespace qda {

int RunProviders(const Options& options) {
  const std::string folder = NZRVQDA20::TOSSpecific::GetQDARootPath();
  const std::vector<ProviderModule> modules = LoadProviderModules();
  const bool isPrinted = Print(options.format == Format::kJson ? ProvidersJson(folder, modules)
                                                               : ProvidersTable(folder, modules));
  if (!isPrinted) {
    Complain("standard output: the result cannot be written");
  }
  const bool allLoaded =
      std::all_of(modules.begin(), modules.end(),
                  [](const ProviderModule& module) { return module.failure.empty(); });
  return allLoaded && isPrinted ? kExitDone : kExitFailed;
}

}  // namespace qda

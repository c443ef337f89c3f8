#include <qda/ProvidersCommand.h>

#include <algorithm>
#include <string>
#include <vector>

#include <qda/CommandOptions.h>
#include <qda/ProviderModules.h>
#include <qda/ProvidersOutput.h>
#include <qda/Text.h>
#include <qdacore/os/TOSSpecific.h>

namespace qda {

namespace {

int RunProviders(Format format) {
  const std::string folder = NZRVQDA20::TOSSpecific::GetQDARootPath();
  const std::vector<ProviderModule> modules = LoadProviderModules();
  const bool isPrinted = PrintResult(format == Format::kJson ? ProvidersJson(folder, modules)
                                                             : ProvidersTable(folder, modules));
  const bool allLoaded =
      std::all_of(modules.begin(), modules.end(),
                  [](const ProviderModule& module) { return module.failure.empty(); });
  return allLoaded && isPrinted ? kExitDone : kExitFailed;
}

std::function<int()> DeclareProviders(CLI::App* app, RunOptions* run) {
  AddFormat(app, run);
  return [run] { return RunProviders(run->format); };
}

}  // namespace

const Command kProvidersCommand = {
    "providers", "Plug-ins", "List the provider modules beside this program", DeclareProviders};

}  // namespace qda

#include <qda/SnapshotCommand.h>

#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include <boost/shared_ptr.hpp>

#include <fmt/format.h>

#include <qda/CommandOptions.h>
#include <qda/ProviderModules.h>
#include <qda/Snapshot.h>
#include <qda/SnapshotFile.h>
#include <qda/SourceNamespace.h>
#include <qda/Text.h>
#include <qdacore/cim/object/ICIMNamespace.h>
#include <qdacore/frame/TQDAException.h>
#include <qdamemory/Mof.h>

namespace qda {

using boost::shared_ptr;
using NZRVQDA20::ICIMNamespace;
using NZRVQDA20::TQDAException;

namespace {

struct SnapshotOptions {
  std::string file;
  std::string provider;  // empty: all
  std::string smbiosDump;
};

// False when something of the provider is not in the snapshot, after a message.
bool AddProvider(Snapshot& snapshot, const std::string& provider) {
  const shared_ptr<ICIMNamespace> ns = OpenLoadedNamespace(provider);
  if (!ns) {
    return false;
  }
  try {
    return snapshot.Add(ns, provider);
  } catch (const TQDAException& failure) {
    Complain(fmt::format("provider \"{}\": its classes cannot be copied ({}){}", provider,
                         failure.what(), KeptWarnings()));
    return false;
  }
}

int RunSnapshot(const SnapshotOptions& options) {
  if (!UseSmbiosDump(options.smbiosDump)) {
    return kExitFailed;
  }
  LoadModules(options.provider);
  std::vector<std::string> providers = {options.provider};
  if (options.provider.empty()) {
    providers = RegisteredProviders();
  }
  Snapshot snapshot;
  bool hasAll = !providers.empty();
  for (const std::string& provider : providers) {
    hasAll &= AddProvider(snapshot, provider);
  }
  if (snapshot.InstanceCount() == 0) {
    Complain(
        "snapshot: there is nothing to write, for no provider served an instance "
        "(kQDAStatusNotFound); see \"qda providers\"");
    return kExitFailed;
  }
  std::ostringstream text;
  try {
    WriteMof(snapshot.Namespace(), text);
  } catch (const TQDAException& failure) {
    Complain(fmt::format("snapshot: it has what MOF cannot hold ({})", failure.what()));
    return kExitFailed;
  }
  return WriteSnapshot(options.file, text.str()) && hasAll ? kExitDone : kExitFailed;
}

std::function<int()> DeclareSnapshot(CLI::App* app, RunOptions*) {
  const auto options = std::make_shared<SnapshotOptions>();
  AddOption(app,
            {"-o,--output", "FILE", "Write the snapshot to FILE; \"-\" is standard\noutput",
             "Output", true},
            &options->file);
  AddOption(app, {"--provider", "NAME", "Take this provider only", "Source"}, &options->provider);
  AddSmbiosDump(app, &options->smbiosDump);
  return [options] { return RunSnapshot(*options); };
}

}  // namespace

const Command kSnapshotCommand = {"snapshot", "Inventory",
                                  "Write what every provider serves to a file", DeclareSnapshot};

}  // namespace qda

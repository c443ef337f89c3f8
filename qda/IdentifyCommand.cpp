#include <qda/IdentifyCommand.h>

#include <memory>
#include <string>

#include <boost/shared_ptr.hpp>

#include <fmt/format.h>

#include <qda/CommandOptions.h>
#include <qda/Identity.h>
#include <qda/IdentityOutput.h>
#include <qda/SourceNamespace.h>
#include <qda/SourceText.h>
#include <qda/Text.h>
#include <qdacore/cim/object/ICIMNamespace.h>
#include <qdacore/frame/TQDAStatusCode.h>

namespace qda {

using NZRVQDA20::ICIMNamespace;
using NZRVQDA20::TQDAStatusCode;

namespace {

// Says why there is no machine type and model.
void ExplainMachineType(const Identity& identity, const SourceOptions& options) {
  const std::string asked = "machine type and model" + OfSnapshot(options);
  const auto status = identity.machineTypeModel.status;
  const std::string name = TQDAStatusCode(status).TranslateStatusCode();
  if (identity.productName.value) {
    Complain(fmt::format("{}: product name \"{}\" carries no type and model ({})", asked,
                         *identity.productName.value, name));
    return;
  }
  if (identity.productName.IsUnknown()) {
    Complain(fmt::format("{}: product name is unknown ({}){}{}", asked, name, KeptWarnings(),
                         options.smbiosDump.empty() && options.fromFile.empty()
                             ? "; a dump of another machine can be read with "
                               "--smbios-dump FILE"
                             : ""));
    return;
  }
  Complain(fmt::format("{}: {}{}", asked, name, KeptWarnings()));
}

// A fact that is merely unknown is no failure. True when there was none.
template <class T>
bool CheckFact(const char* asked, const Fact<T>& fact, const SourceOptions& options) {
  if (fact.value || fact.IsUnknown()) {
    return true;
  }
  Complain(fmt::format("{}{}: {} cannot be read ({})", asked, OfSnapshot(options),
                       ServedText(options), TQDAStatusCode(fact.status).TranslateStatusCode()));
  return false;
}

bool CheckIdentity(const Identity& identity, const SourceOptions& options) {
  bool isGood = static_cast<bool>(identity.machineTypeModel.value);
  if (!isGood) {
    ExplainMachineType(identity, options);
  }
  isGood &= CheckFact("serial number", identity.serialNumber, options);
  isGood &= CheckFact("system name", identity.systemName, options);
  isGood &= CheckFact("operating system", identity.operatingSystemName, options);
  isGood &= CheckFact("operating system version", identity.operatingSystemVersion, options);
  isGood &= CheckFact("operating system type", identity.operatingSystemType, options);
  return isGood;
}

int RunIdentify(const SourceOptions& options, Format format) {
  const boost::shared_ptr<ICIMNamespace> ns = OpenNamespace(options, "system");
  if (!ns) {
    return kExitFailed;
  }
  const Identity identity = AskIdentity(ns);
  const bool isPrinted = PrintResult(format == Format::kJson ? IdentityJson(identity, options)
                                                             : IdentityTable(identity));
  return CheckIdentity(identity, options) && isPrinted ? kExitDone : kExitFailed;
}

std::function<int()> DeclareIdentify(CLI::App* app, RunOptions* run) {
  const auto options = std::make_shared<SourceOptions>();
  AddSource(app, options.get());
  AddFormat(app, run);
  return [options, run] { return RunIdentify(*options, run->format); };
}

}  // namespace

const Command kIdentifyCommand = {
    "identify", "Machine", "Tell the machine's type, model and other facts", DeclareIdentify};

}  // namespace qda

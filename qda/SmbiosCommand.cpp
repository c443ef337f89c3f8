#include <qda/SmbiosCommand.h>

#include <cstdlib>
#include <memory>
#include <string>

#include <fmt/format.h>

#include <qda/CommandOptions.h>
#include <qda/SmbiosOutput.h>
#include <qda/SmbiosReport.h>
#include <qda/SourceNamespace.h>
#include <qda/Text.h>

namespace qda {

using NZRVQDA20::TQDAStatusCode;

namespace {

// Says why there is no table. The dump may also be named by the environment.
void ExplainNoTable(TQDAStatusCode status) {
  const char* const dump = std::getenv("QDA_SMBIOS_DUMP");
  const std::string name = status.TranslateStatusCode();
  const char* const hint = "a dump of another machine can be read with --smbios-dump FILE";
  if (dump != nullptr && *dump != '\0') {
    Complain(
        fmt::format("the SMBIOS dump \"{}\" cannot be read ({}); it must be one that "
                    "\"dmidecode --dump-bin\" writes, or a bare structure table",
                    dump, name));
  } else if (status.GetStatusCode() == TQDAStatusCode::kQDAStatusNotFound) {
    Complain(fmt::format("this machine has no SMBIOS table ({}); {}", name, hint));
  } else if (status.GetStatusCode() == TQDAStatusCode::kQDAStatusAccessDenied) {
    Complain(
        fmt::format("the firmware's SMBIOS table cannot be read ({}), which takes "
                    "administrator rights; {}",
                    name, hint));
  } else {
    Complain(fmt::format("the firmware's SMBIOS table cannot be read ({}); {}", name, hint));
  }
}

int RunSmbios(const std::string& dump, Format format) {
  if (!UseSmbiosDump(dump)) {
    return kExitFailed;
  }
  SmbiosReport report;
  TQDAStatusCode status = ReadSmbios(&report);
  if (status.GetStatusCode() != TQDAStatusCode::kQDAStatusOK) {
    ExplainNoTable(status);
    return kExitFailed;
  }
  const bool isPrinted =
      PrintResult(format == Format::kJson ? SmbiosJson(report) : SmbiosTable(report));
  if (!report.biosId) {
    Complain("BIOS identifier: the BIOS version is too short to have one (std::out_of_range)");
  }
  return isPrinted ? kExitDone : kExitFailed;
}

std::function<int()> DeclareSmbios(CLI::App* app, RunOptions* run) {
  const auto dump = std::make_shared<std::string>();
  AddSmbiosDump(app, dump.get());
  AddFormat(app, run);
  return [dump, run] { return RunSmbios(*dump, run->format); };
}

}  // namespace

const Command kSmbiosCommand = {"smbios", "Machine", "Tell what the SMBIOS table says",
                                DeclareSmbios};

}  // namespace qda

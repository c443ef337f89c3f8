// qda: the command-line host. It loads the provider modules beside it, looks one up, asks and
// prints; docs/qda.md tells the rest.

#include <exception>

#include <fmt/format.h>

#include <qda/CommandLine.h>
#include <qda/IdentifyCommand.h>
#include <qda/ProvidersCommand.h>
#include <qda/RunLog.h>
#include <qda/Text.h>

namespace {

int RunCommand(const qda::Options& options) {
  switch (options.command) {
    case qda::Command::kIdentify:
      return qda::RunIdentify(options);
    case qda::Command::kProviders:
      return qda::RunProviders(options);
  }
  return qda::kExitFailed;
}

}  // namespace

int main(int argc, char** argv) {
  qda::Options options;
  int exitCode = qda::kExitFailed;
  // What was being done, for the message of a failure that nothing below has told of.
  std::string doing = "the command line";
  try {
    if (!qda::ParseCommandLine(argc, argv, &options, &exitCode)) {
      return exitCode;
    }
    doing = options.logFile.empty()
                ? "the log"
                : fmt::format("log file \"{}\": it cannot be opened", options.logFile);
    const qda::RunLog log(options);
    doing = "the provider modules";
    return RunCommand(options);
  } catch (const std::exception& failure) {
    qda::Complain(fmt::format("{} ({})", doing, failure.what()));
    return qda::kExitFailed;
  }
}

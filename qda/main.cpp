// qda: the command-line host. It loads the provider modules beside it, looks one up, asks and
// prints; docs/qda.md tells the rest.

#include <exception>
#include <functional>
#include <string>

#include <fmt/format.h>

#include <qda/CommandLine.h>
#include <qda/RunLog.h>
#include <qda/Text.h>

int main(int argc, char** argv) {
  qda::RunOptions options;
  int exitCode = qda::kExitFailed;
  // What was being done, for the message of a failure that nothing below has told of.
  std::string doing = "the command line";
  try {
    const std::function<int()> run = qda::ParseCommandLine(argc, argv, &options, &exitCode);
    if (!run) {
      return exitCode;
    }
    doing = options.logFile.empty()
                ? "the log"
                : fmt::format("log file \"{}\": it cannot be opened", options.logFile);
    const qda::RunLog log(options);
    doing = options.command + ": it cannot go on";
    return run();
  } catch (const std::exception& failure) {
    qda::Complain(fmt::format("{} ({})", doing, failure.what()));
    return qda::kExitFailed;
  }
}

#include <qda/CommandLine.h>

#include <sstream>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include <qda/CommandOptions.h>
#include <qda/CommandTable.h>
#include <qda/Text.h>

namespace qda {

namespace {

typedef std::function<int()> Runner;

const char kExitCodes[] = "Exit codes: 0 done, 1 failed, 2 wrong usage.";

// All that a run needs when a command's name is the first word, as in every command line that is
// right but those for help and version: declaring what is not asked for takes time.
std::vector<const Command*> CommandsFor(int argc, char** argv) {
  const std::vector<const Command*> all = AllCommands();
  for (const Command* command : all) {
    if (argc > 1 && std::string(command->name) == argv[1]) {
      return {command};
    }
  }
  return all;
}

void Declare(CLI::App* app, const Command& command, RunOptions* run, Runner* chosen,
             std::vector<Runner>* runners) {
  CLI::App* const sub = app->add_subcommand(command.name, command.description);
  sub->group(command.group)->footer(kExitCodes);
  const std::size_t index = runners->size();
  runners->push_back(command.declare(sub, run));
  AddLog(sub, run);
  sub->callback([&command, run, chosen, runners, index] {
    run->command = command.name;
    *chosen = (*runners)[index];
  });
}

void ComplainOfUsage(const std::string& what) { Complain(what + "; see \"qda --help\""); }

}  // namespace

std::function<int()> ParseCommandLine(int argc, char** argv, RunOptions* run, int* exitCode) {
  CLI::App app("Tells what a machine is and has, through the collector's plug-ins.", "qda");
  // The same command lines on every platform: /x is a file name everywhere.
  app.allow_windows_style_options(false);
  app.get_formatter()->label("SUBCOMMAND", "COMMAND");
  app.set_version_flag("--version", "qda " QDA_VERSION, "Print the version and exit");
  app.set_help_flag("-h,--help", "Print this help and exit");
  app.require_subcommand(1);
  app.footer(std::string(kExitCodes) + "\n\"qda COMMAND --help\" tells the options of a command.");
  Runner chosen;
  std::vector<Runner> runners;
  for (const Command* command : CommandsFor(argc, argv)) {
    Declare(&app, *command, run, &chosen, &runners);
  }
  try {
    app.parse(argc, argv);
    return chosen;
  } catch (const CLI::Success& done) {
    std::ostringstream text;
    app.exit(done, text, text);
    *exitCode = PrintResult(text.str()) ? kExitDone : kExitFailed;
  } catch (const CLI::RequiredError& error) {
    const std::vector<std::string> unknown = app.remaining();
    if (!app.get_subcommands().empty()) {
      // An argument of a command.
      ComplainOfUsage(error.what());
    } else {
      ComplainOfUsage(unknown.empty() ? "no command is given"
                                      : "\"" + unknown[0] + "\" is no command");
    }
    *exitCode = kExitWrongUsage;
  } catch (const CLI::ParseError& error) {
    ComplainOfUsage(error.what());
    *exitCode = kExitWrongUsage;
  }
  return Runner();
}

}  // namespace qda

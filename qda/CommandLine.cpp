#include <qda/CommandLine.h>

#include <iostream>
#include <map>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include <qda/Text.h>

namespace qda {

using NZRVQDA20::ILogger;

namespace {

const char kExitCodes[] = "Exit codes: 0 done, 1 failed, 2 wrong usage.";

CLI::Validator NotEmpty() {
  return CLI::Validator(
      [](std::string& value) { return value.empty() ? std::string("is empty") : std::string(); },
      "");
}

// An option whose argument is one of some names; each stands for a value.
template <class T>
CLI::Option* AddChoice(CLI::App* command, const std::string& names, T* target,
                       const std::map<std::string, T>& choices) {
  const auto store = [target, choices, names](const std::string& name) {
    const auto found = choices.find(name);
    if (found == choices.end()) {
      std::string known;
      for (const auto& choice : choices) {
        known += (known.empty() ? "" : ", ") + choice.first;
      }
      throw CLI::ValidationError(names, "\"" + name + "\" is none of " + known);
    }
    *target = found->second;
  };
  return command->add_option_function<std::string>(names, store);
}

void AddFormat(CLI::App* command, Options* options) {
  AddChoice<Format>(command, "-o,--output", &options->format,
                    {{"table", Format::kTable}, {"json", Format::kJson}})
      ->option_text("FORMAT")
      ->description("table (default) or json")
      ->group("Output");
}

void AddLog(CLI::App* command, Options* options) {
  CLI::Option* const file =
      command->add_option("--log", options->logFile, "Write the log of this run to FILE")
          ->option_text("FILE")
          ->check(NotEmpty())
          ->group("Log");
  AddChoice<ILogger::EQDALogSeverity>(command, "--log-level", &options->logLevel,
                                      {{"error", ILogger::kLogError},
                                       {"warning", ILogger::kLogWarning},
                                       {"status", ILogger::kLogStatus},
                                       {"debug", ILogger::kLogDebug},
                                       {"verbose", ILogger::kLogVerbose}})
      ->option_text("LEVEL")
      ->description("error, warning, status (default), debug\nor verbose")
      ->needs(file)
      ->group("Log");
}

CLI::App* AddCommand(CLI::App* app, Options* options, Command which, const char* name,
                     const char* description) {
  CLI::App* const command = app->add_subcommand(name, description);
  command->group("Commands")->footer(kExitCodes);
  command->callback([options, which] { options->command = which; });
  return command;
}

void AddIdentify(CLI::App* app, Options* options) {
  CLI::App* const command = AddCommand(app, options, Command::kIdentify, "identify",
                                       "Tell the machine's type, model and other facts");
  command
      ->add_option("--provider", options->provider,
                   "Ask the provider of this name, not \"machine\"")
      ->option_text("NAME")
      ->check(NotEmpty())
      ->group("Source");
  command
      ->add_option("--smbios-dump", options->smbiosDump,
                   "Read FILE, as \"dmidecode --dump-bin\"\nwrites it, in place of the firmware")
      ->option_text("FILE")
      ->check(NotEmpty())
      ->group("Source");
  AddFormat(command, options);
  AddLog(command, options);
}

void AddProviders(CLI::App* app, Options* options) {
  CLI::App* const command = AddCommand(app, options, Command::kProviders, "providers",
                                       "List the provider modules beside this program");
  AddFormat(command, options);
  AddLog(command, options);
}

void ComplainOfUsage(const std::string& what) { Complain(what + "; see \"qda --help\""); }

}  // namespace

bool ParseCommandLine(int argc, char** argv, Options* options, int* exitCode) {
  CLI::App app("Reads a machine's identity through the collector's plug-ins.", "qda");
  // The same command lines on every platform: /x is a file name everywhere.
  app.allow_windows_style_options(false);
  app.get_formatter()->label("SUBCOMMAND", "COMMAND");
  app.set_version_flag("--version", "qda " QDA_VERSION, "Print the version and exit");
  app.set_help_flag("-h,--help", "Print this help and exit");
  app.require_subcommand(1);
  app.footer(std::string(kExitCodes) + "\n\"qda COMMAND --help\" tells the options of a command.");
  AddIdentify(&app, options);
  AddProviders(&app, options);
  try {
    app.parse(argc, argv);
    return true;
  } catch (const CLI::Success& done) {
    app.exit(done);
    *exitCode = std::cout.flush() ? kExitDone : kExitFailed;
  } catch (const CLI::RequiredError&) {
    const std::vector<std::string> unknown = app.remaining();
    ComplainOfUsage(unknown.empty() ? "no command is given"
                                    : "\"" + unknown[0] + "\" is no command");
    *exitCode = kExitWrongUsage;
  } catch (const CLI::ParseError& error) {
    ComplainOfUsage(error.what());
    *exitCode = kExitWrongUsage;
  }
  return false;
}

}  // namespace qda

#include <qda/CommandOptions.h>

#include <map>

#include <CLI/CLI.hpp>

namespace qda {

using NZRVQDA20::ILogger;

namespace {

CLI::Validator Validator(const Check& check) {
  return CLI::Validator([check](std::string& value) { return check(value); }, "");
}

CLI::Option* AddText(CLI::App* app, const TextOption& option, std::string* target,
                     const Check& check = NotEmpty()) {
  return app->add_option(option.names, *target, option.description)
      ->option_text(option.argument)
      ->required(option.isRequired)
      ->check(Validator(check))
      ->group(option.group);
}

// An option whose argument is one of some names; each stands for a value.
template <class T>
CLI::Option* AddChoice(CLI::App* app, const std::string& names, T* target,
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
  return app->add_option_function<std::string>(names, store);
}

}  // namespace

Check NotEmpty() {
  return [](const std::string& value) {
    return value.empty() ? std::string("is empty") : std::string();
  };
}

void AddPositional(CLI::App* app, const Positional& positional, std::string* target,
                   const Check& check) {
  app->add_option(positional.name, *target, positional.description)
      ->option_text(positional.hint)
      ->required(positional.isRequired)
      ->check(Validator(check));
}

void AddOption(CLI::App* app, const TextOption& option, std::string* target, const Check& check) {
  AddText(app, option, target, check);
}

void AddFlag(CLI::App* app, const char* names, const char* description, const char* group,
             bool* target) {
  app->add_flag(names, *target, description)->group(group);
}

void AddFormat(CLI::App* app, RunOptions* run) {
  AddChoice<Format>(app, "-o,--output", &run->format,
                    {{"table", Format::kTable}, {"json", Format::kJson}})
      ->option_text("FORMAT")
      ->description("table (default) or json")
      ->group("Output");
}

void AddLog(CLI::App* app, RunOptions* run) {
  CLI::Option* const file =
      AddText(app, {"--log", "FILE", "Write the log of this run to FILE", "Log"}, &run->logFile);
  AddChoice<ILogger::EQDALogSeverity>(app, "--log-level", &run->logLevel,
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

void AddSource(CLI::App* app, SourceOptions* source) {
  AddOption(app, {"--provider", "NAME", "Ask the provider of this name, not \"machine\"", "Source"},
            &source->provider);
  AddSmbiosDump(app, &source->smbiosDump);
  AddText(app,
          {"--from", "FILE", "Read the snapshot FILE in place of a provider\nof this machine",
           "Source"},
          &source->fromFile)
      ->excludes("--provider")
      ->excludes("--smbios-dump");
}

void AddSmbiosDump(CLI::App* app, std::string* file) {
  AddOption(
      app,
      {"--smbios-dump", "FILE",
       "Read FILE, as \"dmidecode --dump-bin\"\nwrites it, in place of the firmware", "Source"},
      file);
}

void AddPasswordFile(CLI::App* app, const std::string& variable, std::string* file) {
  AddOption(app,
            {"--password-file", "FILE",
             "Read the password from FILE, \"-\" being\nstandard input; without it, from " +
                 variable + ",\nor from a prompt",
             "Login"},
            file);
}

}  // namespace qda

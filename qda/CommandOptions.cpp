#include <qda/CommandOptions.h>

namespace qda {

using NZRVQDA20::ILogger;

CLI::Validator NotEmpty() {
  return CLI::Validator(
      [](std::string& value) { return value.empty() ? std::string("is empty") : std::string(); },
      "");
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
      app->add_option("--log", run->logFile, "Write the log of this run to FILE")
          ->option_text("FILE")
          ->check(NotEmpty())
          ->group("Log");
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
  app->add_option("--provider", source->provider, "Ask the provider of this name, not \"machine\"")
      ->option_text("NAME")
      ->check(NotEmpty())
      ->group("Source");
  AddSmbiosDump(app, &source->smbiosDump);
  app->add_option("--from", source->fromFile,
                  "Read the snapshot FILE in place of a provider\nof this machine")
      ->option_text("FILE")
      ->check(NotEmpty())
      ->excludes("--provider")
      ->excludes("--smbios-dump")
      ->group("Source");
}

void AddSmbiosDump(CLI::App* app, std::string* file) {
  app->add_option("--smbios-dump", *file,
                  "Read FILE, as \"dmidecode --dump-bin\"\nwrites it, in place of the firmware")
      ->option_text("FILE")
      ->check(NotEmpty())
      ->group("Source");
}

void AddPasswordFile(CLI::App* app, const std::string& variable, std::string* file) {
  app->add_option("--password-file", *file,
                  "Read the password from FILE, \"-\" being\nstandard input; without it, from " +
                      variable + ",\nor from a prompt")
      ->option_text("FILE")
      ->check(NotEmpty())
      ->group("Login");
}

}  // namespace qda

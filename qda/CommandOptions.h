// Options that several commands have, the same for each, and helpers to declare others.

#ifndef QDA_COMMANDOPTIONS_H
#define QDA_COMMANDOPTIONS_H

#include <map>
#include <string>

#include <CLI/CLI.hpp>

#include <qda/Options.h>

namespace qda {

// A check for an option's argument: it is not empty.
CLI::Validator NotEmpty();

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

// -o, --output: table or json.
void AddFormat(CLI::App* app, RunOptions* run);

// --log and --log-level. Every command has them without asking.
void AddLog(CLI::App* app, RunOptions* run);

// --provider, --smbios-dump and --from.
void AddSource(CLI::App* app, SourceOptions* source);

// --smbios-dump alone.
void AddSmbiosDump(CLI::App* app, std::string* file);

// --password-file, for a SecretRequest (<qda/Secret.h>) that asks the environment variable
// `variable` when it is not given.
void AddPasswordFile(CLI::App* app, const std::string& variable, std::string* file);

}  // namespace qda

#endif

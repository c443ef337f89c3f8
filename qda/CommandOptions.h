// How commands declare what may stand behind their names: options that several have, the same for
// each, and helpers to declare others. Commands do without the header of the parser, which makes
// every source that includes it build objects at each start of the program.

#ifndef QDA_COMMANDOPTIONS_H
#define QDA_COMMANDOPTIONS_H

#include <functional>
#include <string>

#include <qda/Options.h>

namespace CLI {
class App;
}

namespace qda {

// Looks at an argument: what is wrong with it, or nothing.
typedef std::function<std::string(const std::string&)> Check;

// It is not empty.
Check NotEmpty();

// An argument without a name of its own. `name` is how messages and the help call it, `hint` stands
// behind it in the help.
struct Positional {
  const char* name;
  const char* description;
  bool isRequired;
  const char* hint = " ";
};

void AddPositional(CLI::App* app, const Positional& positional, std::string* target,
                   const Check& check = NotEmpty());

// An option with an argument. `argument` is what the help calls that, `group` the heading that it
// lists the option under.
struct TextOption {
  const char* names;
  const char* argument;
  std::string description;
  const char* group;
  bool isRequired = false;
};

void AddOption(CLI::App* app, const TextOption& option, std::string* target,
               const Check& check = NotEmpty());

// An option without an argument.
void AddFlag(CLI::App* app, const char* names, const char* description, const char* group,
             bool* target);

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

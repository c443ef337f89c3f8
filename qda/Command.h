// Command: one command of the program. Each has a source of its own, which declares what may stand
// behind the command's name and runs it:
//
//   struct ListOptions { bool deep = false; };
//
//   std::function<int()> DeclareList(CLI::App* app, RunOptions* run) {
//     const auto options = std::make_shared<ListOptions>();
//     AddFlag(app, "--deep", "Subclasses too", "Source", &options->deep);
//     AddFormat(app, run);  // both <qda/CommandOptions.h>
//     return [options, run] { return RunList(*options, run->format); };
//   }
//
//   const Command kListCommand = {"list", "Inventory", "List what there is", DeclareList};
//
// CommandTable.cpp has the list of all commands, docs/qda.md, docs/qda.1 and
// qda/completion/qda.bash tell about them.

#ifndef QDA_COMMAND_H
#define QDA_COMMAND_H

#include <functional>

#include <qda/Options.h>

namespace CLI {
class App;
}

namespace qda {

struct Command {
  const char* name;
  // The heading that the help lists it under.
  const char* group;
  const char* description;

  // Declares the command's own options on `app`, which has those of the log and the help already,
  // and gives what runs the command and returns its exit code. It is called after the command line
  // is parsed and there is a core logger. `run` outlives it. What the options are stored in has to
  // live as long as `app` and the result: the result owns it.
  std::function<int()> (*declare)(CLI::App* app, RunOptions* run);
};

}  // namespace qda

#endif

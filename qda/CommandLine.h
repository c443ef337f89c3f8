// The command line: which command it is, what is wrong with it, and the help.

#ifndef QDA_COMMANDLINE_H
#define QDA_COMMANDLINE_H

#include <functional>

#include <qda/Options.h>

namespace qda {

// Reads the command line into `*run` and gives what runs the command, which lives no longer than
// `*run`. Empty when there is nothing more to do: help or the version has been printed to standard
// output (`*exitCode` is kExitDone, or kExitFailed, with a message, when that cannot be written),
// or what is wrong to standard error (kExitWrongUsage).
std::function<int()> ParseCommandLine(int argc, char** argv, RunOptions* run, int* exitCode);

}  // namespace qda

#endif

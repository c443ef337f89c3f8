// The command line: what may stand there, and the help about it.

#ifndef QDA_COMMANDLINE_H
#define QDA_COMMANDLINE_H

#include <qda/Options.h>

namespace qda {

// Stores what the command line asks for. False when there is nothing more to do: help or the
// version has been printed to standard output (`*exitCode` is kExitDone, or kExitFailed when that
// cannot be written), or what is wrong to standard error (kExitWrongUsage).
bool ParseCommandLine(int argc, char** argv, Options* options, int* exitCode);

}  // namespace qda

#endif

// All commands.

#ifndef QDA_COMMANDTABLE_H
#define QDA_COMMANDTABLE_H

#include <vector>

#include <qda/Command.h>

namespace qda {

// In the order of the help: those of one group stand together.
std::vector<const Command*> AllCommands();

}  // namespace qda

#endif

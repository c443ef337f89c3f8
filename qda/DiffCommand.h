// qda diff

#ifndef QDA_DIFFCOMMAND_H
#define QDA_DIFFCOMMAND_H

#include <qda/Command.h>

namespace qda {

// Tells what differs between two snapshots.
extern const Command kDiffCommand;

}  // namespace qda

#endif

// qda snapshot

#ifndef QDA_SNAPSHOTCOMMAND_H
#define QDA_SNAPSHOTCOMMAND_H

#include <qda/Command.h>

namespace qda {

// Takes what every provider serves into one MOF file.
extern const Command kSnapshotCommand;

}  // namespace qda

#endif

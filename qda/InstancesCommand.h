// qda instances: the instances of a class, with their paths and properties.

#ifndef QDA_INSTANCESCOMMAND_H
#define QDA_INSTANCESCOMMAND_H

#include <qda/Command.h>

namespace qda {

extern const Command kInstancesCommand;

}  // namespace qda

#endif

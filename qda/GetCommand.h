// qda get: what an object path names, an instance or a class.

#ifndef QDA_GETCOMMAND_H
#define QDA_GETCOMMAND_H

#include <qda/Command.h>

namespace qda {

extern const Command kGetCommand;

}  // namespace qda

#endif

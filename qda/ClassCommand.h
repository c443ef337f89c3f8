// qda class: what a class declares and inherits.

#ifndef QDA_CLASSCOMMAND_H
#define QDA_CLASSCOMMAND_H

#include <qda/Command.h>

namespace qda {

extern const Command kClassCommand;

}  // namespace qda

#endif

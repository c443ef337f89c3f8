// qda classes: the class tree of a provider's namespace.

#ifndef QDA_CLASSESCOMMAND_H
#define QDA_CLASSESCOMMAND_H

#include <qda/Command.h>

namespace qda {

extern const Command kClassesCommand;

}  // namespace qda

#endif

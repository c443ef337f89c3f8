// qda providers: loads every provider module and prints what became of it. kExitFailed when one
// did not load.

#ifndef QDA_PROVIDERSCOMMAND_H
#define QDA_PROVIDERSCOMMAND_H

#include <qda/Command.h>

namespace qda {

extern const Command kProvidersCommand;

}  // namespace qda

#endif

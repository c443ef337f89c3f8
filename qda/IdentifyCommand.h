// qda identify: asks a provider for the machine's identity and prints it. kExitFailed, with all
// the facts printed that are known, also when only the machine type and model could not be told.

#ifndef QDA_IDENTIFYCOMMAND_H
#define QDA_IDENTIFYCOMMAND_H

#include <qda/Command.h>

namespace qda {

extern const Command kIdentifyCommand;

}  // namespace qda

#endif

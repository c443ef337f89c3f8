// qda bmc: opens a session with a BMC over the LAN and prints its pieces. kExitFailed when it is
// not open for certain.

#ifndef QDA_BMCCOMMAND_H
#define QDA_BMCCOMMAND_H

#include <qda/Command.h>

namespace qda {

extern const Command kBmcCommand;

}  // namespace qda

#endif

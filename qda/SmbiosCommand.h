// qda smbios: what an SMBIOS table says, straight from the table and not through a provider.

#ifndef QDA_SMBIOSCOMMAND_H
#define QDA_SMBIOSCOMMAND_H

#include <qda/Command.h>

namespace qda {

extern const Command kSmbiosCommand;

}  // namespace qda

#endif

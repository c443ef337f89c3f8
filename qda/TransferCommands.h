// qda put, qda fetch, qda host: files to and from FTP servers, and names that resolve.

#ifndef QDA_TRANSFERCOMMANDS_H
#define QDA_TRANSFERCOMMANDS_H

#include <qda/Command.h>

namespace qda {

extern const Command kPutCommand;
extern const Command kFetchCommand;
extern const Command kHostCommand;

}  // namespace qda

#endif

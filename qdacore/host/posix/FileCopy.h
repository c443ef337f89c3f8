// One file's contents into another, as fast as the system can.

#ifndef QDACORE_HOST_POSIX_FILECOPY_H
#define QDACORE_HOST_POSIX_FILECOPY_H

#include <qdacore/host/Situation.h>

namespace NZRVQDA20 {
namespace host {

// Holes stay holes. What comes along is the modification time and, for a new file, the
// permissions less the umask; a file that is there keeps its owner and permissions. Of a source
// that grows meanwhile comes what was there at the start. Waits for no pipe: only regular files
// are opened. `replaceLink`: a link at `target` gives way to the copy, and is not followed.
Outcome CopyOneFile(const char* source, const char* target, bool replaceLink);

}  // namespace host
}  // namespace NZRVQDA20

#endif

// Snapshots as files: MOF texts, which are read in place of a live machine.

#ifndef QDA_SNAPSHOTFILE_H
#define QDA_SNAPSHOTFILE_H

#include <string>

#include <boost/shared_ptr.hpp>

namespace NZRVQDA20 {
class ICIMNamespace;
}

namespace qda {

// Reads a file as "qda snapshot" writes it, or any other MOF text with what it includes. An empty
// pointer after a message that has file, line, column and reason.
boost::shared_ptr<NZRVQDA20::ICIMNamespace> ReadSnapshot(const std::string& file);

// Writes `text` as `file`, or to standard output when that is "-". A file that was there before is
// replaced only when all of the new one stands on the disk. False after a message.
bool WriteSnapshot(const std::string& file, const std::string& text);

}  // namespace qda

#endif

// What differs between hosts in the text of a path.

#ifndef QDACORE_HOST_PATHS_H
#define QDACORE_HOST_PATHS_H

#include <string>

namespace NZRVQDA20 {
namespace host {

// What stands between the parts of a path that the library builds for the host.
char PathSeparator();

// A path as a caller gave it, in the host's own form: both separators are accepted. Never for a
// name that was read from a directory: there a backslash may be part of the name.
std::string FromCaller(const std::string& path);

}  // namespace host
}  // namespace NZRVQDA20

#endif

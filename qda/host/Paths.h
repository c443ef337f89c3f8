// Names of files as the standard library takes them.

#ifndef QDA_HOST_PATHS_H
#define QDA_HOST_PATHS_H

#include <filesystem>
#include <string>

namespace qda {
namespace host {

// The path that `name` stands for, a name as the command line brings it. What std::filesystem makes
// of such a name itself may be another file, or a failure: on Windows it expects UTF-8.
std::filesystem::path ToPath(const std::string& name);

}  // namespace host
}  // namespace qda

#endif

#include <qdacore/host/Paths.h>

namespace NZRVQDA20 {
namespace host {

char PathSeparator() { return '\\'; }

// The host takes both separators itself.
std::string FromCaller(const std::string& path) { return path; }

}  // namespace host
}  // namespace NZRVQDA20

#include <qda/host/Paths.h>

namespace qda {
namespace host {

std::filesystem::path ToPath(const std::string& name) { return name; }

}  // namespace host
}  // namespace qda

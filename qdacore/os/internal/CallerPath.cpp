#include <qdacore/host/Files.h>
#include <qdacore/os/internal/CallerPath.h>

namespace NZRVQDA20 {

std::string ToHostPath(const std::string& path) {
  std::string converted = host::FromCaller(path);
  if (converted == path) {
    return converted;
  }
  for (std::size_t end = path.size(); end != std::string::npos && end > 0;
       end = path.rfind(host::PathSeparator(), end - 1)) {
    const std::string asItStands = path.substr(0, end);
    bool isDirectory = false;
    if (asItStands != converted.substr(0, end) &&
        host::HostFiles().ReadKind(asItStands, isDirectory).Done()) {
      return asItStands + converted.substr(end);
    }
  }
  return converted;
}

}  // namespace NZRVQDA20

// Path text: nothing here asks the host.

#include <cctype>

#include <qdacore/host/Paths.h>
#include <qdacore/os/TOSSpecific.h>
#include <qdacore/os/internal/CallerPath.h>

namespace NZRVQDA20 {

namespace {

int Lowered(char character) { return std::tolower(static_cast<unsigned char>(character)); }

bool HoldsDrive(const std::string& path) { return path.size() >= 2 && path[1] == ':'; }

// What `base` itself would have before its next part.
char SeparatorLike(const std::string& base) {
  const bool isOtherStyle = HoldsDrive(base) || base.find('\\') != std::string::npos;
  return isOtherStyle ? '\\' : host::PathSeparator();
}

}  // namespace

std::string TOSSpecific::RelocateRelativePath(std::string base, std::string path) {
  // One character only; and the other separator stays, or the root would lose its name.
  if (!path.empty() && (path.back() == '"' || path.back() == kFileSeparator[0])) {
    path.pop_back();
  }
  if (base.empty()) {
    return path;
  }
  if (!HoldsDrive(path)) {
    if (!path.empty() && IsSeparator(path[0])) {
      return path;
    }
  } else {
    if (path.size() >= 3 && IsSeparator(path[2])) {
      return path;
    }
    if (Lowered(path[0]) != Lowered(base[0])) {
      return path;
    }
    path.erase(0, 2);
  }
  if (!IsSeparator(base.back())) {
    base += SeparatorLike(base);
  }
  return base + path;
}

}  // namespace NZRVQDA20

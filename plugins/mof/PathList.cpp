#include <plugins/mof/PathList.h>

#include <algorithm>
#include <cstddef>

namespace mof_provider {

std::vector<std::string> SplitPathList(const std::string& text, char separator) {
  std::vector<std::string> paths;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = std::min(text.find(separator, at), text.size());
    if (end != at) {
      paths.push_back(text.substr(at, end - at));
    }
    at = end + 1;
  }
  return paths;
}

}  // namespace mof_provider

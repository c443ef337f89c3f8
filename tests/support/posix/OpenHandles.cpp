#include <tests/support/OpenHandles.h>

#include <filesystem>
#include <iterator>

namespace test_support {

int CountOpenHandles() {
  const std::filesystem::directory_iterator descriptors("/proc/self/fd");
  // Less the one that reads the folder.
  return static_cast<int>(std::distance(begin(descriptors), end(descriptors))) - 1;
}

}  // namespace test_support

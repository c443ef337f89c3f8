// All that is in a folder, as text to compare.

#ifndef TESTS_OS_FOLDERTREE_H
#define TESTS_OS_FOLDERTREE_H

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include <tests/support/TemporaryFolder.h>

namespace file_aids {

// Everything below a folder, sorted: "path=contents", "path/", "path>link". Links are not followed.
inline std::vector<std::string> Tree(const std::string& folder) {
  std::vector<std::string> tree;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
    const std::string name = entry.path().lexically_relative(folder).generic_string();
    if (entry.is_symlink()) {
      tree.push_back(name + ">" + std::filesystem::read_symlink(entry.path()).string());
    } else if (entry.is_directory()) {
      tree.push_back(name + "/");
    } else {
      tree.push_back(name + "=" + test_support::ReadTextFile(entry.path().string()));
    }
  }
  std::sort(tree.begin(), tree.end());
  return tree;
}

}  // namespace file_aids

#endif

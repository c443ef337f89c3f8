// What the tests of files have in common.

#ifndef TESTS_OS_FILEAIDS_H
#define TESTS_OS_FILEAIDS_H

#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>

namespace file_aids {

// The contents of a file; empty when it cannot be read.
inline std::string Bytes(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(file), {});
}

// One line of a child's output: what it did, and which status came of it.
inline void Tell(const char* name, const std::string& status) {
  std::printf("%s: %s\n", name, status.c_str());
}

}  // namespace file_aids

#endif

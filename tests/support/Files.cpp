#include <filesystem>
#include <fstream>
#include <sstream>

#include <gtest/gtest.h>

#include <tests/support/TemporaryFolder.h>

namespace test_support {

std::string ReadTextFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  EXPECT_TRUE(file.good()) << path;
  std::ostringstream bytes;
  bytes << file.rdbuf();
  std::string text;
  for (const char character : bytes.str()) {
    if (character != '\r') {
      text += character;
    }
  }
  return text;
}

bool PathExists(const std::string& path) { return std::filesystem::exists(path); }

}  // namespace test_support

#include <tests/support/TemporaryFolder.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <random>

#include <gtest/gtest.h>

namespace test_support {

namespace fs = std::filesystem;

TemporaryFolder::TemporaryFolder() {
  std::random_device random;
  fs::path path;
  do {
    path = fs::temp_directory_path() / ("qdacore-test-" + std::to_string(random()));
  } while (!fs::create_directory(path));
  path.make_preferred();
  fPath = path.string();
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;  // a file that is still open may stay behind; the system clears it up
  fs::remove_all(fPath, ignored);
}

std::string TemporaryFolder::PathOf(const std::string& name) const {
  fs::path path = fs::path(fPath) / name;
  path.make_preferred();
  return path.string();
}

std::string TemporaryFolder::Write(const std::string& name, const std::string& contents) const {
  const std::string path = PathOf(name);
  fs::create_directories(fs::path(path).parent_path());
  std::ofstream file(path, std::ios::binary);
  file << contents;
  EXPECT_TRUE(file.good()) << path;
  return path;
}

std::string TemporaryFolder::MakeFolder(const std::string& name) const {
  const std::string path = PathOf(name);
  fs::create_directories(path);
  return path;
}

std::string TemporaryFolder::Copy(const std::string& source, const std::string& name) const {
  const std::string path = PathOf(name);
  fs::create_directories(fs::path(path).parent_path());
  fs::copy_file(source, path, fs::copy_options::overwrite_existing);
  return path;
}

}  // namespace test_support

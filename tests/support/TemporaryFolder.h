// A new empty folder that goes, with all that is in it, at the end of the scope.

#ifndef TESTS_SUPPORT_TEMPORARYFOLDER_H
#define TESTS_SUPPORT_TEMPORARYFOLDER_H

#include <string>

namespace test_support {

class TemporaryFolder {
 public:
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  // Absolute, in the host's form, with no separator at the end.
  const std::string& Path() const { return fPath; }

  // The path of an entry of the folder; `name` may use "/" between its parts.
  std::string PathOf(const std::string& name) const;

  // Makes a file, and the folders on the way to it. Returns its path.
  std::string Write(const std::string& name, const std::string& contents) const;

  // Makes a folder, and those on the way. Returns its path.
  std::string MakeFolder(const std::string& name) const;

  // Copies a file into the folder under `name`. Returns its path.
  std::string Copy(const std::string& source, const std::string& name) const;

 private:
  std::string fPath;
};

// The contents of a file as text ("\r\n" read as "\n"); fails the test when it cannot be read.
std::string ReadTextFile(const std::string& path);

bool PathExists(const std::string& path);

}  // namespace test_support

#endif

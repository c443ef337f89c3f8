// A copy of the running test program in a temporary folder, so that this folder is the root
// directory in which the copy looks for its modules.

#ifndef TESTS_OS_PROGRAMCOPY_H
#define TESTS_OS_PROGRAMCOPY_H

#include <filesystem>
#include <string>
#include <vector>

#include <tests/support/ChildProcess.h>
#include <tests/support/TemporaryFolder.h>

class ProgramCopy {
 public:
  ProgramCopy() {
    const std::filesystem::path own(test_support::OwnProgram());
    fProgram = fFolder.Copy(own.string(), own.filename().string());
    // Where libraries are found beside the program they go with it; elsewhere there are none here.
    // A name with a second ending is a plug-in's.
    for (const auto& entry : std::filesystem::directory_iterator(own.parent_path())) {
      if (entry.path().extension() == ".dll" && !entry.path().stem().has_extension()) {
        fFolder.Copy(entry.path().string(), entry.path().filename().string());
      }
    }
  }

  const test_support::TemporaryFolder& Folder() const { return fFolder; }

  // Copies one of the test modules beside the program, under `name` when that is given.
  void AddModule(const std::string& module, const std::string& name = "") const {
    fFolder.Copy(ModulePath(module), name.empty() ? module : name);
  }

  // Runs the child `name` (see QDACORE_CHILD) of the copy.
  test_support::ChildResult Run(const std::string& name,
                                const std::vector<std::string>& arguments = {}) const {
    std::vector<std::string> all = {"--run-as-child", name};
    all.insert(all.end(), arguments.begin(), arguments.end());
    return test_support::RunProgram(fProgram, all);
  }

  static std::string ModulePath(const std::string& module) {
    return test_support::OwnFolder() + "/test-modules/" + module;
  }

 private:
  test_support::TemporaryFolder fFolder;
  std::string fProgram;
};

#endif

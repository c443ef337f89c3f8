// Runs qda as an operator does, in a process of its own.

#ifndef TESTS_QDA_QDAPROGRAM_H
#define TESTS_QDA_QDAPROGRAM_H

#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include <smbios/sample/TableBuilder.h>
#include <tests/support/ChildProcess.h>
#include <tests/support/TemporaryFolder.h>

namespace qda_test {

// The qda of the build, with the modules beside it. The variables that it looks at are not set,
// but for those in `environment`.
test_support::ChildResult RunQda(
    const std::vector<std::string>& arguments,
    const std::vector<test_support::EnvironmentChange>& environment = {});

// A qda in a folder of its own, with no provider module beside it but those that are put there.
class Installation {
 public:
  Installation();

  const std::string& Path() const { return fFolder.Path(); }
  void AddMachineModule() const;
  void AddOddModule() const;
  void AddInventoryModule() const;
  // NAME.nsp.dll, which registers nothing and says "mark starts" on standard output when loaded.
  void AddMarkModule(const std::string& name) const;
  // A file of that name with that text.
  void AddFile(const std::string& name, const std::string& text) const;

  test_support::ChildResult Run(const std::vector<std::string>& arguments) const;

 private:
  test_support::TemporaryFolder fFolder;
  std::string fProgram;
};

// The dump of the sample table that comes with the build.
std::string SampleFile();

// A file with a dump, for one test.
class DumpFile {
 public:
  explicit DumpFile(const smbios::sample::TableBuilder& table);
  // One System Information structure with these strings; an empty one is no string.
  DumpFile(const std::string& productName, const std::string& serialNumber);

  const std::string& Path() const { return fPath; }

 private:
  void Write(const smbios::sample::TableBuilder& table);

  test_support::TemporaryFolder fFolder;
  std::string fPath;
};

// `text` as JSON; a failure of the test, and null, when it is none.
nlohmann::json ParseJson(const std::string& text);

}  // namespace qda_test

#endif

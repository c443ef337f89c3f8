// Where the DMTF schema stands, which is no part of this project.

#ifndef TESTS_SUPPORT_DMTFSCHEMA_H
#define TESTS_SUPPORT_DMTFSCHEMA_H

#include <cstdlib>
#include <filesystem>
#include <string>
#include <system_error>

namespace test_support {

// The main file of the schema in the folder that the environment variable QDACORE_DMTF_SCHEMA names
// (or the file, if it names that). Empty without the variable; a folder that has none is given back
// as it is, and fails to be read.
inline std::string DmtfSchemaFile() {
  const char* const named = std::getenv("QDACORE_DMTF_SCHEMA");
  const std::string path = named ? named : "";
  std::error_code error;
  for (const auto& entry : std::filesystem::directory_iterator(path, error)) {
    const std::string name = entry.path().filename().string();
    if (name.rfind("cim_schema", 0) == 0 && entry.path().extension() == ".mof") {
      return entry.path().string();
    }
  }
  return path;
}

}  // namespace test_support

#endif

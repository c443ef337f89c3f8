// An SMBIOS dump that stands for the machine's firmware, until the end of the scope.

#ifndef TESTS_OS_SMBIOSDUMP_H
#define TESTS_OS_SMBIOSDUMP_H

#include <cstdio>
#include <stdexcept>
#include <string>

#include <smbios/sample/TableBuilder.h>
#include <tests/support/ScopedEnvironment.h>
#include <tests/support/TemporaryFolder.h>

class SmbiosDump {
 public:
  explicit SmbiosDump(const smbios::sample::Bytes& bytes)
      : fPath(fFolder.PathOf("dump")), fVariable("QDA_SMBIOS_DUMP", fPath.c_str()) {
    Write(bytes);
  }

  // A new file each time: some file systems wait for the disk when an old one is overwritten.
  void Write(const smbios::sample::Bytes& bytes) const {
    std::remove(fPath.c_str());
    fFolder.Write("dump", std::string(bytes.begin(), bytes.end()));
  }

  const std::string& Path() const { return fPath; }

 private:
  test_support::TemporaryFolder fFolder;
  std::string fPath;
  test_support::ScopedEnvironment fVariable;
};

// What an operation gives, or "out of range" for that exception; others go on.
inline std::string Identified(std::string (*operation)()) {
  try {
    return operation();
  } catch (const std::out_of_range&) {
    return "out of range";
  }
}

#endif

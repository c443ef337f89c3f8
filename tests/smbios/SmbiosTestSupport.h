// What the tests of the smbios library share: dump files, the environment variable,
// and a handle that closes itself.

#ifndef TESTS_SMBIOS_SMBIOSTESTSUPPORT_H
#define TESTS_SMBIOS_SMBIOSTESTSUPPORT_H

#include <cstddef>
#include <filesystem>
#include <string>

#include <smbios/sample/TableBuilder.h>
#include <smbios/smbios.h>

namespace smbios_test {

using smbios::sample::Bytes;
using Status = NZRVQDA20::TQDAStatusCode;

Bytes ReadBytes(const std::filesystem::path& path);
void WriteBytes(const std::filesystem::path& path, const Bytes& bytes);

// A folder of this process's own, removed with all it holds.
class ScratchFolder {
 public:
  ScratchFolder();
  ~ScratchFolder();
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;

  const std::filesystem::path& Path() const { return fPath; }

 private:
  std::filesystem::path fPath;
};

// QDA_SMBIOS_DUMP names `path` until the scope ends; it is not set before and after.
// An empty path leaves it unset.
class DumpVariable {
 public:
  explicit DumpVariable(const std::filesystem::path& path);
  ~DumpVariable();
  DumpVariable(const DumpVariable&) = delete;
  DumpVariable& operator=(const DumpVariable&) = delete;
};

// Loads at once; the table is closed with the scope.
class LoadedTable {
 public:
  LoadedTable();
  // Loads `dump` from a file that is gone again when the constructor ends.
  explicit LoadedTable(const Bytes& dump);
  explicit LoadedTable(const std::filesystem::path& dumpFile);
  ~LoadedTable();
  LoadedTable(const LoadedTable&) = delete;
  LoadedTable& operator=(const LoadedTable&) = delete;

  int LoadStatus() const { return fStatus; }
  void* Handle() const { return fHandle; }

  // The nth structure of `type`; empty when there is none. Any type for -1.
  Bytes Get(int type, unsigned int nth = 0) const;
  // String of the first structure of `type` that the field at `offset` names.
  std::string Text(int type, std::size_t offset, unsigned int nth = 0) const;
  unsigned int Count(int type) const;

 private:
  void Load();

  int fStatus;
  void* fHandle;
};

// BIOS "1.0" of "ZRV", system "Tserver", end of table.
smbios::sample::TableBuilder SmallTable();

}  // namespace smbios_test

#endif

#include <windows.h>

#include <qdacore/host/HostServices.h>
#include <qdacore/host/win32/Errors.h>

namespace NZRVQDA20 {
namespace host {
namespace {

void TakeEntry(const WIN32_FIND_DATAA& data, FoundEntry& entry) {
  entry.name = data.cFileName;
  entry.isDirectory = (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

class WindowsFiles final : public Files {
 public:
  Outcome FindFirst(const std::string& directory, const std::string& pattern, Search& search,
                    FoundEntry& entry) override {
    WIN32_FIND_DATAA data;
    const HANDLE handle = FindFirstFileA((directory + "\\" + pattern).c_str(), &data);
    if (handle == INVALID_HANDLE_VALUE) {
      return OutcomeOfLastError();
    }
    try {
      TakeEntry(data, entry);
    } catch (...) {
      // No memory for the name: nothing may stay open.
      FindClose(handle);
      throw;
    }
    search = handle;
    return Success();
  }

  bool FindNext(Search search, FoundEntry& entry) override {
    WIN32_FIND_DATAA data;
    if (!FindNextFileA(search, &data)) {
      return false;
    }
    TakeEntry(data, entry);
    return true;
  }

  void CloseSearch(Search search) override { FindClose(search); }
};

}  // namespace

Files& SystemFiles() {
  static WindowsFiles files;
  return files;
}

}  // namespace host
}  // namespace NZRVQDA20

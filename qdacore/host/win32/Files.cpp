#include <windows.h>

#include <memory>

#include <qdacore/host/HostServices.h>
#include <qdacore/host/win32/Errors.h>

namespace NZRVQDA20 {
namespace host {
namespace {

struct OpenSearch {
  HANDLE handle;
  // The last entry's, whose name callers look at.
  WIN32_FIND_DATAA data;
};

void TakeEntry(const WIN32_FIND_DATAA& data, FoundEntry& entry) {
  entry.name = data.cFileName;
  // Junctions and links count as what they lead to; there is no call that makes one again.
  entry.isDirectory = (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
  entry.isLink = false;
}

class WindowsFiles final : public Files {
 public:
  Outcome FindFirst(const std::string& directory, const std::string& pattern, Search& search,
                    FoundEntry& entry) override {
    return FindFirstPath(directory + "\\" + pattern, search, entry);
  }

  Outcome FindFirstPath(const std::string& path, Search& search, FoundEntry& entry) override {
    std::unique_ptr<OpenSearch> open(new OpenSearch);
    open->handle = FindFirstFileA(path.c_str(), &open->data);
    if (open->handle == INVALID_HANDLE_VALUE) {
      return OutcomeOfLastError();
    }
    TakeEntry(open->data, entry);
    search = open.release();
    return Success();
  }

  Outcome FindNext(Search search, FoundEntry& entry) override {
    OpenSearch& open = *static_cast<OpenSearch*>(search);
    if (!FindNextFileA(open.handle, &open.data)) {
      return GetLastError() == ERROR_NO_MORE_FILES
                 ? Outcome{Situation::kNoFile, ERROR_NO_MORE_FILES}
                 : Outcome{Situation::kOther, GetLastError()};
    }
    TakeEntry(open.data, entry);
    return Success();
  }

  std::size_t ExpectedEntries(Search /*search*/) override { return 0; }

  void CloseSearch(Search search) override {
    const std::unique_ptr<OpenSearch> open(static_cast<OpenSearch*>(search));
    FindClose(open->handle);
  }

  Outcome MakeDirectory(const std::string& path) override {
    return CreateDirectoryA(path.c_str(), nullptr) ? Success() : OutcomeOfLastError();
  }

  Outcome ReadKind(const std::string& path, bool& isDirectory) override {
    const DWORD attributes = GetFileAttributesA(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) {
      return OutcomeOfLastError();
    }
    isDirectory = (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    return Success();
  }

  Outcome ReadSize(const std::string& path, std::uint64_t& size) override {
    WIN32_FIND_DATAA data;
    const HANDLE handle = FindFirstFileA(path.c_str(), &data);
    if (handle == INVALID_HANDLE_VALUE) {
      return OutcomeOfLastError();
    }
    FindClose(handle);
    size = (static_cast<std::uint64_t>(data.nFileSizeHigh) << 32) + data.nFileSizeLow;
    return Success();
  }

  // The host's own copy keeps the promises of the interface; it follows links.
  Outcome Copy(const std::string& source, const std::string& target, AtLink /*atLink*/) override {
    return CopyFileA(source.c_str(), target.c_str(), FALSE) ? Success() : OutcomeOfLastError();
  }

  Outcome CopyLink(const std::string& /*source*/, const std::string& /*target*/) override {
    return {Situation::kOther, ERROR_NOT_SUPPORTED};
  }

  bool IsLink(const std::string& /*path*/) override { return false; }

  bool Identify(const std::string& path, DirectoryIdentity& identity) override {
    const DWORD shareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const HANDLE handle = CreateFileA(path.c_str(), 0, shareAll, nullptr, OPEN_EXISTING,
                                      FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (handle == INVALID_HANDLE_VALUE) {
      return false;
    }
    BY_HANDLE_FILE_INFORMATION facts = {};
    const bool told = GetFileInformationByHandle(handle, &facts) != 0;
    CloseHandle(handle);
    identity.volume = facts.dwVolumeSerialNumber;
    identity.index = (static_cast<std::uint64_t>(facts.nFileIndexHigh) << 32) + facts.nFileIndexLow;
    // File systems that do not number their files give 0 for each.
    return told && identity.index != 0;
  }

  std::size_t CurrentDirectory(char* buffer, std::size_t size) override {
    return GetCurrentDirectoryA(static_cast<DWORD>(size), buffer);
  }
};

}  // namespace

Files& SystemFiles() {
  static WindowsFiles files;
  return files;
}

}  // namespace host
}  // namespace NZRVQDA20

// Files and directories, one at a time.

#include <qdacore/frame/internal/Throw.h>
#include <qdacore/host/Files.h>
#include <qdacore/os/TOSSpecific.h>
#include <qdacore/os/internal/CallerPath.h>
#include <qdacore/os/internal/DirectorySearch.h>
#include <qdacore/os/internal/FileSteps.h>

namespace NZRVQDA20 {

namespace {

PathKind KindOfCallerPath(const std::string& path) {
  return HoldsNul(path) ? PathKind::kMissing : KindOf(ToHostPath(path));
}

}  // namespace

void TOSSpecific::CreateDir(std::string path) {
  if (HoldsNul(path)) {
    FileSystemError();
  }
  MakeDirectory(ToHostPath(path));
}

bool TOSSpecific::DirExists(std::string path) {
  return KindOfCallerPath(path) == PathKind::kDirectory;
}

bool TOSSpecific::FileExists(std::string path) { return KindOfCallerPath(path) == PathKind::kFile; }

void TOSSpecific::FileCopy(std::string source, std::string target) {
  if (HoldsNul(source) || HoldsNul(target)) {
    FileSystemError();
  }
  CopyOneFile(ToHostPath(source), ToHostPath(target), host::Files::AtLink::kFollow);
}

std::vector<std::string> TOSSpecific::ListDir(std::string path) {
  if (HoldsNul(path)) {
    FileSystemError();
  }
  DirectorySearch search(ToHostPath(path), "*");
  if (!search.Opening().Done()) {
    FileSystemError();
  }
  std::vector<std::string> names;
  names.reserve(search.ExpectedEntries());
  host::Outcome next = host::Success();
  for (; next.Done(); next = search.Next()) {
    const std::string_view name = search.Entry().name;
    // Not only "." and "..".
    if (name[0] != '.') {
      names.emplace_back(name);
    }
  }
  if (next.situation != host::Situation::kNoFile) {
    // A list that is cut short would look like a whole one.
    FileSystemError();
  }
  return names;
}

unsigned long long TOSSpecific::GetFileSize(std::string path) {
  const std::string hostPath = HoldsNul(path) ? std::string() : ToHostPath(path);
  if (KindOf(hostPath) != PathKind::kFile) {
    Throw(TQDAStatusCode::kQDAStatusFileNotFound);
  }
  std::uint64_t size = 0;
  switch (host::HostFiles().ReadSize(hostPath, size).situation) {
    case host::Situation::kDone:
      return size;
    case host::Situation::kNoFile:
    case host::Situation::kNoPath:
      Throw(TQDAStatusCode::kQDAStatusFileNotFound);
    default:
      FileSystemError();
  }
}

std::string TOSSpecific::GetCurrentDir() {
  // The longest path that all calls of the other host take, and its NUL.
  char buffer[261] = {};
  if (host::HostFiles().CurrentDirectory(buffer, sizeof buffer) == 0) {
    FileSystemError();
  }
  // That the directory may be longer than the buffer is not looked at, which is meant: what the
  // host left in the buffer is the result.
  buffer[sizeof buffer - 1] = '\0';
  return buffer;
}

}  // namespace NZRVQDA20

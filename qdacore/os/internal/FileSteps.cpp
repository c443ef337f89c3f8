#include <qdacore/frame/internal/Throw.h>
#include <qdacore/os/internal/FileSteps.h>

namespace NZRVQDA20 {

void FileSystemError() { Throw(TQDAStatusCode::kQDAStatusFileSystemError); }

PathKind KindOf(const std::string& path) {
  bool isDirectory = false;
  switch (host::HostFiles().ReadKind(path, isDirectory).situation) {
    case host::Situation::kDone:
      return isDirectory ? PathKind::kDirectory : PathKind::kFile;
    case host::Situation::kNoFile:
    case host::Situation::kNoPath:
      return PathKind::kMissing;
    default:
      // Also when access is denied: "no" would be a guess.
      FileSystemError();
  }
}

void MakeDirectory(const std::string& path) {
  switch (host::HostFiles().MakeDirectory(path).situation) {
    case host::Situation::kDone:
      return;
    case host::Situation::kExists:
      Throw(TQDAStatusCode::kQDAStatusDirectoryAlreadyExists);
    case host::Situation::kDenied:
    case host::Situation::kNotReady:
      Throw(TQDAStatusCode::kQDAStatusAccessDenied);
    default:
      FileSystemError();
  }
}

void ExpectCopied(const host::Outcome& copied) {
  switch (copied.situation) {
    case host::Situation::kDone:
      return;
    case host::Situation::kDenied:
    case host::Situation::kNotReady:
      Throw(TQDAStatusCode::kQDAStatusAccessDenied);
    default:
      // A missing source too: it has no status of its own here.
      FileSystemError();
  }
}

void CopyOneFile(const std::string& source, const std::string& target, host::Files::AtLink atLink) {
  ExpectCopied(host::HostFiles().Copy(source, target, atLink));
}

}  // namespace NZRVQDA20

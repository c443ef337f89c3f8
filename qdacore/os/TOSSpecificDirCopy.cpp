// The copy of a directory.

#include <algorithm>

#include <qdacore/host/Files.h>
#include <qdacore/host/Paths.h>
#include <qdacore/os/TOSSpecific.h>
#include <qdacore/os/internal/CallerPath.h>
#include <qdacore/os/internal/DirectorySearch.h>
#include <qdacore/os/internal/FileSteps.h>

namespace NZRVQDA20 {

namespace {

// An empty path becomes the root directory, which is meant.
std::string WithSeparatorAtEnd(const std::string& path) {
  const bool hasOne = !path.empty() && path.back() == host::PathSeparator();
  return hasOne ? path : path + host::PathSeparator();
}

// One call of DirCopy. Names of entries are appended as they are: none is a path, and none leads
// out of its directory.
class DirectoryCopy {
 public:
  explicit DirectoryCopy(bool recursive) : fRecursive(recursive) {}

  // Both paths end in a separator.
  void Run(const std::string& source, const std::string& target) {
    // The search puts the separator there itself.
    DirectorySearch search(source.substr(0, source.size() - 1), "*");
    if (!search.Opening().Done()) {
      FileSystemError();
    }
    if (KindOf(target) != PathKind::kDirectory) {
      MakeDirectory(target);
    }
    if (fRecursive && fBarred.empty()) {
      Bar(target);
      Bar(source);
    }
    // From here on a failure leaves the search open, which is meant.
    search.LeaveOpen();
    host::Outcome next = host::Success();
    for (; next.Done(); next = search.Next()) {
      const host::FoundEntry& entry = search.Entry();
      // Not only "." and "..".
      if (entry.name[0] != '.') {
        CopyEntry(entry, std::string(source).append(entry.name),
                  std::string(target).append(entry.name));
      }
    }
    if (next.situation != host::Situation::kNoFile) {
      // A copy that is cut short would look like a whole one.
      FileSystemError();
    }
    search.Close();
  }

 private:
  void CopyEntry(const host::FoundEntry& entry, const std::string& source,
                 const std::string& target) {
    if (entry.isDirectory && !fRecursive) {
      return;
    }
    if (entry.isLink && (entry.isDirectory || KindOf(source) == PathKind::kMissing)) {
      // Followed, it could lead back up or anywhere.
      ExpectCopied(host::HostFiles().CopyLink(source, target));
    } else if (entry.isDirectory) {
      CopyDirectory(source, target);
    } else {
      CopyOneFile(source, target, host::Files::AtLink::kReplace);
    }
  }

  void CopyDirectory(const std::string& source, const std::string& target) {
    host::DirectoryIdentity identity;
    const bool isKnown = host::HostFiles().Identify(source, identity);
    if (isKnown && std::find(fBarred.begin(), fBarred.end(), identity) != fBarred.end()) {
      // It holds itself, or is what this copy has just made: there would be no end.
      return;
    }
    if (host::HostFiles().IsLink(target)) {
      // What is copied would land outside of the target.
      FileSystemError();
    }
    if (isKnown) {
      fBarred.push_back(identity);
    }
    Run(WithSeparatorAtEnd(source), WithSeparatorAtEnd(target));
    if (isKnown) {
      fBarred.pop_back();
    }
  }

  void Bar(const std::string& directory) {
    host::DirectoryIdentity identity;
    if (host::HostFiles().Identify(directory, identity)) {
      fBarred.push_back(identity);
    }
  }

  const bool fRecursive;
  // Directories that are not entered: the target, and those that are being copied.
  std::vector<host::DirectoryIdentity> fBarred;
};

}  // namespace

void TOSSpecific::DirCopy(std::string source, std::string target, bool recursive) {
  if (HoldsNul(source) || HoldsNul(target)) {
    FileSystemError();
  }
  DirectoryCopy(recursive).Run(WithSeparatorAtEnd(ToHostPath(source)),
                               WithSeparatorAtEnd(ToHostPath(target)));
}

}  // namespace NZRVQDA20

#include <dirent.h>
#include <errno.h>
#include <fcntl.h>
#include <limits.h>
#include <string.h>
#include <sys/stat.h>
#include <unistd.h>

#include <memory>

#include <qdacore/host/HostServices.h>
#include <qdacore/host/posix/Errors.h>
#include <qdacore/host/posix/FileCopy.h>
#include <qdacore/host/posix/Wildcard.h>

namespace NZRVQDA20 {
namespace host {
namespace {

struct OpenSearch {
  OpenSearch(DIR* opened, const std::string& wanted)
      : directory(opened, closedir), pattern(wanted) {}

  // Null behind the end, so that a search which nobody closes costs no descriptor.
  std::unique_ptr<DIR, int (*)(DIR*)> directory;
  std::string pattern;
};

bool IsDirectory(DIR* directory, const dirent& entry) {
  if (entry.d_type != DT_UNKNOWN && entry.d_type != DT_LNK) {
    return entry.d_type == DT_DIR;
  }
  struct stat facts;
  return fstatat(dirfd(directory), entry.d_name, &facts, 0) == 0 && S_ISDIR(facts.st_mode);
}

bool IsLinkEntry(DIR* directory, const dirent& entry) {
  if (entry.d_type != DT_UNKNOWN) {
    return entry.d_type == DT_LNK;
  }
  struct stat facts;
  return fstatat(dirfd(directory), entry.d_name, &facts, AT_SYMLINK_NOFOLLOW) == 0 &&
         S_ISLNK(facts.st_mode);
}

// `place` names the directory itself, with a slash at its end or as ".".
Outcome OpenSearchAt(const std::string& place, const std::string& pattern, Files& files,
                     Files::Search& search, FoundEntry& entry) {
  std::unique_ptr<OpenSearch> open(new OpenSearch(nullptr, pattern));
  // Descriptors that opendir makes are not inherited.
  open->directory.reset(opendir(place.c_str()));
  if (!open->directory) {
    // A directory that is missing is a path that is not found, not a file.
    return errno == ENOENT ? Outcome{Situation::kNoPath, 3} : OutcomeOfErrno(errno);
  }
  const Outcome first = files.FindNext(open.get(), entry);
  if (!first.Done()) {
    return first.situation == Situation::kNoFile ? Outcome{Situation::kNoFile, 2} : first;
  }
  search = open.release();
  return Success();
}

class PosixFiles final : public Files {
 public:
  Outcome FindFirst(const std::string& directory, const std::string& pattern, Search& search,
                    FoundEntry& entry) override {
    // "dir/" also names the root directory when `directory` is empty.
    return OpenSearchAt(directory + "/", pattern, *this, search, entry);
  }

  Outcome FindFirstPath(const std::string& path, Search& search, FoundEntry& entry) override {
    const std::size_t slash = path.rfind('/');
    if (slash == std::string::npos) {
      return OpenSearchAt(".", path, *this, search, entry);
    }
    return OpenSearchAt(path.substr(0, slash + 1), path.substr(slash + 1), *this, search, entry);
  }

  Outcome FindNext(Search search, FoundEntry& entry) override {
    OpenSearch& open = *static_cast<OpenSearch*>(search);
    while (open.directory) {
      errno = 0;
      const dirent* found = readdir(open.directory.get());
      if (!found) {
        const int error = errno;
        open.directory.reset();
        if (error != 0) {
          return OutcomeOfErrno(error).situation == Situation::kNoFile
                     ? Outcome{Situation::kOther, 31}
                     : OutcomeOfErrno(error);
        }
      } else if (MatchesWildcard(open.pattern, found->d_name)) {
        entry.name = found->d_name;
        entry.isLink = IsLinkEntry(open.directory.get(), *found);
        entry.isDirectory = IsDirectory(open.directory.get(), *found);
        return Success();
      }
    }
    const unsigned long noMoreFiles = 18;
    return {Situation::kNoFile, noMoreFiles};
  }

  void CloseSearch(Search search) override { delete static_cast<OpenSearch*>(search); }

  Outcome MakeDirectory(const std::string& path) override {
    return mkdir(path.c_str(), 0777) == 0 ? Success() : OutcomeOfErrno(errno);
  }

  Outcome ReadKind(const std::string& path, bool& isDirectory) override {
    struct stat facts;
    if (stat(path.c_str(), &facts) != 0) {
      return OutcomeOfErrno(errno);
    }
    isDirectory = S_ISDIR(facts.st_mode);
    return Success();
  }

  Outcome ReadSize(const std::string& path, std::uint64_t& size) override {
    struct stat facts;
    if (stat(path.c_str(), &facts) != 0) {
      return OutcomeOfErrno(errno);
    }
    size = static_cast<std::uint64_t>(facts.st_size);
    return Success();
  }

  Outcome Copy(const std::string& source, const std::string& target, AtLink atLink) override {
    return CopyOneFile(source.c_str(), target.c_str(), atLink == AtLink::kReplace);
  }

  Outcome CopyLink(const std::string& source, const std::string& target) override {
    char text[PATH_MAX];
    const ssize_t length = readlink(source.c_str(), text, sizeof text - 1);
    if (length < 0) {
      return OutcomeOfErrno(errno);
    }
    text[length] = '\0';
    if (symlink(text, target.c_str()) == 0) {
      return Success();
    }
    const int error = errno;
    if (error != EEXIST || !IsLink(target)) {
      return OutcomeOfErrno(error);
    }
    if (unlink(target.c_str()) != 0 || symlink(text, target.c_str()) != 0) {
      return OutcomeOfErrno(errno);
    }
    return Success();
  }

  bool IsLink(const std::string& path) override {
    struct stat facts;
    return lstat(path.c_str(), &facts) == 0 && S_ISLNK(facts.st_mode);
  }

  bool Identify(const std::string& path, DirectoryIdentity& identity) override {
    struct stat facts;
    if (stat(path.c_str(), &facts) != 0) {
      return false;
    }
    identity.volume = facts.st_dev;
    identity.index = facts.st_ino;
    // File systems that do not number their files give 0 for each.
    return identity.index != 0;
  }

  std::size_t CurrentDirectory(char* buffer, std::size_t size) override {
    char path[PATH_MAX];
    if (!getcwd(path, sizeof path)) {
      // Longer than any path that a call takes is too long for the buffer as well.
      return errno == ERANGE ? sizeof path : 0;
    }
    const std::size_t length = strlen(path);
    if (length < size) {
      memcpy(buffer, path, length + 1);
    }
    return length < size ? length : length + 1;
  }
};

}  // namespace

Files& SystemFiles() {
  static PosixFiles files;
  return files;
}

}  // namespace host
}  // namespace NZRVQDA20

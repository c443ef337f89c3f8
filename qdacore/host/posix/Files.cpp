#include <dirent.h>
#include <errno.h>
#include <fcntl.h>
#include <limits.h>
#include <string.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <memory>

#include <qdacore/host/HostServices.h>
#include <qdacore/host/posix/Descriptor.h>
#include <qdacore/host/posix/Errors.h>
#include <qdacore/host/posix/FileCopy.h>
#include <qdacore/host/posix/Wildcard.h>

namespace NZRVQDA20 {
namespace host {
namespace {

// Reads entries as readdir does, but more in one call of the kernel.
class OpenSearch {
 public:
  OpenSearch(const char* place, const std::string& wanted)
      : pattern(wanted),
        fDirectory(open(place, O_RDONLY | O_DIRECTORY | O_NONBLOCK | O_CLOEXEC)),
        fBuffer(fDirectory.Open() ? new char[kBufferSize] : nullptr) {}

  bool Open() const { return fDirectory.Open(); }

  // Null with 0 or an error number in errno at the end. That also releases all but the object, so
  // that a search which nobody closes costs little.
  const dirent64* Next() {
    if (fAt == fEnd && !Fill()) {
      return nullptr;
    }
    const dirent64* const entry = reinterpret_cast<const dirent64*>(&fBuffer[fAt]);
    fAt += entry->d_reclen;
    return entry;
  }

  // Links are followed.
  bool IsDirectory(const dirent64& entry) const {
    const bool isTold = entry.d_type != DT_UNKNOWN && entry.d_type != DT_LNK;
    return isTold ? entry.d_type == DT_DIR : IsOfType(entry, S_IFDIR, 0);
  }

  bool IsLink(const dirent64& entry) const {
    return entry.d_type == DT_LNK ||
           (entry.d_type == DT_UNKNOWN && IsOfType(entry, S_IFLNK, AT_SYMLINK_NOFOLLOW));
  }

  std::size_t ExpectedEntries() const {
    // A fifth less than what an entry takes in memory, and about the least that one with a name of
    // some length takes on a disk: a list that comes out a little longer does not grow, and the
    // allocator keeps its memory for the next one. A network's or a user's file system may say
    // anything.
    const off_t entrySize = 16;
    const off_t most = 1 << 20;
    struct stat facts;
    const bool isTold =
        fstat(fDirectory.Number(), &facts) == 0 && facts.st_size > off_t(kBufferSize);
    return isTold ? static_cast<std::size_t>(std::min(facts.st_size / entrySize, most)) : 0;
  }

  const std::string pattern;

 private:
  static const std::size_t kBufferSize = 64 * 1024;

  bool Fill() {
    errno = 0;
    const ssize_t got = fBuffer ? getdents64(fDirectory.Number(), fBuffer.get(), kBufferSize) : 0;
    if (got > 0) {
      fAt = 0;
      fEnd = static_cast<std::size_t>(got);
      return true;
    }
    // A directory that is removed meanwhile is at its end.
    const int error = errno == ENOENT ? 0 : errno;
    fDirectory.Close();
    fBuffer.reset();
    errno = error;
    return false;
  }

  bool IsOfType(const dirent64& entry, mode_t type, int flags) const {
    struct stat facts;
    return fstatat(fDirectory.Number(), entry.d_name, &facts, flags) == 0 &&
           (facts.st_mode & S_IFMT) == type;
  }

  Descriptor fDirectory;
  std::unique_ptr<char[]> fBuffer;
  std::size_t fAt = 0;
  std::size_t fEnd = 0;
};

// `place` names the directory itself, with a slash at its end or as ".".
Outcome OpenSearchAt(const std::string& place, const std::string& pattern, Files& files,
                     Files::Search& search, FoundEntry& entry) {
  std::unique_ptr<OpenSearch> open(new OpenSearch(place.c_str(), pattern));
  if (!open->Open()) {
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
    while (const dirent64* found = open.Next()) {
      if (MatchesWildcard(open.pattern, found->d_name)) {
        entry.name = found->d_name;
        entry.isLink = open.IsLink(*found);
        entry.isDirectory = open.IsDirectory(*found);
        return Success();
      }
    }
    const unsigned long noMoreFiles = 18;
    return errno == 0 ? Outcome{Situation::kNoFile, noMoreFiles} : OutcomeOfErrno(errno);
  }

  std::size_t ExpectedEntries(Search search) override {
    return static_cast<OpenSearch*>(search)->ExpectedEntries();
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

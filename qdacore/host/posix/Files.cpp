#include <dirent.h>
#include <errno.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <memory>

#include <qdacore/host/HostServices.h>
#include <qdacore/host/posix/Errors.h>
#include <qdacore/host/posix/Wildcard.h>

namespace NZRVQDA20 {
namespace host {
namespace {

struct OpenSearch {
  OpenSearch(DIR* opened, const std::string& wanted)
      : directory(opened, closedir), pattern(wanted) {}

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

class PosixFiles final : public Files {
 public:
  Outcome FindFirst(const std::string& directory, const std::string& pattern, Search& search,
                    FoundEntry& entry) override {
    // "dir/" also names the root directory when `directory` is empty, and descriptors that
    // opendir makes are not inherited.
    std::unique_ptr<OpenSearch> open(new OpenSearch(nullptr, pattern));
    open->directory.reset(opendir((directory + "/").c_str()));
    if (!open->directory) {
      // A directory that is missing is a path that is not found, not a file.
      return errno == ENOENT ? Outcome{Situation::kNoPath, 3} : OutcomeOfErrno(errno);
    }
    if (!FindNext(open.get(), entry)) {
      return {Situation::kNoFile, 2};
    }
    search = open.release();
    return Success();
  }

  bool FindNext(Search search, FoundEntry& entry) override {
    OpenSearch& open = *static_cast<OpenSearch*>(search);
    while (const dirent* found = readdir(open.directory.get())) {
      if (MatchesWildcard(open.pattern, found->d_name)) {
        entry.name = found->d_name;
        entry.isDirectory = IsDirectory(open.directory.get(), *found);
        return true;
      }
    }
    return false;
  }

  void CloseSearch(Search search) override { delete static_cast<OpenSearch*>(search); }
};

}  // namespace

Files& SystemFiles() {
  static PosixFiles files;
  return files;
}

}  // namespace host
}  // namespace NZRVQDA20

#include <errno.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>

#include <memory>

#include <qdacore/host/posix/Descriptor.h>
#include <qdacore/host/posix/Errors.h>
#include <qdacore/host/posix/FileCopy.h>

namespace NZRVQDA20 {
namespace host {
namespace {

const std::size_t kBufferSize = 256 * 1024;
// What Windows gives for a file that is copied onto itself, and for what is no file.
constexpr Outcome kInUse = {Situation::kOther, 32};
constexpr Outcome kNoRegularFile = {Situation::kOther, 1};
constexpr Outcome kIsDirectory = {Situation::kDenied, 5};

bool SameFile(const struct stat& one, const struct stat& other) {
  return one.st_dev == other.st_dev && one.st_ino == other.st_ino;
}

// kDone when a copy may read or write what is there.
Outcome CheckRegular(const struct stat& facts) {
  if (S_ISDIR(facts.st_mode)) {
    return kIsDirectory;
  }
  return S_ISREG(facts.st_mode) ? Success() : kNoRegularFile;
}

// Reads and writes one buffer at most. -1 with errno, 0 at the end of the file.
ssize_t CopyThroughMemory(int from, int to, off_t at, std::size_t limit, char* buffer) {
  ssize_t got;
  do {
    got = pread(from, buffer, limit < kBufferSize ? limit : kBufferSize, at);
  } while (got < 0 && errno == EINTR);
  for (ssize_t written = 0; written < got;) {
    const ssize_t count =
        pwrite(to, buffer + written, static_cast<std::size_t>(got - written), at + written);
    if (count < 0 && errno != EINTR) {
      return -1;
    }
    written += count > 0 ? count : 0;
  }
  return got;
}

// Copies contents between two open files, the target being empty.
class ContentsCopy {
 public:
  ContentsCopy(int from, int to) : fFrom(from), fTo(to) {}

  // `facts` are the source's. False with errno.
  bool Run(const struct stat& facts) {
    const off_t size = facts.st_size;
    // Files that the kernel makes up say that they are empty: then the end is where reading ends.
    if (size == 0) {
      return CopyTo(kUnknownEnd);
    }
    const off_t blockSize = 512;
    if (facts.st_blocks >= size / blockSize) {
      // Looking for holes goes through all of a file in memory.
      return CopyTo(size);
    }
    while (fAt < size) {
      const off_t data = lseek(fFrom, fAt, SEEK_DATA);
      if (data < 0 && errno == ENXIO) {
        break;
      }
      // A file system that knows no holes: all of it is data.
      off_t end = data < 0 ? size : lseek(fFrom, data, SEEK_HOLE);
      end = end < 0 || end > size ? size : end;
      fAt = data < 0 ? fAt : data;
      if (fAt < end && !CopyTo(end)) {
        return false;
      }
      if (fAt < end) {
        // Shorter than it says, as the kernel's own files are.
        return true;
      }
    }
    // A hole at the end.
    return fAt >= size || ftruncate(fTo, size) == 0;
  }

 private:
  static const off_t kUnknownEnd = -1;

  // Up to `end` or the end of the file.
  bool CopyTo(off_t end) {
    while (fAt != end) {
      const std::size_t most = std::size_t(1) << 30;
      const off_t left = end - fAt;
      const std::size_t limit =
          end == kUnknownEnd || left > off_t(most) ? most : static_cast<std::size_t>(left);
      ssize_t count = fInKernel && end != kUnknownEnd ? CopyInKernel(limit) : 0;
      if (count == 0) {
        // Also behind a kernel that copies nothing of files that it makes up: reading is the proof.
        if (!fBuffer) {
          fBuffer.reset(new char[kBufferSize]);
        }
        count = CopyThroughMemory(fFrom, fTo, fAt, limit, fBuffer.get());
      }
      if (count <= 0) {
        return count == 0;
      }
      fAt += count;
    }
    return true;
  }

  // 0: nothing more this way. -1 with errno: the copy has failed.
  ssize_t CopyInKernel(std::size_t limit) {
    off_t from = fAt;
    off_t to = fAt;
    ssize_t count;
    do {
      count = copy_file_range(fFrom, &from, fTo, &to, limit, 0);
    } while (count < 0 && errno == EINTR);
    if (count >= 0) {
      fInKernel = count > 0;
      return count;
    }
    fInKernel = false;
    // Those that mean a bad write stand; all others that this pair of files cannot do it.
    return errno == ENOSPC || errno == EDQUOT || errno == EFBIG || errno == EIO ? -1 : 0;
  }

  const int fFrom;
  const int fTo;
  off_t fAt = 0;
  bool fInKernel = true;
  std::unique_ptr<char[]> fBuffer;
};

int OpenTarget(const char* target, mode_t mode, bool replaceLink) {
  const int flags = O_WRONLY | O_CREAT | O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
  const int opened = open(target, flags | (replaceLink ? O_NOFOLLOW : 0), mode);
  if (opened >= 0 || !replaceLink || errno != ELOOP) {
    return opened;
  }
  return unlink(target) == 0 ? open(target, flags | O_EXCL | O_NOFOLLOW, mode) : -1;
}

// What stands there now is not looked at before it is opened but for its kind: opening a pipe or
// a device can already do something.
Outcome CheckTarget(const char* target, bool replaceLink) {
  struct stat facts;
  if ((replaceLink ? lstat(target, &facts) : stat(target, &facts)) != 0 ||
      (replaceLink && S_ISLNK(facts.st_mode))) {
    return Success();
  }
  return CheckRegular(facts);
}

// After a failure: under the name that was asked for goes the file; behind a link it is emptied.
void Discard(const char* target, int descriptor, const struct stat& facts) {
  struct stat named;
  if (lstat(target, &named) != 0 || !SameFile(named, facts) || unlink(target) != 0) {
    // Nothing is left to be done when this fails too.
    if (ftruncate(descriptor, 0) != 0) {
      return;
    }
  }
}

Outcome CopyBetween(int from, const struct stat& sourceFacts, Descriptor& to, const char* target) {
  struct stat targetFacts;
  if (fstat(to.Number(), &targetFacts) != 0) {
    return OutcomeOfErrno(errno);
  }
  const Outcome check = CheckRegular(targetFacts);
  if (!check.Done()) {
    return check;
  }
  if (SameFile(sourceFacts, targetFacts)) {
    return kInUse;
  }
  // Not for an empty one: some file systems take that for a replacement, and write all of it to
  // the device before the close returns.
  if (targetFacts.st_size > 0 && ftruncate(to.Number(), 0) != 0) {
    // Whole as it was.
    return OutcomeOfErrno(errno);
  }
  ContentsCopy copy(from, to.Number());
  if (!copy.Run(sourceFacts)) {
    const Outcome failure = OutcomeOfErrno(errno);
    Discard(target, to.Number(), targetFacts);
    return failure;
  }
  // Not to be had for a file of somebody else's, and the copy is good without it.
  const struct timespec times[2] = {{0, UTIME_OMIT}, sourceFacts.st_mtim};
  static_cast<void>(futimens(to.Number(), times));
  if (!to.Close()) {
    const Outcome failure = OutcomeOfErrno(errno);
    Discard(target, -1, targetFacts);
    return failure;
  }
  return Success();
}

}  // namespace

Outcome CopyOneFile(const char* source, const char* target, bool replaceLink) {
  struct stat facts;
  if (stat(source, &facts) != 0) {
    return OutcomeOfErrno(errno);
  }
  Outcome check = CheckRegular(facts);
  check = check.Done() ? CheckTarget(target, replaceLink) : check;
  if (!check.Done()) {
    return check;
  }
  const Descriptor from(open(source, O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
  if (!from.Open() || fstat(from.Number(), &facts) != 0) {
    return OutcomeOfErrno(errno);
  }
  check = CheckRegular(facts);
  if (!check.Done()) {
    return check;
  }
  Descriptor to(OpenTarget(target, facts.st_mode & 0777, replaceLink));
  if (!to.Open()) {
    // A name that ends in a slash can be no file's; a directory was found above.
    return errno == EISDIR ? Outcome{Situation::kNoPath, 3} : OutcomeOfErrno(errno);
  }
  return CopyBetween(from.Number(), facts, to, target);
}

}  // namespace host
}  // namespace NZRVQDA20

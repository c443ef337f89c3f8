// The host's files and directories. Nothing here throws anything of ours; paths and names are bytes
// without a NUL, and paths are in the host's own form. Links are followed but where it says
// otherwise.

#ifndef QDACORE_HOST_FILES_H
#define QDACORE_HOST_FILES_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include <qdacore/host/Situation.h>

namespace NZRVQDA20 {
namespace host {

struct FoundEntry {
  // A name, never a path. It stands in the search, until the search goes on or is closed.
  std::string_view name;
  // Links are followed.
  bool isDirectory = false;
  // A symbolic link of a host that can make the same link again elsewhere.
  bool isLink = false;
};

// Which directory a path leads to, whatever the path.
struct DirectoryIdentity {
  std::uint64_t volume;
  std::uint64_t index;

  bool operator==(const DirectoryIdentity& other) const {
    return volume == other.volume && index == other.index;
  }
};

class Files {
 public:
  typedef void* Search;

  // What a copy does with a link that stands where the copy shall stand.
  enum class AtLink { kFollow, kReplace };

  // Looks for the entries of `directory` whose names match `pattern`: "*" is any text, "?" any
  // one character, all else stands for itself; "." and ".." are entries too. On kDone `entry`
  // is the first and `search` must be closed; otherwise nothing is open. No match is kNoFile.
  virtual Outcome FindFirst(const std::string& directory, const std::string& pattern,
                            Search& search, FoundEntry& entry) = 0;

  // The same for a path whose last part is the pattern; a pattern alone searches the current
  // directory.
  virtual Outcome FindFirstPath(const std::string& path, Search& search, FoundEntry& entry) = 0;

  // kNoFile at the end. A search at its end holds memory only until it is closed.
  virtual Outcome FindNext(Search search, FoundEntry& entry) = 0;

  // About how many entries a big directory has, to set memory aside for: a guess, at most a
  // million. 0 for one that is not big, and where the host cannot tell.
  virtual std::size_t ExpectedEntries(Search search) = 0;

  virtual void CloseSearch(Search search) = 0;

  // One level; all else must be there.
  virtual Outcome MakeDirectory(const std::string& path) = 0;

  virtual Outcome ReadKind(const std::string& path, bool& isDirectory) = 0;

  // The size of a file in bytes.
  virtual Outcome ReadSize(const std::string& path, std::uint64_t& size) = 0;

  // Copies one file's contents, replacing those of a `target` that is there. A directory on either
  // side is kDenied; neither a file copied onto itself nor what is no file is touched. After a
  // failure on the way no part of the copy stays.
  virtual Outcome Copy(const std::string& source, const std::string& target, AtLink atLink) = 0;

  // Makes the link `source` again as `target`, in place of a link that is there.
  virtual Outcome CopyLink(const std::string& source, const std::string& target) = 0;

  // Whether the path itself is a link in the sense of FoundEntry.
  virtual bool IsLink(const std::string& path) = 0;

  // False when the host cannot tell.
  virtual bool Identify(const std::string& path, DirectoryIdentity& identity) = 0;

  // Writes the current directory and a NUL into `buffer`, of `size` characters, and returns its
  // length. 0: not to be had. `size` or more: it does not fit, and nothing is promised about the
  // buffer.
  virtual std::size_t CurrentDirectory(char* buffer, std::size_t size) = 0;

 protected:
  // Never deleted through this: the objects are static, and need no end.
  ~Files() = default;
};

Files& HostFiles();

}  // namespace host
}  // namespace NZRVQDA20

#endif

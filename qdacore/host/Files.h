// The host's file search. Nothing here throws anything of ours; paths and names are bytes.

#ifndef QDACORE_HOST_FILES_H
#define QDACORE_HOST_FILES_H

#include <string>

#include <qdacore/host/Situation.h>

namespace NZRVQDA20 {
namespace host {

struct FoundEntry {
  // A name, never a path.
  std::string name;
  // Links are followed.
  bool isDirectory;
};

class Files {
 public:
  typedef void* Search;

  // Looks for the entries of `directory` whose names match `pattern`: "*" is any text, "?" any
  // one character, all else stands for itself; "." and ".." are entries too. On kDone `entry`
  // is the first and `search` must be closed; otherwise nothing is open. No match is kNoFile.
  virtual Outcome FindFirst(const std::string& directory, const std::string& pattern,
                            Search& search, FoundEntry& entry) = 0;

  // False at the end.
  virtual bool FindNext(Search search, FoundEntry& entry) = 0;

  virtual void CloseSearch(Search search) = 0;

 protected:
  // Never deleted through this: the objects are static, and need no end.
  ~Files() = default;
};

Files& HostFiles();

}  // namespace host
}  // namespace NZRVQDA20

#endif

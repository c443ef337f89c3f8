// A search in a directory that is closed again whichever way the scope is left.

#ifndef QDACORE_OS_INTERNAL_DIRECTORYSEARCH_H
#define QDACORE_OS_INTERNAL_DIRECTORYSEARCH_H

#include <string>

#include <qdacore/host/Files.h>

namespace NZRVQDA20 {

class DirectorySearch {
 public:
  // `directory` is in the host's own form.
  DirectorySearch(const std::string& directory, const std::string& pattern)
      : fOutcome(host::HostFiles().FindFirst(directory, pattern, fSearch, fEntry)),
        fIsOpen(fOutcome.Done()) {}
  ~DirectorySearch() {
    if (fIsOpen) {
      host::HostFiles().CloseSearch(fSearch);
    }
  }
  DirectorySearch(const DirectorySearch&) = delete;
  DirectorySearch& operator=(const DirectorySearch&) = delete;

  const host::Outcome& Opening() const { return fOutcome; }

  // The entry found last.
  const host::FoundEntry& Entry() const { return fEntry; }

  // kNoFile at the end.
  host::Outcome Next() { return host::HostFiles().FindNext(fSearch, fEntry); }

  std::size_t ExpectedEntries() { return host::HostFiles().ExpectedEntries(fSearch); }

  // From here on the end of the scope leaves the search open; Next still goes on.
  void LeaveOpen() { fIsOpen = false; }

  // The caller's own close, also behind LeaveOpen.
  void Close() {
    fIsOpen = false;
    host::HostFiles().CloseSearch(fSearch);
  }

 private:
  host::Files::Search fSearch = nullptr;
  host::FoundEntry fEntry;
  const host::Outcome fOutcome;
  bool fIsOpen;
};

}  // namespace NZRVQDA20

#endif

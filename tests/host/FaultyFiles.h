// The host's own files, one call of which fails by plan. Searches that stay open are counted, and
// closed at the end of the object, so that the test's own process does not run out of them.

#ifndef TESTS_HOST_FAULTYFILES_H
#define TESTS_HOST_FAULTYFILES_H

#include <set>
#include <string>

#include <tests/host/Faults.h>
#include <tests/host/ForwardingFiles.h>

namespace host_fakes {

class FaultyFiles final : public ForwardingFiles {
 public:
  explicit FaultyFiles(FaultPlan& plan) : fPlan(plan) {}
  ~FaultyFiles() {
    for (const Search search : fOpen) {
      ForwardingFiles::CloseSearch(search);
    }
  }

  host::Outcome FindFirst(const std::string& directory, const std::string& pattern, Search& search,
                          host::FoundEntry& entry) override {
    return Opened(search, Fails("FindFirst")
                              ? fPlan.Failure()
                              : ForwardingFiles::FindFirst(directory, pattern, search, entry));
  }
  host::Outcome FindFirstPath(const std::string& path, Search& search,
                              host::FoundEntry& entry) override {
    return Opened(search, Fails("FindFirstPath")
                              ? fPlan.Failure()
                              : ForwardingFiles::FindFirstPath(path, search, entry));
  }
  host::Outcome FindNext(Search search, host::FoundEntry& entry) override {
    return Fails("FindNext") ? fPlan.Failure() : ForwardingFiles::FindNext(search, entry);
  }
  void CloseSearch(Search search) override {
    EXPECT_EQ(1u, fOpen.erase(search)) << "closed twice, or never opened";
    ForwardingFiles::CloseSearch(search);
  }
  host::Outcome MakeDirectory(const std::string& path) override {
    return Fails("MakeDirectory") ? fPlan.Failure() : ForwardingFiles::MakeDirectory(path);
  }
  host::Outcome ReadKind(const std::string& path, bool& isDirectory) override {
    return Fails("ReadKind") ? fPlan.Failure() : ForwardingFiles::ReadKind(path, isDirectory);
  }
  host::Outcome ReadSize(const std::string& path, std::uint64_t& size) override {
    return Fails("ReadSize") ? fPlan.Failure() : ForwardingFiles::ReadSize(path, size);
  }
  host::Outcome Copy(const std::string& source, const std::string& target, AtLink atLink) override {
    return Fails("Copy") ? fPlan.Failure() : ForwardingFiles::Copy(source, target, atLink);
  }
  host::Outcome CopyLink(const std::string& source, const std::string& target) override {
    return Fails("CopyLink") ? fPlan.Failure() : ForwardingFiles::CopyLink(source, target);
  }
  bool Identify(const std::string& path, host::DirectoryIdentity& identity) override {
    return !Fails("Identify") && ForwardingFiles::Identify(path, identity);
  }
  std::size_t CurrentDirectory(char* buffer, std::size_t size) override {
    return Fails("CurrentDirectory") ? 0 : ForwardingFiles::CurrentDirectory(buffer, size);
  }

  // Searches that are open now, and that were open when the call by plan failed.
  std::size_t OpenSearches() const { return fOpen.size(); }
  std::size_t OpenSearchesAtFailure() const { return fOpenAtFailure; }

 private:
  bool Fails(const char* call) {
    const bool fails = fPlan.Fails(call);
    if (fails) {
      fOpenAtFailure = fOpen.size();
    }
    return fails;
  }

  host::Outcome Opened(const Search& search, const host::Outcome& outcome) {
    if (outcome.Done()) {
      fOpen.insert(search);
    }
    return outcome;
  }

  FaultPlan& fPlan;
  std::set<Search> fOpen;
  std::size_t fOpenAtFailure = 0;
};

}  // namespace host_fakes

#endif

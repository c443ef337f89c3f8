// The host's own files behind an object that tests derive from: they override the call they want
// to watch or to break.

#ifndef TESTS_HOST_FORWARDINGFILES_H
#define TESTS_HOST_FORWARDINGFILES_H

#include <string>

#include <qdacore/host/HostServices.h>

namespace host_fakes {

using namespace NZRVQDA20;

class ForwardingFiles : public host::Files {
 public:
  host::Outcome FindFirst(const std::string& directory, const std::string& pattern, Search& search,
                          host::FoundEntry& entry) override {
    return host::SystemFiles().FindFirst(directory, pattern, search, entry);
  }
  host::Outcome FindFirstPath(const std::string& path, Search& search,
                              host::FoundEntry& entry) override {
    return host::SystemFiles().FindFirstPath(path, search, entry);
  }
  host::Outcome FindNext(Search search, host::FoundEntry& entry) override {
    return host::SystemFiles().FindNext(search, entry);
  }
  std::size_t ExpectedEntries(Search search) override {
    return host::SystemFiles().ExpectedEntries(search);
  }
  void CloseSearch(Search search) override { host::SystemFiles().CloseSearch(search); }
  host::Outcome MakeDirectory(const std::string& path) override {
    return host::SystemFiles().MakeDirectory(path);
  }
  host::Outcome ReadKind(const std::string& path, bool& isDirectory) override {
    return host::SystemFiles().ReadKind(path, isDirectory);
  }
  host::Outcome ReadSize(const std::string& path, std::uint64_t& size) override {
    return host::SystemFiles().ReadSize(path, size);
  }
  host::Outcome Copy(const std::string& source, const std::string& target, AtLink atLink) override {
    return host::SystemFiles().Copy(source, target, atLink);
  }
  host::Outcome CopyLink(const std::string& source, const std::string& target) override {
    return host::SystemFiles().CopyLink(source, target);
  }
  bool IsLink(const std::string& path) override { return host::SystemFiles().IsLink(path); }
  bool Identify(const std::string& path, host::DirectoryIdentity& identity) override {
    return host::SystemFiles().Identify(path, identity);
  }
  std::size_t CurrentDirectory(char* buffer, std::size_t size) override {
    return host::SystemFiles().CurrentDirectory(buffer, size);
  }

 protected:
  ~ForwardingFiles() = default;
};

}  // namespace host_fakes

#endif

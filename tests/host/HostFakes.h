// A made-up host. Each fake records what it is asked and answers what the test wants.

#ifndef TESTS_HOST_HOSTFAKES_H
#define TESTS_HOST_HOSTFAKES_H

#include <map>
#include <new>
#include <string>
#include <vector>

#include <qdacore/host/HostServices.h>
#include <tests/host/ForwardingFiles.h>

namespace host_fakes {

using namespace NZRVQDA20;

// The host's own services again, at the end of the scope.
class ScopedHost {
 public:
  explicit ScopedHost(const host::Replacements& fakes) { host::replacements = fakes; }
  ~ScopedHost() { host::replacements = {}; }
  ScopedHost(const ScopedHost&) = delete;
  ScopedHost& operator=(const ScopedHost&) = delete;
};

// Each reading of the local time is another one: the N-th, from 1, has N in all of its fields.
class CountingClock final : public host::Clock {
 public:
  std::int64_t Now() override { return host::SystemClock().Now(); }
  bool ReadLocalNow(host::LocalNow& now) override {
    const int n = ++readings;
    now = {{2000 + n, n, 10 + n, n, 30 + n, 40 + n, false}, 100 + n, -300};
    return true;
  }
  bool ReadLocal(std::int64_t second, host::LocalReading& reading) override {
    return host::SystemClock().ReadLocal(second, reading);
  }
  std::int64_t SecondFromStandardTime(std::int64_t civilSecond) override {
    return host::SystemClock().SecondFromStandardTime(civilSecond);
  }

  int readings = 0;
};

// Stands still.
class FixedClock final : public host::Clock {
 public:
  explicit FixedClock(const host::LocalNow& now) : fNow(now) {}

  std::int64_t Now() override { return host::SystemClock().Now(); }
  bool ReadLocalNow(host::LocalNow& now) override {
    now = fNow;
    return true;
  }
  bool ReadLocal(std::int64_t second, host::LocalReading& reading) override {
    return host::SystemClock().ReadLocal(second, reading);
  }
  std::int64_t SecondFromStandardTime(std::int64_t civilSecond) override {
    return host::SystemClock().SecondFromStandardTime(civilSecond);
  }

 private:
  host::LocalNow fNow;
};

// Records "debugger: TEXT" and "SOURCE error 1: TEXT".
class RecordingEventLog final : public host::EventLog {
 public:
  void WriteToDebugger(const char* text) override {
    calls.push_back(std::string("debugger: ") + text);
  }
  void Report(const char* source, Kind kind, int eventId, const char* text) override {
    const char* kinds[] = {" error ", " warning ", " information "};
    calls.push_back(source + std::string(kinds[kind]) + std::to_string(eventId) + ": " + text);
  }

  std::vector<std::string> calls;
};

// Directories of a test's own. One that is not there is a path not found. All else is the host's.
class FakeFiles final : public ForwardingFiles {
 public:
  struct Directory {
    // Unless it is kDone, what opening a search in it gives.
    host::Outcome opening;
    // What its searches find, in order, whatever the pattern.
    std::vector<host::FoundEntry> entries;
  };

  host::Outcome FindFirst(const std::string& directory, const std::string& pattern, Search& search,
                          host::FoundEntry& entry) override {
    searches.push_back(directory + "|" + pattern);
    const auto found = directories.find(directory);
    if (found == directories.end()) {
      return {host::Situation::kNoPath, 3};
    }
    if (!found->second.opening.Done()) {
      return found->second.opening;
    }
    Open* open = new Open{found->second.entries, 1};
    ++opened;
    search = open;
    entry = open->entries.at(0);
    return host::Success();
  }
  host::Outcome FindNext(Search search, host::FoundEntry& entry) override {
    Open& open = *static_cast<Open*>(search);
    if (open.next == failAtEntry) {
      throw std::bad_alloc();
    }
    if (open.next == open.entries.size()) {
      return {host::Situation::kNoFile, 18};
    }
    entry = open.entries[open.next++];
    return host::Success();
  }
  std::size_t ExpectedEntries(Search /*search*/) override { return 0; }
  void CloseSearch(Search search) override {
    delete static_cast<Open*>(search);
    ++closed;
  }

  std::map<std::string, Directory> directories;
  std::vector<std::string> searches;
  int opened = 0;
  int closed = 0;
  // At this entry of each search, counted from 0, memory runs out. 0: never.
  std::size_t failAtEntry = 0;

 private:
  struct Open {
    std::vector<host::FoundEntry> entries;
    std::size_t next;
  };
};

// One module, which every path names.
class FakeModules final : public host::Modules {
 public:
  // Writes `programPath` as far as it goes, and `programPathLength` is what is told of it.
  std::size_t ProgramPath(char* buffer, std::size_t size) override {
    bufferSize = size;
    programPath.copy(buffer, size);
    return programPathLength;
  }
  host::Outcome Load(const std::string& path, Module& module) override {
    calls.push_back("load " + path);
    if (loading.Done()) {
      module = this;
    }
    return loading;
  }
  Symbol Find(Module module, const std::string& name) override {
    calls.push_back((module == this ? "find " : "find elsewhere ") + name);
    return symbol;
  }

  void SetProgram(const std::string& path) {
    programPath = path;
    programPathLength = path.size();
  }

  std::string programPath;
  std::size_t programPathLength = 0;
  std::size_t bufferSize = 0;
  host::Outcome loading = host::Success();
  Symbol symbol = nullptr;
  std::vector<std::string> calls;
};

// What stands between the parts of a path that is made for the host.
#if defined(_WIN32)
const char kSeparator[] = "\\";
#else
const char kSeparator[] = "/";
#endif

inline std::string HostPath(const std::vector<std::string>& parts) {
  std::string path = parts.at(0);
  for (std::size_t at = 1; at < parts.size(); ++at) {
    path += kSeparator + parts[at];
  }
  return path;
}

}  // namespace host_fakes

#endif

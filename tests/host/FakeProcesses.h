// Processes, pipes and files that are made up: what is asked of them is recorded, and what is read
// is the test's choice.

#ifndef TESTS_HOST_FAKEPROCESSES_H
#define TESTS_HOST_FAKEPROCESSES_H

#include <cstring>
#include <deque>
#include <new>
#include <string>
#include <vector>

#include <qdacore/host/HostServices.h>

namespace host_fakes {

using namespace NZRVQDA20;

// Handles count from 1; each call is recorded with those that it takes and gives. All works.
class FakeProcesses final : public host::Processes {
 public:
  struct Reading {
    bool done;
    std::string bytes;
    unsigned long error;
  };

  void AskForStandardOutput() override { calls.push_back("ask for standard output"); }
  bool MakePipe(Pipe& pipe) override {
    pipe = {Next(), Next()};
    return Record("make pipe " + Text(pipe.readEnd) + " " + Text(pipe.writeEnd));
  }
  bool MakePrivate(Handle& end) override {
    const Handle old = end;
    end = Next();
    return Record("make private " + Text(old) + " -> " + Text(end));
  }
  bool Start(const std::string& commandLine, Window window, const StandardHandles& handles,
             Child& child) override {
    child.process = Next();
    return Record("start [" + commandLine + "]" + (window == Window::kHidden ? " hidden" : "") +
                  " input " + Text(handles.input) + " output " + Text(handles.output));
  }
  bool Close(Handle handle) override { return Record("close " + Text(handle)); }
  host::Outcome OpenFile(const std::string& path, Handle& handle) override {
    calls.push_back("open " + path);
    if (opening.Done()) {
      handle = Next();
    }
    return opening;
  }
  std::size_t ExpectedSize(Handle) override { return expectedSize; }
  // The readings in their order, and then the end.
  ReadResult Read(Handle handle, char* buffer, std::size_t size) override {
    calls.push_back("read " + Text(handle) + " up to " + std::to_string(size));
    if (memoryRunsOut) {
      throw std::bad_alloc();
    }
    if (readings.empty()) {
      return {true, 0, 0};
    }
    const Reading reading = readings.front();
    readings.pop_front();
    std::memcpy(buffer, reading.bytes.data(), reading.bytes.size());
    return {reading.done, reading.bytes.size(), reading.error};
  }
  std::string ErrorText(unsigned long error) override {
    calls.push_back("text of error " + std::to_string(error));
    return "words for " + std::to_string(error);
  }
  void Wait(Child& child) override { calls.push_back("wait for " + Text(child.process)); }
  int ExitCode(const Child& child) override {
    calls.push_back("exit code of " + Text(child.process));
    return exitCode;
  }
  void Release(Child& child) override { calls.push_back("release " + Text(child.process)); }

  std::vector<std::string> calls;
  std::deque<Reading> readings;
  bool memoryRunsOut = false;
  std::size_t expectedSize = 0;
  host::Outcome opening = host::Success();
  int exitCode = 0;

 private:
  static std::string Text(Handle handle) { return std::to_string(handle); }
  Handle Next() { return ++fLast; }
  bool Record(const std::string& call) {
    calls.push_back(call);
    return true;
  }

  Handle fLast = 0;
};

// For ScopedHost: these processes, and else the host's own.
inline host::Replacements ProcessesOnly(host::Processes& processes) {
  host::Replacements replacements;
  replacements.processes = &processes;
  return replacements;
}

}  // namespace host_fakes

#endif

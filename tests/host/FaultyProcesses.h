// The host's own processes, one call of which fails by plan. A close that fails has closed all the
// same, and what is left open is closed at the end, so that the machine does not starve of faults
// that were made up.

#ifndef TESTS_HOST_FAULTYPROCESSES_H
#define TESTS_HOST_FAULTYPROCESSES_H

#include <set>
#include <string>

#include <qdacore/host/HostServices.h>
#include <tests/host/Faults.h>

namespace host_fakes {

class FaultyProcesses final : public host::Processes {
 public:
  // `bytesAtFailure`: how many bytes a read that fails says it has read.
  explicit FaultyProcesses(FaultPlan& plan, std::size_t bytesAtFailure = 0)
      : fPlan(plan), fBytesAtFailure(bytesAtFailure) {}
  ~FaultyProcesses() {
    for (const Handle handle : fOpen) {
      fSystem.Close(handle);
    }
    if (fRuns) {
      fSystem.Wait(fChild);
      fSystem.Release(fChild);
    }
  }
  FaultyProcesses(const FaultyProcesses&) = delete;
  FaultyProcesses& operator=(const FaultyProcesses&) = delete;

  void AskForStandardOutput() override { fSystem.AskForStandardOutput(); }
  bool MakePipe(Pipe& pipe) override {
    if (fPlan.Fails("MakePipe") || !fSystem.MakePipe(pipe)) {
      return false;
    }
    fOpen.insert(pipe.readEnd);
    fOpen.insert(pipe.writeEnd);
    return true;
  }
  bool MakePrivate(Handle& end) override {
    const Handle old = end;
    if (fPlan.Fails("MakePrivate") || !fSystem.MakePrivate(end)) {
      return false;
    }
    fOpen.erase(old);
    fOpen.insert(end);
    return true;
  }
  bool Start(const std::string& commandLine, Window window, const StandardHandles& handles,
             Child& child) override {
    if (fPlan.Fails("Start") || !fSystem.Start(commandLine, window, handles, child)) {
      return false;
    }
    fChild = child;
    fRuns = true;
    return true;
  }
  bool Close(Handle handle) override {
    EXPECT_EQ(1u, fOpen.erase(handle)) << "closed twice, or never opened";
    const bool closed = fSystem.Close(handle);
    return !fPlan.Fails("Close") && closed;
  }
  host::Outcome OpenFile(const std::string& path, Handle& handle) override {
    const host::Outcome outcome =
        fPlan.Fails("OpenFile") ? fPlan.Failure() : fSystem.OpenFile(path, handle);
    if (outcome.Done()) {
      fOpen.insert(handle);
    }
    return outcome;
  }
  std::size_t ExpectedSize(Handle handle) override { return fSystem.ExpectedSize(handle); }
  ReadResult Read(Handle handle, char* buffer, std::size_t size) override {
    return fPlan.Fails("Read") ? ReadResult{false, fBytesAtFailure, fPlan.Failure().number}
                               : fSystem.Read(handle, buffer, size);
  }
  std::string ErrorText(unsigned long error) override { return fSystem.ErrorText(error); }
  void Wait(Child& child) override { fSystem.Wait(child); }
  int ExitCode(const Child& child) override {
    return fPlan.Fails("ExitCode") ? static_cast<int>(kNoExitCode) : fSystem.ExitCode(child);
  }
  void Release(Child& child) override {
    fSystem.Release(child);
    fRuns = false;
  }

  std::size_t LeftOpen() const { return fOpen.size(); }

 private:
  host::Processes& fSystem = host::SystemProcesses();
  FaultPlan& fPlan;
  const std::size_t fBytesAtFailure;
  std::set<Handle> fOpen;
  Child fChild;
  bool fRuns = false;
};

}  // namespace host_fakes

#endif

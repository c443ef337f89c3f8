// A child that does nothing against a bare posix_spawn, and 256 MiB of a file or of a child against
// a plain loop of the same reads into a string that has the room already.

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <string>

#include <benchmark/benchmark.h>

#include <qdacore/os/TOSSpecific.h>

namespace {

using namespace NZRVQDA20;

const char kTrue[] = "/bin/true";
const std::size_t kSize = std::size_t{256} << 20;

// Our ends of the pipes of a child.
struct BareChild {
  int input;
  int output;
  pid_t pid;
};

BareChild SpawnBare(char* const* words) {
  int input[2];
  int output[2];
  if (pipe2(input, O_CLOEXEC) != 0 || pipe2(output, O_CLOEXEC) != 0) {
    std::abort();
  }
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, input[0], 0);
  posix_spawn_file_actions_adddup2(&actions, output[1], 1);
  posix_spawn_file_actions_adddup2(&actions, output[1], 2);
  BareChild child = {input[1], output[0], 0};
  if (posix_spawn(&child.pid, words[0], &actions, nullptr, words, environ) != 0) {
    std::abort();
  }
  posix_spawn_file_actions_destroy(&actions);
  close(input[0]);
  close(output[1]);
  return child;
}

void EndBare(const BareChild& child) {
  int status = 0;
  waitpid(child.pid, &status, 0);
  close(child.input);
  close(child.output);
}

void ProcessBareSpawn(benchmark::State& state) {
  char* words[] = {const_cast<char*>(kTrue), nullptr};
  for (auto _ : state) {
    EndBare(SpawnBare(words));
  }
}
BENCHMARK(ProcessBareSpawn)->UseRealTime();

void ProcessSpawn(benchmark::State& state) {
  for (auto _ : state) {
    benchmark::DoNotOptimize(TOSSpecific::SpawnProcess(kTrue, 0));
  }
}
BENCHMARK(ProcessSpawn)->UseRealTime();

std::string ReadPlainly(int descriptor) {
  std::string text;
  text.reserve(kSize);
  char buffer[4096];
  ssize_t count;
  while ((count = read(descriptor, buffer, sizeof buffer)) > 0) {
    text.append(buffer, static_cast<std::size_t>(count));
  }
  return text;
}

// A file of that size, in memory where the system has a place for it.
class LargeFile {
 public:
  LargeFile() {
    fPath =
        access("/dev/shm", W_OK) == 0 ? "/dev/shm/qdacore-bench-XXXXXX" : "qdacore-bench-XXXXXX";
    const int file = mkstemp(&fPath[0]);
    const std::string block(1 << 20, 'x');
    for (std::size_t written = 0; written < kSize; written += block.size()) {
      if (write(file, block.data(), block.size()) < 0) {
        std::abort();
      }
    }
    close(file);
  }
  ~LargeFile() { unlink(fPath.c_str()); }

  const std::string& Path() const { return fPath; }

 private:
  std::string fPath;
};

void CapturePlainFile(benchmark::State& state) {
  const LargeFile file;
  for (auto _ : state) {
    const int descriptor = open(file.Path().c_str(), O_RDONLY | O_CLOEXEC);
    benchmark::DoNotOptimize(ReadPlainly(descriptor));
    close(descriptor);
  }
}
BENCHMARK(CapturePlainFile)->UseRealTime();

void CaptureWholeFile(benchmark::State& state) {
  const LargeFile file;
  for (auto _ : state) {
    // It stays open, one descriptor a round.
    benchmark::DoNotOptimize(TOSSpecific::CaptureFile(file.Path()));
  }
}
BENCHMARK(CaptureWholeFile)->UseRealTime();

void CapturePlainChild(benchmark::State& state) {
  const LargeFile file;
  char* words[] = {const_cast<char*>("/bin/cat"), const_cast<char*>(file.Path().c_str()), nullptr};
  for (auto _ : state) {
    const BareChild child = SpawnBare(words);
    benchmark::DoNotOptimize(ReadPlainly(child.output));
    EndBare(child);
  }
}
BENCHMARK(CapturePlainChild)->UseRealTime();

void CaptureWholeChild(benchmark::State& state) {
  const LargeFile file;
  for (auto _ : state) {
    benchmark::DoNotOptimize(TOSSpecific::SpawnProcess("/bin/cat", {file.Path()}, 0));
  }
}
BENCHMARK(CaptureWholeChild)->UseRealTime();

}  // namespace

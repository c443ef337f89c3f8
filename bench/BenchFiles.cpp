// FileCopy of 1 GiB against cp, and ListDir of 100,000 entries against a bare directory read. In
// memory where the system has a file system for it, so that no disk is measured. The copies take
// 2 GiB there, and run only when QDACORE_BENCH_FILES is set.

#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include <qdacore/os/TOSSpecific.h>

namespace {

using namespace NZRVQDA20;
namespace fs = std::filesystem;

// A folder that goes with all that is in it when the program ends.
class Folder {
 public:
  explicit Folder(const char* name)
      : fPath((fs::exists("/dev/shm") ? fs::path("/dev/shm") : fs::temp_directory_path()) /
              (name + std::to_string(getpid()))) {
    fs::create_directories(fPath);
  }
  ~Folder() {
    std::error_code ignored;
    fs::remove_all(fPath, ignored);
  }
  std::string Of(const std::string& name) const { return (fPath / name).string(); }

 private:
  fs::path fPath;
};

const Folder& FolderWithOneFile() {
  static const Folder folder("qdacore-bench-copy-");
  static const bool made = [] {
    const int file = open(folder.Of("source").c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    const std::vector<char> part(1 << 20, 'x');
    for (int count = 0; count < 1024; ++count) {
      if (write(file, part.data(), part.size()) != static_cast<ssize_t>(part.size())) {
        std::abort();
      }
    }
    return close(file) == 0;
  }();
  benchmark::DoNotOptimize(made);
  return folder;
}

const Folder& FolderWithManyEntries() {
  static const Folder folder("qdacore-bench-list-");
  static const bool made = [] {
    for (int count = 0; count < 100000; ++count) {
      close(open(folder.Of("entry-of-a-folder-" + std::to_string(count)).c_str(),
                 O_WRONLY | O_CREAT | O_CLOEXEC, 0600));
    }
    return true;
  }();
  benchmark::DoNotOptimize(made);
  return folder;
}

template <class Copy>
void CopyOneGibibyte(benchmark::State& state, Copy copy) {
  if (!std::getenv("QDACORE_BENCH_FILES")) {
    state.SkipWithError("needs 2 GiB of memory: set QDACORE_BENCH_FILES=1");
    return;
  }
  const std::string source = FolderWithOneFile().Of("source");
  const std::string target = FolderWithOneFile().Of("target");
  for (auto _ : state) {
    copy(source, target);
    state.PauseTiming();
    unlink(target.c_str());
    state.ResumeTiming();
  }
}

void FileCopyCp(benchmark::State& state) {
  CopyOneGibibyte(state, [](const std::string& source, const std::string& target) {
    if (std::system(("cp " + source + " " + target).c_str()) != 0) {
      std::abort();
    }
  });
}
BENCHMARK(FileCopyCp)->UseRealTime()->Unit(benchmark::kMillisecond);

void FileCopy(benchmark::State& state) {
  CopyOneGibibyte(state, [](const std::string& source, const std::string& target) {
    TOSSpecific::FileCopy(source, target);
  });
}
BENCHMARK(FileCopy)->UseRealTime()->Unit(benchmark::kMillisecond);

void ListDirBareRead(benchmark::State& state) {
  const std::string path = FolderWithManyEntries().Of("");
  for (auto _ : state) {
    DIR* const directory = opendir(path.c_str());
    std::size_t length = 0;
    while (const dirent* entry = readdir(directory)) {
      length += static_cast<unsigned char>(entry->d_name[0]);
    }
    closedir(directory);
    benchmark::DoNotOptimize(length);
  }
}
BENCHMARK(ListDirBareRead)->UseRealTime()->Unit(benchmark::kMillisecond);

void ListDir(benchmark::State& state) {
  const std::string path = FolderWithManyEntries().Of("");
  for (auto _ : state) {
    benchmark::DoNotOptimize(TOSSpecific::ListDir(path));
  }
}
BENCHMARK(ListDir)->UseRealTime()->Unit(benchmark::kMillisecond);

}  // namespace

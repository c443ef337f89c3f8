#include <qda/Progress.h>

#include <chrono>
#include <cstdio>
#include <filesystem>

#include <fmt/format.h>

#include <qda/Text.h>
#include <qda/host/Paths.h>
#include <qda/host/Terminal.h>

namespace qda {

namespace {

const std::chrono::milliseconds kBetweenLines(500);

// Back to the line's begin, and what stands there is wiped (ECMA-48, erase in line).
const char kWipe[] = "\r\x1B[K";

}  // namespace

std::string RoundedSizeText(std::uintmax_t bytes) {
  const char* const units[] = {"KiB", "MiB", "GiB", "TiB"};
  if (bytes < 1024) {
    return fmt::format("{} bytes", bytes);
  }
  double size = static_cast<double>(bytes) / 1024;
  std::size_t unit = 0;
  for (; size >= 1024 && unit < 3; ++unit) {
    size /= 1024;
  }
  return fmt::format("{:.1f} {}", size, units[unit]);
}

Progress::Progress(const std::string& doing, const std::string& growingFile)
    : fDoing(Printable(doing)), fGrowingFile(growingFile) {
  if (host::ErrorIsWatched()) {
    fThread = std::thread([this] { Show(); });
  }
}

Progress::~Progress() {
  if (fThread.joinable()) {
    {
      const std::lock_guard<std::mutex> lock(fMutex);
      fIsDone = true;
    }
    fChanged.notify_one();
    fThread.join();
  }
}

void Progress::Show() {
  const auto begin = std::chrono::steady_clock::now();
  bool isShown = false;
  std::unique_lock<std::mutex> lock(fMutex);
  while (!fChanged.wait_for(lock, kBetweenLines, [this] { return fIsDone; })) {
    std::error_code error;
    const std::uintmax_t size =
        fGrowingFile.empty() ? 0 : std::filesystem::file_size(host::ToPath(fGrowingFile), error);
    const std::string sizeText =
        fGrowingFile.empty() || error ? std::string() : ": " + RoundedSizeText(size);
    const auto seconds =
        std::chrono::duration_cast<std::chrono::seconds>(std::chrono::steady_clock::now() - begin);
    fmt::print(stderr, "{}{}{}, {} s", kWipe, fDoing, sizeText, seconds.count());
    std::fflush(stderr);
    isShown = true;
  }
  if (isShown) {
    std::fputs(kWipe, stderr);
    std::fflush(stderr);
  }
}

}  // namespace qda

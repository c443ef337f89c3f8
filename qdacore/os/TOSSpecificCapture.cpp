// Reading a file, or what a child writes, into a string.

#include <algorithm>
#include <cstdint>
#include <new>

#include <qdacore/frame/internal/Throw.h>
#include <qdacore/host/Processes.h>
#include <qdacore/logging/internal/CoreLog.h>
#include <qdacore/os/TOSSpecific.h>
#include <qdacore/os/internal/CallerPath.h>

namespace NZRVQDA20 {

namespace {

using host::Processes;

const std::size_t kReadSize = 4096;

// From here on copying what is already there would cost more than reading what comes.
const std::size_t kLargeText = 64 * 1024;

// What a file's size may make us ask for in advance; it may be sparse, or no truth at all.
const std::size_t kMostInAdvance = std::size_t{1} << 30;

// Room for a text that is large already. Memory that is asked for and not used costs little, but
// it may not be had: then the string grows as strings do.
void MakeRoom(std::string& text, std::size_t wanted) {
  try {
    text.reserve(wanted);
  } catch (const std::bad_alloc&) {
  }
}

void Append(std::string& text, const char* bytes, std::size_t count) {
  if (text.size() >= kLargeText && text.capacity() - text.size() < count) {
    MakeRoom(text, text.capacity() * 4);
  }
  text.append(bytes, count);
}

host::Outcome Open(const std::string& fileName, Processes::Handle& handle) {
  if (HoldsNul(fileName)) {
    return {host::Situation::kNoFile, 2};
  }
  return TryBothSeparators(fileName, [&handle](const std::string& path) {
    return host::HostProcesses().OpenFile(path, handle);
  });
}

}  // namespace

std::string TOSSpecific::CaptureFile(std::string fileName) {
  Processes::Handle handle = Processes::kNoHandle;
  if (!Open(fileName, handle).Done()) {
    LogAndThrow(ILogger::kLogError, "ERROR: CaptureFile failed to open: " + fileName,
                TQDAStatusCode::kQDAStatusFileNotFound);
  }
  // The file stays open for the life of the process, here and below: that is meant.
  return GetFileContents(handle, fileName, true);
}

std::string TOSSpecific::CaptureFileLoader(std::string fileName, bool logSystemText) {
  Processes::Handle handle = Processes::kNoHandle;
  if (!Open(fileName, handle).Done()) {
    // Not the name of this operation; the words are known to those who read logs.
    LogToCore(ILogger::kLogDebug, "CaptureFile failed to open: " + fileName);
    LogToCore(ILogger::kLogDebug,
              "Please confirm that the related software/driver is properly installed.");
  }
  // No handle is no file: the first read fails with nothing, which is an end like any other.
  return GetFileContents(handle, fileName, logSystemText);
}

std::string TOSSpecific::GetFileContents(int handle, std::string name, bool logSystemText) {
  Processes& processes = host::HostProcesses();
  std::string contents;
  const std::size_t expected = processes.ExpectedSize(handle);
  if (expected >= kLargeText) {
    MakeRoom(contents, std::min(expected, kMostInAdvance));
  }
  char buffer[kReadSize];
  for (;;) {
    const Processes::ReadResult read = processes.Read(handle, buffer, sizeof buffer);
    if (!read.done && read.count != 0) {
      LogToCore(ILogger::kLogDebug, "GetFileContents failed to read file " + name);
      const std::string systemText = processes.ErrorText(read.error);
      if (logSystemText) {
        LogToCore(ILogger::kLogDebug, systemText);
      }
      return contents;
    }
    // A failed read of nothing is an end too: so a pipe looks whose writers are gone.
    if (read.count == 0) {
      return contents;
    }
    Append(contents, buffer, read.count);
  }
}

}  // namespace NZRVQDA20

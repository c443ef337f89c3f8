#include <plugins/machine/ResourceFacts.h>

#include <algorithm>

#include <plugins/machine/HostText.h>

namespace machine {

namespace {

const std::uint64_t kBytesPerKilobyte = 1024;
const std::int64_t kMicrosecondsPerSecond = 1000000;

std::optional<std::uint64_t> InKilobytes(const std::optional<std::uint64_t>& bytes) {
  return bytes ? std::optional<std::uint64_t>(*bytes / kBytesPerKilobyte) : std::nullopt;
}

void UnderstandMemoryText(std::string_view text, ResourceFacts* facts) {
  facts->totalVisibleMemorySize = FindInMemoryText(text, "MemTotal");
  facts->sizeStoredInPagingFiles = FindInMemoryText(text, "SwapTotal");
  const std::uint64_t memory = facts->totalVisibleMemorySize.value_or(0);
  if (facts->totalVisibleMemorySize && facts->sizeStoredInPagingFiles &&
      *facts->sizeStoredInPagingFiles <= UINT64_MAX - memory) {
    facts->totalVirtualMemorySize = memory + *facts->sizeStoredInPagingFiles;
  }
}

// pid_max is one more than the largest process number (proc(5)), and 0 is nobody's.
std::optional<std::uint32_t> MostProcesses(const host::ResourceReading& reading) {
  const std::optional<std::uint64_t> threads = DecimalIn(reading.mostThreadsText, UINT32_MAX);
  const std::optional<std::uint64_t> end = DecimalIn(reading.endOfPidsText, UINT32_MAX);
  if (!threads || *threads == 0 || !end || *end < 2) {
    return std::nullopt;
  }
  return static_cast<std::uint32_t>(std::min(*threads, *end - 1));
}

}  // namespace

std::optional<std::uint64_t> FindInMemoryText(std::string_view text, std::string_view name) {
  std::string_view line;
  while (TakeLine(&text, &line)) {
    if (line.size() <= name.size() || line.substr(0, name.size()) != name ||
        line[name.size()] != ':') {
      continue;
    }
    const std::string_view value = Trimmed(line.substr(name.size() + 1));
    const std::string_view unit = " kB";
    if (value.size() <= unit.size() || value.substr(value.size() - unit.size()) != unit) {
      return std::nullopt;
    }
    return DecimalIn(value.substr(0, value.size() - unit.size()));
  }
  return std::nullopt;
}

ResourceFacts UnderstandResources(const host::ResourceReading& reading) {
  ResourceFacts facts;
  if (reading.memoryText) {
    UnderstandMemoryText(*reading.memoryText, &facts);
  } else {
    facts.totalVisibleMemorySize = InKilobytes(reading.physicalBytes);
    facts.totalVirtualMemorySize = InKilobytes(reading.commitBytes);
    facts.maxProcessMemorySize = InKilobytes(reading.processBytes);
  }
  facts.maxNumberOfProcesses = MostProcesses(reading);
  if (reading.bootMicroseconds && *reading.bootMicroseconds >= 0) {
    facts.lastBootSeconds = *reading.bootMicroseconds / kMicrosecondsPerSecond;
  }
  return facts;
}

}  // namespace machine

#include <smbios/SmbiosTable.h>

#include <algorithm>
#include <utility>

namespace smbios {

namespace {

const std::size_t kHeaderSize = 4;
const std::size_t kClosingNuls = 2;
const unsigned char kTypeEndOfTable = 127;
const std::size_t kMostStructures = 65536;

// The size of the structure that begins at `bytes`, or 0 when it is not whole.
std::size_t MeasureStructure(const unsigned char* bytes, std::size_t available) {
  if (available < kHeaderSize + kClosingNuls) {
    return 0;
  }
  const std::size_t length = bytes[1];
  if (length < kHeaderSize || length > available - kClosingNuls) {
    return 0;
  }
  for (std::size_t i = length; i + kClosingNuls <= available; ++i) {
    if (bytes[i] == 0 && bytes[i + 1] == 0) {
      return i + kClosingNuls;
    }
  }
  return 0;
}

// Firmware fills what it has reserved and not used with either value.
bool IsPadding(const unsigned char* begin, const unsigned char* end) {
  return std::all_of(begin, end, [](unsigned char byte) { return byte == 0; }) ||
         std::all_of(begin, end, [](unsigned char byte) { return byte == 0xFF; });
}

}  // namespace

SmbiosTable::SmbiosTable(std::vector<unsigned char> bytes, std::size_t statedNumber,
                         Version version)
    : fBytes(std::move(bytes)), fVersion(version), fEnd(Walk(statedNumber)) {
  SortByType();
}

SmbiosTable::WalkEnd SmbiosTable::Walk(std::size_t statedNumber) {
  std::size_t most = kMostStructures;
  if (statedNumber != 0 && statedNumber < most) {
    most = statedNumber;
  }
  std::size_t offset = 0;
  while (fSpans.size() < most) {
    const unsigned char* const here = fBytes.data() + offset;
    const std::size_t available = fBytes.size() - offset;
    const std::size_t size = MeasureStructure(here, available);
    if (size == 0) {
      return IsPadding(here, here + available) ? WalkEnd::kEndOfBytes : WalkEnd::kBroken;
    }
    fSpans.push_back({offset, size});
    if (here[0] == kTypeEndOfTable) {
      return WalkEnd::kEndOfTable;
    }
    offset += size;
  }
  return statedNumber == most ? WalkEnd::kStatedNumber : WalkEnd::kBroken;
}

Structure SmbiosTable::At(std::size_t index) const {
  const Span& span = fSpans[index];
  return {fBytes.data() + span.offset, span.size};
}

void SmbiosTable::SortByType() {
  fFirstOfType.fill(0);
  for (const Span& span : fSpans) {
    ++fFirstOfType[fBytes[span.offset] + 1u];
  }
  for (std::size_t type = 0; type < kTypes; ++type) {
    fFirstOfType[type + 1] += fFirstOfType[type];
  }
  std::array<std::uint32_t, kTypes + 1> next = fFirstOfType;
  fByType.resize(fSpans.size());
  for (std::uint32_t index = 0; index < fSpans.size(); ++index) {
    fByType[next[fBytes[fSpans[index].offset]]++] = index;
  }
}

bool SmbiosTable::Find(unsigned char type, std::size_t nth, Structure* found) const {
  const std::uint32_t first = fFirstOfType[type];
  if (nth >= fFirstOfType[type + 1u] - first) {
    return false;
  }
  *found = At(fByType[first + nth]);
  return true;
}

}  // namespace smbios

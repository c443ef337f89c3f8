#include <plugins/machine/host/Processors.h>

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#include <cstddef>

#include <plugins/machine/host/win32/Text.h>

namespace machine {
namespace host {

namespace {

typedef SYSTEM_LOGICAL_PROCESSOR_INFORMATION_EX Relation;

// Of a relation of a core or a package with one group, which is less than the whole union.
const std::size_t kLeastSize = offsetof(Relation, Processor.GroupMask) + sizeof(GROUP_AFFINITY);

// The bytes of all relations of one kind; empty when the system does not tell.
std::vector<unsigned char> RelationsOf(LOGICAL_PROCESSOR_RELATIONSHIP kind) {
  std::vector<unsigned char> bytes;
  DWORD size = 0;
  while (!GetLogicalProcessorInformationEx(
      kind, bytes.empty() ? nullptr : reinterpret_cast<Relation*>(bytes.data()), &size)) {
    // A processor may be added between the two calls.
    if (GetLastError() != ERROR_INSUFFICIENT_BUFFER || size <= bytes.size()) {
      return {};
    }
    bytes.resize(size);
  }
  bytes.resize(size);
  return bytes;
}

// Calls `visit` for the group masks of each relation.
template <typename Visit>
void ForEach(const std::vector<unsigned char>& bytes, Visit visit) {
  std::size_t at = 0;
  while (bytes.size() - at >= kLeastSize) {
    const Relation* relation = reinterpret_cast<const Relation*>(bytes.data() + at);
    if (relation->Size < kLeastSize || relation->Size > bytes.size() - at) {
      return;
    }
    const PROCESSOR_RELATIONSHIP& processor = relation->Processor;
    const std::size_t room =
        (relation->Size - offsetof(Relation, Processor.GroupMask)) / sizeof processor.GroupMask[0];
    visit(processor.GroupMask, processor.GroupCount < room ? processor.GroupCount : room);
    at += relation->Size;
  }
}

std::uint32_t BitsIn(KAFFINITY mask) {
  std::uint32_t bits = 0;
  for (; mask != 0; mask &= mask - 1) {
    ++bits;
  }
  return bits;
}

bool Overlap(const GROUP_AFFINITY* first, std::size_t firstCount, const GROUP_AFFINITY& second) {
  for (std::size_t at = 0; at < firstCount; ++at) {
    if (first[at].Group == second.Group && (first[at].Mask & second.Mask) != 0) {
      return true;
    }
  }
  return false;
}

// The registry numbers the logical processors through all groups.
unsigned int NumberOf(const GROUP_AFFINITY& affinity) {
  unsigned int number = 0;
  for (WORD group = 0; group < affinity.Group; ++group) {
    number += GetActiveProcessorCount(group);
  }
  for (KAFFINITY mask = affinity.Mask; mask != 0 && (mask & 1) == 0; mask >>= 1) {
    ++number;
  }
  return number;
}

PackageReading ReadPackage(const GROUP_AFFINITY* masks, std::size_t count,
                           const std::vector<unsigned char>& cores) {
  PackageReading package = {};
  const std::wstring key = L"HARDWARE\\DESCRIPTION\\System\\CentralProcessor\\" +
                           std::to_wstring(count != 0 ? NumberOf(masks[0]) : 0);
  package.name = RegistryText(key, L"ProcessorNameString");
  package.identifier = RegistryText(key, L"Identifier");
  if (const std::optional<unsigned long> megahertz = RegistryNumber(key, L"~MHz")) {
    package.megahertz = static_cast<std::uint32_t>(*megahertz);
  }
  for (std::size_t at = 0; at < count; ++at) {
    package.threads += BitsIn(masks[at].Mask);
  }
  // A core's logical processors are all in one group.
  ForEach(cores, [&](const GROUP_AFFINITY* core, std::size_t coreGroups) {
    if (coreGroups != 0 && Overlap(masks, count, core[0])) {
      ++package.cores;
    }
  });
  return package;
}

}  // namespace

ProcessorReading ReadProcessors() {
  ProcessorReading reading;
  const std::vector<unsigned char> cores = RelationsOf(RelationProcessorCore);
  ForEach(RelationsOf(RelationProcessorPackage),
          [&](const GROUP_AFFINITY* masks, std::size_t count) {
            reading.packages.push_back(ReadPackage(masks, count, cores));
          });
  return reading;
}

}  // namespace host
}  // namespace machine

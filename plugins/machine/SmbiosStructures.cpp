#include <plugins/machine/SmbiosStructures.h>

#include <smbios/smbios.h>

namespace machine {

namespace {

const int kMostBytes = 65536;

struct Place {
  std::size_t offset;
  std::size_t size;
};

}  // namespace

SmbiosStructures::SmbiosStructures(void* table) {
  if (table == nullptr) {
    return;
  }
  using NZRVQDA20::TQDAStatusCode;
  std::vector<unsigned char> buffer(kMostBytes);
  std::vector<Place> places;
  for (unsigned int index = 0;; ++index) {
    int size = kMostBytes;
    TQDAStatusCode status = smBiosGetNext(table, kSmBiosAnyType, index, buffer.data(), &size);
    if (status.GetStatusCode() == TQDAStatusCode::kQDAStatusNoMoreItems) {
      break;
    }
    // Too large a structure has no bytes; its index is passed over.
    if (status.GetStatusCode() == TQDAStatusCode::kQDAStatusOK) {
      places.push_back({fBytes.size(), static_cast<std::size_t>(size)});
      fBytes.insert(fBytes.end(), buffer.begin(), buffer.begin() + size);
    }
  }
  // Only now do the bytes stay where they are.
  for (const Place& place : places) {
    const SmbiosStructure structure(fBytes.data() + place.offset, place.size);
    fByType[structure.Type()].push_back(structure);
    fByHandle.emplace(structure.Handle(), structure);
  }
}

const SmbiosStructures::List& SmbiosStructures::OfType(unsigned int type) const {
  return fByType[type & 0xFF];
}

const SmbiosStructure* SmbiosStructures::ByHandle(std::uint16_t handle) const {
  const auto found = fByHandle.find(handle);
  return found != fByHandle.end() ? &found->second : nullptr;
}

}  // namespace machine

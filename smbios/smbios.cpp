#include <smbios/smbios.h>

#include <climits>
#include <cstddef>
#include <cstring>
#include <memory>
#include <new>

#include <smbios/SmbiosTable.h>
#include <smbios/TableLoader.h>
#include <smbios/host/FirmwareTable.h>

using NZRVQDA20::TPluginManagerProvider;
using NZRVQDA20::TQDAStatusCode;
using smbios::SmbiosTable;
using smbios::Structure;

namespace {

const int kNoType = INT_MAX;

bool FindStructure(const SmbiosTable& table, int type, unsigned int index, Structure* found) {
  if (type == kSmBiosAnyType) {
    if (index >= table.Count()) {
      return false;
    }
    *found = table.At(index);
    return true;
  }
  return type >= 0 && type <= UCHAR_MAX &&
         table.Find(static_cast<unsigned char>(type), index, found);
}

}  // namespace

TQDAStatusCode smBiosLoad(TPluginManagerProvider const*, void** handle) {
  if (handle == nullptr) {
    return TQDAStatusCode::kQDAStatusFail;
  }
  *handle = nullptr;
  try {
    smbios::host::SystemFirmwareTable source;
    std::unique_ptr<SmbiosTable> table;
    const TQDAStatusCode status = smbios::LoadTable(source, &table);
    *handle = table.release();
    return status;
  } catch (const std::bad_alloc&) {
    return TQDAStatusCode::kQDAStatusOutOfMemory;
  } catch (...) {
    return TQDAStatusCode::kQDAStatusFail;
  }
}

TQDAStatusCode smBiosGetFirst(void* handle, int type, void* buffer, int* size) {
  // "Any" is for smBiosGetNext alone: here -1 is a type like others that nothing has.
  return smBiosGetNext(handle, type == kSmBiosAnyType ? kNoType : type, 0, buffer, size);
}

TQDAStatusCode smBiosGetNext(void* handle, int type, unsigned int index, void* buffer, int* size) {
  if (size == nullptr) {
    return TQDAStatusCode::kQDAStatusFail;
  }
  const int capacity = *size;
  *size = 0;
  if (handle == nullptr || buffer == nullptr || capacity < 1) {
    return TQDAStatusCode::kQDAStatusFail;
  }
  Structure found;
  if (!FindStructure(*static_cast<const SmbiosTable*>(handle), type, index, &found)) {
    return TQDAStatusCode::kQDAStatusNoMoreItems;
  }
  if (found.size > static_cast<std::size_t>(capacity)) {
    return TQDAStatusCode::kQDAStatusFail;
  }
  std::memcpy(buffer, found.bytes, found.size);
  *size = static_cast<int>(found.size);
  return TQDAStatusCode::kQDAStatusOK;
}

TQDAStatusCode smBiosGetVersion(void* handle, int* major, int* minor) {
  if (handle == nullptr || major == nullptr || minor == nullptr) {
    return TQDAStatusCode::kQDAStatusFail;
  }
  const smbios::Version version = static_cast<const SmbiosTable*>(handle)->StatedVersion();
  *major = version.majorNumber;
  *minor = version.minorNumber;
  if (version.majorNumber == 0 && version.minorNumber == 0) {
    return TQDAStatusCode::kQDAStatusNotFound;
  }
  return TQDAStatusCode::kQDAStatusOK;
}

TQDAStatusCode smBiosClose(void** handle) {
  if (handle == nullptr) {
    return TQDAStatusCode::kQDAStatusFail;
  }
  delete static_cast<SmbiosTable*>(*handle);
  *handle = nullptr;
  return TQDAStatusCode::kQDAStatusOK;
}

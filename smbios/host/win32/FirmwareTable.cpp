#include <smbios/host/FirmwareTable.h>

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

namespace smbios {
namespace host {

namespace {

class Handle {
 public:
  explicit Handle(HANDLE handle) : fHandle(handle) {}
  ~Handle() {
    if (IsOpen()) {
      CloseHandle(fHandle);
    }
  }
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;

  bool IsOpen() const { return fHandle != INVALID_HANDLE_VALUE; }
  HANDLE Get() const { return fHandle; }

 private:
  const HANDLE fHandle;
};

Situation SituationOf(DWORD error) {
  switch (error) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_NAME:  // no file can have it
    case ERROR_BAD_PATHNAME:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
    case ERROR_INVALID_DRIVE:
      return Situation::kNotThere;
    case ERROR_ACCESS_DENIED:
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
      return Situation::kDenied;
    default:
      return Situation::kOther;
  }
}

std::wstring ToWide(const std::string& text) {
  const int bytes = static_cast<int>(text.size());
  const int length = MultiByteToWideChar(CP_UTF8, 0, text.data(), bytes, nullptr, 0);
  std::wstring wide(static_cast<std::size_t>(length), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, text.data(), bytes, &wide[0], length);
  return wide;
}

std::string FromWide(const std::wstring& wide) {
  const int units = static_cast<int>(wide.size());
  const int length =
      WideCharToMultiByte(CP_UTF8, 0, wide.data(), units, nullptr, 0, nullptr, nullptr);
  std::string text(static_cast<std::size_t>(length), '\0');
  WideCharToMultiByte(CP_UTF8, 0, wide.data(), units, &text[0], length, nullptr, nullptr);
  return text;
}

Situation ReadToEnd(HANDLE file, std::size_t mostBytes, std::vector<unsigned char>* bytes) {
  unsigned char block[16384];
  for (;;) {
    DWORD got = 0;
    if (!ReadFile(file, block, sizeof block, &got, nullptr)) {
      return SituationOf(GetLastError());
    }
    if (got == 0) {
      return Situation::kDone;
    }
    if (got > mostBytes - bytes->size()) {
      return Situation::kOther;
    }
    bytes->insert(bytes->end(), block, block + got);
  }
}

// A call that gives no bytes has its reason in the thread's last error.
Situation SituationOfEmptyFirmware(DWORD error) {
  switch (error) {
    case ERROR_SUCCESS:
    case ERROR_INVALID_FUNCTION:  // the firmware has no tables of this provider
    case ERROR_NOT_FOUND:
    case ERROR_NOT_SUPPORTED:
      return Situation::kNotThere;
    default:
      return SituationOf(error);
  }
}

const DWORD kRawSmbiosProvider = 0x52534D42;  // 'RSMB'
const std::size_t kRawHeaderSize = 8;

}  // namespace

std::string SystemFirmwareTable::ReadVariable(const char* name) {
  const std::wstring wideName = ToWide(name);
  std::wstring value;
  DWORD length = GetEnvironmentVariableW(wideName.c_str(), nullptr, 0);
  // Another thread may make it longer between the two calls.
  while (length > value.size()) {
    value.resize(length);
    length = GetEnvironmentVariableW(wideName.c_str(), &value[0], length);
  }
  value.resize(length);
  return FromWide(value);
}

Situation SystemFirmwareTable::ReadFileBytes(const std::string& path, std::size_t mostBytes,
                                             std::vector<unsigned char>* bytes) {
  bytes->clear();
  const std::wstring widePath = ToWide(path);
  const DWORD attributes = GetFileAttributesW(widePath.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) {
    // A file in use by somebody else is told by the open below.
    const DWORD error = GetLastError();
    if (error != ERROR_SHARING_VIOLATION) {
      return SituationOf(error);
    }
  } else if (attributes & FILE_ATTRIBUTE_DIRECTORY) {
    // To open it would be "access denied", which it is not.
    return Situation::kOther;
  }
  // Anonymous, because a pipe's server could otherwise borrow the caller's rights.
  const Handle file(CreateFileW(
      widePath.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
      nullptr, OPEN_EXISTING, SECURITY_SQOS_PRESENT | SECURITY_ANONYMOUS, nullptr));
  if (!file.IsOpen()) {
    return SituationOf(GetLastError());
  }
  if (GetFileType(file.Get()) != FILE_TYPE_DISK) {
    return Situation::kOther;
  }
  const Situation situation = ReadToEnd(file.Get(), mostBytes, bytes);
  if (situation != Situation::kDone) {
    bytes->clear();
  }
  return situation;
}

Situation SystemFirmwareTable::ReadFirmware(std::size_t mostBytes,
                                            std::vector<unsigned char>* header,
                                            std::vector<unsigned char>* table) {
  header->clear();
  table->clear();
  SetLastError(ERROR_SUCCESS);
  const UINT stated = GetSystemFirmwareTable(kRawSmbiosProvider, 0, nullptr, 0);
  if (stated == 0) {
    return SituationOfEmptyFirmware(GetLastError());
  }
  if (stated < kRawHeaderSize || stated - kRawHeaderSize > mostBytes) {
    return Situation::kOther;
  }
  table->resize(stated);
  const UINT got = GetSystemFirmwareTable(kRawSmbiosProvider, 0, table->data(), stated);
  // The table does not grow while the machine runs: there is no reason to ask again.
  if (got < kRawHeaderSize || got > stated) {
    table->clear();
    return Situation::kOther;
  }
  table->resize(got);
  const auto begin = table->begin() + static_cast<std::ptrdiff_t>(kRawHeaderSize);
  header->assign(table->begin(), begin);
  table->erase(table->begin(), begin);
  return Situation::kDone;
}

}  // namespace host
}  // namespace smbios

#include <plugins/machine/host/win32/Text.h>

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

namespace machine {
namespace host {

std::string FromWide(const wchar_t* wide, std::size_t units) {
  const int count = static_cast<int>(units);
  const int length = WideCharToMultiByte(CP_UTF8, 0, wide, count, nullptr, 0, nullptr, nullptr);
  std::string text(static_cast<std::size_t>(length), '\0');
  WideCharToMultiByte(CP_UTF8, 0, wide, count, &text[0], length, nullptr, nullptr);
  return text;
}

std::string FromWide(const wchar_t* wide) {
  return FromWide(wide, std::char_traits<wchar_t>::length(wide));
}

std::optional<std::string> RegistryText(const std::wstring& key, const wchar_t* name) {
  wchar_t text[256];
  DWORD bytes = sizeof text;
  // The terminator is there, and counted, whatever the registry has.
  if (RegGetValueW(HKEY_LOCAL_MACHINE, key.c_str(), name, RRF_RT_REG_SZ, nullptr, text, &bytes) !=
          ERROR_SUCCESS ||
      bytes < sizeof text[0]) {
    return std::nullopt;
  }
  return FromWide(text, bytes / sizeof text[0] - 1);
}

std::optional<unsigned long> RegistryNumber(const std::wstring& key, const wchar_t* name) {
  DWORD number = 0;
  DWORD bytes = sizeof number;
  if (RegGetValueW(HKEY_LOCAL_MACHINE, key.c_str(), name, RRF_RT_REG_DWORD, nullptr, &number,
                   &bytes) != ERROR_SUCCESS) {
    return std::nullopt;
  }
  return number;
}

}  // namespace host
}  // namespace machine

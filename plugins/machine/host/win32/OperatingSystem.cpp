#include <plugins/machine/host/OperatingSystem.h>

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#include <plugins/machine/host/win32/Text.h>

namespace machine {
namespace host {

namespace {

std::optional<std::string> ReadHostName() {
  wchar_t name[MAX_COMPUTERNAME_LENGTH + 1];
  DWORD units = MAX_COMPUTERNAME_LENGTH + 1;
  if (!GetComputerNameW(name, &units)) {
    return std::nullopt;
  }
  return FromWide(name, units);
}

// Not GetVersionEx: to a program without a manifest it tells an older version than is running.
std::optional<WindowsVersion> ReadVersion() {
  typedef LONG(WINAPI * RtlGetVersion)(OSVERSIONINFOEXW*);
  const HMODULE module = GetModuleHandleW(L"ntdll.dll");
  const RtlGetVersion getVersion = module ? reinterpret_cast<RtlGetVersion>(reinterpret_cast<void*>(
                                                GetProcAddress(module, "RtlGetVersion")))
                                          : nullptr;
  OSVERSIONINFOEXW version = {};
  version.dwOSVersionInfoSize = sizeof version;
  if (!getVersion || getVersion(&version) != 0) {
    return std::nullopt;
  }
  return WindowsVersion{version.dwMajorVersion, version.dwMinorVersion, version.dwBuildNumber,
                        version.wProductType != VER_NT_WORKSTATION};
}

}  // namespace

Reading ReadOperatingSystem() {
  Reading reading;
  reading.hostName = ReadHostName();
  reading.productName =
      RegistryText(L"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion", L"ProductName");
  reading.windowsVersion = ReadVersion();
  return reading;
}

std::string ReadVariable(const char* name) {
  // Names of variables here are plain ASCII.
  const std::wstring wideName(name, name + std::char_traits<char>::length(name));
  std::wstring value;
  DWORD length = GetEnvironmentVariableW(wideName.c_str(), nullptr, 0);
  // Another thread may make it longer between the two calls.
  while (length > value.size()) {
    value.resize(length);
    length = GetEnvironmentVariableW(wideName.c_str(), &value[0], length);
  }
  return FromWide(value.c_str(), length);
}

}  // namespace host
}  // namespace machine

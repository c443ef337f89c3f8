// Texts of Windows, in UTF-8.

#ifndef PLUGINS_MACHINE_HOST_WIN32_TEXT_H
#define PLUGINS_MACHINE_HOST_WIN32_TEXT_H

#include <cstddef>
#include <optional>
#include <string>

namespace machine {
namespace host {

std::string FromWide(const wchar_t* wide, std::size_t units);
std::string FromWide(const wchar_t* wide);

// The text and the number that the registry has under HKEY_LOCAL_MACHINE\`key`; absent when it
// has none of that type and name.
std::optional<std::string> RegistryText(const std::wstring& key, const wchar_t* name);
std::optional<unsigned long> RegistryNumber(const std::wstring& key, const wchar_t* name);

}  // namespace host
}  // namespace machine

#endif

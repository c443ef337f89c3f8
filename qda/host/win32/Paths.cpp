#include <windows.h>

#include <qda/host/Paths.h>

namespace qda {
namespace host {

std::filesystem::path ToPath(const std::string& name) {
  const int size = static_cast<int>(name.size());
  std::wstring wide(name.size(), L'\0');
  // No more characters than bytes, whatever the code page.
  const int length = MultiByteToWideChar(CP_ACP, 0, name.data(), size, wide.data(), size);
  wide.resize(static_cast<std::size_t>(length));
  return wide;
}

}  // namespace host
}  // namespace qda

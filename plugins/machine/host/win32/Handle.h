// A file or a device that is open; closed with the scope.

#ifndef PLUGINS_MACHINE_HOST_WIN32_HANDLE_H
#define PLUGINS_MACHINE_HOST_WIN32_HANDLE_H

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

namespace machine {
namespace host {

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

}  // namespace host
}  // namespace machine

#endif

// The library's entry function. The static data is built and ended by the runtime; this does
// one thing of its own, and there is nothing to do at the end.

#include <windows.h>

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID /*reserved*/) {
  if (reason == DLL_PROCESS_ATTACH) {
    // The library is never told of threads.
    DisableThreadLibraryCalls(instance);
  }
  return TRUE;
}

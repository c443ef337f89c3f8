// needy.nsp.dll: does not load without the library that it needs.

#include <tests/modules/ModuleExport.h>

#if defined(_WIN32)
extern "C" __declspec(dllimport) int NeededByNeedy();
#else
extern "C" int NeededByNeedy();
#endif

MODULE_EXPORT int CallsWhatItNeeds() { return NeededByNeedy(); }

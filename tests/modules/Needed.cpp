// A library that the module needy.nsp.dll needs, and that is never copied with it.

#include <tests/modules/ModuleExport.h>

MODULE_EXPORT int NeededByNeedy() { return 1; }

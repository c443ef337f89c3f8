// mark.pi.dll: a plain plug-in that only tells of its start and its end.

#include <tests/modules/ModuleExport.h>

namespace {

const TellsOfItself module("mark");

}  // namespace

// nofactory.nsc.dll: a module that loads, with a factory of another name.

#include <tests/modules/ModuleExport.h>

namespace {

const TellsOfItself module("nofactory");

}  // namespace

MODULE_EXPORT void* other_CreateINamespaceConsumer() { return nullptr; }

// A consumer module, null.nsc.dll, whose factory makes nothing.

#include <qdacore/plugin/INamespaceConsumer.h>
#include <tests/modules/ModuleExport.h>

MODULE_EXPORT NZRVQDA20::INamespaceConsumer* null_CreateINamespaceConsumer() { return nullptr; }

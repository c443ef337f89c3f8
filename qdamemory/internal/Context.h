// The type of the context argument, which this library takes everywhere and reads nowhere.

#ifndef QDAMEMORY_INTERNAL_CONTEXT_H
#define QDAMEMORY_INTERNAL_CONTEXT_H

#include <map>
#include <string>

#include <qdacore/cim/value/TCIMValue.h>

namespace NZRVQDA20 {

typedef std::map<std::string, TCIMValue> TContext;

}  // namespace NZRVQDA20

#endif

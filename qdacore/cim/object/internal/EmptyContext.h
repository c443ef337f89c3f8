// The context of a call that has nothing to say: a fresh empty map each time.

#ifndef QDACORE_CIM_OBJECT_INTERNAL_EMPTYCONTEXT_H
#define QDACORE_CIM_OBJECT_INTERNAL_EMPTYCONTEXT_H

#include <map>
#include <string>

#include <qdacore/cim/value/TCIMValue.h>

namespace NZRVQDA20 {

typedef std::map<std::string, TCIMValue> TEmptyContext;

}  // namespace NZRVQDA20

#endif

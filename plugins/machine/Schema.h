// The namespace that the provider serves.

#ifndef PLUGINS_MACHINE_SCHEMA_H
#define PLUGINS_MACHINE_SCHEMA_H

#include <boost/shared_ptr.hpp>

#include <plugins/machine/MachineFacts.h>

namespace NZRVQDA20 {
class ICIMNamespace;
}

namespace machine {

// A new namespace "root/cimv2" in memory, with the classes that `scope` asks for and an object
// for each thing that the facts tell of (docs/machine.md lists classes, properties and sources).
// Classes with a DMTF name have the keys that DMTF gives them (CIM Schema 2.49) and of the other
// properties only those that are filled here. A fact that is absent is a typed null, also in a
// key. Throws nothing but std::bad_alloc.
boost::shared_ptr<NZRVQDA20::ICIMNamespace> BuildNamespace(const MachineFacts& facts,
                                                           Scope scope = Scope::kAll);

}  // namespace machine

#endif

// The namespace that the provider serves: classes, and one instance of each.

#ifndef PLUGINS_MACHINE_SCHEMA_H
#define PLUGINS_MACHINE_SCHEMA_H

#include <boost/shared_ptr.hpp>

#include <plugins/machine/OperatingSystemFacts.h>
#include <plugins/machine/SmbiosFacts.h>

namespace NZRVQDA20 {
class ICIMNamespace;
}

namespace machine {

struct MachineFacts {
  SystemFacts system;
  OperatingSystemFacts operatingSystem;
};

// A new namespace "root/cimv2" in memory. Classes with a DMTF name have the keys that DMTF
// gives them (CIM Schema 2.49) and of the other properties only those that are filled here.
//
//   CIM_ComputerSystem    CreationClassName*, Name*
//    ZRVSG_ComputerSystem   ProductName, SerialNumber, Manufacturer, UUID
//   CIM_OperatingSystem   CSCreationClassName*, CSName*, CreationClassName*, Name*, OSType, Version
//    ZRVSG_OperatingSystem
//   CIM_Product           Name*, IdentifyingNumber*, Vendor*, Version*
//    ZRVSG_QDAProduct       Build
//
// * is a key. OSType is uint16, Build is uint32, all else is string. A fact that is absent is a
// typed null, also in a key. Throws nothing but std::bad_alloc.
boost::shared_ptr<NZRVQDA20::ICIMNamespace> BuildNamespace(const MachineFacts& facts);

}  // namespace machine

#endif

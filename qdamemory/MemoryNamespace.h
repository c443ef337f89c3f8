// In-memory CIM namespaces: the CIM object interfaces (qdacore/cim/object), implemented in
// full, for providers to serve their data from, for snapshots and for tests.
//
//   std::map<std::string, TCIMValue> none;
//   boost::shared_ptr<ICIMNamespace> ns = CreateMemoryNamespace("root/cimv2");
//   DeclareStandardQualifiers(ns);  // <qdamemory/StandardQualifiers.h>
//
//   boost::shared_ptr<ICIMClass> disk =
//       ns->CreateClass("CIM_DiskDrive", boost::shared_ptr<ICIMClass>(), none);
//   boost::shared_ptr<ICIMPropertyDecl> id = disk->AddPropertyDecl(
//       "DeviceID", TCIMValue(TCIMValue::TCIMType::kCIMTypeString, 0), none);
//   id->AddQualifier(ns->GetQualifierDecl("Key", none), TCIMValue(true), none)->Commit(none);
//   id->Commit(none);
//   disk->Commit(none);
//
//   boost::shared_ptr<ICIMInstance> sda = disk->CreateInstance(none);
//   sda->SetProperty("DeviceID", TCIMValue("sda"), none);
//   disk->AddInstance(sda);
//
//   TCIMReference path(ns, "CIM_DiskDrive.DeviceID=\"sda\"", none);
//   path.GetCIMElement(false);  // sda
//
// What holds throughout (docs/memory.md has it operation by operation):
//
// Names of classes, properties, methods, parameters and qualifiers compare without case in
// ASCII and keep the case that they were given (DSP0004, "CIM identifiers"). A name that is
// no CIM identifier is kQDAStatusInvalidCIMName; one that is taken, in its own place, is
// kQDAStatusAlreadyExists.
//
// Building. An element exists, and is found and enumerated, from the call that makes it.
// Commit closes it: from then on it takes no more declarations and no more qualifiers
// (kQDAStatusInvalidOpSequence); a second Commit does nothing. Committing a class closes all
// its declarations with it; methods have no Commit of their own. A class has subclasses and
// instances only once it is committed; until then CreateClass under it and CreateInstance
// throw kQDAStatusInvalidOpSequence. Static properties are data and can be set at any time.
//
// Order. Enumerations follow the order of creation, superclass first. What is made while an
// enumeration runs is not presented by it. The enumerations of a class's properties, methods,
// static properties and qualifiers present what the class has itself and nothing inherited;
// those of an instance's properties present all, inherited first.
//
// Keys. A property is a key when its declaration, or the nearest one that it overrides and
// that has the qualifier, has Key true. The set of keys belongs to the class that completes
// it, and no two published instances of that class and its subclasses have the same key
// values. String keys compare with case. Key values stand once the instance is published.
//
// Lifetime. The caller's pointers to the namespace alone keep it alive. Classes,
// declarations and instances that a caller still holds afterwards are harmless: they answer
// as before, but GetNamespace gives an empty pointer, there are no instances, subclasses or
// default references any more, and whatever would build on them throws
// kQDAStatusInvalidOpSequence.
//
// Context maps are not read. Threads: operations that read can run side by side; one that
// changes anything in a namespace must run alone.

#ifndef QDAMEMORY_MEMORYNAMESPACE_H
#define QDAMEMORY_MEMORYNAMESPACE_H

#include <string>

#include <boost/shared_ptr.hpp>

#include <qdacore/cim/object/ICIMNamespace.h>
#include <qdamemory/Export.h>

namespace NZRVQDA20 {

// A new, empty namespace, independent of all others, owned by the caller. `name` is a label
// for people, such as "root/cimv2"; it need not be unique.
QDAMEMORY_EXPORT boost::shared_ptr<ICIMNamespace> CreateMemoryNamespace(const std::string& name);

// The label that `ns` was created with; empty for a namespace that is not of this library.
QDAMEMORY_EXPORT std::string GetMemoryNamespaceName(const ICIMNamespace& ns);

}  // namespace NZRVQDA20

#endif

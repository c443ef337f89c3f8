// Object paths as MOF texts have them (DSP0004, "Object naming"): a class and its keys, strings,
// datetimes and references in quotes with \" and \\ for what stands inside, numbers, booleans and
// characters without. In front may stand a namespace's name and ":".
//
// The library's own form of a path (TCIMReference.h), which quotes all values and does not escape
// paths in paths, is read as well.

#ifndef QDAMEMORY_MOF_OBJECTPATHTEXT_H
#define QDAMEMORY_MOF_OBJECTPATHTEXT_H

#include <string>
#include <vector>

#include <boost/shared_ptr.hpp>

#include <qdacore/cim/value/TCIMReference.h>

namespace NZRVQDA20 {

class ICIMNamespace;

namespace mof {

// The classes that a path of either form may name, in its keys too, told by how they stand in it.
std::vector<std::string> ClassesInPath(const std::string& text);

// Throws TQDAException with what the class lookup throws, or kQDAStatusInvalidReference.
TCIMReference ReadObjectPath(const std::string& text, const boost::shared_ptr<ICIMNamespace>& ns);

// References nested deeper than four levels come in the library's own form, for each level would
// double the escapes. Where that form cannot hold them, as it has neither labels nor keys of some
// types, twelve levels are written with escapes; deeper ones throw kQDAStatusNotSupported.
std::string WriteObjectPath(const TCIMReference& reference);

}  // namespace mof
}  // namespace NZRVQDA20

#endif

// The order in which the classes of a namespace are written: each after its superclass, after the
// classes that its reference properties and their defaults name, and after the sibling that was
// made before it. Read in that order they come to be in the order that the namespace has.

#ifndef QDAMEMORY_MOF_WRITINGORDER_H
#define QDAMEMORY_MOF_WRITINGORDER_H

#include <vector>

#include <boost/shared_ptr.hpp>

namespace NZRVQDA20 {

class ICIMClass;
class ICIMNamespace;
class ICIMPropertyDecl;

namespace mof {

// Classes that need each other in a circle, which no namespace of this library has, come in the
// order in which they are met.
std::vector<boost::shared_ptr<ICIMClass> > ClassesInWritingOrder(const ICIMNamespace& ns);

// The declarations that a class makes itself, also where the namespace presents inherited ones.
std::vector<boost::shared_ptr<ICIMPropertyDecl> > OwnPropertyDecls(const ICIMClass& cls);

}  // namespace mof
}  // namespace NZRVQDA20

#endif

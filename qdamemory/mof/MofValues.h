// Values as a MOF text writes them, for a type that is known.

#ifndef QDAMEMORY_MOF_MOFVALUES_H
#define QDAMEMORY_MOF_MOFVALUES_H

#include <functional>
#include <string>

#include <boost/shared_ptr.hpp>

#include <qdacore/cim/value/TCIMReference.h>
#include <qdamemory/mof/MofSyntax.h>

namespace NZRVQDA20 {

class ICIMNamespace;

namespace mof {

// What a declaration says of its values.
struct Slot {
  TCIMValue::TCIMType::ECIMType type;  // of an element, when it is an array
  bool isArray;
  unsigned int maxArraySize;
};

// Gives what an alias names. Throws Failure when there is none.
typedef std::function<TCIMReference(const Literal& alias)> AliasResolver;

// The typed null of a slot.
TCIMValue NullValue(const Slot& slot);

// Throws Failure when `value` does not fit. `aliases` is asked for references only, and may be
// empty where there are none. Object paths are read in `ns`.
TCIMValue MakeValue(const Slot& slot, const Value& value,
                    const boost::shared_ptr<ICIMNamespace>& ns, const AliasResolver& aliases);

// A value of an element type from one literal, which is no alias. Throws Failure.
TCIMValue MakeScalar(TCIMValue::TCIMType::ECIMType type, const Literal& literal,
                     const boost::shared_ptr<ICIMNamespace>& ns);

}  // namespace mof
}  // namespace NZRVQDA20

#endif

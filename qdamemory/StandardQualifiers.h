// The meaning of the two attributes of a qualifier declaration, and the declarations of the
// qualifiers that DSP0004 ("Qualifiers") defines.
//
// ICIMQualifierDecl only carries two numbers. In this library the first is the scope, the
// second the flavor. The scope is carried and not enforced. Of the flavor two bits count:
//
//   * kQualifierToSubclass: GetQualifier on a subclass, or on a property or method that
//     overrides, finds the qualifier of the nearest ancestor. Without the bit it does not.
//     EnumerateQualifiers never presents inherited qualifiers.
//   * kQualifierEnableOverride: what is inherited by the bit above may be given another value.
//     Without it AddQualifier with another value throws kQDAStatusNotOverridable.
//
// Three qualifiers mean something to a memory namespace whatever their declaration says, as
// soon as their value is the boolean true: Association (inherited), Abstract (not inherited)
// and Key (inherited by what overrides the property).

#ifndef QDAMEMORY_STANDARDQUALIFIERS_H
#define QDAMEMORY_STANDARDQUALIFIERS_H

#include <cstdint>

#include <boost/shared_ptr.hpp>

#include <qdamemory/Export.h>

namespace NZRVQDA20 {

class ICIMNamespace;

// The first attribute: the elements that a qualifier is meant for, as bits.
enum EQualifierScope : std::int32_t {
  kQualifierScopeClass = 1,
  kQualifierScopeAssociation = 2,
  kQualifierScopeIndication = 4,
  kQualifierScopeProperty = 8,
  kQualifierScopeReference = 16,
  kQualifierScopeMethod = 32,
  kQualifierScopeParameter = 64,
  kQualifierScopeAny = 127
};

// The second attribute, as bits. Restricted is the absence of kQualifierToSubclass,
// DisableOverride the absence of kQualifierEnableOverride.
enum EQualifierFlavor : std::int32_t {
  kQualifierEnableOverride = 1,
  kQualifierToSubclass = 2,
  kQualifierTranslatable = 4
};

// Declares in `ns` the standard qualifiers of DSP0004 that are in common use, with their
// types, defaults, scopes and flavors; those that `ns` declares already are left as they are.
// Works on any implementation of the interfaces.
QDAMEMORY_EXPORT void DeclareStandardQualifiers(boost::shared_ptr<ICIMNamespace> ns);

}  // namespace NZRVQDA20

#endif

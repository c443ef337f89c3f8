// TCIMCopy: CIM data and schema moved from one namespace to another.
//
// A CIM value stands by itself unless it is a reference: a reference points into the namespace
// that it came from, and a copy of it points at the same place in the target. So the target must
// have the classes that references name before values are copied, the superclass before a class,
// and the declarations of qualifiers before what is qualified. CopyClasses keeps to that order:
//
//   TCIMCopy::CopyClasses(source, target, true);        // the schema
//   TCIMCopy::CopyInstance(disk, target);               // and what the caller wants of the data
//
// Source and target are reached through the CIM object interfaces only, so both may belong to any
// provider. Every context handed to them is empty.
//
// Failures are what the two namespaces throw, unchanged; nothing is caught, and there is no
// rollback: what was committed or published before a failure stays in the target. A class, a
// superclass or a qualifier's declaration that the target lacks is kQDAStatusNotFound. A null
// pointer is a failed assertion (AssertionFailed.h).
//
// Threads: no state, no locks; all runs on the caller's thread, as safe as the two namespaces.
//
// It stands outside the library's namespace, and so do its callback classes; plug-ins name it so.

#ifndef QDACORE_CIM_OBJECT_TCIMCOPY_H
#define QDACORE_CIM_OBJECT_TCIMCOPY_H

#include <boost/shared_ptr.hpp>

#include <qdacore/Export.h>
#include <qdacore/cim/value/TCIMValue.h>

namespace NZRVQDA20 {
class ICIMClass;
class ICIMInstance;
class ICIMNamespace;
}  // namespace NZRVQDA20

class TCIMCopy {
 public:
  // A value that is valid in `target`. All but a scalar reference is a plain copy, which asks
  // neither namespace. A reference gets the target's class of the same name as its referenced
  // class, also when it is null, and its keys are copied like values, to any depth; its namespace
  // is `target`, and the source's namespace name is not carried over. One debug line in the core
  // log for each reference.
  //
  // An array of references is a plain copy whose elements keep pointing at the source; that is
  // meant.
  //
  // Throws kQDAStatusNotFound when the target lacks the class of a reference.
  QDACORE_EXPORT static NZRVQDA20::TCIMValue CopyValue(
      const NZRVQDA20::TCIMValue& value, boost::shared_ptr<NZRVQDA20::ICIMNamespace> target);

  // A new instance of the target's class of the same name, with the source's values, published in
  // that class and returned. Properties that are null in the source are not set, so they keep what
  // the target's class gives them. When a property cannot be copied the instance is not published.
  //
  // Throws kQDAStatusNotFound, with nothing made, when the target lacks the class.
  QDACORE_EXPORT static boost::shared_ptr<NZRVQDA20::ICIMInstance> CopyInstance(
      boost::shared_ptr<NZRVQDA20::ICIMInstance> source,
      boost::shared_ptr<NZRVQDA20::ICIMNamespace> target);

  // Rebuilds one class in the target: superclass, qualifiers, property declarations, static
  // values, methods; then commits it. An inherited declaration is made again only where the
  // source's has the qualifier "OVERRIDE". Static values are set also where they are null. A
  // method's declaration, which has no Commit, takes effect with the class.
  //
  // Throws kQDAStatusNotFound when the target lacks the superclass, a qualifier's declaration or
  // the class that a reference names. A class that failed part-way stays uncommitted in the target.
  QDACORE_EXPORT static void CopyClass(boost::shared_ptr<NZRVQDA20::ICIMClass> source,
                                       boost::shared_ptr<NZRVQDA20::ICIMNamespace> target);

  // A whole schema: the declarations of qualifiers, then every class that is no association, then
  // every association, superclasses before their subclasses. The target must have none of the
  // source's classes: nothing asks whether one is there, and CreateClass meets it like any other.
  //
  // Of the data only the instances of class "ZRVSG_QDAProduct" itself are copied, the record of
  // what made the namespace, and not even those when `skipProductInstances` is true or the class
  // carries a "PLUGINNAME" qualifier.
  QDACORE_EXPORT static void CopyClasses(boost::shared_ptr<NZRVQDA20::ICIMNamespace> source,
                                         boost::shared_ptr<NZRVQDA20::ICIMNamespace> target,
                                         bool skipProductInstances);
};

#endif

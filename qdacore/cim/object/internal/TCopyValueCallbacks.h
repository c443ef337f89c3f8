// The callbacks by which values move: over the keys of a reference and the properties of an
// instance. Each holds its target namespace weakly and takes hold of it at each call, so that a
// callback that somebody keeps does not keep the namespace; one whose namespace has gone meets an
// empty pointer, and with it a failed assertion.

#ifndef QDACORE_CIM_OBJECT_INTERNAL_TCOPYVALUECALLBACKS_H
#define QDACORE_CIM_OBJECT_INTERNAL_TCOPYVALUECALLBACKS_H

#include <string>
#include <utility>

#include <boost/shared_ptr.hpp>
#include <boost/weak_ptr.hpp>

#include <qdacore/cim/value/TCIMValue.h>

namespace NZRVQDA20 {
class ICIMInstance;
class ICIMNamespace;
class ICIMProperty;
class TCIMReference;
}  // namespace NZRVQDA20

class TCopyReferenceKeys {
 public:
  // `reference` is under construction and belongs to the caller.
  TCopyReferenceKeys(const boost::weak_ptr<NZRVQDA20::ICIMNamespace>& target,
                     NZRVQDA20::TCIMReference* reference)
      : fTarget(target), fReference(reference) {}

  bool operator()(std::pair<std::string, NZRVQDA20::TCIMValue> binding);

 private:
  boost::weak_ptr<NZRVQDA20::ICIMNamespace> fTarget;
  NZRVQDA20::TCIMReference* fReference;
};

class TCopyInstanceProperty {
 public:
  TCopyInstanceProperty(const boost::weak_ptr<NZRVQDA20::ICIMNamespace>& target,
                        const boost::shared_ptr<NZRVQDA20::ICIMInstance>& instance)
      : fTarget(target), fInstance(instance) {}

  bool operator()(boost::shared_ptr<NZRVQDA20::ICIMProperty> property);

 private:
  boost::weak_ptr<NZRVQDA20::ICIMNamespace> fTarget;
  boost::shared_ptr<NZRVQDA20::ICIMInstance> fInstance;
};

#endif

// TCopiedValue: a value as TCIMCopy::CopyValue gives it, for a call that keeps a copy of its own.
// Only references are made anew; any other value, whose copy would be its equal, is handed on as it
// stands, and the namespace is not taken hold of.

#ifndef QDACORE_CIM_OBJECT_INTERNAL_COPIEDVALUE_H
#define QDACORE_CIM_OBJECT_INTERNAL_COPIEDVALUE_H

#include <boost/shared_ptr.hpp>
#include <boost/weak_ptr.hpp>

#include <qdacore/cim/object/TCIMCopy.h>
#include <qdacore/cim/value/TCIMValue.h>

class TCopiedValue {
 public:
  // `source` must outlive this.
  TCopiedValue(const NZRVQDA20::TCIMValue& source,
               const boost::weak_ptr<NZRVQDA20::ICIMNamespace>& target)
      : fSource(source),
        fReference(source.IsReference() ? TCIMCopy::CopyValue(source, target.lock())
                                        : NZRVQDA20::TCIMValue()) {}

  const NZRVQDA20::TCIMValue& Get() const { return fSource.IsReference() ? fReference : fSource; }

 private:
  const NZRVQDA20::TCIMValue& fSource;
  const NZRVQDA20::TCIMValue fReference;
};

#endif

// One value of each type, for tests that try them all.

#ifndef TESTS_CIM_VALUE_SAMPLEVALUES_H
#define TESTS_CIM_VALUE_SAMPLEVALUES_H

#include <string>
#include <vector>

#include <qdacore/cim/value/TCIMChar16.h>
#include <qdacore/cim/value/TCIMDateTime.h>
#include <qdacore/cim/value/TCIMReference.h>
#include <qdacore/cim/value/TCIMValue.h>
#include <tests/cim/RecordingNamespace.h>

namespace cim_test {

inline NZRVQDA20::TCIMValue::TCIMType TypeFromNumber(int number) {
  typedef NZRVQDA20::TCIMValue::TCIMType TType;
  return TType(static_cast<TType::ECIMType>(number));
}

inline int Word(const NZRVQDA20::TCIMValue& value) {
  return static_cast<NZRVQDA20::TCIMValue::TCIMType::ECIMType>(value.GetType());
}

// Holds the class that its reference value names.
struct SampleValues {
  SampleValues() : ns(RecordingNamespace::Create()) {
    using namespace NZRVQDA20;
    ns->Declare("Disk");
    TCIMReference disk(ns);
    disk.SetClass(ns->Class("Disk"));
    scalars = {TCIMValue(true),
               TCIMValue(static_cast<unsigned char>(2)),
               TCIMValue(static_cast<signed char>(-3)),
               TCIMValue(static_cast<unsigned short>(4)),
               TCIMValue(static_cast<short>(-5)),
               TCIMValue(6u),
               TCIMValue(-7),
               TCIMValue(8ull),
               TCIMValue(-9ll),
               TCIMValue(10.5f),
               TCIMValue(11.5),
               TCIMValue(TCIMChar16(12)),
               TCIMValue("thirteen"),
               TCIMValue(TCIMDateTime(14, 0, 0, 0, 0)),
               TCIMValue(disk)};
  }

  // An array of two of the type.
  NZRVQDA20::TCIMValue ArrayOf(int type) const {
    const NZRVQDA20::TCIMValue& element = scalars.at(type - 1);
    return NZRVQDA20::TCIMValue(TypeFromNumber(type), 0, {element, element});
  }

  boost::shared_ptr<RecordingNamespace> ns;
  // The value of type N stands at N - 1.
  std::vector<NZRVQDA20::TCIMValue> scalars;
};

}  // namespace cim_test

#endif

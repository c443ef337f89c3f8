// Two classes that refer to each other, a core log, and the default assertion policy: for tests
// of object paths.

#ifndef TESTS_CIM_VALUE_REFERENCEFIXTURE_H
#define TESTS_CIM_VALUE_REFERENCEFIXTURE_H

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <qdacore/cim/value/TCIMReference.h>
#include <tests/cim/value/SampleValues.h>
#include <tests/support/ExpectStatus.h>
#include <tests/support/LogCapture.h>
#include <tests/support/ScopedEnvironment.h>

namespace cim_test {

class ReferenceTest : public testing::Test {
 protected:
  typedef NZRVQDA20::TCIMValue::TCIMType TType;

  ReferenceTest() : policy("QDA_BOOST_ASSERT", nullptr), ns(RecordingNamespace::Create()) {
    ns->Declare("Cls")
        .With("A", TType::kCIMTypeString)
        .With("B", TType::kCIMTypeString)
        .With("Number", TType::kCIMTypeUint32)
        .With("Character", TType::kCIMTypeChar16)
        .With("Time", TType::kCIMTypeDateTime)
        .With("Array", static_cast<TType::ECIMType>(29))
        .With("Ref", TType::kCIMTypeReference);
    ns->Declare("Other").With("A", TType::kCIMTypeString).With("Ref", TType::kCIMTypeReference);
  }

  NZRVQDA20::TCIMReference Parse(const std::string& path) {
    return NZRVQDA20::TCIMReference(ns, path, Context());
  }

  // The bindings as "name=text", in order.
  static std::vector<std::string> Keys(const NZRVQDA20::TCIMReference& reference) {
    std::vector<std::string> keys;
    reference.EnumerateKeyBindings([&keys](std::pair<std::string, NZRVQDA20::TCIMValue> binding) {
      keys.push_back(binding.first + "=" + binding.second.ToString());
      return true;
    });
    return keys;
  }

  const test_support::ScopedEnvironment policy;
  test_support::LogCapture log;
  boost::shared_ptr<RecordingNamespace> ns;
};

}  // namespace cim_test

#endif

// The order of the library's static data. A program that has the library's objects in it shows it
// from inside.

#include <gtest/gtest.h>

#include <tests/support/ChildProcess.h>

namespace {

using namespace test_support;

// When a destructor is registered, all that stands before it in the order is built, and nothing
// that stands behind it. (The last row is an empty pointer, which only its registration shows.)
// At the end they run backwards; the registry goes with the first.
TEST(StaticData, IsBuiltInItsOrderAndReleasedBackwards) {
  const ChildResult result = RunProgram(OwnFolder() + "/" QDACORE_STATIC_ORDER_PROBE, {});
  EXPECT_EQ(
      "build 1: 1000000000000\n"
      "build 2: 1100000000000\n"
      "build 3: 1110000000000\n"
      "build 4: 1111000000000\n"
      "build 5: 1111100000000\n"
      "build 6: 1111110000000\n"
      "build 7: 1111111000000\n"
      "build 8: 1111111100000\n"
      "build 9: 1111111110000\n"
      "build 10: 1111111111000\n"
      "build 11: 1111111111100\n"
      "build 12: 1111111111110\n"
      "build 13: 1111111111111\n"
      "build 14: 1111111111111\n"
      "14 in all\n"
      "each its own destructor\n"
      "release 14\n"
      "provider in the registry\n"
      "release 13\n"
      "release 12\n"
      "release 11\n"
      "release 10\n"
      "release 9\n"
      "release 8\n"
      "release 7\n"
      "release 6\n"
      "release 5\n"
      "release 4\n"
      "release 3\n"
      "release 2\n"
      "release 1\n",
      result.output);
  EXPECT_EQ("", result.error);
  EXPECT_EQ(0, result.exitCode);
}

}  // namespace

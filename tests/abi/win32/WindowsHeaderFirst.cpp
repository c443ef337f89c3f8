// The public headers with <windows.h> before them: its macro GetClassName must not stand in the
// way.

#include <windows.h>

#include <qdacore/qdacore.h>

#include <gtest/gtest.h>

#include <tests/support/ExpectStatus.h>

namespace {

using namespace NZRVQDA20;

TEST(WindowsHeaderFirst, GetClassNameIsCalledAsEver) {
  TCIMReference reference;
  // No class: a failed assertion, so the call reached the library.
  EXPECT_STATUS(kQDAStatusFail, reference.GetClassName());
}

TEST(WindowsHeaderFirst, TheWindowFunctionIsStillThere) {
  char name[16] = "";
  EXPECT_EQ(0, GetClassName(nullptr, name, sizeof name));
}

}  // namespace

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tests/support/ChildProcess.h>

int main(int argc, char** argv) {
  int exitCode = 0;
  if (test_support::RunAsChild(argc, argv, exitCode)) {
    return exitCode;
  }
  testing::InitGoogleMock(&argc, argv);
  return RUN_ALL_TESTS();
}

// EXPECT_STATUS(kQDAStatusNotFound, call): the call throws TQDAException with that very status.

#ifndef TESTS_SUPPORT_EXPECTSTATUS_H
#define TESTS_SUPPORT_EXPECTSTATUS_H

#include <string>

#include <gtest/gtest.h>

#include <qdacore/frame/TQDAException.h>

namespace test_support {

// The name of the status that `call` throws; "nothing" when it returns. Other exceptions pass.
template <class Call>
std::string ThrownStatus(Call call) {
  try {
    call();
  } catch (const NZRVQDA20::TQDAException& failure) {
    return failure.what();
  }
  return "nothing";
}

}  // namespace test_support

#define EXPECT_STATUS(status, ...) \
  EXPECT_EQ(#status, ::test_support::ThrownStatus([&] { static_cast<void>(__VA_ARGS__); }))

#endif

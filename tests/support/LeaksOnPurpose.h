// For a scope in which the library leaves something open or unreleased that is meant to stay so: a
// sanitizer does not count it as a leak.

#ifndef TESTS_SUPPORT_LEAKSONPURPOSE_H
#define TESTS_SUPPORT_LEAKSONPURPOSE_H

#if defined(__SANITIZE_ADDRESS__)
#define QDACORE_COUNTS_LEAKS 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define QDACORE_COUNTS_LEAKS 1
#endif
#endif

#if defined(QDACORE_COUNTS_LEAKS)
#include <sanitizer/lsan_interface.h>
#endif

namespace test_support {

#if defined(QDACORE_COUNTS_LEAKS)
typedef __lsan::ScopedDisabler LeaksOnPurpose;
#else
class LeaksOnPurpose {
 public:
  LeaksOnPurpose() {}
  ~LeaksOnPurpose() {}
};
#endif

}  // namespace test_support

#endif

// What this process holds open, counted by the system.

#ifndef TESTS_SUPPORT_OPENHANDLES_H
#define TESTS_SUPPORT_OPENHANDLES_H

namespace test_support {

// The number of open descriptors; on Windows, of handles of every kind.
int CountOpenHandles();

}  // namespace test_support

#endif

// Loading with the n-th allocation failing, for every n. Under a leak checker it also
// shows that a load that failed keeps nothing.

#include <cstdlib>
#include <new>

#include <gtest/gtest.h>

#include "SmbiosTestSupport.h"

namespace {

// How many more allocations succeed before one fails; below 0 all do.
long fgAllocationsLeft = -1;

}  // namespace

// They replace those of the whole program.
void* operator new(std::size_t size) {
  if (fgAllocationsLeft >= 0 && fgAllocationsLeft-- == 0) {
    throw std::bad_alloc();
  }
  void* const memory = std::malloc(size == 0 ? 1 : size);
  if (memory == nullptr) {
    throw std::bad_alloc();
  }
  return memory;
}

void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

namespace smbios_test {
namespace {

TEST(SmbiosOutOfMemory, EveryFailedAllocationIsOutOfMemoryWithoutAHandle) {
  const DumpVariable variable(SMBIOS_SAMPLE_FILE);
  long failures = 0;
  for (;; ++failures) {
    ASSERT_LT(failures, 1000);
    int other = 0;
    void* handle = &other;
    fgAllocationsLeft = failures;
    const int status = smBiosLoad(nullptr, &handle).GetStatusCode();
    const bool untouched = fgAllocationsLeft >= 0;
    fgAllocationsLeft = -1;
    if (untouched) {
      EXPECT_EQ(0, status);
      EXPECT_NE(nullptr, handle);
      EXPECT_EQ(0, smBiosClose(&handle).GetStatusCode());
      break;
    }
    EXPECT_EQ(4, status) << "allocation " << failures;
    EXPECT_EQ(nullptr, handle) << "allocation " << failures;
  }
  // The bytes, the places of the structures and the table itself, at the least.
  EXPECT_GE(failures, 3);
}

}  // namespace
}  // namespace smbios_test

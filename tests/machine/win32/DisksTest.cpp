// This very machine, against what wmic says.

#include <plugins/machine/host/Disks.h>

#include <set>

#include <gtest/gtest.h>

#include <plugins/machine/DiskFacts.h>
#include <tests/machine/win32/Wmic.h>

namespace {

using machine::DiskFacts;
using machine::UnderstandDisks;
using machine::host::ReadDisks;
using machine_test::AskWmic;

TEST(TheseDisks, HaveTheSizesThatWmicTells) {
  const std::vector<std::string> names = AskWmic("diskdrive", "DeviceID");
  const std::vector<std::string> sizes = AskWmic("diskdrive", "Size");
  if (names.empty() || sizes.size() != names.size()) {
    GTEST_SKIP() << "wmic does not tell";
  }
  std::set<std::string> seen;
  for (const DiskFacts& facts : UnderstandDisks(ReadDisks())) {
    ASSERT_EQ(0u, facts.deviceId.find("PhysicalDrive"));
    EXPECT_TRUE(seen.insert(facts.deviceId).second);
    for (std::size_t at = 0; at < names.size(); ++at) {
      const std::string number = names[at].substr(names[at].find_last_not_of("0123456789") + 1);
      if (facts.deviceId == "PhysicalDrive" + number && facts.numberOfBlocks) {
        EXPECT_EQ(sizes[at], std::to_string(*facts.numberOfBlocks * *facts.blockSize));
      }
    }
  }
  EXPECT_FALSE(seen.empty());
}

}  // namespace

// This very machine, against what wmic says.

#include <plugins/machine/host/FileSystems.h>

#include <algorithm>
#include <cstdlib>

#include <gtest/gtest.h>

#include <plugins/machine/FileSystemFacts.h>
#include <tests/machine/win32/Wmic.h>

#include <windows.h>

namespace {

using machine::FileSystemFacts;
using machine::ReadFileSystemFacts;
using machine_test::AskWmic;

TEST(TheseFileSystems, AreWhatWmicTells) {
  const std::vector<std::string> letters = AskWmic("logicaldisk", "DeviceID");
  const std::vector<std::string> types = AskWmic("logicaldisk", "FileSystem");
  const std::vector<std::string> spaces = AskWmic("logicaldisk", "FreeSpace");
  if (letters.empty() || types.size() != letters.size() || spaces.size() != letters.size()) {
    GTEST_SKIP() << "wmic does not tell";
  }
  std::size_t compared = 0;
  for (const FileSystemFacts& facts : ReadFileSystemFacts()) {
    for (std::size_t at = 0; at < letters.size(); ++at) {
      if (letters[at] + "\\" == facts.root) {
        ++compared;
        EXPECT_EQ(types[at], facts.fileSystemType);
        ASSERT_TRUE(facts.availableSpace && facts.fileSystemSize);
        // Others write and delete meanwhile.
        EXPECT_NEAR(std::stod(spaces[at]), static_cast<double>(*facts.availableSpace),
                    static_cast<double>(*facts.fileSystemSize) * 0.05);
      }
    }
  }
  EXPECT_NE(0u, compared);
}

// Wine's wmic tells another size than all other programs there.
TEST(TheseFileSystems, HaveTheSizeThatTheirClustersAddUpTo) {
  for (const FileSystemFacts& facts : ReadFileSystemFacts()) {
    DWORD sectors = 0;
    DWORD sectorBytes = 0;
    DWORD freeClusters = 0;
    DWORD clusters = 0;
    ASSERT_TRUE(
        GetDiskFreeSpaceA(facts.root.c_str(), &sectors, &sectorBytes, &freeClusters, &clusters));
    EXPECT_EQ(static_cast<std::uint64_t>(sectors) * sectorBytes, facts.blockSize);
    EXPECT_EQ(static_cast<std::uint64_t>(sectors) * sectorBytes * clusters, facts.fileSystemSize);
  }
}

TEST(TheseFileSystems, HaveTheOneThatTheSystemIsOn) {
  const char* const told = std::getenv("SystemDrive");
  ASSERT_NE(nullptr, told);
  const std::vector<FileSystemFacts> found = ReadFileSystemFacts();
  EXPECT_TRUE(std::any_of(found.begin(), found.end(), [told](const FileSystemFacts& facts) {
    return facts.root == told + std::string("\\");
  }));
}

TEST(ReadMountTable, IsForOtherHosts) {
  EXPECT_EQ(std::nullopt, machine::host::ReadMountTable());
  EXPECT_EQ(std::nullopt, machine::host::ReadUsage("C:\\"));
  EXPECT_EQ(std::nullopt, machine::host::ReadBlockDevicePath(8, 1));
}

}  // namespace

#include <plugins/machine/ResourceFacts.h>

#include <gtest/gtest.h>

namespace {

using machine::FindInMemoryText;
using machine::ResourceFacts;
using machine::UnderstandResources;
using machine::host::ResourceReading;

const char kMemoryText[] =
    "MemTotal:       24684096 kB\nMemFree:        23287976 kB\nSwapCached:            0 kB\n"
    "SwapTotal:       1048572 kB\nHugePages_Total:       0\n";

TEST(UnderstandResources, ReadsALinuxReading) {
  ResourceReading reading;
  reading.memoryText = kMemoryText;
  reading.mostThreadsText = "192731\n";
  reading.endOfPidsText = "32768\n";
  reading.bootMicroseconds = 1700000000999999;
  const ResourceFacts facts = UnderstandResources(reading);
  EXPECT_EQ(24684096u, facts.totalVisibleMemorySize);
  EXPECT_EQ(1048572u, facts.sizeStoredInPagingFiles);
  EXPECT_EQ(25732668u, facts.totalVirtualMemorySize);
  EXPECT_EQ(std::nullopt, facts.maxProcessMemorySize);
  EXPECT_EQ(32767u, facts.maxNumberOfProcesses);
  EXPECT_EQ(1700000000, facts.lastBootSeconds);
}

TEST(UnderstandResources, ReadsAWindowsReading) {
  ResourceReading reading;
  reading.physicalBytes = 8589934592;
  reading.commitBytes = 9663676416;
  reading.processBytes = 140737488224256;
  const ResourceFacts facts = UnderstandResources(reading);
  EXPECT_EQ(8388608u, facts.totalVisibleMemorySize);
  EXPECT_EQ(9437184u, facts.totalVirtualMemorySize);
  EXPECT_EQ(137438953344u, facts.maxProcessMemorySize);
  EXPECT_EQ(std::nullopt, facts.sizeStoredInPagingFiles);
  EXPECT_EQ(std::nullopt, facts.maxNumberOfProcesses);
  EXPECT_EQ(std::nullopt, facts.lastBootSeconds);
}

TEST(UnderstandResources, HasNoSumWithoutBothParts) {
  ResourceReading reading;
  reading.memoryText = "MemTotal: 5 kB\n";
  EXPECT_EQ(5u, UnderstandResources(reading).totalVisibleMemorySize);
  EXPECT_EQ(std::nullopt, UnderstandResources(reading).totalVirtualMemorySize);
  reading.memoryText = "SwapTotal: 5 kB\n";
  EXPECT_EQ(std::nullopt, UnderstandResources(reading).totalVirtualMemorySize);
  reading.memoryText = "MemTotal: 18446744073709551615 kB\nSwapTotal: 1 kB\n";
  EXPECT_EQ(std::nullopt, UnderstandResources(reading).totalVirtualMemorySize);
}

TEST(UnderstandResources, TimesBefore1970AreNoTimes) {
  ResourceReading reading;
  reading.bootMicroseconds = -1;
  EXPECT_EQ(std::nullopt, UnderstandResources(reading).lastBootSeconds);
  reading.bootMicroseconds = 0;
  EXPECT_EQ(0, UnderstandResources(reading).lastBootSeconds);
}

struct LimitRow {
  const char* threads;
  const char* end;
  std::optional<std::uint32_t> most;
};

void PrintTo(const LimitRow& row, std::ostream* stream) {
  *stream << row.threads << " threads, process numbers below " << row.end;
}

class MostProcesses : public testing::TestWithParam<LimitRow> {};

TEST_P(MostProcesses, IsTheSmallerLimit) {
  ResourceReading reading;
  reading.mostThreadsText = GetParam().threads;
  reading.endOfPidsText = GetParam().end;
  EXPECT_EQ(GetParam().most, UnderstandResources(reading).maxNumberOfProcesses);
}

INSTANTIATE_TEST_SUITE_P(Limits, MostProcesses,
                         testing::Values(LimitRow{"100", "32768", 100}, LimitRow{"100", "50", 49},
                                         LimitRow{"100", "101", 100}, LimitRow{"100", "1", {}},
                                         LimitRow{"100", "0", {}}, LimitRow{"0", "100", {}},
                                         LimitRow{"", "100", {}}, LimitRow{"100", "x", {}},
                                         LimitRow{"4294967296", "100", {}}));

struct MemoryRow {
  const char* what;
  std::string text;
  std::optional<std::uint64_t> kilobytes;
};

void PrintTo(const MemoryRow& row, std::ostream* stream) { *stream << row.what; }

class MemTotal : public testing::TestWithParam<MemoryRow> {};

TEST_P(MemTotal, IsReadOrAbsent) {
  EXPECT_EQ(GetParam().kilobytes, FindInMemoryText(GetParam().text, "MemTotal"));
}

INSTANTIATE_TEST_SUITE_P(
    Texts, MemTotal,
    testing::Values(MemoryRow{"plain", "MemTotal:  7 kB\n", 7},
                    MemoryRow{"no line feed", "MemTotal:  7 kB", 7},
                    MemoryRow{"not first", "A: 1 kB\nMemTotal: 7 kB\n", 7},
                    MemoryRow{"first of two", "MemTotal: 7 kB\nMemTotal: 8 kB\n", 7},
                    MemoryRow{"longer name", "MemTotalX: 1 kB\nXMemTotal: 2 kB\n", {}},
                    MemoryRow{"other unit", "MemTotal: 7 MB\n", {}},
                    MemoryRow{"no unit", "MemTotal: 7\n", {}},
                    MemoryRow{"unit only", "MemTotal: kB\n", {}},
                    MemoryRow{"below zero", "MemTotal: -7 kB\n", {}},
                    MemoryRow{"cut", "MemTotal", {}}, MemoryRow{"empty", "", {}}));

}  // namespace

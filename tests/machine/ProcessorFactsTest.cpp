#include <plugins/machine/ProcessorFacts.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using machine::ProcessorFacts;
using machine::RoundedMegahertz;
using machine::UnderstandCpuInfo;
using machine::UnderstandProcessors;
using machine::host::PackageReading;
using machine::host::ProcessorReading;
using testing::ElementsAre;
using testing::IsEmpty;

// As a kernel writes it, cut to the fields of interest and those around them.
std::string Paragraph(int processor, int socket, int siblings, int cores) {
  return "processor\t: " + std::to_string(processor) +
         "\nvendor_id\t: GenuineIntel\ncpu family\t: 6\nmodel\t\t: 85\n"
         "model name\t: Some(R) Processor @ 2.50GHz\nstepping\t: 4\ncpu MHz\t\t: 2499.998\n"
         "physical id\t: " +
         std::to_string(socket) + "\nsiblings\t: " + std::to_string(siblings) +
         "\ncpu cores\t: " + std::to_string(cores) +
         "\nflags\t\t: fpu vmx nx lm\npower management:\n\n";
}

std::vector<ProcessorFacts> Understand(const std::string& text) {
  return UnderstandCpuInfo(text, {});
}

TEST(UnderstandCpuInfo, HasOneEntryForEachSocket) {
  const std::vector<ProcessorFacts> found = UnderstandCpuInfo(
      Paragraph(0, 0, 4, 2) + Paragraph(1, 1, 4, 2) + Paragraph(2, 0, 4, 2) + Paragraph(3, 1, 4, 2),
      {std::string("3500000\n"), std::string("3599600\n")});
  ASSERT_EQ(2u, found.size());
  EXPECT_EQ("CPU0", found[0].deviceId);
  EXPECT_EQ("CPU1", found[1].deviceId);
  EXPECT_EQ("Some(R) Processor @ 2.50GHz", found[0].name);
  EXPECT_EQ("4", found[0].stepping);
  EXPECT_EQ(2500u, found[0].currentClockSpeed);
  EXPECT_EQ(3500u, found[0].maxClockSpeed);
  EXPECT_EQ(3600u, found[1].maxClockSpeed);
  EXPECT_EQ(64, found[0].dataWidth);
  EXPECT_EQ(64, found[0].addressWidth);
  EXPECT_EQ(2, found[0].cores);
  EXPECT_EQ(4, found[0].threads);
  EXPECT_THAT(found[0].characteristics, ElementsAre(2, 4, 5, 6));
}

TEST(UnderstandCpuInfo, HasNoHardwareThreadsWhenEachCoreIsOne) {
  const std::vector<ProcessorFacts> found = Understand(Paragraph(0, 0, 2, 2));
  ASSERT_EQ(1u, found.size());
  EXPECT_THAT(found[0].characteristics, ElementsAre(2, 4, 6));
}

TEST(UnderstandCpuInfo, HasOneEntryForEachLogicalProcessorWithoutSockets) {
  const std::vector<ProcessorFacts> found =
      Understand("processor : 0\nmodel name : A\n\nprocessor : 1\nmodel name : B\n");
  ASSERT_EQ(2u, found.size());
  EXPECT_EQ("CPU0", found[0].deviceId);
  EXPECT_EQ("B", found[1].name);
  EXPECT_EQ(std::nullopt, found[1].cores);
  EXPECT_EQ(std::nullopt, found[1].dataWidth);
  EXPECT_EQ(std::nullopt, found[1].maxClockSpeed);
  EXPECT_THAT(found[1].characteristics, IsEmpty());
}

TEST(UnderstandCpuInfo, TakesTheWordUnknownForNoName) {
  const std::vector<ProcessorFacts> found =
      Understand("processor : 0\nmodel name : unknown\nstepping : unknown\n");
  ASSERT_EQ(1u, found.size());
  EXPECT_EQ(std::nullopt, found[0].name);
  EXPECT_EQ(std::nullopt, found[0].stepping);
}

TEST(UnderstandCpuInfo, SeesVirtualizationOfEitherKind) {
  EXPECT_THAT(Understand("processor:0\nflags:svm\n")[0].characteristics, ElementsAre(4));
  EXPECT_THAT(Understand("processor:0\nflags:vmx\n")[0].characteristics, ElementsAre(4));
  EXPECT_THAT(Understand("processor:0\nflags:vmxx xsvm\n")[0].characteristics, IsEmpty());
}

TEST(UnderstandCpuInfo, NumbersThatDoNotFitAreAbsent) {
  const std::vector<ProcessorFacts> found = Understand(
      "processor : 0\nsiblings : 65536\ncpu cores : 0\ncpu MHz : 99999999999\nflags : lm\n");
  ASSERT_EQ(1u, found.size());
  EXPECT_EQ(std::nullopt, found[0].threads);
  EXPECT_EQ(std::nullopt, found[0].cores);
  EXPECT_EQ(std::nullopt, found[0].currentClockSpeed);
}

TEST(UnderstandCpuInfo, TextsWithoutProcessorsHaveNone) {
  for (const char* text :
       {"", "\n\n\n", "processor\n", "processor : x\n", "processor : -1\nmodel name : A\n",
        "processor : 65536\n", "physical id : 0\n", ":\n:::\n"}) {
    EXPECT_THAT(Understand(text), IsEmpty()) << text;
  }
}

TEST(UnderstandCpuInfo, ASocketThatIsNoNumberIsPassedOver) {
  EXPECT_EQ("CPU7", Understand("processor : 7\nphysical id : \"; drop\n")[0].deviceId);
}

TEST(UnderstandCpuInfo, TheFirstOfTwoFieldsCounts) {
  EXPECT_EQ("A", Understand("processor:0\nmodel name:A\nmodel name:B\n")[0].name);
}

struct SpeedRow {
  const char* text;
  std::optional<std::uint32_t> megahertz;
};

void PrintTo(const SpeedRow& row, std::ostream* stream) { *stream << '"' << row.text << '"'; }

class Rounded : public testing::TestWithParam<SpeedRow> {};

TEST_P(Rounded, IsTheNearestWholeNumber) {
  EXPECT_EQ(GetParam().megahertz, RoundedMegahertz(GetParam().text));
}

INSTANTIATE_TEST_SUITE_P(Texts, Rounded,
                         testing::Values(SpeedRow{"2499.998", 2500}, SpeedRow{"2499.4", 2499},
                                         SpeedRow{"2499", 2499}, SpeedRow{"0.5", 1},
                                         SpeedRow{"0.4", {}}, SpeedRow{"0", {}}, SpeedRow{"", {}},
                                         SpeedRow{"2499.", {}}, SpeedRow{".5", {}},
                                         SpeedRow{"1.5.5", {}}, SpeedRow{"1.x", {}},
                                         SpeedRow{"-1.0", {}}, SpeedRow{"4294967294.9", 4294967295},
                                         SpeedRow{"4294967295.0", {}}));

TEST(UnderstandProcessors, ReadsAWindowsReading) {
  ProcessorReading reading;
  reading.packages.push_back(PackageReading{
      std::string("Some CPU  "), std::string("Intel64 Family 6 Model 85 Stepping 4"), 2500, 8, 16});
  reading.packages.push_back(PackageReading{{}, std::string("Stepping x"), 0, 70000, 0});
  const std::vector<ProcessorFacts> found = UnderstandProcessors(reading);
  ASSERT_EQ(2u, found.size());
  EXPECT_EQ("CPU0", found[0].deviceId);
  EXPECT_EQ("Some CPU", found[0].name);
  EXPECT_EQ("4", found[0].stepping);
  EXPECT_EQ(2500u, found[0].currentClockSpeed);
  EXPECT_EQ(8, found[0].cores);
  EXPECT_EQ(16, found[0].threads);
  EXPECT_THAT(found[0].characteristics, ElementsAre(5));
  EXPECT_EQ("CPU1", found[1].deviceId);
  EXPECT_EQ(std::nullopt, found[1].name);
  EXPECT_EQ(std::nullopt, found[1].stepping);
  EXPECT_EQ(std::nullopt, found[1].currentClockSpeed);
  EXPECT_EQ(65535, found[1].cores);
  EXPECT_EQ(std::nullopt, found[1].threads);
}

}  // namespace

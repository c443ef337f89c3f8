#include <plugins/machine/OperatingSystemFacts.h>

#include <gtest/gtest.h>

namespace {

using machine::OperatingSystemFacts;
using machine::UnderstandReading;
using machine::host::Reading;
using machine::host::WindowsVersion;

Reading Linux(const std::optional<std::string>& releaseText) {
  Reading reading;
  reading.hostName = "box";
  reading.kernelName = "Linux";
  reading.releaseText = releaseText;
  return reading;
}

Reading Windows(const std::optional<std::string>& productName, const WindowsVersion& version) {
  Reading reading;
  reading.hostName = "BOX";
  reading.productName = productName;
  reading.windowsVersion = version;
  return reading;
}

TEST(LinuxFacts, ComeFromOsRelease) {
  const OperatingSystemFacts facts = UnderstandReading(Linux(
      "PRETTY_NAME=\"Some OS 12 (x)\"\nNAME=\"Some OS\"\nVERSION_ID=\"12\"\nVERSION=\"12 (x)\""));
  EXPECT_EQ("box", facts.hostName);
  EXPECT_EQ("Some OS", facts.name);
  EXPECT_EQ("12", facts.version);
  EXPECT_EQ(36, facts.type);
}

TEST(LinuxFacts, WithoutOsReleaseAreTheKernelsName) {
  const OperatingSystemFacts facts = UnderstandReading(Linux(std::nullopt));
  EXPECT_EQ("Linux", facts.name);
  EXPECT_FALSE(facts.version.has_value());
  EXPECT_EQ(36, facts.type);
}

TEST(LinuxFacts, HaveNoVersionInADistributionWithoutVersions) {
  const OperatingSystemFacts facts =
      UnderstandReading(Linux("NAME=\"Rolling\"\nBUILD_ID=rolling\n"));
  EXPECT_EQ("Rolling", facts.name);
  EXPECT_FALSE(facts.version.has_value());
}

TEST(OperatingSystemFactsTest, NothingReadIsNothingKnown) {
  const OperatingSystemFacts facts = UnderstandReading(Reading());
  EXPECT_FALSE(facts.hostName.has_value());
  EXPECT_FALSE(facts.name.has_value());
  EXPECT_FALSE(facts.version.has_value());
  EXPECT_FALSE(facts.type.has_value());
}

TEST(OperatingSystemFactsTest, AnotherKernelHasNoType) {
  Reading reading;
  reading.kernelName = "Plan9";
  const OperatingSystemFacts facts = UnderstandReading(reading);
  EXPECT_EQ("Plan9", facts.name);
  EXPECT_FALSE(facts.type.has_value());
}

TEST(OperatingSystemFactsTest, EmptyTextsAreNotKnown) {
  Reading reading;
  reading.hostName = "";
  reading.kernelName = "";
  const OperatingSystemFacts facts = UnderstandReading(reading);
  EXPECT_FALSE(facts.hostName.has_value());
  EXPECT_FALSE(facts.name.has_value());
}

TEST(WindowsFacts, ComeFromRegistryAndVersion) {
  const OperatingSystemFacts facts =
      UnderstandReading(Windows("Windows 10 Pro", {10, 0, 19045, false}));
  EXPECT_EQ("BOX", facts.hostName);
  EXPECT_EQ("Windows 10 Pro", facts.name);
  EXPECT_EQ("10.0.19045", facts.version);
  EXPECT_EQ(121, facts.type);
}

TEST(WindowsFacts, WithoutAProductNameHaveNoName) {
  const OperatingSystemFacts facts = UnderstandReading(Windows(std::nullopt, {6, 1, 7601, false}));
  EXPECT_FALSE(facts.name.has_value());
  EXPECT_EQ("6.1.7601", facts.version);
}

TEST(WindowsFacts, WithoutAVersionHaveNoType) {
  Reading reading;
  reading.productName = "Windows 10 Pro";
  const OperatingSystemFacts facts = UnderstandReading(reading);
  EXPECT_EQ("Windows 10 Pro", facts.name);
  EXPECT_FALSE(facts.version.has_value());
  EXPECT_FALSE(facts.type.has_value());
}

struct NameRow {
  const char* what;
  const char* productName;
  WindowsVersion version;
  const char* name;
};

void PrintTo(const NameRow& row, std::ostream* stream) { *stream << row.what; }

class WindowsName : public testing::TestWithParam<NameRow> {};

TEST_P(WindowsName, IsTheSystemsOwn) {
  EXPECT_EQ(GetParam().name,
            UnderstandReading(Windows(GetParam().productName, GetParam().version)).name);
}

INSTANTIATE_TEST_SUITE_P(
    Names, WindowsName,
    testing::Values(
        NameRow{"the last build of 10", "Windows 10 Pro", {10, 0, 21999, false}, "Windows 10 Pro"},
        NameRow{"the first build of 11", "Windows 10 Pro", {10, 0, 22000, false}, "Windows 11 Pro"},
        NameRow{"11 that says so", "Windows 11 Pro", {10, 0, 26100, false}, "Windows 11 Pro"},
        NameRow{"a server of that build",
                "Windows Server 2025 Standard",
                {10, 0, 26100, true},
                "Windows Server 2025 Standard"},
        NameRow{"7", "Windows 7 Ultimate", {6, 1, 7601, false}, "Windows 7 Ultimate"}));

struct TypeRow {
  const char* what;
  WindowsVersion version;
  int type;
};

void PrintTo(const TypeRow& row, std::ostream* stream) { *stream << row.what; }

class WindowsOSType : public testing::TestWithParam<TypeRow> {};

TEST_P(WindowsOSType, IsTheNumberOfTheValueMap) {
  EXPECT_EQ(GetParam().type, UnderstandReading(Windows("Windows", GetParam().version)).type);
}

// CIM_OperatingSystem.OSType, DMTF CIM Schema 2.49; the 64-bit numbers where there are two.
INSTANTIATE_TEST_SUITE_P(
    Versions, WindowsOSType,
    testing::Values(TypeRow{"XP 64-Bit", {5, 2, 3790, false}, 71},
                    TypeRow{"Server 2003 64-Bit", {5, 2, 3790, true}, 70},
                    TypeRow{"Vista 64-Bit", {6, 0, 6002, false}, 74},
                    TypeRow{"Server 2008 64-Bit", {6, 0, 6003, true}, 77},
                    TypeRow{"7", {6, 1, 7601, false}, 105},
                    TypeRow{"Server 2008 R2", {6, 1, 7601, true}, 103},
                    TypeRow{"8 64-bit", {6, 2, 9200, false}, 115},
                    TypeRow{"Server 2012", {6, 2, 9200, true}, 113},
                    TypeRow{"8.1 64-bit", {6, 3, 9600, false}, 119},
                    TypeRow{"Server 2012 R2", {6, 3, 9600, true}, 116},
                    TypeRow{"10 64-bit, first", {10, 0, 10240, false}, 121},
                    TypeRow{"10 64-bit, last", {10, 0, 19045, false}, 121},
                    TypeRow{"Server 2016", {10, 0, 14393, true}, 117},
                    TypeRow{"11 has no number: WINNT", {10, 0, 22631, false}, 18},
                    TypeRow{"Server 2019 has no number: WINNT", {10, 0, 17763, true}, 18},
                    TypeRow{"Server 2022 has no number: WINNT", {10, 0, 20348, true}, 18},
                    TypeRow{"a version to come: WINNT", {11, 0, 1, false}, 18},
                    TypeRow{"NT 4: WINNT", {4, 0, 1381, false}, 18}));

}  // namespace

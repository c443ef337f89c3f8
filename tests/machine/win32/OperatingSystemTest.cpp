// This very machine, against what its environment and its commands say.

#include <plugins/machine/host/OperatingSystem.h>

#include <cstdlib>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <plugins/machine/OperatingSystemFacts.h>
#include <tests/support/ChildProcess.h>

namespace {

using machine::OperatingSystemFacts;
using machine::UnderstandReading;
using machine::host::ReadOperatingSystem;
using machine::host::ReadVariable;
using test_support::RunProgram;

std::string FromEnvironment(const char* name) {
  const char* text = std::getenv(name);
  return text ? text : "";
}

// What reg.exe prints of a value: name, type and text, in columns four blanks apart.
std::string FromRegistry(const std::string& name) {
  const std::string output =
      RunProgram(FromEnvironment("SystemRoot") + "\\system32\\reg.exe",
                 {"query", "HKLM\\Software\\Microsoft\\Windows NT\\CurrentVersion", "/v", name})
          .output;
  const std::string type = "REG_SZ    ";
  const std::size_t begin = output.find(type);
  if (begin == std::string::npos) {
    return "reg.exe does not know " + name;
  }
  const std::size_t end = output.find('\n', begin);
  return output.substr(begin + type.size(), end - begin - type.size());
}

TEST(ThisWindows, HasTheComputerNameOfTheEnvironment) {
  const OperatingSystemFacts facts = UnderstandReading(ReadOperatingSystem());
  ASSERT_TRUE(facts.hostName.has_value());
  EXPECT_EQ(FromEnvironment("COMPUTERNAME"), *facts.hostName);
}

TEST(ThisWindows, HasTheBuildNumberOfTheRegistry) {
  const OperatingSystemFacts facts = UnderstandReading(ReadOperatingSystem());
  ASSERT_TRUE(facts.version.has_value());
  EXPECT_THAT(*facts.version, testing::EndsWith("." + FromRegistry("CurrentBuildNumber")));
}

TEST(ThisWindows, HasTheProductNameOfTheRegistry) {
  const machine::host::Reading reading = ReadOperatingSystem();
  ASSERT_TRUE(reading.productName.has_value());
  EXPECT_EQ(FromRegistry("ProductName"), *reading.productName);
}

TEST(ThisWindows, HasAType) {
  EXPECT_TRUE(UnderstandReading(ReadOperatingSystem()).type.has_value());
}

TEST(ReadVariableTest, GivesTheTextOrNothing) {
  EXPECT_EQ("", ReadVariable("QDA_NO_SUCH_VARIABLE"));
  EXPECT_EQ(FromEnvironment("SystemRoot"), ReadVariable("SystemRoot"));
  EXPECT_NE("", ReadVariable("SystemRoot"));
}

}  // namespace

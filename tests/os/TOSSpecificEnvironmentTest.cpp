// The process's own environment, through the library.

#include <cstdlib>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <qdacore/frame/TRootObject.h>
#include <qdacore/os/TOSSpecific.h>
#include <tests/os/ServiceAids.h>
#include <tests/support/ChildProcess.h>
#include <tests/support/LogCapture.h>
#include <tests/support/ScopedEnvironment.h>

namespace {

using namespace NZRVQDA20;
using namespace test_support;
using namespace std::string_literals;

typedef std::vector<std::string> Lines;

const char kName[] = "QDA_TEST_VARIABLE";
const char kPrefix[] = "[Debug] TOSSpecific debug output: [ERROR]";

TEST(Environment, GivesBackWhatWasPut) {
  const ScopedEnvironment scope(kName, nullptr);
  const LogCapture log;
  for (const char* value : {"value", " blanks around ", "with=sign", "\"quoted\" 'text'", "%PATH%",
                            "$HOME", "line\nfeed", "x"}) {
    EXPECT_TRUE(TOSSpecific::PutEnvironment(kName, value));
    EXPECT_EQ(value, TOSSpecific::GetEnvironment(kName));
  }
  EXPECT_EQ(Lines(), log.Lines());
}

TEST(Environment, MissingVariableIsEmptyAndSaysSo) {
  const ScopedEnvironment scope(kName, nullptr);
  const LogCapture log;
  EXPECT_EQ("", TOSSpecific::GetEnvironment(kName));
  EXPECT_EQ("", TOSSpecific::GetEnvironment(""));
  EXPECT_EQ(Lines(2, kPrefix + "GetEnvironment-GetLastError():203"s), log.Lines());
}

TEST(Environment, EmptyVariableLooksLikeAMissingOne) {
  const ScopedEnvironment scope(kName, "before");
  const LogCapture log;
  EXPECT_TRUE(TOSSpecific::PutEnvironment(kName, ""));
  EXPECT_EQ("", TOSSpecific::GetEnvironment(kName));
  EXPECT_EQ(Lines{kPrefix + "GetEnvironment-GetLastError():0"s}, log.Lines());
}

TEST(Environment, ImpossibleNameIsRefusedAndSaysSo) {
  const LogCapture log;
  EXPECT_FALSE(TOSSpecific::PutEnvironment("", "value"));
  EXPECT_FALSE(TOSSpecific::PutEnvironment("QDA=TEST", "value"));
  EXPECT_EQ(Lines(2, kPrefix + "PutEnvironment-GetLastError():87"s), log.Lines());
}

TEST(Environment, NameWithASignNamesNothing) {
  const ScopedEnvironment scope(kName, "part=whole");
  EXPECT_EQ("", TOSSpecific::GetEnvironment(kName + "=part"s));
}

// The text in front of the NUL is another variable, or another value.
TEST(Environment, NulIsRefusedAndChangesNothing) {
  const ScopedEnvironment scope(kName, "before");
  const LogCapture log;
  EXPECT_FALSE(TOSSpecific::PutEnvironment(kName + "\0X"s, "after"));
  EXPECT_FALSE(TOSSpecific::PutEnvironment(kName, "after\0X"s));
  EXPECT_EQ("", TOSSpecific::GetEnvironment(kName + "\0X"s));
  EXPECT_EQ("before", TOSSpecific::GetEnvironment(kName));
  EXPECT_EQ((Lines{kPrefix + "PutEnvironment-GetLastError():87"s,
                   kPrefix + "PutEnvironment-GetLastError():87"s,
                   kPrefix + "GetEnvironment-GetLastError():203"s}),
            log.Lines());
}

TEST(Environment, LongValuesComeWhole) {
  const ScopedEnvironment scope(kName, nullptr);
  for (const unsigned length : {1000u, 32765u, 32766u, service_aids::kLongestValue}) {
    const std::string value = std::string(length - 1, 'a') + "z";
    ASSERT_TRUE(TOSSpecific::PutEnvironment(kName, value)) << length;
    EXPECT_EQ(value, TOSSpecific::GetEnvironment(kName)) << length;
  }
}

// A host that logs before it has a logger loses the line, and nothing else.
TEST(Environment, FailureWithoutALoggerIsHarmless) {
  ASSERT_EQ(nullptr, TRootObject::GetCoreLogger());
  const ScopedEnvironment scope(kName, nullptr);
  EXPECT_EQ("", TOSSpecific::GetEnvironment(kName));
  EXPECT_FALSE(TOSSpecific::PutEnvironment("", ""));
}

TEST(Environment, IsTheProcessesOwnAndNotTheRuntimes) {
  const ScopedEnvironment scope(kName, nullptr);
  ASSERT_TRUE(TOSSpecific::PutEnvironment(kName, "value"));
  EXPECT_EQ(service_aids::kRuntimeSharesTheEnvironment, std::getenv(kName) != nullptr);
}

QDACORE_CHILD(PrintsVariable) {
  const char* const value = std::getenv(kName);
  std::fputs(value ? value : "not set", stdout);
  return 0;
}

TEST(Environment, IsWhatChildrenInherit) {
  const ScopedEnvironment scope(kName, nullptr);
  ASSERT_TRUE(TOSSpecific::PutEnvironment(kName, "inherited"));
  EXPECT_EQ("inherited", RunChild("PrintsVariable").output);
}

}  // namespace

// What a failed assertion does under each policy. The policies write to standard error and one
// ends the process, so each runs in a process of its own.

#include <cstdio>
#include <regex>
#include <string>

#include <gtest/gtest.h>
#include <boost/shared_ptr.hpp>

#include <qdacore/frame/AssertionFailed.h>
#include <qdacore/frame/TBoostAssertException.h>
#include <qdacore/frame/TQDAException.h>
#include <qdacore/frame/TRootObject.h>
#include <qdacore/logging/TLogger.h>
#include <qdacore/plugin/INamespaceProvider.h>
#include <qdacore/plugin/TNamespaceProviderManager.h>
#include <tests/support/ChildProcess.h>
#include <tests/support/ExpectStatus.h>
#include <tests/support/LogCapture.h>
#include <tests/support/ScopedEnvironment.h>

namespace {

using namespace NZRVQDA20;
using namespace test_support;

const char kVariable[] = "QDA_BOOST_ASSERT";

void FailAssertion() { boost::assertion_failed("px != 0", "int f(int)", "some/file.h", 42); }

// Says what comes of `call`, in a line on standard output.
template <class Call>
void Report(Call call) {
  try {
    call();
    std::puts("returned");
  } catch (const TQDAException& failure) {
    std::printf("TQDAException: %s\n", failure.what());
  } catch (const TBoostAssertException& failure) {
    std::printf("TBoostAssertException: %s\n", failure.what());
  }
}

QDACORE_CHILD(FailsAnAssertion) {
  Report(FailAssertion);
  return 0;
}

struct PolicyRow {
  const char* policy;
  const char* output;
  const char* error;
  int exitCode;
};

const PolicyRow kPolicies[] = {
    {nullptr, "TQDAException: kQDAStatusFail\n", "", 0},
    {"throwqda", "TQDAException: kQDAStatusFail\n", "", 0},
    {"throwboost",
     "TBoostAssertException: Boost assertion failure! some/file.h:42 [px != 0] func = int f(int)\n",
     "", 0},
    {"trap", "returned\n",
     "\nBoost assertion failure! some/file.h:42 [px != 0] func = int f(int)\n\n"
     "Forcing segmentation fault.\n\n",
     0},
    {"exit", "", "\nBoost assertion failure! some/file.h:42 [px != 0] func = int f(int)\n", 1},
    {"THROWQDA", "TQDAException: kQDAStatusFail\n",
     "Invalid setting for QDA_BOOST_ASSERT 'THROWQDA'. Valid values are {throwqda, throwboost, "
     "trap, exit}.\n",
     0},
    {"", "TQDAException: kQDAStatusFail\n",
     "Invalid setting for QDA_BOOST_ASSERT ''. Valid values are {throwqda, throwboost, trap, "
     "exit}.\n",
     0},
    {"exit ", "TQDAException: kQDAStatusFail\n",
     "Invalid setting for QDA_BOOST_ASSERT 'exit '. Valid values are {throwqda, throwboost, trap, "
     "exit}.\n",
     0},
};

TEST(AssertionFailed, PolicyDecides) {
  for (const PolicyRow& row : kPolicies) {
    SCOPED_TRACE(row.policy ? row.policy : "(unset)");
    const ChildResult result = RunChild("FailsAnAssertion", {{kVariable, row.policy}});
    EXPECT_EQ(row.output, result.output);
    EXPECT_EQ(row.error, result.error);
    EXPECT_EQ(row.exitCode, result.exitCode);
  }
}

QDACORE_CHILD(DereferencesNull) {
  Report([] {
    boost::shared_ptr<std::string> null;
    static_cast<void>(null->size());
  });
  return 0;
}

TEST(AssertionFailed, NullSharedPointerIsAStatusByDefault) {
  const ChildResult result = RunChild("DereferencesNull", {{kVariable, nullptr}});
  EXPECT_EQ("TQDAException: kQDAStatusFail\n", result.output);
  EXPECT_EQ("", result.error);
  EXPECT_EQ(0, result.exitCode);
}

TEST(AssertionFailed, NullSharedPointerTellsItsSiteUnderThrowboost) {
  const ChildResult result = RunChild("DereferencesNull", {{kVariable, "throwboost"}});
  const std::regex form(
      R"(TBoostAssertException: Boost assertion failure! .*shared_ptr\.hpp:\d+ \[px != 0\] )"
      R"(func = .*operator.*->.*\n)");
  EXPECT_TRUE(std::regex_match(result.output, form)) << result.output;
  EXPECT_EQ("", result.error);
}

struct SaysFarewell {
  ~SaysFarewell() {
    std::puts("program's statics");
    std::fflush(stdout);
  }
};

class FarewellProvider : public INamespaceProvider {
 public:
  ~FarewellProvider() override {
    std::puts("library's registry");
    std::fflush(stdout);
  }
  const std::string& GetName(std::map<std::string, TCIMValue>) const override { return fName; }

 private:
  std::string fName = "farewell";
};

QDACORE_CHILD(ExitsByAFailedAssertion) {
  static SaysFarewell farewell;
  TNamespaceProviderManager::GetInstance()->RegisterNamespaceProvider(
      boost::shared_ptr<INamespaceProvider>(new FarewellProvider));
  FailAssertion();
  std::puts("not reached");
  return 0;
}

TEST(AssertionFailed, ExitRunsExitTimeDestructors) {
  const ChildResult result = RunChild("ExitsByAFailedAssertion", {{kVariable, "exit"}});
  EXPECT_EQ("program's statics\nlibrary's registry\n", result.output);
  EXPECT_EQ(1, result.exitCode);
}

TEST(AssertionFailed, ChangeDuringTheRunTakesEffectAtTheNextFailure) {
  {
    ScopedEnvironment policy(kVariable, "throwboost");
    EXPECT_THROW(FailAssertion(), TBoostAssertException);
  }
  {
    ScopedEnvironment policy(kVariable, "throwqda");
    EXPECT_STATUS(kQDAStatusFail, FailAssertion());
  }
  {
    ScopedEnvironment policy(kVariable, nullptr);
    EXPECT_STATUS(kQDAStatusFail, FailAssertion());
  }
  ScopedEnvironment policy(kVariable, "throwboost");
  EXPECT_THROW(FailAssertion(), TBoostAssertException);
}

QDACORE_CHILD(FailsAssertionsWithALog) {
  LogCapture log;
  for (const char* policy : {"throwqda", "throwboost", "trap", "nonsense", ""}) {
    ScopedEnvironment setting(kVariable, policy);
    Report(FailAssertion);
  }
  std::printf("%u lines, %u entries\n", static_cast<unsigned>(log.Lines().size()),
              static_cast<unsigned>(TRootObject::GetCoreLogger()->GetLogEntries().size()));
  return 0;
}

TEST(AssertionFailed, NothingReachesTheCoreLog) {
  const ChildResult result = RunChild("FailsAssertionsWithALog");
  EXPECT_NE(std::string::npos, result.output.find("0 lines, 0 entries\n")) << result.output;
  EXPECT_EQ(0, result.exitCode);
}

QDACORE_CHILD(ExitsWithALog) {
  TLogger::Initialize();
  TRootObject::GetCoreLogger()->SetLogFilename(arguments.at(0));
  FailAssertion();
  return 0;
}

// No line, and no closing banner either: the library never deletes the logger.
TEST(AssertionFailed, ExitLeavesTheLogAsItStands) {
  TemporaryFolder folder;
  const std::string path = folder.PathOf("core.log");
  EXPECT_EQ(1, RunChild("ExitsWithALog", {{kVariable, "exit"}}, {path}).exitCode);
  EXPECT_EQ("-- QDA Log Opened ----------------------------\n", ReadTextFile(path));
}

}  // namespace

// The test aids are code like any other.

#include <cstdio>
#include <cstdlib>

#include <gtest/gtest.h>

#include <tests/support/ChildProcess.h>
#include <tests/support/ScopedEnvironment.h>
#include <tests/support/TemporaryFolder.h>

namespace {

using namespace test_support;

QDACORE_CHILD(EchoesArguments) {
  for (const std::string& argument : arguments) {
    std::printf("<%s>", argument.c_str());
  }
  std::fprintf(stderr, "problem");
  return 7;
}

QDACORE_CHILD(ShowsVariable) {
  const char* value = std::getenv("QDACORE_TEST_VARIABLE");
  std::printf("%s", value ? value : "(unset)");
  return 0;
}

TEST(ChildProcess, OutputErrorAndExitCodeAreTold) {
  const ChildResult result = RunChild("EchoesArguments", {}, {"a b", "", "c\"d", "e\\", "--flag"});
  EXPECT_EQ(7, result.exitCode);
  EXPECT_EQ("<a b><><c\"d><e\\><--flag>", result.output);
  EXPECT_EQ("problem", result.error);
  EXPECT_FALSE(result.timedOut);
}

TEST(ChildProcess, UnknownChildFails) { EXPECT_EQ(99, RunChild("NoSuchChild").exitCode); }

TEST(ChildProcess, EnvironmentChangesReachTheChildOnly) {
  EXPECT_EQ("x y", RunChild("ShowsVariable", {{"QDACORE_TEST_VARIABLE", "x y"}}).output);
  EXPECT_EQ("(unset)", RunChild("ShowsVariable", {{"QDACORE_TEST_VARIABLE", nullptr}}).output);
  EXPECT_EQ(nullptr, std::getenv("QDACORE_TEST_VARIABLE"));
}

TEST(ChildProcess, EmptyVariableIsNotAMissingOne) {
  EXPECT_EQ("", RunChild("ShowsVariable", {{"QDACORE_TEST_VARIABLE", ""}}).output);
}

TEST(ScopedEnvironment, RestoresTheOldState) {
  {
    ScopedEnvironment outer("QDACORE_TEST_VARIABLE", "one");
    {
      ScopedEnvironment inner("QDACORE_TEST_VARIABLE", nullptr);
      EXPECT_EQ(nullptr, std::getenv("QDACORE_TEST_VARIABLE"));
    }
    EXPECT_STREQ("one", std::getenv("QDACORE_TEST_VARIABLE"));
    {
      ScopedEnvironment inner("QDACORE_TEST_VARIABLE", "");
      EXPECT_STREQ("", std::getenv("QDACORE_TEST_VARIABLE"));
    }
    EXPECT_STREQ("one", std::getenv("QDACORE_TEST_VARIABLE"));
  }
  EXPECT_EQ(nullptr, std::getenv("QDACORE_TEST_VARIABLE"));
}

TEST(TemporaryFolder, HoldsFilesAndGoes) {
  std::string path;
  {
    TemporaryFolder folder;
    path = folder.Write("sub/file.txt", "one\r\ntwo\n");
    EXPECT_EQ("one\ntwo\n", ReadTextFile(path));
    EXPECT_TRUE(PathExists(folder.PathOf("sub")));
  }
  EXPECT_FALSE(PathExists(path));
}

}  // namespace

// A host that loads the library and unloads it, without calling anything.

#include <filesystem>

#include <gtest/gtest.h>

#include <tests/support/ChildProcess.h>
#include <tests/support/TemporaryFolder.h>

namespace {

using namespace test_support;

TEST(LibraryLoad, MakesNoServiceNoThreadAndNoFile) {
  TemporaryFolder folder;
  const ChildResult result =
      RunProgram(OwnFolder() + "/" QDACORE_LOAD_PROBE, {QDACORE_LIBRARY}, {}, folder.Path());
  EXPECT_EQ(
      "loaded\n"
      "kPluginExtension is .pi.dll\n"
      "core logger is null\n"
      "registry is empty\n"
      "no new thread\n"
      "no new file\n"
      "no thread notices\n"
      "unloaded\n",
      result.output);
  EXPECT_EQ("", result.error);
  EXPECT_EQ(0, result.exitCode);
  EXPECT_TRUE(std::filesystem::is_empty(folder.Path()));
}

}  // namespace

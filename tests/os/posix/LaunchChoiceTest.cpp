// Which editor and which shell a user of this system has.

#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <tests/support/ChildProcess.h>
#include <tests/support/TemporaryFolder.h>

namespace {

using namespace test_support;

// Children LaunchesEditor and LaunchesShell are those of TOSSpecificLaunchTest. Each program says
// its name; the ones that are looked up on the path stand in a folder in front of it.
class LaunchChoice : public testing::Test {
 protected:
  LaunchChoice() {
    for (const char* name : {"visual", "editor", "vi", "shell", "sh"}) {
      const std::string path =
          fFolder.Write(std::string("bin/") + name, std::string("#!/bin/sh\necho ") + name + "\n");
      std::filesystem::permissions(path, std::filesystem::perms::owner_all);
    }
    fPath = fFolder.PathOf("bin") + ":/usr/bin:/bin";
  }

  std::string Launched(const std::string& child, std::vector<EnvironmentChange> environment) {
    environment.push_back({"PATH", fPath.c_str()});
    const std::string output = RunChild(child, environment, {"file"}).output;
    return output.substr(0, output.find('\n'));
  }

 private:
  TemporaryFolder fFolder;
  std::string fPath;
};

TEST_F(LaunchChoice, EditorIsVisualElseEditorElseVi) {
  const struct {
    const char* visual;
    const char* editor;
    const char* expected;
  } rows[] = {
      {"visual", "editor", "visual"}, {"visual", nullptr, "visual"}, {nullptr, "editor", "editor"},
      {"", "editor", "editor"},       {nullptr, nullptr, "vi"},      {"", "", "vi"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(row.expected,
              Launched("LaunchesEditor", {{"VISUAL", row.visual}, {"EDITOR", row.editor}}));
  }
}

TEST_F(LaunchChoice, ShellIsTheUsersElseSh) {
  EXPECT_EQ("shell", Launched("LaunchesShell", {{"SHELL", "shell"}}));
  EXPECT_EQ("sh", Launched("LaunchesShell", {{"SHELL", nullptr}}));
  EXPECT_EQ("sh", Launched("LaunchesShell", {{"SHELL", ""}}));
}

}  // namespace

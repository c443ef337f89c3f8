// Child processes of a test. Blocking, bounded in time, the same on every platform.

#ifndef TESTS_SUPPORT_CHILDPROCESS_H
#define TESTS_SUPPORT_CHILDPROCESS_H

#include <map>
#include <string>
#include <vector>

namespace test_support {

struct ChildResult {
  // -1: it could not be started, or ran too long and was killed (`timedOut`).
  int exitCode;
  bool timedOut;
  std::string output;
  std::string error;
};

// What the child's environment has more than ours; a null stands for a variable that it lacks.
struct EnvironmentChange {
  std::string name;
  const char* value;
};

// Runs `program` with `arguments` in `folder` (empty: ours) and waits for its end, 60 seconds at
// the most. Line ends in its output are given as "\n".
ChildResult RunProgram(const std::string& program, const std::vector<std::string>& arguments,
                       const std::vector<EnvironmentChange>& environment = {},
                       const std::string& folder = "");

// The path of the running program.
std::string OwnProgram();

// The folder of the running program.
std::string OwnFolder();

// Runs this very program as the child `name` (see QDACORE_CHILD), in a process of its own.
ChildResult RunChild(const std::string& name,
                     const std::vector<EnvironmentChange>& environment = {},
                     const std::vector<std::string>& arguments = {});

// A child's code: registered under its name when the program starts, run by RunChild. Its result
// is the exit code; `arguments` are those that RunChild was given.
//
//   QDACORE_CHILD(PrintsHello) { puts("hello"); return 0; }
//   TEST(Hello, IsPrinted) { EXPECT_EQ("hello\n", RunChild("PrintsHello").output); }
typedef int (*ChildFunction)(const std::vector<std::string>& arguments);

struct ChildRegistration {
  ChildRegistration(const char* name, ChildFunction function);
};

#define QDACORE_CHILD(name)                                                               \
  static int Child##name(const std::vector<std::string>& arguments);                      \
  static const ::test_support::ChildRegistration registerChild##name(#name, Child##name); \
  static int Child##name([[maybe_unused]] const std::vector<std::string>& arguments)

// Runs the code of a registered child in this process; 99 when there is none of that name.
int RunRegisteredChild(const std::string& name, const std::vector<std::string>& arguments);

// For the main function: true, with the exit code, when this process is such a child.
bool RunAsChild(int argc, char** argv, int& exitCode);

}  // namespace test_support

#endif

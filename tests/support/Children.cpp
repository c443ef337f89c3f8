#include <cstdio>
#include <cstring>

#include <tests/support/ChildProcess.h>

namespace test_support {

namespace {

const char kChildSwitch[] = "--run-as-child";

std::map<std::string, ChildFunction>& Children() {
  static std::map<std::string, ChildFunction> children;
  return children;
}

}  // namespace

ChildRegistration::ChildRegistration(const char* name, ChildFunction function) {
  Children()[name] = function;
}

std::string OwnFolder() {
  const std::string program = OwnProgram();
  return program.substr(0, program.find_last_of("/\\"));
}

ChildResult RunChild(const std::string& name, const std::vector<EnvironmentChange>& environment,
                     const std::vector<std::string>& arguments) {
  std::vector<std::string> all = {kChildSwitch, name};
  all.insert(all.end(), arguments.begin(), arguments.end());
  return RunProgram(OwnProgram(), all, environment);
}

int RunRegisteredChild(const std::string& name, const std::vector<std::string>& arguments) {
  const auto found = Children().find(name);
  if (found == Children().end()) {
    std::fprintf(stderr, "no child is called %s\n", name.c_str());
    return 99;
  }
  return found->second(arguments);
}

bool RunAsChild(int argc, char** argv, int& exitCode) {
  if (argc < 3 || std::strcmp(argv[1], kChildSwitch) != 0) {
    return false;
  }
  exitCode = RunRegisteredChild(argv[2], std::vector<std::string>(argv + 3, argv + argc));
  return true;
}

}  // namespace test_support

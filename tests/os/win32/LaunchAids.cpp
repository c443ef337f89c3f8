#include <tests/os/LaunchAids.h>

namespace launch_aids {

using namespace test_support;

// The interpreter looks in the current folder first.
Programs::Programs() {
  fFolder.Write("notepad.bat", "@echo editor [%~1][%~2]\r\n");
  fFolder.Write("cmd.bat", "@echo shell [%~1][%~2]\r\n");
}

ChildResult Programs::Run(const std::string& child,
                          const std::vector<std::string>& arguments) const {
  std::vector<std::string> all = {"--run-as-child", child};
  all.insert(all.end(), arguments.begin(), arguments.end());
  return RunProgram(OwnProgram(), all, {}, fFolder.Path());
}

}  // namespace launch_aids
